#include "platform/report/letras_pintadas.h"

#include "platform/report/letras_de_colores.h"

#include <QGlyphRun>
#include <QPaintEngine>

#include <algorithm>
#include <cmath>

namespace kestrane::report {

LetrasPintadas::LetrasPintadas(const Estilo& estilo, double porMilimetro)
    : m_estilo{estilo}
    , m_color{estilo.color}
    , m_medida{estilo}
    , m_porMilimetro{porMilimetro}
    , m_cruda{QRawFont::fromFont(m_medida.letra())}
{
    m_cruda.setPixelSize(estilo.cuerpo * MilimetrosPorPunto * porMilimetro);
    for (int lugar = 0; lugar < LetrasSencillas; ++lugar) {
        const QChar letra{caracterSencillo(lugar)};
        if (!m_medida.sencillo(QStringView{&letra, 1}))
            continue;
        m_indices[static_cast<size_t>(lugar)] = m_cruda.glyphIndexesForString(QString{letra}).front();
        m_avances[static_cast<size_t>(lugar)] = m_medida.avance(letra) * porMilimetro;
    }
}

bool LetrasPintadas::anade(const QString& texto, QPointF base)
{
    const size_t antes = m_glifos.size();
    for (const QChar c : texto) {
        const int lugar = letraSencilla(c.unicode());
        const quint32 glifo = lugar < 0 ? 0 : m_indices[static_cast<size_t>(lugar)];
        if (glifo == 0) {
            m_glifos.resize(antes);
            m_lugares.resize(antes);
            return false;
        }
        m_glifos.push_back(glifo);
        m_lugares.push_back(base);
        base.rx() += m_avances[static_cast<size_t>(lugar)];
    }
    return true;
}

void LetrasPintadas::pinta(QPainter& pintor)
{
    QGlyphRun tira;
    tira.setRawFont(m_cruda);
    tira.setRawData(m_glifos.data(), m_lugares.data(), static_cast<int>(m_glifos.size()));
    pintor.setPen(m_color);
    pintor.drawGlyphRun({}, tira);
    m_glifos.clear();
    m_lugares.clear();
}

void LetrasPintadas::pintaFormado(QPainter& pintor, const QString& texto, QPointF base) const
{
    // Fonts come in whole pixels: the nearest above, made smaller by what is too much.
    const double cuerpo = m_estilo.cuerpo * MilimetrosPorPunto * m_porMilimetro;
    const int pixeles = std::max(1, static_cast<int>(std::ceil(cuerpo)));
    pintor.save();
    pintor.setPen(m_color);
    pintor.setLayoutDirection(Qt::LayoutDirectionAuto); // the text's own, not the program's
    const QFont letra = letraDe(m_estilo, pixeles);
    pintor.setFont(letra);
    pintor.translate(base);
    pintor.scale(cuerpo / pixeles, cuerpo / pixeles);
    const bool enPdf = pintor.paintEngine()->type() == QPaintEngine::Pdf;
    if (!enPdf || !pintaConColores(pintor, letra, texto))
        pintor.drawText(QPointF{}, texto);
    pintor.restore();
}

} // namespace kestrane::report
