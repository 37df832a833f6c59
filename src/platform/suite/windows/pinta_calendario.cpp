#include "platform/suite/windows/pinta_calendario.h"

#include "platform/suite/windows/trazos_estilo.h"

#include <QTextCharFormat>
#include <QToolButton>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto Barra = "qt_calendar_navigationbar"_L1;
constexpr int LadoFlecha = 20;

void pintaFinDeSemana(QCalendarWidget& calendario, Rgb color)
{
    QTextCharFormat formato;
    formato.setForeground(QColor::fromRgb(color));
    calendario.setWeekdayTextFormat(Qt::Saturday, formato);
    calendario.setWeekdayTextFormat(Qt::Sunday, formato);
}

QIcon flecha(Qt::ArrowType hacia, Rgb color, double densidad)
{
    QPixmap dibujo{QSize{LadoFlecha, LadoFlecha} * densidad};
    dibujo.setDevicePixelRatio(densidad);
    dibujo.fill(Qt::transparent);
    QPainter pintor{&dibujo};
    trazos::flecha(pintor, {0, 0, LadoFlecha, LadoFlecha}, QColor::fromRgb(color), hacia);
    return dibujo;
}

void ponFlecha(const QCalendarWidget& calendario, QLatin1StringView nombre, Qt::ArrowType hacia, Rgb color)
{
    if (auto* boton = calendario.findChild<QToolButton*>(nombre))
        boton->setIcon(flecha(hacia, color, calendario.devicePixelRatioF()));
}

/// The ground of the buttons is the bar's, so that what lies below the pointer keeps a text that is read on it.
QPalette coloresDeBarra(const Paleta& paleta)
{
    QPalette colores;
    for (const QPalette::ColorRole papel : {QPalette::ButtonText, QPalette::WindowText})
        colores.setColor(papel, QColor::fromRgb(paleta.textoSeleccion));
    colores.setColor(QPalette::Button, QColor::fromRgb(paleta.seleccion));
    colores.setColor(QPalette::Mid, QColor::fromRgb(paleta.seleccion));
    return colores;
}

} // namespace

void pintaCalendario(QCalendarWidget& calendario, const Paleta& paleta)
{
    pintaFinDeSemana(calendario, paleta.aviso);
    if (auto* barra = calendario.findChild<QWidget*>(Barra)) {
        for (auto* boton : barra->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly))
            boton->setPalette(coloresDeBarra(paleta));
    }
    ponFlecha(calendario, "qt_calendar_prevmonth"_L1, Qt::LeftArrow, paleta.textoSeleccion);
    ponFlecha(calendario, "qt_calendar_nextmonth"_L1, Qt::RightArrow, paleta.textoSeleccion);
}

bool esDeCalendario(const QWidget& control)
{
    return control.parent() && control.parent()->objectName() == Barra;
}

} // namespace kestrane
