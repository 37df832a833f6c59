#include "platform/report/filas_agrupadas.h"

#include "platform/report/clave_fila.h"
#include "platform/report/ordenador_filas.h"

namespace kestrane::report {

namespace {

/// Rows in the order that the layout asks for; the copy itself when it asks for none.
std::shared_ptr<const database::AlmacenFilas> ordena(const Layout& layout, const CopiaFilas& copia,
                                                     const ConfiguracionRegional& regional)
{
    const ClavesFila claves = ClavesFila::deOrden(layout, copia.columnas);
    if (claves.vacias() || copia.filas->filas() < 2)
        return copia.filas;
    OrdenadorFilas ordenador{copia.filas->columnas()};
    database::LectorFilas lector{*copia.filas};
    const AmbitoColumnas ambito{lector};
    QByteArray clave;
    while (lector.siguiente()) {
        clave.resize(0);
        claves.anadeTodas(clave, ambito, regional);
        ordenador.anade(clave, lector.empaquetada());
    }
    return std::make_shared<const database::AlmacenFilas>(ordenador.termina());
}

} // namespace

FilasAgrupadas::FilasAgrupadas(const Layout& layout, const CopiaFilas& copia, const ConfiguracionRegional& regional)
    : m_columnas{copia.columnas}
    , m_filas{copia.filas}
{
    const auto ordenadas = ordena(layout, copia, regional);
    m_filas = FilasPorSitio{ordenadas};
    PasadaAgregados pasada{layout, m_columnas, regional};
    pasada.recorre(*ordenadas);
    m_cortes = pasada.tomaCortes();
    m_sumas = pasada.tomaSumas();
    m_corrientes = pasada.tomaCorrientes();
    m_lugares = pasada.lugares();
}

FilasAgrupadas::~FilasAgrupadas() = default;

Valor FilasAgrupadas::agregado(qsizetype fila, int indice) const
{
    const LugarAgregado lugar = m_lugares[static_cast<size_t>(indice)];
    if (lugar.nivel == LugarAgregado::PorFila)
        return m_corrientes && filas() > 0 ? m_corrientes->valor(fila, lugar.columna) : Valor{0.0};
    const auto& sumas = m_sumas[static_cast<size_t>(lugar.nivel)];
    if (!sumas || (lugar.nivel > 0 && filas() == 0))
        return {};
    return sumas->valor(lugar.nivel == 0 ? 0 : m_cortes.grupoDe(fila, lugar.nivel), lugar.columna);
}

} // namespace kestrane::report
