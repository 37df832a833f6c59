#include "platform/controls/ficha.h"

#include "platform/controls/boton_menu.h"
#include "platform/runtime/ruta.h"

#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <cmath>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int LadoImagen = 48;
constexpr int Margen = 8;
constexpr qreal Radio = 8;
constexpr int LetrasPorFicha = 20;
constexpr int AnchoDeMarca = 5; ///< of the bar at the left of a marked one
constexpr double SinFin = 10000;

/// Read no larger than it is shown; nothing for a file that is missing, broken or of another kind.
QPixmap lee(const QString& ruta, qreal densidad)
{
    if (ruta.isEmpty())
        return {};
    QImageReader lector{rutaDeMaquina(ruta)};
    const QSize lado = QSize{LadoImagen, LadoImagen} * densidad;
    if (lector.size().isValid())
        lector.setScaledSize(lector.size().scaled(lado, Qt::KeepAspectRatio));
    QPixmap imagen = QPixmap::fromImageReader(&lector);
    imagen.setDevicePixelRatio(densidad);
    return imagen;
}

/// Between words, and within one that no line holds.
QTextOption enLineas()
{
    QTextOption opcion{Qt::AlignVCenter | Qt::AlignLeft};
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return opcion;
}

/// How high the text is in lines of that width.
int altoDeTexto(const QString& texto, const QFont& letra, int ancho)
{
    QTextLayout lineas{texto, letra};
    lineas.setTextOption(enLineas());
    lineas.beginLayout();
    double alto = 0;
    for (QTextLine linea = lineas.createLine(); linea.isValid() && alto < SinFin; linea = lineas.createLine()) {
        linea.setLineWidth(ancho);
        alto += linea.height();
    }
    lineas.endLayout();
    return static_cast<int>(std::ceil(alto));
}

/// As it is written while it is marked, when it takes most room.
QFont negrita(QFont letra)
{
    letra.setBold(true);
    return letra;
}

/// How bright an eye finds the colour: 0 to 1.
double luminancia(const QColor& color)
{
    const auto lineal = [](double parte) { return parte <= 0.03928 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) + 0.0722 * lineal(color.blueF());
}

} // namespace

Ficha::Ficha(const ElementoPanel& elemento, QWidget* padre)
    : QPushButton{padre}
    , m_elemento{elemento}
    , m_imagen{lee(elemento.Imagen, padre ? padre->devicePixelRatioF() : 1)}
{
    // Mnemonics are for captions: in names "&" is a letter.
    setText(QString{elemento.Texto}.replace(u'&', u"&&"_s));
    setAccessibleName(elemento.Texto);
    setAutoDefault(false);
}

void Ficha::ponColor(const QColor& color)
{
    m_color = color;
    update();
}

QColor Ficha::colorDeTexto() const
{
    if (!m_color.isValid())
        return palette().color(QPalette::ButtonText);
    constexpr double TanClaroComoOscuro = 0.179; // where black and white are read equally well
    return luminancia(m_color) > TanClaroComoOscuro ? Qt::black : Qt::white;
}

int Ficha::anchoDeImagen() const
{
    return conImagen() ? LadoImagen + Margen : 0;
}

QSize Ficha::sizeHint() const
{
    const int ancho = fontMetrics().averageCharWidth() * LetrasPorFicha + anchoDeImagen() + 2 * Margen;
    return {ancho, heightForWidth(ancho)};
}

int Ficha::heightForWidth(int ancho) const
{
    const int alto = altoDeTexto(m_elemento.Texto, negrita(font()), std::max(1, ancho - 2 * Margen - anchoDeImagen()));
    return std::max({LadoTactil, alto + Margen, conImagen() ? LadoImagen + Margen : 0});
}

void Ficha::paintEvent(QPaintEvent*)
{
    QPainter pintor{this};
    pintor.setRenderHint(QPainter::Antialiasing);
    QColor fondo = m_color.isValid() ? m_color : palette().color(QPalette::Button);
    if (isDown() || underMouse())
        fondo = fondo.lightnessF() > 0.5 ? fondo.darker(isDown() ? 118 : 106) : fondo.lighter(isDown() ? 140 : 115);
    const QRectF caja = QRectF{rect()}.adjusted(1.5, 1.5, -1.5, -1.5);
    pintor.setPen(borde());
    pintor.setBrush(fondo);
    pintor.drawRoundedRect(caja, Radio, Radio);
    if (isChecked())
        pintaMarca(pintor, caja);
    if (conImagen()) {
        QRectF sitio{QPointF{}, m_imagen.deviceIndependentSize()};
        sitio.moveCenter({Margen + LadoImagen / 2.0, height() / 2.0});
        pintor.drawPixmap(sitio.topLeft(), m_imagen);
    }
    pintor.setPen(colorDeTexto());
    pintor.setFont(isChecked() ? negrita(font()) : font());
    pintor.drawText(QRectF{rect().adjusted(Margen + anchoDeImagen(), 0, -Margen, 0)}, m_elemento.Texto, enLineas());
}

/// The keyboard's ring, the thick border of the marked one, or a thin one.
QPen Ficha::borde() const
{
    constexpr double Grueso = 3;
    if (isChecked())
        return QPen{palette().color(hasFocus() ? QPalette::Link : QPalette::Highlight), Grueso};
    return hasFocus() ? QPen{palette().color(QPalette::Link), 2} : QPen{palette().color(QPalette::Mid), 1};
}

/// So that it tells apart from the one that has the keyboard.
void Ficha::pintaMarca(QPainter& pintor, const QRectF& caja) const
{
    QPainterPath redondeada;
    redondeada.addRoundedRect(caja, Radio, Radio);
    pintor.save();
    pintor.setClipPath(redondeada);
    pintor.fillRect(QRectF{caja.left(), caja.top(), AnchoDeMarca, caja.height()}, palette().color(QPalette::Highlight));
    pintor.restore();
}

} // namespace kestrane
