#include "platform/report/layout/formato.h"

#include "platform/report/layout/redondeo.h"
#include "platform/runtime/conversiones.h"

#include <algorithm>
#include <cmath>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

struct NombreFormato
{
    QStringView nombre;
    Formato formato;
};

constexpr NombreFormato Nombres[] = {
    {u"general", Formato::General},       {u"entero", Formato::Entero},
    {u"numero", Formato::Numero},         {u"moneda", Formato::Moneda},
    {u"porcentaje", Formato::Porcentaje}, {u"fecha", Formato::Fecha},
    {u"fecha-hora", Formato::FechaHora},  {u"hora", Formato::Hora},
};

/// Beyond this the digits would be made up.
constexpr double Mayor = 1e15;

bool esNumero(const Valor& valor)
{
    const Valor::Clase clase = valor.clase();
    return clase == Valor::Clase::Entero16 || clase == Valor::Clase::Entero32 || clase == Valor::Clase::Doble;
}

bool esDeFecha(Formato formato)
{
    return formato == Formato::Fecha || formato == Formato::FechaHora || formato == Formato::Hora;
}

/// From "-1234567.50": the marks of `regional`, thousands parted.
QString conMarcas(const QString& escrito, const ConfiguracionRegional& regional)
{
    const qsizetype punto = escrito.indexOf(u'.');
    QString entera = punto < 0 ? escrito : escrito.left(punto);
    const qsizetype primera = escrito.startsWith(u'-') ? 1 : 0;
    for (qsizetype i = entera.size() - 3; i > primera; i -= 3)
        entera.insert(i, regional.marcaMiles);
    return punto < 0 ? entera : entera + regional.marcaDecimal + escrito.mid(punto + 1);
}

QString escribeNumero(const Valor& valor, const FormatoValor& formato, const ConfiguracionRegional& regional)
{
    const double numero = valor.doble();
    if (formato.formato == Formato::General || !(std::abs(numero) < Mayor))
        return formato.ceroEnBlanco && numero == 0 ? QString{} : aTexto(valor, regional);
    const QString escrito = conDecimales(numero, decimalesDe(formato, regional));
    if (formato.ceroEnBlanco && escrito.toDouble() == 0)
        return {};
    const QString marcado = conMarcas(escrito, regional);
    return formato.formato == Formato::Porcentaje ? marcado + u" %"_s : marcado;
}

QString escribeFecha(Fecha fecha, Formato formato, const ConfiguracionRegional& regional)
{
    QString dia = fecha.esDiaCero() ? QString{} : aTexto(fecha.sinHora(), regional);
    if (formato == Formato::Fecha)
        return dia;
    const QString hora = QString::number(fecha.hora()) + u':' + QString::number(fecha.minuto()).rightJustified(2, u'0');
    return formato == Formato::Hora || dia.isEmpty() ? hora : dia + u' ' + hora;
}

} // namespace

std::optional<Formato> formatoDeNombre(QStringView nombre)
{
    const auto* hallado =
        std::ranges::find_if(Nombres, [&](const auto& n) { return n.nombre.compare(nombre, Qt::CaseInsensitive) == 0; });
    return hallado == std::ranges::end(Nombres) ? std::nullopt : std::optional{hallado->formato};
}

int decimalesDe(const FormatoValor& formato, const ConfiguracionRegional& regional)
{
    constexpr int SinDecirlo = 2;
    if (formato.formato == Formato::Entero)
        return 0;
    const int propios = formato.formato == Formato::Moneda ? regional.decimales : SinDecirlo;
    return std::clamp(formato.decimales.value_or(propios), 0, DecimalesMaximos);
}

QString escribeValor(const Valor& valor, const FormatoValor& formato, const ConfiguracionRegional& regional)
{
    if (esNumero(valor) && !esDeFecha(formato.formato))
        return escribeNumero(valor, formato, regional);
    if (valor.clase() == Valor::Clase::Fecha && esDeFecha(formato.formato))
        return escribeFecha(valor.fecha(), formato.formato, regional);
    return aTexto(valor, regional);
}

} // namespace kestrane::report
