#include "platform/report/preview/paginas_vista.h"

#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <memory>
#include <new>

namespace kestrane::report {

using namespace Qt::StringLiterals;

QString motivoDeFallo()
{
    try {
        throw;
    } catch (const ErrorEjecucion& error) {
        return error.descripcion();
    } catch (const ErrorDeSalida& error) {
        return error.motivo();
    } catch (const std::bad_alloc&) {
        return u"No hay memoria suficiente."_s;
    } catch (const std::exception& error) {
        return u"Error inesperado: %1."_s.arg(QString::fromLocal8Bit(error.what()));
    }
}

const PaginaVista& PaginasVista::vista(int pagina)
{
    if (const PaginaVista* guardada = m_cache.object(pagina))
        return *guardada;
    auto nueva = std::make_unique<PaginaVista>();
    nueva->compuesta = compuesta(pagina);
    nueva->texto = TextoPagina{nueva->compuesta};
    m_cache.insert(pagina, nueva.release());
    return *m_cache.object(pagina);
}

QSizeF PaginasVista::tamano(int pagina)
{
    // The length of a roll's page is known when it has been composed, which may fail.
    const QString motivo = fallo([&] { m_tamano = m_fuente.tamano(pagina); });
    if (!motivo.isEmpty())
        m_alFallar(motivo);
    return m_tamano;
}

PaginaCompuesta PaginasVista::compuesta(int pagina)
{
    PaginaCompuesta compuesta;
    const QString motivo = fallo([&] { compuesta = m_fuente.pagina(pagina); });
    if (!motivo.isEmpty())
        m_alFallar(motivo);
    return compuesta;
}

} // namespace kestrane::report
