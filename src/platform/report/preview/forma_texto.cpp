#include "platform/report/preview/forma_texto.h"

#include <QGlyphRun>
#include <QRawFont>

#include <algorithm>

namespace kestrane::report {

namespace {

constexpr int MaximoAncho = 1 << 23; ///< more than the longest line takes

constexpr double HuecoEntreLetras = 0.1; ///< of their height, by which pairs may be spread

bool haciaAtras(QChar caracter)
{
    switch (caracter.direction()) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirRLI:
        return true;
    default:
        return false;
    }
}

/// Joins what lies no further apart than `hueco`.
std::vector<std::pair<double, double>> unidas(std::vector<std::pair<double, double>> franjas, double hueco)
{
    std::sort(franjas.begin(), franjas.end());
    std::vector<std::pair<double, double>> juntas;
    for (const auto& [izquierda, derecha] : franjas) {
        if (!juntas.empty() && izquierda <= juntas.back().second + hueco)
            juntas.back().second = std::max(juntas.back().second, derecha);
        else
            juntas.emplace_back(izquierda, derecha);
    }
    return juntas;
}

} // namespace

FormaTexto::FormaTexto(const QString& texto, const QFont& letra) : m_forma{texto, letra}
{
    QTextOption opcion{Qt::AlignLeft | Qt::AlignAbsolute};
    opcion.setWrapMode(QTextOption::NoWrap);
    opcion.setFlags(QTextOption::IncludeTrailingSpaces);
    m_forma.setTextOption(opcion);
    m_forma.beginLayout();
    QTextLine linea = m_forma.createLine();
    if (linea.isValid()) {
        linea.setLineWidth(MaximoAncho);
        m_ancho = linea.naturalTextWidth();
    }
    m_forma.endLayout();
    m_haciaAtras = std::any_of(texto.cbegin(), texto.cend(), haciaAtras);
}

double FormaTexto::borde(int caracter, QTextLine::Edge cual) const
{
    return enPartes(m_forma.lineAt(0).cursorToX(caracter, cual));
}

double FormaTexto::enPartes(double x) const
{
    return std::clamp(x / m_ancho, 0., 1.);
}

std::vector<std::pair<double, double>> FormaTexto::franjas(int desde, int hasta) const
{
    const int primero = std::max(desde, 0);
    const int fin = std::min(hasta, int(m_forma.text().size()));
    if (m_ancho <= 0 || primero >= fin)
        return {};
    if (!m_haciaAtras)
        return {{borde(primero, QTextLine::Leading), borde(fin - 1, QTextLine::Trailing)}};
    // Where the reading turns the places of cursors tell nothing: the signs themselves do.
    std::vector<std::pair<double, double>> todas;
    for (const QGlyphRun& tira : m_forma.lineAt(0).glyphRuns(primero, fin - primero)) {
        const QList<QPointF> lugares = tira.positions();
        const QList<QPointF> avances = tira.rawFont().advancesForGlyphIndexes(tira.glyphIndexes());
        for (qsizetype i = 0; i < lugares.size(); ++i)
            todas.emplace_back(enPartes(lugares[i].x()), enPartes(lugares[i].x() + avances[i].x()));
    }
    return unidas(std::move(todas), HuecoEntreLetras * m_forma.font().pixelSize() / m_ancho);
}

int FormaTexto::caracterEn(double parte) const
{
    return m_ancho <= 0 ? 0 : m_forma.lineAt(0).xToCursor(parte * m_ancho);
}

} // namespace kestrane::report
