#include "platform/report/letras_de_colores.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace kestrane::report {

namespace {

/// Such letters are pictures of about that height.
constexpr double AltoDeImagen = 136;
/// The tables of a font that hold pictures.
constexpr const char* TablasDeColores[] = {"CBDT", "sbix", "COLR"};

bool esDeColores(const QGlyphRun& tira)
{
    const QRawFont letra = tira.rawFont();
    return std::ranges::any_of(TablasDeColores, [&](const char* tabla) { return !letra.fontTable(tabla).isEmpty(); });
}

/// A letter and what is around it, from its base line's beginning.
QRectF cajaDe(const QRawFont& letra, quint32 glifo)
{
    const double ancho = letra.advancesForGlyphIndexes({glifo}).value(0).x();
    return {0, -letra.ascent(), ancho, letra.ascent() + letra.descent()};
}

void pintaComoImagen(QPainter& pintor, const QRawFont& letra, quint32 glifo, QPointF lugar)
{
    const QRectF caja = cajaDe(letra, glifo);
    if (glifo == 0 || caja.isEmpty())
        return;
    const double escala = std::min(1.0, AltoDeImagen / caja.height());
    QImage imagen{(caja.size() * escala).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied};
    imagen.fill(Qt::transparent);
    QPainter suyo{&imagen};
    suyo.setRenderHint(QPainter::SmoothPixmapTransform);
    suyo.scale(escala, escala);
    QGlyphRun una;
    una.setRawFont(letra);
    una.setGlyphIndexes({glifo});
    una.setPositions({-caja.topLeft()});
    suyo.drawGlyphRun({}, una);
    suyo.end();
    pintor.drawImage(caja.translated(lugar), imagen);
}

} // namespace

bool pintaConColores(QPainter& pintor, const QFont& letra, const QString& texto)
{
    QTextLayout formado{texto, letra};
    formado.beginLayout();
    const QTextLine linea = formado.createLine();
    formado.endLayout();
    const QList<QGlyphRun> tiras = formado.glyphRuns();
    if (std::ranges::none_of(tiras, esDeColores))
        return false;
    const QPointF base{0, -linea.ascent()};
    for (const QGlyphRun& tira : tiras) {
        if (!esDeColores(tira)) {
            pintor.drawGlyphRun(base, tira);
            continue;
        }
        const QList<quint32> glifos = tira.glyphIndexes();
        const QList<QPointF> lugares = tira.positions();
        for (qsizetype i = 0; i < glifos.size(); ++i)
            pintaComoImagen(pintor, tira.rawFont(), glifos[i], base + lugares[i]);
    }
    return true;
}

} // namespace kestrane::report
