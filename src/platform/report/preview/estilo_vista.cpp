#include "platform/report/preview/estilo_vista.h"

namespace kestrane::report {

using namespace Qt::StringLiterals;

QToolButton* botonVista(Icono cual, const QString& objeto, const QString& nombre, QWidget* padre)
{
    auto* boton = new QToolButton{padre};
    boton->setObjectName(objeto);
    boton->setIcon(icono(cual, padre->palette().color(QPalette::WindowText)));
    boton->setIconSize({24, 24});
    boton->setToolTip(nombre);
    boton->setAccessibleName(nombre);
    boton->setMinimumSize(LadoBoton, LadoBoton);
    boton->setFocusPolicy(Qt::StrongFocus);
    boton->setAutoRaise(true);
    return boton;
}

QString hojaDeEstilo()
{
    return uR"(
        #barra, #barraBusqueda, #banda { background: palette(window); border: none; }
        #barra, #barraBusqueda { border-bottom: 1px solid palette(mid); }
        QToolButton { border: 2px solid transparent; border-radius: 6px; padding: 4px; }
        QToolButton[popupMode="2"] { padding-right: 18px; }
        QToolButton:hover { background: palette(midlight); }
        QToolButton:pressed, QToolButton:checked { background: palette(mid); }
        QToolButton:focus { border-color: palette(highlight); }
        QToolButton::menu-indicator { subcontrol-origin: padding; subcontrol-position: center right; right: 6px; }
        #qt_toolbar_ext_button { padding: 0; border: none; width: 28px; }
        #numeroPagina, #textoBuscado { min-height: 36px; padding: 2px 8px; border: 2px solid palette(mid); border-radius: 6px;
                              background: palette(base); selection-background-color: palette(highlight); }
        #numeroPagina:focus, #textoBuscado:focus { border-color: palette(highlight); }
        QMenu::item { padding: 12px 28px; }
        QMenu::item:selected { background: palette(highlight); color: palette(highlighted-text); }
        #panel::pane { border: none; border-right: 1px solid palette(mid); }
        #panel QTabBar::tab { min-height: 40px; padding: 0 16px; border: none; border-bottom: 3px solid transparent; }
        #panel QTabBar::tab:selected { border-bottom-color: palette(highlight); }
        #panel QTabBar::tab:focus { background: palette(midlight); }
        QListView, QTreeView { border: 2px solid transparent; background: palette(window); }
        QListView:focus, QTreeView:focus { border-color: palette(highlight); }
        QTreeView::item { min-height: 44px; }
        #banda { background: #fff3cd; } #banda QLabel { color: #4d3b00; }
        #banda[fallo="true"] { background: #f8d7da; } #banda[fallo="true"] QLabel { color: #6b1019; }
        QStatusBar QProgressBar { max-height: 8px; border: none; border-radius: 4px; background: palette(mid); }
        QStatusBar QProgressBar::chunk { border-radius: 4px; background: palette(highlight); }
    )"_s;
}

} // namespace kestrane::report
