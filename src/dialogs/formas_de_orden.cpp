#include "dialogs/formas_de_orden.h"

#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int AnchoDeBoton = 340;

} // namespace

FormaDeOrden::FormaDeOrden(const QString& objeto, const QString& titulo, std::span<const Orden> ordenes,
                           const ServiciosDialogo& servicios)
    : FormaFiltro{objeto, titulo, servicios}
{
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(24, 20, 24, 20);
    columna->setSpacing(8);
    QLabel* const rotuloOrden = rotulo(u"Label1"_s, u"Ordenado x"_s, this);
    rotuloOrden->setProperty("letraRelativa", 1.2);
    columna->addWidget(rotuloOrden);
    for (const Orden& orden : ordenes) {
        QPushButton* const suyo = boton(orden.control.toString(), orden.leyenda.toString(), this);
        suyo->setMinimumWidth(AnchoDeBoton);
        suyo->setAutoDefault(true); // Enter presses the one that has the focus
        connect(suyo, &QPushButton::clicked, this, [this, &orden] {
            eligeOrden(contexto(), orden);
            accept();
        });
        columna->addWidget(suyo);
    }
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
