#include "platform/suite/windows/complejos_estilo.h"

#include "platform/suite/windows/trazos_estilo.h"

namespace kestrane::complejos {

namespace {

constexpr int MenorAsidero = 32; ///< length of a scroll bar's handle, for fingers
constexpr int AnchoFlechas = 30;
constexpr int HuecoBarra = 3; ///< on both sides of the handle

QColor colorDeFlecha(const QStyleOption& opcion)
{
    return opcion.palette.color(QPalette::Text);
}

void pintaLista(const QStyle& estilo, const QStyleOptionComboBox& lista, QPainter& pintor, const QWidget* control)
{
    trazos::campo(pintor, lista.rect, lista);
    const QRect flecha = estilo.subControlRect(QStyle::CC_ComboBox, &lista, QStyle::SC_ComboBoxArrow, control);
    trazos::flecha(pintor, flecha, colorDeFlecha(lista), Qt::DownArrow);
}

void pintaContador(const QStyle& estilo, const QStyleOptionSpinBox& contador, QPainter& pintor, const QWidget* control)
{
    trazos::campo(pintor, contador.rect, contador);
    if (contador.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const auto parte = [&](QStyle::SubControl cual) { return estilo.subControlRect(QStyle::CC_SpinBox, &contador, cual, control); };
    trazos::flecha(pintor, parte(QStyle::SC_SpinBoxUp), colorDeFlecha(contador), Qt::UpArrow);
    trazos::flecha(pintor, parte(QStyle::SC_SpinBoxDown), colorDeFlecha(contador), Qt::DownArrow);
}

QFont letraDeTitulo(const QPainter& pintor)
{
    QFont letra = pintor.font();
    letra.setBold(true);
    return letra;
}

void pintaTitulo(const QStyle& estilo, const QStyleOptionGroupBox& grupo, QPainter& pintor, const QWidget* control)
{
    const QRect titulo = estilo.subControlRect(QStyle::CC_GroupBox, &grupo, QStyle::SC_GroupBoxLabel, control);
    pintor.save();
    pintor.setFont(letraDeTitulo(pintor));
    estilo.drawItemText(&pintor, titulo, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, grupo.palette,
                        grupo.state.testFlag(QStyle::State_Enabled), grupo.text, QPalette::WindowText);
    pintor.restore();
}

void pintaGrupo(const QStyle& estilo, const QStyleOptionGroupBox& grupo, QPainter& pintor, const QWidget* control)
{
    if (grupo.subControls.testFlag(QStyle::SC_GroupBoxFrame))
        trazos::tarjeta(pintor, grupo.rect, grupo.palette);
    if (!grupo.text.isEmpty())
        pintaTitulo(estilo, grupo, pintor, control);
    if (!grupo.subControls.testFlag(QStyle::SC_GroupBoxCheckBox))
        return;
    QStyleOptionButton casilla;
    casilla.QStyleOption::operator=(grupo);
    casilla.rect = estilo.subControlRect(QStyle::CC_GroupBox, &grupo, QStyle::SC_GroupBoxCheckBox, control);
    trazos::casilla(pintor, casilla);
}

QRect titulo(const QStyleOptionGroupBox& grupo)
{
    const int alto = grupo.fontMetrics.height() + 2;
    const int sangria = grupo.subControls.testFlag(QStyle::SC_GroupBoxCheckBox) ? alto + 8 : 0;
    return grupo.rect.adjusted(MargenTitulo + sangria, MargenTitulo - 2, -MargenTitulo, 0)
        .intersected({grupo.rect.left(), grupo.rect.top() + MargenTitulo - 2, grupo.rect.width(), alto});
}

std::optional<QRect> sitioDeGrupo(const QStyleOptionGroupBox& grupo, QStyle::SubControl parte)
{
    const QRect texto = titulo(grupo);
    switch (parte) {
    case QStyle::SC_GroupBoxFrame:
        return grupo.rect;
    case QStyle::SC_GroupBoxLabel:
        return texto;
    case QStyle::SC_GroupBoxCheckBox:
        return QRect{grupo.rect.left() + MargenTitulo, texto.top(), texto.height(), texto.height()};
    case QStyle::SC_GroupBoxContents: {
        const bool conTitulo = !grupo.text.isEmpty() || grupo.subControls.testFlag(QStyle::SC_GroupBoxCheckBox);
        return grupo.rect.adjusted(3, conTitulo ? MargenTitulo - 2 + texto.height() : 3, -3, -3);
    }
    default:
        return std::nullopt;
    }
}

/// The arrows one above the other at the right end, wide enough for a finger.
std::optional<QRect> sitioDeContador(const QStyleOptionSpinBox& contador, QStyle::SubControl parte)
{
    const QRect& todo = contador.rect;
    const int ancho = contador.buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : AnchoFlechas;
    const QRect flechas{todo.right() - ancho, todo.top(), ancho, todo.height()};
    switch (parte) {
    case QStyle::SC_SpinBoxUp:
        return flechas.adjusted(0, 2, 0, -todo.height() / 2);
    case QStyle::SC_SpinBoxDown:
        return flechas.adjusted(0, todo.height() / 2, 0, -2);
    case QStyle::SC_SpinBoxEditField:
        return todo.adjusted(SangriaCampo, 2, -ancho - 2, -2);
    default:
        return std::nullopt;
    }
}

QRect asidero(const QStyleOptionSlider& barra)
{
    const bool deLado = barra.orientation == Qt::Horizontal;
    const int largo = deLado ? barra.rect.width() : barra.rect.height();
    const double todo = double(barra.maximum) - barra.minimum + barra.pageStep;
    const int propio = todo > 0 ? qRound(largo * (barra.pageStep / todo)) : largo;
    const int asa = barra.maximum == barra.minimum ? largo : std::clamp(propio, std::min(MenorAsidero, largo), largo);
    const int desde =
        QStyle::sliderPositionFromValue(barra.minimum, barra.maximum, barra.sliderPosition, largo - asa, barra.upsideDown);
    return deLado ? QRect{barra.rect.left() + desde, barra.rect.top(), asa, barra.rect.height()}
                  : QRect{barra.rect.left(), barra.rect.top() + desde, barra.rect.width(), asa};
}

/// Without arrows at the ends: the handle has the whole length.
std::optional<QRect> sitioDeBarra(const QStyleOptionSlider& barra, QStyle::SubControl parte)
{
    const bool deLado = barra.orientation == Qt::Horizontal;
    const QRect asa = asidero(barra);
    QRect resto = barra.rect;
    switch (parte) {
    case QStyle::SC_ScrollBarAddLine:
    case QStyle::SC_ScrollBarSubLine:
        return QRect{};
    case QStyle::SC_ScrollBarGroove:
        return barra.rect;
    case QStyle::SC_ScrollBarSlider:
        return asa;
    case QStyle::SC_ScrollBarSubPage:
        deLado ? resto.setRight(asa.left() - 1) : resto.setBottom(asa.top() - 1);
        return resto;
    case QStyle::SC_ScrollBarAddPage:
        deLado ? resto.setLeft(asa.right() + 1) : resto.setTop(asa.bottom() + 1);
        return resto;
    default:
        return std::nullopt;
    }
}

void pintaBarra(const QStyleOptionSlider& barra, QPainter& pintor)
{
    pintor.fillRect(barra.rect, barra.palette.color(QPalette::Window));
    const bool cogida = barra.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) && (barra.state & QStyle::State_Sunken);
    if (barra.maximum > barra.minimum)
        trazos::barra(pintor, asidero(barra).adjusted(HuecoBarra, HuecoBarra, -HuecoBarra, -HuecoBarra),
                      barra.palette.color(cogida ? QPalette::Text : QPalette::Dark));
}

} // namespace

bool pinta(const QStyle& estilo, QStyle::ComplexControl complejo, const QStyleOptionComplex& opcion, QPainter& pintor,
           const QWidget* control)
{
    if (const auto* lista = qstyleoption_cast<const QStyleOptionComboBox*>(&opcion); lista && complejo == QStyle::CC_ComboBox)
        pintaLista(estilo, *lista, pintor, control);
    else if (const auto* contador = qstyleoption_cast<const QStyleOptionSpinBox*>(&opcion);
             contador && complejo == QStyle::CC_SpinBox)
        pintaContador(estilo, *contador, pintor, control);
    else if (const auto* grupo = qstyleoption_cast<const QStyleOptionGroupBox*>(&opcion); grupo && complejo == QStyle::CC_GroupBox)
        pintaGrupo(estilo, *grupo, pintor, control);
    else if (const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(&opcion); barra && complejo == QStyle::CC_ScrollBar)
        pintaBarra(*barra, pintor);
    else
        return false;
    return true;
}

std::optional<QRect> sitio(QStyle::ComplexControl complejo, const QStyleOptionComplex& opcion, QStyle::SubControl parte)
{
    if (const auto* grupo = qstyleoption_cast<const QStyleOptionGroupBox*>(&opcion); grupo && complejo == QStyle::CC_GroupBox)
        return sitioDeGrupo(*grupo, parte);
    if (const auto* contador = qstyleoption_cast<const QStyleOptionSpinBox*>(&opcion); contador && complejo == QStyle::CC_SpinBox)
        return sitioDeContador(*contador, parte);
    if (const auto* barra = qstyleoption_cast<const QStyleOptionSlider*>(&opcion); barra && complejo == QStyle::CC_ScrollBar)
        return sitioDeBarra(*barra, parte);
    return std::nullopt;
}

} // namespace kestrane::complejos
