#include "platform/suite/windows/trazos_estilo.h"

#include "platform/suite/paleta.h"

#include <QStyle>

namespace kestrane::trazos {

namespace {

constexpr double RadioTarjeta = 10;
constexpr double RadioBoton = 8;
constexpr double RadioCampo = 6;
constexpr double RadioCasilla = 4;
constexpr double GruesoAnillo = 2;
constexpr double HuecoAnillo = 2; ///< between ring and button, so that the ring is seen around every colour

/// Saves and restores the painter, with smooth edges between.
class Suave
{
public:
    explicit Suave(QPainter& pintor) : m_pintor{pintor}
    {
        pintor.save();
        pintor.setRenderHint(QPainter::Antialiasing);
    }
    ~Suave() { m_pintor.restore(); }
    Q_DISABLE_COPY_MOVE(Suave)

private:
    QPainter& m_pintor;
};

/// A rounded rectangle whose border, `grueso` points thick, lies inside `sitio`.
void redondo(QPainter& pintor, const QRectF& sitio, double radio, const QBrush& relleno, const QColor& borde, double grueso = 1)
{
    const Suave suave{pintor};
    const double medio = grueso / 2;
    pintor.setPen(grueso > 0 ? QPen{borde, grueso} : QPen{Qt::NoPen});
    pintor.setBrush(relleno);
    pintor.drawRoundedRect(sitio.adjusted(medio, medio, -medio, -medio), radio - medio, radio - medio);
}

bool tiene(const QStyleOption& opcion, QStyle::StateFlag estado)
{
    return opcion.state.testFlag(estado);
}

QColor mezcla(const QColor& color, const QColor& otro, int porCiento)
{
    return QColor::fromRgb(mezclado(color.rgb() & 0xffffff, otro.rgb() & 0xffffff, porCiento));
}

QPalette::ColorRole fondoDeBoton(const QStyleOption& opcion, bool porDefecto)
{
    if (tiene(opcion, QStyle::State_On))
        return QPalette::Highlight;
    return porDefecto && tiene(opcion, QStyle::State_Enabled) ? QPalette::LinkVisited : QPalette::Button;
}

QPalette::ColorRole textoDeBoton(const QStyleOption& opcion, bool porDefecto)
{
    switch (fondoDeBoton(opcion, porDefecto)) {
    case QPalette::Highlight:
        return QPalette::HighlightedText;
    case QPalette::LinkVisited:
        return QPalette::BrightText;
    default:
        return QPalette::ButtonText;
    }
}

QColor colorDeBoton(const QStyleOption& opcion, bool porDefecto)
{
    const QColor fondo = opcion.palette.color(fondoDeBoton(opcion, porDefecto));
    const QColor texto = opcion.palette.color(textoDeBoton(opcion, porDefecto));
    if (!tiene(opcion, QStyle::State_Enabled))
        return fondo;
    if (tiene(opcion, QStyle::State_Sunken))
        return mezcla(fondo, texto, PorCientoPulsado);
    return tiene(opcion, QStyle::State_MouseOver) ? mezcla(fondo, texto, PorCientoEncima) : fondo;
}

bool marcada(const QStyleOption& opcion)
{
    return tiene(opcion, QStyle::State_On) || tiene(opcion, QStyle::State_NoChange);
}

/// The ground of a box or circle: filled when it is marked.
void fondoDeMarca(QPainter& pintor, const QStyleOption& opcion, double radio)
{
    const QPalette& colores = opcion.palette;
    const QColor relleno = colores.color(marcada(opcion) ? QPalette::LinkVisited : QPalette::Base);
    const QColor borde = colores.color(marcada(opcion) ? QPalette::LinkVisited : QPalette::Dark);
    redondo(pintor, opcion.rect, radio, relleno, borde, 1.5);
}

} // namespace

void tarjeta(QPainter& pintor, const QRect& sitio, const QPalette& colores)
{
    redondo(pintor, sitio, RadioTarjeta, colores.brush(QPalette::Window), colores.color(QPalette::Mid));
}

void campo(QPainter& pintor, const QRect& sitio, const QStyleOption& opcion)
{
    redondo(pintor, sitio, RadioCampo, opcion.palette.brush(QPalette::Base), {}, 0);
    bordeDeCampo(pintor, sitio, opcion);
}

void bordeDeCampo(QPainter& pintor, const QRect& sitio, const QStyleOption& opcion)
{
    if (tiene(opcion, QStyle::State_HasFocus))
        anillo(pintor, sitio, opcion.palette);
    else
        redondo(pintor, sitio, RadioCampo, Qt::NoBrush, opcion.palette.color(QPalette::Dark));
}

void boton(QPainter& pintor, const QStyleOption& opcion, bool porDefecto)
{
    const bool conAnillo = tiene(opcion, QStyle::State_HasFocus);
    QRectF sitio = opcion.rect;
    if (conAnillo) {
        redondo(pintor, sitio, RadioBoton, Qt::NoBrush, opcion.palette.color(QPalette::Link), GruesoAnillo);
        constexpr double Hueco = GruesoAnillo + HuecoAnillo;
        sitio.adjust(Hueco, Hueco, -Hueco, -Hueco);
    }
    const QColor color = colorDeBoton(opcion, porDefecto);
    const bool llamativo = fondoDeBoton(opcion, porDefecto) != QPalette::Button;
    redondo(pintor, sitio, conAnillo ? RadioBoton - 3 : RadioBoton, color, llamativo ? color : opcion.palette.color(QPalette::Mid));
}

QPalette coloresDeTexto(const QStyleOption& opcion, bool porDefecto)
{
    QPalette colores = opcion.palette;
    const QColor texto = colores.color(textoDeBoton(opcion, porDefecto));
    colores.setColor(QPalette::ButtonText, texto);
    return colores;
}

void anillo(QPainter& pintor, const QRect& sitio, const QPalette& colores)
{
    redondo(pintor, sitio, RadioCampo, Qt::NoBrush, colores.color(QPalette::Link), GruesoAnillo);
}

void casilla(QPainter& pintor, const QStyleOption& opcion)
{
    fondoDeMarca(pintor, opcion, RadioCasilla);
    if (!marcada(opcion))
        return;
    const Suave suave{pintor};
    const QRectF sitio = opcion.rect;
    const auto punto = [&](double x, double y) { return QPointF{sitio.x() + sitio.width() * x, sitio.y() + sitio.height() * y}; };
    pintor.setPen(QPen{opcion.palette.color(QPalette::BrightText), sitio.width() / 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    if (tiene(opcion, QStyle::State_On))
        pintor.drawPolyline(QPolygonF{{punto(0.25, 0.52), punto(0.43, 0.70), punto(0.76, 0.32)}});
    else
        pintor.drawLine(punto(0.28, 0.5), punto(0.72, 0.5));
}

void circulo(QPainter& pintor, const QStyleOption& opcion)
{
    fondoDeMarca(pintor, opcion, opcion.rect.width() / 2.0);
    if (!marcada(opcion))
        return;
    const Suave suave{pintor};
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(opcion.palette.color(QPalette::BrightText));
    const double radio = opcion.rect.width() / 5.0;
    pintor.drawEllipse(QRectF{opcion.rect}.center(), radio, radio);
}

void flecha(QPainter& pintor, const QRect& sitio, const QColor& color, Qt::ArrowType hacia)
{
    const Suave suave{pintor};
    const QPointF centro = QRectF{sitio}.center();
    const bool deLado = hacia == Qt::LeftArrow || hacia == Qt::RightArrow;
    const double punta = hacia == Qt::UpArrow || hacia == Qt::LeftArrow ? -2.5 : 2.5;
    const auto punto = [&](double largo, double hondo) {
        return centro + (deLado ? QPointF{hondo, largo} : QPointF{largo, hondo});
    };
    pintor.setPen(QPen{color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    pintor.setBrush(Qt::NoBrush);
    pintor.drawPolyline(QPolygonF{{punto(-4.5, -punta), punto(0, punta), punto(4.5, -punta)}});
}

void surco(QPainter& pintor, const QRect& sitio, const QPalette& colores)
{
    redondo(pintor, sitio, std::min(sitio.width(), sitio.height()) / 2.0, colores.color(QPalette::Button),
            colores.color(QPalette::Mid));
}

void barra(QPainter& pintor, const QRect& sitio, const QColor& color)
{
    if (!sitio.isEmpty())
        redondo(pintor, sitio, std::min(sitio.width(), sitio.height()) / 2.0, color, {}, 0);
}

} // namespace kestrane::trazos
