#include "platform/controls/ficha.h"

#include "platform/controls/boton_menu.h"
#include "platform/runtime/ruta.h"

#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int LadoImagen = 48;
constexpr int Margen = 8;
constexpr qreal Radio = 8;
constexpr int LetrasPorFicha = 20;
constexpr int Formato = static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft) | Qt::TextWordWrap | Qt::TextWrapAnywhere;

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
    const QRect sitio{0, 0, std::max(1, ancho - 2 * Margen - anchoDeImagen()), 10000};
    const int alto = fontMetrics().boundingRect(sitio, Formato, m_elemento.Texto).height();
    return std::max({LadoTactil, alto + Margen, conImagen() ? LadoImagen + Margen : 0});
}

void Ficha::paintEvent(QPaintEvent*)
{
    QPainter pintor{this};
    pintor.setRenderHint(QPainter::Antialiasing);
    QColor fondo = m_color.isValid() ? m_color : palette().color(QPalette::Button);
    if (isDown() || underMouse())
        fondo = fondo.lightnessF() > 0.5 ? fondo.darker(isDown() ? 118 : 106) : fondo.lighter(isDown() ? 140 : 115);
    const bool senalada = isChecked() || hasFocus();
    pintor.setPen(QPen{palette().color(senalada ? QPalette::Highlight : QPalette::Mid), senalada ? 3.0 : 1.0});
    pintor.setBrush(fondo);
    pintor.drawRoundedRect(QRectF{rect()}.adjusted(1.5, 1.5, -1.5, -1.5), Radio, Radio);
    if (conImagen()) {
        QRectF caja{QPointF{}, m_imagen.deviceIndependentSize()};
        caja.moveCenter({Margen + LadoImagen / 2.0, height() / 2.0});
        pintor.drawPixmap(caja.topLeft(), m_imagen);
    }
    pintor.setPen(colorDeTexto());
    QFont letra = font();
    letra.setBold(isChecked());
    pintor.setFont(letra);
    pintor.drawText(rect().adjusted(Margen + anchoDeImagen(), 0, -Margen, 0), Formato, m_elemento.Texto);
}

} // namespace kestrane
