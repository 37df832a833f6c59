#pragma once

#include "dialogs/forma_filtro.h"
#include "pipeline/filtros/ordenes.h"

namespace kestrane {

/// A dialog of one step: each of its buttons is an order of the listing, and accepts.
class FormaDeOrden : public FormaFiltro
{
    Q_OBJECT

public:
    virtual void carga();

protected:
    FormaDeOrden(const QString& objeto, const QString& titulo, std::span<const Orden> ordenes, const ServiciosDialogo& servicios);
};

/// FrmOrdenClientes: the order of the client listing, or its clients with e-mail alone.
class FrmOrdenClientes final : public FormaDeOrden
{
    Q_OBJECT

public:
    explicit FrmOrdenClientes(const ServiciosDialogo& servicios);
    /// All clients, until the button for those with e-mail is pressed.
    void carga() override;
};

/// frmOrdenServicios: the order of the listing of services.
class FrmOrdenServicios final : public FormaDeOrden
{
    Q_OBJECT

public:
    explicit FrmOrdenServicios(const ServiciosDialogo& servicios);
};

} // namespace kestrane
