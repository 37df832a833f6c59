#include "dialogs/formas_de_orden.h"

#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

FormaDeOrden::FormaDeOrden(const QString& objeto, const QString& titulo, std::span<const Orden> ordenes,
                           const ServiciosDialogo& servicios)
    : FormaFiltro{objeto, titulo, servicios}
{
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(24, 20, 24, 20);
    columna->addLayout(columnaDeOrdenes(ordenes, this));
    columna->addSpacing(8);
    columna->addWidget(botonSalir(this));
}

void FormaDeOrden::carga()
{
    aspecto().PintarForm(*this);
    escala();
    adjustSize();
}

FrmOrdenClientes::FrmOrdenClientes(const ServiciosDialogo& servicios)
    : FormaDeOrden{u"FrmOrdenClientes"_s, u"Ordenacion Clientes"_s, ordenesDeClientes(), servicios}
{
}

void FrmOrdenClientes::carga()
{
    contexto().filtros.soloConEmail = false;
    FormaDeOrden::carga();
}

FrmOrdenServicios::FrmOrdenServicios(const ServiciosDialogo& servicios)
    : FormaDeOrden{u"frmOrdenServicios"_s, u"Ordenacion de Servicios"_s, ordenesDeServicios(), servicios}
{
}

} // namespace kestrane
