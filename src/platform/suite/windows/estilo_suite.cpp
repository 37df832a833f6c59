#include "platform/suite/windows/estilo_suite.h"

#include "platform/suite/windows/complejos_estilo.h"
#include "platform/suite/windows/propiedades_ventana.h"
#include "platform/suite/windows/trazos_estilo.h"

#include <QApplication>
#include <QStyleFactory>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int AnchoBarra = 14; ///< of scroll bars

bool esPorDefecto(const QStyleOption* opcion)
{
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(opcion);
    return boton && boton->features.testFlag(QStyleOptionButton::DefaultButton);
}

bool esPlano(const QStyleOption* opcion)
{
    const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(opcion);
    constexpr QStyle::State Vivo = QStyle::State_On | QStyle::State_Sunken | QStyle::State_MouseOver | QStyle::State_HasFocus;
    return boton && boton->features.testFlag(QStyleOptionButton::Flat) && !(opcion->state & Vivo);
}

/// Whether a field stands alone: inside another control it has no frame of its own.
bool conMarco(const QStyleOption& opcion)
{
    const auto* marco = qstyleoption_cast<const QStyleOptionFrame*>(&opcion);
    return marco && marco->lineWidth > 0;
}

void marcoDeCampo(QPainter& pintor, const QStyleOption& opcion)
{
    if (conMarco(opcion))
        trazos::campo(pintor, opcion.rect, opcion);
}

bool esTarjeta(const QWidget* control)
{
    return control && control->property(propiedades::Tarjeta).toBool();
}

void marco(QPainter& pintor, const QStyleOption& opcion, const QWidget* control)
{
    if (esTarjeta(control)) {
        trazos::tarjeta(pintor, opcion.rect, opcion.palette);
        return;
    }
    pintor.setPen(opcion.palette.color(QPalette::Mid));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(opcion.rect.adjusted(0, 0, -1, -1));
}

void cabecera(QPainter& pintor, const QStyleOption& opcion)
{
    pintor.fillRect(opcion.rect, opcion.palette.color(QPalette::Button));
    pintor.fillRect(opcion.rect.adjusted(0, opcion.rect.height() - 1, 0, 0), opcion.palette.color(QPalette::Dark));
}

/// How much of the bar is done, from its left end; in its middle when nobody knows.
QRect avance(const QStyleOptionProgressBar& barra)
{
    const double todo = double(barra.maximum) - barra.minimum;
    const double hecho = todo > 0 ? (double(barra.progress) - barra.minimum) / todo : 0.3;
    QRect sitio = barra.rect;
    sitio.setWidth(hecho <= 0 ? 0 : std::max(qRound(sitio.width() * hecho), sitio.height()));
    if (todo <= 0)
        sitio.moveCenter(barra.rect.center());
    return sitio;
}

} // namespace

EstiloSuite::EstiloSuite() : QProxyStyle{QStyleFactory::create(u"Fusion"_s)} {}

void EstiloSuite::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                                const QWidget* control) const
{
    switch (elemento) {
    case PE_PanelButtonCommand:
        if (!esPlano(opcion))
            trazos::boton(*pintor, *opcion, esPorDefecto(opcion));
        return;
    case PE_PanelButtonTool:
        return trazos::boton(*pintor, *opcion, false);
    case PE_PanelLineEdit:
        return marcoDeCampo(*pintor, *opcion);
    case PE_FrameLineEdit:
        return trazos::bordeDeCampo(*pintor, opcion->rect, *opcion);
    case PE_IndicatorCheckBox:
        return trazos::casilla(*pintor, *opcion);
    case PE_IndicatorRadioButton:
        return trazos::circulo(*pintor, *opcion);
    case PE_FrameGroupBox:
        return trazos::tarjeta(*pintor, opcion->rect, opcion->palette);
    case PE_PanelMenu:
        pintor->fillRect(opcion->rect, opcion->palette.color(QPalette::Base));
        return marco(*pintor, *opcion, control);
    case PE_FrameTabWidget:
    case PE_Frame:
        return marco(*pintor, *opcion, control);
    case PE_FrameFocusRect:
        return trazos::anillo(*pintor, opcion->rect, opcion->palette);
    case PE_PanelTipLabel:
        return pintor->fillRect(opcion->rect, opcion->palette.color(QPalette::ToolTipBase));
    default:
        QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
    }
}

