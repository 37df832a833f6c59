#include "platform/report/preview/barra_vista.h"

#include <QAction>

#include <array>
#include <utility>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr int AireDeLetrero = 12; ///< beside a caption
constexpr std::array Porcentajes{50, 75, 100, 125, 150, 200, 300, 400};
constexpr std::array<std::pair<FormatoExportacion, QStringView>, 5> Formatos{{
    {FormatoExportacion::Pdf, u"Documento PDF…"},
    {FormatoExportacion::Xlsx, u"Hoja de cálculo (XLSX)…"},
    {FormatoExportacion::Csv, u"Datos separados (CSV)…"},
    {FormatoExportacion::Html, u"Página web (HTML)…"},
    {FormatoExportacion::Png, u"Imágenes (PNG)…"},
}};

} // namespace

BarraVista::BarraVista(QWidget* padre)
    : QToolBar{u"Controles del informe"_s, padre}
    , m_panel{anade(Icono::Panel, u"panelLateral"_s, u"Panel de páginas y grupos"_s)}
{
    setObjectName(u"barra"_s);
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    m_panel->setCheckable(true);
    connect(m_panel, &QToolButton::toggled, this, &BarraVista::panelPedido);
    // What is behind the arrow of a narrow window are the last ones.
    addSeparator();
    anadeSalidas();
    addSeparator();
    anadePaginas();
    addSeparator();
    anadeZoom();
    addSeparator();
    anadeTrabajos();
}

QToolButton* BarraVista::anade(Icono cual, const QString& objeto, const QString& nombre)
{
    auto* boton = botonVista(cual, objeto, nombre, this);
    addWidget(boton);
    return boton;
}

void BarraVista::anadePaginas()
{
    m_primera = anade(Icono::Primera, u"primera"_s, u"Primera página (Inicio)"_s);
    m_anterior = anade(Icono::Anterior, u"anterior"_s, u"Página anterior"_s);
    m_pagina = new QLineEdit{this};
    m_pagina->setObjectName(u"numeroPagina"_s);
    m_pagina->setAccessibleName(u"Número de página"_s);
    m_pagina->setToolTip(u"Ir a la página (Ctrl+G)"_s);
    m_pagina->setAlignment(Qt::AlignCenter);
    m_pagina->setFixedWidth(64);
    m_pagina->setMaxLength(9);
    addWidget(m_pagina);
    m_total = new QLabel{this};
    m_total->setObjectName(u"totalPaginas"_s);
    m_total->setMinimumWidth(64);
    m_total->setContentsMargins(6, 0, 6, 0);
    addWidget(m_total);
    m_siguiente = anade(Icono::Siguiente, u"siguiente"_s, u"Página siguiente"_s);
    m_ultima = anade(Icono::Ultima, u"ultima"_s, u"Última página (Fin)"_s);
    connect(m_primera, &QToolButton::clicked, this, &BarraVista::primera);
    connect(m_anterior, &QToolButton::clicked, this, &BarraVista::anterior);
    connect(m_siguiente, &QToolButton::clicked, this, &BarraVista::siguiente);
    connect(m_ultima, &QToolButton::clicked, this, &BarraVista::ultima);
    connect(m_pagina, &QLineEdit::returnPressed, this, &BarraVista::alEscribirPagina);
}

void BarraVista::anadeZoom()
{
    auto* menos = anade(Icono::Alejar, u"aleja"_s, u"Alejar (Ctrl+-)"_s);
    m_zoom = new QToolButton{this};
    m_zoom->setObjectName(u"zoom"_s);
    m_zoom->setToolTip(u"Tamaño de las páginas"_s);
    m_zoom->setMinimumSize(84, LadoBoton);
    m_zoom->setPopupMode(QToolButton::InstantPopup);
    m_zoom->setFocusPolicy(Qt::StrongFocus);
    m_zoom->setMenu(menuZoom());
    addWidget(m_zoom);
    auto* mas = anade(Icono::Acercar, u"acerca"_s, u"Acercar (Ctrl++)"_s);
    m_ancho = anade(Icono::AnchoPagina, u"anchoPagina"_s, u"Ajustar al ancho"_s);
    m_entera = anade(Icono::PaginaEntera, u"paginaEntera"_s, u"Ver la página entera"_s);
    m_ancho->setCheckable(true);
    m_entera->setCheckable(true);
    connect(menos, &QToolButton::clicked, this, &BarraVista::aleja);
    connect(mas, &QToolButton::clicked, this, &BarraVista::acerca);
    connect(m_ancho, &QToolButton::clicked, this, [this] { emit zoomPedido({Zoom::Modo::Ancho, 100}); });
    connect(m_entera, &QToolButton::clicked, this, [this] { emit zoomPedido({Zoom::Modo::Pagina, 100}); });
}

