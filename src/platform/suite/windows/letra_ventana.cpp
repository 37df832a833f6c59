#include "platform/suite/windows/letra_ventana.h"

#include "platform/suite/windows/controles_de.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <QFontInfo>
#include <QVariant>

#include <algorithm>

namespace kestrane {

namespace {

constexpr double PuntosMenores = 6;
constexpr double PuntosMayores = LetraMayor;

// Of the window.
constexpr char Tamano[] = "kestraneLetra";       ///< as the operator set it
constexpr char Propia[] = "kestraneLetraPropia"; ///< as the window came, for as long as nobody sets one
constexpr char Escala[] = "kestraneEscalaLetra";
// Of a control.
constexpr char Relacion[] = "kestraneRelacionLetra"; ///< its letters against the window's

double puntosDe(const QWidget& control)
{
    const double puntos = control.font().pointSizeF();
    return puntos > 0 ? puntos : QFontInfo{control.font()}.pointSizeF();
}

double numero(const QWidget& control, const char* propiedad, double siNo)
{
    bool hay = false;
    const double valor = control.property(propiedad).toDouble(&hay);
    return hay && valor > 0 ? valor : siNo;
}

void ponLetra(QWidget& control, const QString& familia, double puntos)
{
    QFont letra = control.font();
    if (letra.family() == familia && qFuzzyCompare(letra.pointSizeF(), puntos))
        return;
    letra.setFamily(familia);
    letra.setPointSizeF(puntos);
    control.setFont(letra);
}

} // namespace

void LetraVentana::ponTamano(double puntos)
{
    mide();
    m_ventana.setProperty(Tamano, std::clamp(puntos, PuntosMenores, PuntosMayores));
    aplica();
}

void LetraVentana::ponEscala(double factor)
{
    mide();
    m_ventana.setProperty(Escala, factor);
    aplica();
}

/// Before anything is changed, since letters pass on from a control to those on it.
void LetraVentana::mide()
{
    const double deVentana = puntosDe(m_ventana);
    if (!m_ventana.property(Propia).isValid())
        m_ventana.setProperty(Propia, deVentana);
    for (QWidget* control : controlesDe(m_ventana)) {
        if (!control->property(Relacion).isValid())
            control->setProperty(Relacion, puntosDe(*control) / deVentana);
    }
    m_ventana.setProperty(Relacion, 1.0);
}

double LetraVentana::puntosSinEscala() const
{
    return numero(m_ventana, Tamano, numero(m_ventana, Propia, 10));
}

void LetraVentana::aplica()
{
    const double deVentana = puntosSinEscala() * numero(m_ventana, Escala, 1);
    const bool unaFamilia = m_ventana.property(Tamano).isValid();
    for (QWidget* control : controlesDe(m_ventana)) {
        const double relacion = numero(*control, propiedades::LetraRelativa, numero(*control, Relacion, 1));
        const double puntos = std::clamp(deVentana * relacion, PuntosMenores, 2 * PuntosMayores);
        ponLetra(*control, unaFamilia ? QString{FamiliaLetra} : control->font().family(), puntos);
    }
}

} // namespace kestrane