void EstiloSuite::drawControl(ControlElement elemento, const QStyleOption* opcion, QPainter* pintor, const QWidget* control) const
{
    if (const auto* barra = qstyleoption_cast<const QStyleOptionProgressBar*>(opcion)) {
        if (elemento == CE_ProgressBarGroove)
            return trazos::surco(*pintor, barra->rect, barra->palette);
        if (elemento == CE_ProgressBarContents)
            return trazos::barra(*pintor, avance(*barra), barra->palette.color(QPalette::LinkVisited));
    }
    if (const auto* boton = qstyleoption_cast<const QStyleOptionButton*>(opcion)) {
        if (elemento == CE_PushButton) {
            drawControl(CE_PushButtonBevel, opcion, pintor, control); // which has the ring already
            return drawControl(CE_PushButtonLabel, opcion, pintor, control);
        }
        if (elemento == CE_PushButtonLabel) {
            QStyleOptionButton conColor = *boton;
            conColor.palette = trazos::coloresDeTexto(*boton, esPorDefecto(boton));
            return QProxyStyle::drawControl(elemento, &conColor, pintor, control);
        }
    }
    if (elemento == CE_HeaderSection)
        return cabecera(*pintor, *opcion);
    QProxyStyle::drawControl(elemento, opcion, pintor, control);
}

void EstiloSuite::drawComplexControl(ComplexControl complejo, const QStyleOptionComplex* opcion, QPainter* pintor,
                                     const QWidget* control) const
{
    if (!complejos::pinta(*this, complejo, *opcion, *pintor, control))
        QProxyStyle::drawComplexControl(complejo, opcion, pintor, control);
}

QRect EstiloSuite::subControlRect(ComplexControl complejo, const QStyleOptionComplex* opcion, SubControl parte,
                                  const QWidget* control) const
{
    const std::optional<QRect> propio = complejos::sitio(complejo, *opcion, parte);
    if (propio)
        return *propio;
    const QRect ajeno = QProxyStyle::subControlRect(complejo, opcion, parte, control);
    return parte == SC_ComboBoxEditField && complejo == CC_ComboBox ? ajeno.adjusted(complejos::SangriaCampo, 0, 0, 0) : ajeno;
}

QRect EstiloSuite::subElementRect(SubElement parte, const QStyleOption* opcion, const QWidget* control) const
{
    const QRect sitio = QProxyStyle::subElementRect(parte, opcion, control);
    if (parte != SE_LineEditContents || !conMarco(*opcion))
        return sitio;
    return sitio.adjusted(complejos::SangriaCampo, 0, -complejos::SangriaCampo, 0);
}

QSize EstiloSuite::sizeFromContents(ContentsType tipo, const QStyleOption* opcion, const QSize& contenido,
                                    const QWidget* control) const
{
    const QSize tamano = QProxyStyle::sizeFromContents(tipo, opcion, contenido, control);
    switch (tipo) {
    case CT_PushButton:
        return tamano + QSize{16, 10};
    case CT_LineEdit:
    case CT_SpinBox:
    case CT_ComboBox:
        return tamano + QSize{8, 8};
    case CT_MenuItem:
        return tamano + QSize{8, 12}; // which lists that drop down have too
    case CT_GroupBox:
        return tamano + QSize{2 * complejos::MargenTitulo + contenido.width() / 10, 0}; // the title is bold
    default:
        return tamano;
    }
}

int EstiloSuite::pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* control) const
{
    switch (medida) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return control ? std::max(18, control->fontMetrics().height() + 2) : 18;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_ScrollBarExtent:
        return AnchoBarra;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(medida, opcion, control);
    }
}

void ponEstiloSuite()
{
    if (!qobject_cast<EstiloSuite*>(QApplication::style()))
        QApplication::setStyle(new EstiloSuite);
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the program owns its style from here on

} // namespace kestrane
