#include "dialogs/frm_sel_tienda.h"

#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize TamanoDelPanel{520, 300};

} // namespace

FrmSelTienda::FrmSelTienda(const ServiciosDialogo& servicios)
    : FormaFiltro{u"frmSelTienda"_s, {}, servicios}
    , m_marco{marco(u"Frame1"_s, this)}
    , m_tienda{new EleccionDeTienda{contexto(), m_marco}}
{
    QLabel* const cabeza = encabezado(u"Label1"_s, u"Seleccione la tienda"_s, m_marco);
    setAccessibleName(cabeza->text());
    m_tienda->setMinimumSize(TamanoDelPanel);
    m_tienda->panel().pulsaConEnter();
    auto* columna = new QVBoxLayout{m_marco};
    columna->setContentsMargins(20, 18, 20, 18);
    columna->addWidget(cabeza);
    columna->addWidget(m_tienda, 1);
    auto* exterior = new QVBoxLayout{this};
    exterior->setContentsMargins({});
    exterior->addWidget(m_marco);
    connect(m_tienda, &EleccionDeTienda::elegida, this, &FrmSelTienda::accept);
}

void FrmSelTienda::carga()
{
    move(esquinaDeVentanaPequena(aspecto()));
    aspecto().PintarForm(*this);
    escala();
    m_tienda->CargarTiendas(*m_marco, *m_marco);
    adjustSize();
    m_tienda->panel().enfoca();
}

} // namespace kestrane
