#include "platform/suite/windows/escala_control.h"

#include "platform/suite/windows/medida_recordada.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLayout>

namespace kestrane {

namespace {

/// One measure of `dueno`, scaled across, upright, or by the lesser factor.
class Escalador
{
public:
    Escalador(QObject& dueno, const CambioEscala& cambio) : m_dueno{dueno}, m_cambio{cambio} {}

    [[nodiscard]] int aLoAncho(const char* clave, int actual) const
    {
        return medida(clave, actual, m_cambio.antes.ancho, m_cambio.ahora.ancho);
    }
    [[nodiscard]] int aLoAlto(const char* clave, int actual) const
    {
        return medida(clave, actual, m_cambio.antes.alto, m_cambio.ahora.alto);
    }
    [[nodiscard]] int porIgual(const char* clave, int actual) const
    {
        return medida(clave, actual, m_cambio.antes.menor(), m_cambio.ahora.menor());
    }

private:
    /// Nothing stays nothing, and no bound stays none.
    [[nodiscard]] int medida(const char* clave, int actual, double antes, double ahora) const
    {
        if (actual <= 0 || actual >= QWIDGETSIZE_MAX)
            return actual;
        return MedidaRecordada{m_dueno, clave}.escalada(actual, antes, ahora);
    }

    QObject& m_dueno;
    const CambioEscala& m_cambio;
};

/// What a window itself was told about its least size: without what its layout makes of it.
QSize minimoPropio(QWidget& control)
{
    QSize minimo = control.minimumSize();
    QLayout* disposicion = control.layout();
    if (!control.isWindow() || !disposicion)
        return minimo;
    const QSize deDisposicion = disposicion->totalMinimumSize();
    if (minimo.width() == deDisposicion.width() && !MedidaRecordada{control, "kestraneMinimoAncho"}.seRecuerda())
        minimo.setWidth(0);
    if (minimo.height() == deDisposicion.height() && !MedidaRecordada{control, "kestraneMinimoAlto"}.seRecuerda())
        minimo.setHeight(0);
    return minimo;
}

void escalaMinimo(QWidget& control, const Escalador& escalador)
{
    const QSize minimo = minimoPropio(control);
    if (minimo.width() > 0)
        control.setMinimumWidth(escalador.aLoAncho("kestraneMinimoAncho", minimo.width()));
    if (minimo.height() > 0)
        control.setMinimumHeight(escalador.aLoAlto("kestraneMinimoAlto", minimo.height()));
}

/// Growing, the greatest size makes room before the least one needs it; shrinking, Qt itself lowers what stands in the way.
void escalaLimites(QWidget& control, const Escalador& escalador)
{
    const QSize maximo = control.maximumSize();
    const QSize nuevo{escalador.aLoAncho("kestraneMaximoAncho", maximo.width()),
                      escalador.aLoAlto("kestraneMaximoAlto", maximo.height())};
    control.setMaximumSize(nuevo.expandedTo(maximo));
    escalaMinimo(control, escalador);
    control.setMaximumSize(nuevo);
}

QMargins escalados(const QMargins& margenes, const Escalador& escalador)
{
    return {escalador.aLoAncho("kestraneMargenIzquierdo", margenes.left()),
            escalador.aLoAlto("kestraneMargenSuperior", margenes.top()),
            escalador.aLoAncho("kestraneMargenDerecho", margenes.right()),
            escalador.aLoAlto("kestraneMargenInferior", margenes.bottom())};
}

void escalaSeparacion(QGridLayout& rejilla, const Escalador& escalador)
{
    rejilla.setHorizontalSpacing(escalador.aLoAncho("kestraneSeparacionAncho", rejilla.horizontalSpacing()));
    rejilla.setVerticalSpacing(escalador.aLoAlto("kestraneSeparacionAlto", rejilla.verticalSpacing()));
}

/// A layout and those inside it; layouts of controls on the control have their turn with them.
void escalaDisposicion(QLayout& disposicion, const CambioEscala& cambio)
{
    const Escalador escalador{disposicion, cambio};
    disposicion.setContentsMargins(escalados(disposicion.contentsMargins(), escalador));
    if (auto* rejilla = qobject_cast<QGridLayout*>(&disposicion))
        escalaSeparacion(*rejilla, escalador);
    else if (disposicion.spacing() > 0)
        disposicion.setSpacing(escalador.porIgual("kestraneSeparacion", disposicion.spacing()));
    for (int i = 0; i < disposicion.count(); ++i) {
        if (QLayout* interior = disposicion.itemAt(i)->layout())
            escalaDisposicion(*interior, cambio);
    }
}

void escalaIcono(QAbstractButton& boton, const Escalador& escalador)
{
    const QSize icono = boton.iconSize();
    boton.setIconSize(
        {escalador.porIgual("kestraneIconoAncho", icono.width()), escalador.porIgual("kestraneIconoAlto", icono.height())});
}

bool ocupaLaPantalla(const QWidget& ventana)
{
    return ventana.isMaximized() || ventana.isFullScreen();
}

} // namespace

void escalaControl(QWidget& control, const CambioEscala& cambio)
{
    if (control.isWindow() && control.layout())
        control.layout()->activate(); // so that the least size is the one of its controls of now
    const Escalador escalador{control, cambio};
    escalaLimites(control, escalador);
    if (auto* boton = qobject_cast<QAbstractButton*>(&control))
        escalaIcono(*boton, escalador);
    if (control.layout())
        escalaDisposicion(*control.layout(), cambio);
}

void escalaTamano(QWidget& ventana, QSize tamano, const CambioEscala& cambio)
{
    const bool conTamano = ventana.isVisible() || ventana.testAttribute(Qt::WA_Resized);
    if (!conTamano || ocupaLaPantalla(ventana))
        return;
    const Escalador escalador{ventana, cambio};
    ventana.resize(escalador.aLoAncho("kestraneAncho", tamano.width()), escalador.aLoAlto("kestraneAlto", tamano.height()));
    MedidaRecordada{ventana, "kestraneAncho"}.queda(ventana.width());
    MedidaRecordada{ventana, "kestraneAlto"}.queda(ventana.height());
}

} // namespace kestrane
