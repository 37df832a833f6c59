#include "platform/report/renglones.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::report {

namespace {

/// What a text may be wider than its box: sums of widths are not exact.
constexpr double Holgura = 0.01;
/// A text longer than that is wider than any paper: measuring more of it is in vain.
constexpr qsizetype LargoDeRenglon = 4000;
constexpr char16_t Puntos = u'…';

bool esControl(QChar c)
{
    return c.unicode() < 0x20 || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// A line of its own has neither breaks nor tabs.
QString enBlanco(QString texto)
{
    if (std::any_of(texto.cbegin(), texto.cend(), esControl))
        std::replace_if(texto.begin(), texto.end(), esControl, u' ');
    return texto;
}

QStringView sinCola(QStringView texto)
{
    while (texto.endsWith(u' '))
        texto.chop(1);
    return texto;
}

/// Breaks a paragraph whose letters stand one behind the other.
class ParteSencillo
{
public:
    ParteSencillo(const MedidaEstilo& medida, QStringView texto, double ancho)
        : m_medida{medida}
        , m_texto{texto}
        , m_ancho{ancho + Holgura}
    {
    }

    void parte(std::vector<Renglon>& destino)
    {
        do {
            const qsizetype fin = siguienteFin();
            const QStringView renglon = sinCola(m_texto.sliced(m_inicio, fin - m_inicio));
            destino.push_back({renglon.toString(), m_medida.ancho(renglon)});
            m_inicio = fin;
            while (m_inicio < m_texto.size() && m_texto[m_inicio] == u' ')
                ++m_inicio;
        } while (m_inicio < m_texto.size());
    }

private:
    /// Where the line that begins at m_inicio ends: behind its last word that fits.
    [[nodiscard]] qsizetype siguienteFin() const
    {
        qsizetype corte = 0;
        double ancho = 0;
        for (qsizetype i = m_inicio; i < m_texto.size(); ++i) {
            const QChar c = m_texto[i];
            ancho += m_medida.avance(c);
            if (ancho > m_ancho && c != u' ')
                return corte > m_inicio ? corte : std::max(i, m_inicio + 1);
            if (c == u' ' || c == u'-')
                corte = i + 1;
        }
        return m_texto.size();
    }

    const MedidaEstilo& m_medida;
    QStringView m_texto;
    double m_ancho;
    qsizetype m_inicio = 0;
};

/// Breaks a paragraph that must be shaped to be measured.
void parteFormado(const MedidaEstilo& medida, const QString& texto, double ancho, std::vector<Renglon>& destino)
{
    QTextLayout formado{texto, medida.letra()};
    QTextOption opcion;
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    formado.setTextOption(opcion);
    formado.beginLayout();
    for (QTextLine linea = formado.createLine(); linea.isValid(); linea = formado.createLine()) {
        linea.setLineWidth((ancho + Holgura) * medida.unidadesPorMilimetro());
        const QStringView renglon = sinCola(QStringView{texto}.sliced(linea.textStart(), linea.textLength()));
        destino.push_back({renglon.toString(), linea.naturalTextWidth() / medida.unidadesPorMilimetro()});
    }
    formado.endLayout();
}

void parteParrafo(const MedidaEstilo& medida, const QString& parrafo, double ancho, std::vector<Renglon>& destino)
{
    if (medida.sencillo(parrafo))
        ParteSencillo{medida, parrafo, ancho}.parte(destino);
    else
        parteFormado(medida, parrafo, ancho, destino);
}

Renglon cortaSencillo(const MedidaEstilo& medida, const QString& texto, double ancho)
{
    const double puntos = medida.ancho(QStringView{&Puntos, 1});
    double usado = 0;
    qsizetype conPuntos = 0;
    double anchoConPuntos = 0;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        if (usado + puntos <= ancho + Holgura) {
            conPuntos = i;
            anchoConPuntos = usado;
        }
        usado += medida.avance(texto[i]);
        if (usado > ancho + Holgura)
            return {texto.first(conPuntos) + Puntos, anchoConPuntos + puntos};
    }
    return {texto, usado};
}

Renglon cortaFormado(const MedidaEstilo& medida, const QString& texto, double ancho)
{
    const double entero = medida.ancho(texto);
    if (entero <= ancho + Holgura)
        return {texto, entero};
    const QString cortado = QFontMetricsF{medida.letra()}.elidedText(texto, Qt::ElideRight, ancho * medida.unidadesPorMilimetro());
    return {cortado, medida.ancho(cortado)};
}

} // namespace

std::vector<Renglon> parteEnRenglones(const MedidaEstilo& medida, const QString& texto, double ancho)
{
    std::vector<Renglon> renglones;
    if (texto.isEmpty())
        return renglones;
    QString iguales = texto;
    iguales.replace(u"\r\n"_s, u"\n"_s);
    iguales.replace(u'\r', u'\n');
    iguales.replace(QChar{QChar::LineSeparator}, u'\n');
    iguales.replace(QChar{QChar::ParagraphSeparator}, u'\n');
    for (const QString& parrafo : iguales.split(u'\n'))
        parteParrafo(medida, enBlanco(parrafo), ancho, renglones);
    return renglones;
}

Renglon cortaRenglon(const MedidaEstilo& medida, const QString& texto, double ancho)
{
    const bool parteLetra = texto.size() > LargoDeRenglon && texto[LargoDeRenglon - 1].isHighSurrogate();
    const QString renglon = enBlanco(texto.first(std::min(texto.size(), LargoDeRenglon - (parteLetra ? 1 : 0))));
    return medida.sencillo(renglon) ? cortaSencillo(medida, renglon, ancho) : cortaFormado(medida, renglon, ancho);
}

} // namespace kestrane::report
