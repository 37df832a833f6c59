#include "platform/report/export/cierre_xlsx.h"

#include "platform/report/export/avance_exportacion.h"
#include "platform/report/export/fichero_provisional.h"
#include "platform/report/export/hoja_vigilada.h"
#include "platform/runtime/motivo_sistema.h"

#include <QFile>
#include <QTemporaryFile>

#include <algorithm>
#include <exception>
#include <fcntl.h>
#include <memory>
#include <utility>
#include <xlsxwriter.h>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Holgura = qint64{1024} * 1024;

/// Tells how far the packing is. Nothing may be thrown through the library: what is waits until it is done.
struct CuentaDeCierre
{
    const AvanceExportacion& avance;
    qint64 todo = 0;
    qint64 hecho = 0;
    bool roto = false;
    std::exception_ptr fallo = nullptr;

    bool sigue(qint64 leidos) noexcept
    {
        hecho = std::min(hecho + leidos, todo);
        try {
            roto = roto || !report::sigue(avance, hecho, todo);
        } catch (...) {
            fallo = std::current_exception();
            roto = true;
        }
        return !roto;
    }
};

[[noreturn]] void fallaPor(const LibroEscrito& escrito, int motivo)
{
    noSePuedeEscribir(escrito.fichero, motivoDe(std::error_code{motivo, std::generic_category()}));
}

/// The library looks at none of its writes on the way: whether the rows are all on the disk, and whether there is room for their
/// copy and for the packed file, has to be asked for it. How many bytes of rows there are.
qint64 compruebaDisco(const LibroEscrito& escrito)
{
    qint64 filas = 0;
    for (const lxw_worksheet* hoja : escrito.hojas) {
        errno = 0;
        if (std::fflush(hoja->optimize_tmpfile) != 0 || std::ferror(hoja->optimize_tmpfile) != 0)
            fallaPor(escrito, errno == 0 ? ENOSPC : errno);
        filas += std::ftell(hoja->optimize_tmpfile);
    }
    QTemporaryFile sitio{escrito.carpeta + u"/sitio"_s};
    if (!sitio.open())
        noSePuedeEscribir(escrito.fichero, motivoDe(sitio));
    if (const int error = posix_fallocate(sitio.handle(), 0, 2 * filas + Holgura); error != 0)
        fallaPor(escrito, error);
    return filas;
}

lxw_error empaqueta(const LibroEscrito& escrito, const HojaVigilada::Aviso& aviso)
{
    std::vector<std::unique_ptr<HojaVigilada>> vigias;
    vigias.reserve(escrito.hojas.size());
    for (lxw_worksheet* hoja : escrito.hojas)
        vigias.push_back(std::make_unique<HojaVigilada>(hoja, aviso));
    errno = 0;
    return workbook_close(std::exchange(escrito.libro, nullptr));
}

} // namespace

bool cierraLibro(const LibroEscrito& escrito, const AvanceExportacion& avance)
{
    CuentaDeCierre cuenta{avance, compruebaDisco(escrito)};
    // The library would say it on the standard error, in words of its own.
    QFile fichero{escrito.fichero};
    if (!fichero.open(QIODevice::WriteOnly))
        noSePuedeEscribir(escrito.fichero, motivoDe(fichero));
    const lxw_error error = empaqueta(escrito, [&cuenta](qint64 leidos) { return cuenta.sigue(leidos); });
    const int motivo = errno;
    if (cuenta.fallo)
        std::rethrow_exception(cuenta.fallo);
    if (cuenta.roto || error == LXW_NO_ERROR)
        return !cuenta.roto;
    if (motivo != 0)
        fallaPor(escrito, motivo);
    noSePuedeEscribir(escrito.fichero, u"la hoja de cálculo no se puede cerrar"_s);
}

} // namespace kestrane::report
