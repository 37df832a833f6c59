#include "platform/suite/windows/escalador_ventanas.h"

#include "platform/suite/windows/controles_de.h"
#include "platform/suite/windows/escala_control.h"
#include "platform/suite/windows/letra_ventana.h"

#include <QVariant>

#include <algorithm>
#include <cmath>

namespace kestrane {

namespace {

constexpr double EscalaMenor = 0.5;
constexpr double EscalaMayor = 4;

constexpr char Escala[] = "kestraneEscala";             ///< of a window: the factors of all calls, as they came
constexpr char UltimoTamano[] = "kestraneUltimoTamano"; ///< of a window: to which it was scaled last, twips

/// The factors of all calls: as they came, but that no row of absurd ones leaves the numbers for good.
QPointF llevada(QPointF escala)
{
    constexpr double Tope = 1e12;
    return {std::clamp(escala.x(), 1 / Tope, Tope), std::clamp(escala.y(), 1 / Tope, Tope)};
}

/// By how much one direction changes; by nothing where a size is none.
double factor(double destino, double origen)
{
    const double cociente = destino / origen;
    return std::isfinite(cociente) && destino > 0 && cociente > 0 ? cociente : 1;
}

/// Without the last digits, in which 3 / 2 * 2 / 3 is not 1.
double limpio(double escala)
{
    constexpr double Cifras = 1e9;
    return std::round(escala * Cifras) / Cifras;
}

QPointF escalaDe(const QWidget& ventana)
{
    const QVariant escala = ventana.property(Escala);
    return escala.isValid() ? escala.toPointF() : QPointF{1, 1};
}

bool esTamano(TamanoVentana tamano)
{
    return std::isfinite(tamano.ancho) && std::isfinite(tamano.alto) && tamano.ancho > 0 && tamano.alto > 0;
}

/// The size to which the controls were scaled last, or `origen` when they never were. The operator may have given the window itself
/// another one since: that scaled nothing.
TamanoVentana tamanoDeLosControles(const QWidget& ventana, TamanoVentana origen)
{
    const QVariant ultimo = ventana.property(UltimoTamano);
    if (!ultimo.isValid() || !esTamano(origen))
        return origen;
    return {ultimo.toSizeF().width(), ultimo.toSizeF().height()};
}

EscalaControl acotada(QPointF escala)
{
    return {std::clamp(limpio(escala.x()), EscalaMenor, EscalaMayor), std::clamp(limpio(escala.y()), EscalaMenor, EscalaMayor)};
}

} // namespace

void EscaladorVentanas::EscalarForm(QWidget& ventana, TamanoVentana destino, TamanoVentana origen) const
{
    const TamanoVentana desde = tamanoDeLosControles(ventana, origen);
    const QPointF antes = escalaDe(ventana);
    const QPointF ahora = llevada({antes.x() * factor(destino.ancho, desde.ancho), antes.y() * factor(destino.alto, desde.alto)});
    ventana.setProperty(Escala, ahora);
    const CambioEscala cambio{acotada(antes), acotada(ahora)};
    const QSize tamano = ventana.size();
    for (QWidget* control : controlesDe(ventana))
        escalaControl(*control, cambio);
    LetraVentana{ventana}.ponEscala(cambio.ahora.menor());
    if (esTamano(destino) && esTamano(origen))
        ventana.setProperty(UltimoTamano, QSizeF{destino.ancho, destino.alto});
    if (desde == origen)
        escalaTamano(ventana, tamano, cambio);
    else if (!ventana.isMaximized() && !ventana.isFullScreen())
        ventana.resize(static_cast<int>(std::lround(tamano.width() * factor(destino.ancho, origen.ancho))),
                       static_cast<int>(std::lround(tamano.height() * factor(destino.alto, origen.alto))));
}

} // namespace kestrane
