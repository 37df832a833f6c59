#include "platform/report/codigo39.h"

#include "platform/report/medida_estilo.h"

#include <QFontDatabase>

#include <zint.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace kestrane::report {

namespace {

constexpr QStringView Letra = u"c39hrp24dhtt";

/// Blank modules that a reader needs on each side.
constexpr int Margen = 10;
/// A narrow bar wider than that, in millimetres, only spreads the code.
constexpr double ModuloMayor = 0.5;
/// A narrower one is not read any more.
constexpr double ModuloMenor = 0.19;

struct CierraSimbolo
{
    void operator()(zint_symbol* simbolo) const { ZBarcode_Delete(simbolo); }
};
using Simbolo = std::unique_ptr<zint_symbol, CierraSimbolo>;

bool esNegro(const zint_symbol& simbolo, int modulo)
{
    return (simbolo.encoded_data[0][modulo >> 3] >> (modulo & 7) & 1) != 0;
}

/// The runs of black modules of the symbol; none when they would be too narrow.
std::vector<QRectF> barras(const zint_symbol& simbolo, const QRectF& caja)
{
    const double modulo = std::min(ModuloMayor, caja.width() / (simbolo.width + 2 * Margen));
    if (modulo < ModuloMenor)
        return {};
    const double izquierda = caja.center().x() - simbolo.width * modulo / 2;
    std::vector<QRectF> barras;
    for (int i = 0; i < simbolo.width; ++i) {
        const int primero = i;
        while (i < simbolo.width && esNegro(simbolo, i))
            ++i;
        if (i > primero)
            barras.emplace_back(izquierda + primero * modulo, caja.top(), (i - primero) * modulo, caja.height());
    }
    return barras;
}

} // namespace

bool hayLetraCodigo39()
{
    return QFontDatabase::hasFamily(Letra.toString());
}

Estilo estiloCodigo39(double alto)
{
    Estilo estilo;
    estilo.familia = Letra.toString();
    estilo.cuerpo = alto / MilimetrosPorPunto;
    return estilo;
}

QString textoCodigo39(const QString& valor)
{
    return u'*' + valor.toUpper() + u'*';
}

bool esCodigo39(const QString& valor)
{
    constexpr std::u16string_view Signos = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-. $/+%";
    return !valor.isEmpty() &&
           std::all_of(valor.begin(), valor.end(), [&](QChar c) { return Signos.find(c.unicode()) != std::u16string_view::npos; });
}

std::vector<QRectF> barrasCodigo39(const QString& valor, const QRectF& caja)
{
    if (!esCodigo39(valor))
        return {};
    const Simbolo simbolo{ZBarcode_Create()};
    simbolo->symbology = BARCODE_CODE39;
    const QByteArray texto = valor.toUpper().toLatin1();
    const auto* const bytes = reinterpret_cast<const unsigned char*>(texto.constData());
    if (ZBarcode_Encode(simbolo.get(), bytes, static_cast<int>(texto.size())) >= ZINT_ERROR)
        return {}; // longer than the code may be
    return barras(*simbolo, caja);
}

} // namespace kestrane::report
