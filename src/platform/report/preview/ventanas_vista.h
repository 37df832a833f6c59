#pragma once

#include "platform/report/preview/ventana_vista.h"

namespace kestrane::report {

/// All previews that stand open: each until it is closed, the rest as long as this lives.
class VentanasVista
{
public:
    explicit VentanasVista(ServiciosVista servicios) : m_servicios{std::move(servicios)} {}
    ~VentanasVista();
    VentanasVista(const VentanasVista&) = delete;
    VentanasVista& operator=(const VentanasVista&) = delete;

    /// Lays out the first page and opens a window on the report. Errors of the report, and then no window.
    VentanaVista& abre(std::unique_ptr<FuenteVista> fuente, const QString& titulo, const QString& impresora = {});
    /// In the order in which they were opened.
    [[nodiscard]] std::vector<VentanaVista*> abiertas() const;

private:
    [[nodiscard]] QPoint lugarDeLaSiguiente() const;

    ServiciosVista m_servicios;
    RecuerdoVista m_recuerdo;
    std::vector<QPointer<VentanaVista>> m_ventanas;
};

} // namespace kestrane::report
