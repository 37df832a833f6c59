#include "dialogs/eleccion_de_tienda.h"

#include "dialogs/forma_filtro.h"
#include "pipeline/filtros/eleccion_tienda.h"
#include "platform/controls/boton_menu.h"

#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int FilasALaVista = 2; ///< of stores, at least
constexpr int Separacion = 6;

} // namespace

EleccionDeTienda::EleccionDeTienda(ContextoEjecucion& contexto, QWidget* padre)
    : QWidget{padre}
    , m_contexto{contexto}
    , m_info{new QLabel{this}}
    , m_panel{new TilePanel{u"PanelTiendas"_s, this}}
{
    m_info->setObjectName(u"lblInfoTienda"_s);
    m_info->setTextFormat(Qt::PlainText);
    m_info->setWordWrap(true);
    m_info->setProperty("letraRelativa", 1.1);
    m_panel->setMinimumHeight(FilasALaVista * (LadoTactil + Separacion));
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins({});
    columna->addWidget(m_info);
    columna->addWidget(m_panel, 1);
    connect(m_panel, &TilePanel::pulsado, this, [this](const ElementoPanel& tienda) {
        pulsaTienda(m_contexto, tienda.Texto);
        ensenaElegida();
        emit elegida();
    });
}

void EleccionDeTienda::CargarTiendas(const QWidget& marcoDeBotones, const QWidget& marcoDeFondo)
{
    setVisible(enServidor(m_contexto));
    if (!enServidor(m_contexto))
        return;
    m_panel->ponColores(fondoDe(marcoDeBotones), fondoDe(marcoDeFondo));
    m_panel->da(m_contexto.Tiendas);
    m_panel->show();
    ensenaElegida();
}

void EleccionDeTienda::ensenaElegida()
{
    m_info->setText(m_contexto.TiendaSeleccionada);
}

} // namespace kestrane
