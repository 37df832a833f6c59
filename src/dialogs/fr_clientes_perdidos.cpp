#include "dialogs/fr_clientes_perdidos.h"

#include "pipeline/filtros/decision_fechas.h"

#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

FrClientesPerdidos::FrClientesPerdidos(const ServiciosDialogo& servicios)
    : FormaFiltro{u"frClientesPerdidos"_s, u"Clientes perdidos"_s, servicios}
    , m_marco{marco(u"Frame1"_s, this)}
    , m_desde{new Calendario{u"cld_Desde"_s, m_marco}}
    , m_tienda{new EleccionDeTienda{contexto(), m_marco}}
{
    QLabel* const cabeza = encabezado(u"Label1"_s, u"SELECCIONE LAS FECHAS DEL LISTADO"_s, m_marco);
    cabeza->setBuddy(m_desde);
    m_desde->escrita().setAccessibleName(cabeza->text());
    QPushButton* const aceptar = botonAceptar(m_marco);
    auto* columna = new QVBoxLayout{m_marco};
    columna->setContentsMargins(20, 18, 20, 18);
    columna->addWidget(cabeza);
    columna->addWidget(m_desde);
    columna->addWidget(m_tienda, 1);
    columna->addLayout(pie({aceptar, botonSalir(m_marco)}));
    auto* exterior = new QVBoxLayout{this};
    exterior->setContentsMargins({});
    exterior->addWidget(m_marco);
    connect(aceptar, &QPushButton::clicked, this, [this] {
        aceptaDesde(contexto(), m_desde->fecha());
        accept();
    });
}

void FrClientesPerdidos::carga()
{
    contexto().FiltroAceptado = false;
    m_desde->pon(reloj().hoy());
    m_desde->ponHoy(reloj().hoy());
    aspecto().PintarForm(*this);
    escala();
    m_tienda->CargarTiendas(*m_marco, *m_marco);
    adjustSize();
    m_desde->setFocus();
}

} // namespace kestrane
