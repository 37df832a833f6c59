#include "platform/runtime/configuracion_regional.h"

#include <QLocale>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// Order of the fields of a short date and the mark between them.
struct FormatoFecha
{
    QString orden; ///< "dMy"
    QChar marca{u'/'};
};

bool esCampo(QChar signo)
{
    return signo == u'd' || signo == u'M' || signo == u'y';
}

/// Blanks and the invisible direction marks of some locales are no marks.
bool sirveDeMarca(QChar signo)
{
    return signo.isPunct() || signo.isSymbol();
}

/// "d/M/yy" to "dMy" and '/'; quoted stretches are skipped.
FormatoFecha descompone(const QString& formato)
{
    FormatoFecha partes;
    bool conMarca = false;
    bool citado = false;
    for (const QChar signo : formato) {
        if (signo == u'\'')
            citado = !citado;
        else if (!citado && esCampo(signo) && !partes.orden.contains(signo))
            partes.orden += signo;
        else if (!citado && !conMarca && !partes.orden.isEmpty() && sirveDeMarca(signo)) {
            partes.marca = signo;
            conMarca = true;
        }
    }
    return partes;
}

/// A date that is not written in three numbers keeps the order and mark of Spanish.
void ponFecha(ConfiguracionRegional& regional, const QString& formato)
{
    const FormatoFecha partes = descompone(formato);
    if (formato.contains("MMM"_L1))
        return;
    if (partes.orden == "dMy"_L1)
        regional.ordenFecha = ConfiguracionRegional::OrdenFecha::DiaMesAnio;
    else if (partes.orden == "Mdy"_L1)
        regional.ordenFecha = ConfiguracionRegional::OrdenFecha::MesDiaAnio;
    else if (partes.orden == "yMd"_L1)
        regional.ordenFecha = ConfiguracionRegional::OrdenFecha::AnioMesDia;
    else
        return;
    regional.marcaFecha = partes.marca;
}

void ponMarcas(ConfiguracionRegional& regional, const QLocale& locale)
{
    const QString decimal = locale.decimalPoint();
    const QString miles = locale.groupSeparator();
    regional.marcaDecimal = decimal == ","_L1 ? u',' : u'.';
    const bool propia = decimal == ","_L1 || decimal == "."_L1;
    regional.marcaMiles = propia && miles.size() == 1 ? miles.front() : QChar{u','};
    if (regional.marcaMiles == regional.marcaDecimal)
        regional.marcaMiles = u' ';
}

ConfiguracionRegional deLocale(const QLocale& locale)
{
    ConfiguracionRegional regional;
    regional.nombre = locale.name();
    ponMarcas(regional, locale);
    ponFecha(regional, locale.dateFormat(QLocale::ShortFormat));
    regional.primerDiaSemana = static_cast<int>(locale.firstDayOfWeek());
    for (int mes = 1; mes <= 12; ++mes) {
        regional.meses[mes - 1] = locale.standaloneMonthName(mes, QLocale::LongFormat);
        regional.mesesAbreviados[mes - 1] = locale.standaloneMonthName(mes, QLocale::ShortFormat);
    }
    return regional;
}

/// QLocale gives a neighbour, or C, for what it does not know: true only when `locale` is what `nombre` says.
bool esLoPedido(const QLocale& locale, const QString& nombre)
{
    const auto es = [](QStringView parte, const QString& codigo) { return parte.compare(codigo, Qt::CaseInsensitive) == 0; };
    const QStringList partes = QString{nombre}.replace(u'-', u'_').split(u'_');
    if (!es(partes.front(), QLocale::languageToCode(locale.language())) || partes.size() > 3)
        return false;
    if (partes.size() == 3 && !es(partes[1], QLocale::scriptToCode(locale.script())))
        return false;
    if (partes.size() == 1 || es(partes.back(), QLocale::territoryToCode(locale.territory())))
        return true;
    return partes.size() == 2 && es(partes.back(), QLocale::scriptToCode(locale.script()));
}

} // namespace

ConfiguracionRegional ConfiguracionRegional::espania()
{
    return deLocale(QLocale{QLocale::Spanish, QLocale::Spain});
}

ConfiguracionRegional ConfiguracionRegional::delSistema()
{
    const QLocale sistema = QLocale::system();
    return sistema.language() == QLocale::C ? espania() : deLocale(sistema);
}

std::optional<ConfiguracionRegional> ConfiguracionRegional::deNombre(const QString& nombre)
{
    const QLocale locale{nombre};
    if (locale.language() == QLocale::C || !esLoPedido(locale, nombre))
        return std::nullopt;
    return deLocale(locale);
}

} // namespace kestrane