void BarraVista::anadeSalidas()
{
    m_imprimir = anade(Icono::Imprimir, u"imprimir"_s, u"Imprimir (Ctrl+P)"_s);
    m_imprimir->setText(u"Imprimir"_s);
    connect(m_imprimir, &QToolButton::clicked, this, &BarraVista::imprimir);
    m_exportar = anade(Icono::Exportar, u"exportar"_s, u"Exportar (Ctrl+S)"_s);
    m_exportar->setText(u"Exportar"_s);
    m_exportar->setPopupMode(QToolButton::InstantPopup);
    m_exportar->setMenu(menuExportar());
    ponLetreros(true);
}

void BarraVista::anadeTrabajos()
{
    auto* busca = anade(Icono::Buscar, u"buscar"_s, u"Buscar (Ctrl+F)"_s);
    auto* actualiza = anade(Icono::Actualizar, u"actualizar"_s, u"Actualizar (F5)"_s);
    connect(busca, &QToolButton::clicked, this, &BarraVista::buscar);
    connect(actualiza, &QToolButton::clicked, this, &BarraVista::actualizar);
}

void BarraVista::ponLetreros(bool visibles)
{
    for (QToolButton* boton : {m_imprimir, m_exportar})
        boton->setToolButtonStyle(visibles ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
}

void BarraVista::resizeEvent(QResizeEvent* evento)
{
    QToolBar::resizeEvent(evento);
    int letreros = 0;
    for (const QToolButton* boton : {m_imprimir, m_exportar}) {
        if (boton->toolButtonStyle() == Qt::ToolButtonIconOnly)
            letreros += boton->fontMetrics().horizontalAdvance(boton->text()) + AireDeLetrero;
    }
    ponLetreros(width() >= sizeHint().width() + letreros);
}

QMenu* BarraVista::menuZoom()
{
    auto* menu = new QMenu{this};
    menu->addAction(u"Ajustar al ancho"_s, this, [this] { emit zoomPedido({Zoom::Modo::Ancho, 100}); });
    menu->addAction(u"Página entera"_s, this, [this] { emit zoomPedido({Zoom::Modo::Pagina, 100}); });
    menu->addSeparator();
    for (const int porcentaje : Porcentajes)
        menu->addAction(u"%1 %"_s.arg(porcentaje), this, [this, porcentaje] {
            emit zoomPedido({Zoom::Modo::Porcentaje, double(porcentaje)});
        });
    return menu;
}

QMenu* BarraVista::menuExportar()
{
    auto* menu = new QMenu{this};
    for (const auto& [formato, nombre] : Formatos)
        menu->addAction(nombre.toString(), this, [this, pedido = formato] { emit exportar(pedido); });
    return menu;
}

void BarraVista::ponPagina(int actual, int paginas, bool completa)
{
    m_numero = actual < 0 ? u""_s : QString::number(actual + 1);
    if (!m_pagina->hasFocus() || !m_pagina->isModified())
        m_pagina->setText(m_numero);
    m_total->setText(u"de %1"_s.arg(completa ? QString::number(paginas) : u"..."_s));
    m_total->setAccessibleName(completa ? u"de %1 páginas"_s.arg(paginas) : u"el total de páginas aún no se sabe"_s);
    m_primera->setEnabled(actual > 0);
    m_anterior->setEnabled(actual > 0);
    m_siguiente->setEnabled(actual + 1 < paginas);
    m_ultima->setEnabled(actual + 1 < paginas);
}

void BarraVista::ponZoom(Zoom zoom, double porcentaje)
{
    const QString texto = u"%1 %"_s.arg(qRound(porcentaje));
    m_zoom->setText(texto);
    m_zoom->setAccessibleName(u"Tamaño de las páginas: %1"_s.arg(texto));
    m_ancho->setChecked(zoom.modo == Zoom::Modo::Ancho);
    m_entera->setChecked(zoom.modo == Zoom::Modo::Pagina);
}

void BarraVista::abreExportar()
{
    QMenu& menu = *m_exportar->menu();
    // On a narrow window the button stands behind the bar's arrow.
    const QWidget& junto = m_exportar->isVisible() ? static_cast<const QWidget&>(*m_exportar) : *this;
    menu.popup(junto.mapToGlobal(junto.rect().bottomLeft()));
    menu.setActiveAction(menu.actions().constFirst());
}

void BarraVista::editaPagina()
{
    m_pagina->setFocus();
    m_pagina->selectAll();
}

void BarraVista::alEscribirPagina()
{
    bool esNumero = false;
    const int pagina = m_pagina->text().trimmed().toInt(&esNumero);
    m_pagina->setModified(false);
    m_pagina->setText(m_numero);
    if (esNumero)
        emit paginaPedida(pagina - 1);
}

} // namespace kestrane::report
