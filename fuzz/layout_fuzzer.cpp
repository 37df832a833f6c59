#include "platform/report/layout/lector_layout.h"
#include "platform/report/layout/nodo_expresion.h"
#include "platform/runtime/error_ejecucion.h"

#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>

// Any bytes as a layout file, and as an expression: both are read or refused with the place where they are wrong, and what is read
// holds to its limits.

using namespace kestrane;
using namespace kestrane::report;

namespace {

const QString Fichero = QStringLiteral("K_x.rpt");

void exige(bool condicion, const char* que, const QByteArray& bytes)
{
    if (condicion)
        return;
    std::fprintf(stderr, "%s\n%s\n", que, bytes.constData());
    std::abort();
}

/// An error names the file, and a line that it has.
void compruebaError(const ErrorEjecucion& error, const QByteArray& bytes)
{
    static const QRegularExpression Lugar{QStringLiteral("^K_x\\.rpt(, línea (\\d+))?: .")};
    exige(error.numero() == ErrorEjecucion::LayoutIncorrecto, "an error of another number", bytes);
    const QRegularExpressionMatch lugar = Lugar.match(error.descripcion());
    exige(lugar.hasMatch(), "an error without its place", bytes);
    // A carriage return alone ends a line too.
    const qsizetype lineas = 1 + bytes.count('\n') + bytes.count('\r');
    const bool utf8 = !bytes.startsWith("\xff\xfe") && !bytes.startsWith("\xfe\xff") && !bytes.contains('\0');
    exige(!utf8 || lugar.captured(2).toInt() <= lineas, "an error in a line that there is not", bytes);
}

void compruebaSeccion(const Seccion& seccion, double ancho, const QByteArray& bytes)
{
    constexpr double Holgura = 0.2;
    for (const Banda& banda : seccion)
        for (const Elemento& elemento : banda.elementos) {
            const QRectF caja = std::visit([](const auto& e) { return e.caja; }, elemento);
            exige(caja.left() >= 0 && caja.top() >= 0 && caja.width() >= 0 && caja.height() >= 0, "a box turned round", bytes);
            exige(caja.right() <= ancho + Holgura, "a box beside its band", bytes);
        }
}

void compruebaLayout(const Layout& layout, const QByteArray& bytes)
{
    const double ancho = layout.pagina.anchoUtil();
    exige(ancho > 0 && !layout.sentencia.isEmpty(), "a report without paper or statement", bytes);
    for (const Seccion* seccion :
         {&layout.cabeceraInforme, &layout.cabeceraPagina, &layout.detalle, &layout.piePagina, &layout.pieInforme})
        compruebaSeccion(*seccion, ancho, bytes);
    for (const Grupo& grupo : layout.grupos) {
        compruebaSeccion(grupo.cabecera, ancho, bytes);
        compruebaSeccion(grupo.pie, ancho, bytes);
    }
    for (const Agregado& agregado : layout.agregados)
        exige(agregado.nivel >= 0 && agregado.nivel <= static_cast<int>(layout.grupos.size()), "a sum over no group", bytes);
}

void pruebaLayout(const QByteArray& bytes)
{
    try {
        compruebaLayout(leeLayout(bytes, Fichero, {}), bytes);
    } catch (const ErrorEjecucion& error) {
        compruebaError(error, bytes);
    }
}

/// Read twice, an expression is the same tree and asks for the same sums.
void pruebaExpresion(const QByteArray& bytes)
{
    const QString texto = QString::fromUtf8(bytes);
    std::vector<Agregado> agregados;
    ContextoAnalisis contexto{{QStringLiteral("seccion"), QStringLiteral("dia")}, 1, agregados};
    try {
        const Expresion una = analizaExpresion(texto, {Fichero, 1}, contexto);
        const size_t pedidos = agregados.size();
        const Expresion otra = analizaExpresion(u'(' + texto + u')', {Fichero, 1}, contexto);
        exige(iguales(una.raiz(), otra.raiz()), "a parenthesis around changes an expression", bytes);
        exige(agregados.size() == pedidos, "the same sums are asked for twice", bytes);
    } catch (const ErrorEjecucion& error) {
        compruebaError(error, bytes);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t bytes)
{
    const QByteArray entrada{reinterpret_cast<const char*>(datos), static_cast<qsizetype>(bytes)};
    pruebaLayout(entrada);
    pruebaExpresion(entrada);
    return 0;
}
