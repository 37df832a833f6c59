#include "platform/report/medida_estilo.h"

#include <QFontMetricsF>
#include <QRawFont>

#include <algorithm>

namespace kestrane::report {

QFont letraDe(const Estilo& estilo, int pixeles)
{
    QFont letra{estilo.familia};
    letra.setPixelSize(pixeles);
    letra.setBold(estilo.negrita);
    letra.setItalic(estilo.cursiva);
    letra.setHintingPreference(QFont::PreferNoHinting);
    letra.setKerning(false); // letters measured one by one stand where shaped ones do
    return letra;
}

MedidaEstilo::MedidaEstilo(const Estilo& estilo)
    : m_letra{letraDe(estilo, CuerpoDeMedida)}
    , m_unidades{CuerpoDeMedida / (estilo.cuerpo * MilimetrosPorPunto)}
{
    const QRawFont cruda = QRawFont::fromFont(m_letra);
    m_ascendente = cruda.ascent() / m_unidades;
    m_altoRenglon = (cruda.ascent() + cruda.descent() + cruda.leading()) / m_unidades;
    for (int lugar = 0; lugar < LetrasSencillas; ++lugar) {
        const char16_t c = caracterSencillo(lugar);
        const auto glifos = letraSencilla(c) < 0 ? QList<quint32>{} : cruda.glyphIndexesForString(QString{QChar{c}});
        const bool hay = glifos.size() == 1 && glifos.front() != 0;
        m_avances[static_cast<size_t>(lugar)] =
            hay ? static_cast<float>(cruda.advancesForGlyphIndexes(glifos).front().x() / m_unidades) : -1;
    }
}

bool MedidaEstilo::sencillo(QStringView texto) const
{
    return std::all_of(texto.begin(), texto.end(), [this](QChar c) {
        const int lugar = letraSencilla(c.unicode());
        return lugar >= 0 && m_avances[static_cast<size_t>(lugar)] >= 0;
    });
}

double MedidaEstilo::ancho(QStringView texto) const
{
    double ancho = 0;
    for (const QChar c : texto) {
        const int lugar = letraSencilla(c.unicode());
        if (lugar < 0 || m_avances[static_cast<size_t>(lugar)] < 0)
            return QFontMetricsF{m_letra}.horizontalAdvance(texto.toString()) / m_unidades;
        ancho += static_cast<double>(m_avances[static_cast<size_t>(lugar)]);
    }
    return ancho;
}

} // namespace kestrane::report
