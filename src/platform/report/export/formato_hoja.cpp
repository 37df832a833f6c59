#include "platform/report/export/formato_hoja.h"

#include <cmath>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 PrimerDiaComun = 61; // the first of March of 1900
constexpr qsizetype TextoMaximo = 32767;
constexpr qsizetype NombreMaximo = 31;

bool esNumero(const Valor& valor)
{
    const Valor::Clase clase = valor.clase();
    return clase == Valor::Clase::Entero16 || clase == Valor::Clase::Entero32 || clase == Valor::Clase::Doble;
}

QByteArray formatoDia(const ConfiguracionRegional& regional)
{
    switch (regional.ordenFecha) {
    case ConfiguracionRegional::OrdenFecha::MesDiaAnio:
        return "mm/dd/yyyy";
    case ConfiguracionRegional::OrdenFecha::AnioMesDia:
        return "yyyy/mm/dd";
    case ConfiguracionRegional::OrdenFecha::DiaMesAnio:
        break;
    }
    return "dd/mm/yyyy";
}

QByteArray formatoFecha(Fecha fecha, Formato formato, const ConfiguracionRegional& regional)
{
    const bool general = formato != Formato::Fecha && formato != Formato::FechaHora && formato != Formato::Hora;
    QByteArray hora = general ? "h:mm:ss" : "h:mm";
    if (formato == Formato::Hora || (fecha.esDiaCero() && formato != Formato::Fecha))
        return hora;
    const bool conHora = formato == Formato::FechaHora || (general && !fecha.esMedianoche());
    return conHora ? formatoDia(regional) + ' ' + hora : formatoDia(regional);
}

QByteArray formatoNumero(const FormatoValor& formato, const ConfiguracionRegional& regional)
{
    if (formato.formato == Formato::General)
        return formato.ceroEnBlanco ? "General;-General;" : "";
    QByteArray cifras = "#,##0";
    if (const int decimales = decimalesDe(formato, regional); decimales > 0)
        cifras += '.' + QByteArray(decimales, '0');
    if (formato.formato == Formato::Porcentaje)
        cifras += "\" %\"";
    return formato.ceroEnBlanco ? cifras + ";-" + cifras + ';' : cifras;
}

} // namespace

QByteArray formatoDeHoja(const Valor& valor, const FormatoValor& formato, const ConfiguracionRegional& regional)
{
    if (valor.clase() == Valor::Clase::Fecha)
        return formatoFecha(valor.fecha(), formato.formato, regional);
    const bool deFecha =
        formato.formato == Formato::Fecha || formato.formato == Formato::FechaHora || formato.formato == Formato::Hora;
    return esNumero(valor) && !deFecha ? formatoNumero(formato, regional) : QByteArray{};
}

std::optional<double> numeroDeHoja(const Valor& valor)
{
    if (esNumero(valor)) {
        const double numero = valor.doble();
        return std::isfinite(numero) ? std::optional{numero} : std::nullopt;
    }
    if (valor.clase() != Valor::Clase::Fecha)
        return {};
    const Fecha fecha = valor.fecha();
    if (fecha.diaDeSerie() < PrimerDiaComun && !fecha.esDiaCero())
        return {};
    return fecha.diaDeSerie() + fecha.segundoDelDia() / static_cast<double>(Fecha::SegundosPorDia);
}

QString textoDeHoja(const QString& texto)
{
    QString limpio = texto;
    limpio.remove(QChar{u'\0'}).remove(QChar{0xFFFE}).remove(QChar{0xFFFF});
    if (limpio.size() <= TextoMaximo)
        return limpio;
    const bool parteLetra = limpio[TextoMaximo - 2].isHighSurrogate();
    limpio.truncate(TextoMaximo - (parteLetra ? 2 : 1));
    limpio += u'…';
    return limpio;
}

QString nombreDeHoja(const QString& titulo, const QString& final)
{
    const qsizetype caben = NombreMaximo - final.size();
    QString nombre;
    for (const QChar signo : titulo.simplified())
        nombre += u"[]:*?/\\"_s.contains(signo) || !signo.isPrint() ? QChar{u'-'} : signo;
    if (nombre.size() > caben && nombre[caben - 1].isHighSurrogate())
        nombre.truncate(caben - 1);
    nombre.truncate(caben);
    while (nombre.startsWith(u'\''))
        nombre.remove(0, 1);
    while (nombre.endsWith(u'\'') || nombre.endsWith(u' '))
        nombre.chop(1);
    return (nombre.isEmpty() ? u"Informe"_s : nombre) + final;
}

} // namespace kestrane::report
