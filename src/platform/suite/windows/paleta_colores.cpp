#include "platform/suite/windows/paleta_colores.h"

#include "platform/suite/paleta.h"
#include "platform/suite/windows/controles_de.h"
#include "platform/suite/windows/estilo_suite.h"
#include "platform/suite/windows/objetivo_tactil.h"
#include "platform/suite/windows/pinta_calendario.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QToolTip>

namespace kestrane {

namespace {

QColor color(Rgb rgb)
{
    return QColor::fromRgb(rgb);
}

bool dice(const QWidget& control, const char* propiedad)
{
    return control.property(propiedad).toBool();
}

/// What cannot be used steps back half-way into the colour behind it.
void apagaDeshabilitado(QPalette& colores, const Paleta& paleta)
{
    const QColor texto = color(mezclado(paleta.texto, paleta.fondo, 50));
    for (const QPalette::ColorRole papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colores.setColor(QPalette::Disabled, papel, texto);
    colores.setColor(QPalette::Disabled, QPalette::Button, color(mezclado(paleta.boton, paleta.fondo, 60)));
    colores.setColor(QPalette::Disabled, QPalette::Dark, color(mezclado(paleta.borde, paleta.fondo, 50)));
    colores.setColor(QPalette::Disabled, QPalette::LinkVisited, color(mezclado(paleta.borde, paleta.fondo, 50)));
    colores.setColor(QPalette::Disabled, QPalette::Base, color(mezclado(paleta.campo, paleta.fondo, 60)));
}

QPalette coloresDe(const Paleta& paleta)
{
    QPalette colores;
    const auto pon = [&](QPalette::ColorRole papel, Rgb rgb) { colores.setColor(papel, color(rgb)); };
    pon(QPalette::Window, paleta.fondo);
    pon(QPalette::WindowText, paleta.texto);
    pon(QPalette::Base, paleta.campo);
    pon(QPalette::AlternateBase, paleta.filaAlterna);
    pon(QPalette::Text, paleta.texto);
    pon(QPalette::PlaceholderText, paleta.textoSuave);
    pon(QPalette::Button, paleta.boton);
    pon(QPalette::ButtonText, paleta.textoBoton);
    pon(QPalette::Light, paleta.tarjeta);
    pon(QPalette::Midlight, mezclado(paleta.boton, paleta.textoBoton, PorCientoEncima));
    pon(QPalette::Mid, paleta.bordeSuave);
    pon(QPalette::Dark, paleta.borde);
    pon(QPalette::Shadow, paleta.borde);
    pon(QPalette::Highlight, paleta.seleccion);
    pon(QPalette::HighlightedText, paleta.textoSeleccion);
    pon(QPalette::Link, paleta.foco);
    pon(QPalette::LinkVisited, paleta.acento);
    pon(QPalette::BrightText, paleta.textoAcento);
    pon(QPalette::ToolTipBase, paleta.texto);
    pon(QPalette::ToolTipText, paleta.fondo);
    apagaDeshabilitado(colores, paleta);
    return colores;
}

/// What belongs to no window that is painted: message boxes, tool tips, lists that drop down, the preview.
void pintaPrograma(const QPalette& colores)
{
    ponEstiloSuite();
    if (QApplication::palette() == colores)
        return;
    QApplication::setPalette(colores);
    QToolTip::setPalette(colores);
}

bool esTarjeta(const QWidget& control)
{
    return qobject_cast<const QGroupBox*>(&control) || dice(control, propiedades::Tarjeta);
}

/// A label reads the colour of links as it gets its text.
void vuelveALeer(QLabel& rotulo)
{
    const QString texto = rotulo.text();
    if (!Qt::mightBeRichText(texto))
        return;
    rotulo.clear();
    rotulo.setText(texto);
}

void cambia(QWidget& control, QPalette::ColorRole papel, Rgb rgb)
{
    QPalette colores;
    colores.setColor(papel, color(rgb));
    control.setPalette(colores);
}

/// What differs from the window's colours; all else a control has from where it stands.
void pintaControl(QWidget& control, const Paleta& paleta)
{
    if (esDeCalendario(control))
        return;
    control.setPalette({});
    if (auto* calendario = qobject_cast<QCalendarWidget*>(&control))
        pintaCalendario(*calendario, paleta);
    else if (auto* rotulo = qobject_cast<QLabel*>(&control))
        vuelveALeer(*rotulo);
    if (esTarjeta(control))
        cambia(control, QPalette::Window, paleta.tarjeta);
    else if (dice(control, propiedades::TextoSuave))
        cambia(control, QPalette::WindowText, paleta.textoSuave);
    else if (dice(control, propiedades::TextoAviso))
        cambia(control, QPalette::WindowText, paleta.aviso);
}

void pintaVentana(QWidget& ventana, QPalette colores, const Paleta& paleta)
{
    if (dice(ventana, propiedades::VentanaPequena))
        colores.setColor(QPalette::Window, color(paleta.fondoPequeno));
    ventana.setPalette(colores);
}

} // namespace

QPalette coloresDe(qint32 tema)
{
    return coloresDe(paletaDe(tema));
}

void PaletaColores::PintarForm(QWidget& ventana, qint32 tema) const
{
    const Paleta& paleta = paletaDe(tema);
    const QPalette colores = coloresDe(paleta);
    pintaPrograma(colores);
    pintaVentana(ventana, colores, paleta);
    for (QWidget* control : controlesDe(ventana)) {
        if (control != &ventana)
            pintaControl(*control, paleta);
    }
    daObjetivosTactiles(ventana);
}

QString PaletaColores::DarColorFondo(qint32 tema) const
{
    return decimalDeRgb(paletaDe(tema).fondoPequeno);
}

QString PaletaColores::DarColorResalte(qint32 tema) const
{
    return decimalDeRgb(paletaDe(tema).resalte);
}

QString PaletaColores::DarColorBoton(qint32 tema) const
{
    return decimalDeRgb(paletaDe(tema).listados);
}

QString PaletaColores::DarColorPredefinido1(qint32 tema) const
{
    return decimalDeRgb(paletaDe(tema).paneles[0]);
}

QString PaletaColores::DarColorPredefinido2(qint32 tema) const
{
    return decimalDeRgb(paletaDe(tema).paneles[1]);
}

QString PaletaColores::DarColorPredefinido3(qint32 tema) const
{
    return decimalDeRgb(paletaDe(tema).paneles[2]);
}

QString PaletaColores::DarColorPredefinido4(qint32 tema) const
{
    return decimalDeRgb(paletaDe(tema).paneles[3]);
}

} // namespace kestrane
