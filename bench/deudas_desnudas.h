#pragma once

#include <QString>

#include <optional>
#include <unordered_map>

namespace kestrane::bench {

/// What was left unpaid of the sales that a condition on `cabeceras` (its name in it: c) lets through, by one joined statement.
template<class Tienda>
class DeudasDesnudas
{
public:
    DeudasDesnudas(const Tienda& tienda, const QString& cabeceras, const QString& condicion)
    {
        auto filas = tienda.lee(
            QStringLiteral("SELECT DISTINCT d.num_factura, d.importe, d.%1, CASE WHEN d.tienda IS NOT NULL THEN 1 ELSE 0 "
                           "END FROM %2 c JOIN cabecera_pago d ON d.num_factura = c.numero WHERE %3 ORDER BY d.%1")
                .arg(Tienda::orden(), cabeceras, condicion));
        while (filas.siguiente()) {
            Deuda& deuda = m_deudas.try_emplace(filas.entero(0), Deuda{filas.doble(1), false}).first->second;
            deuda.deTienda = deuda.deTienda || filas.entero(3) != 0;
        }
    }

    [[nodiscard]] std::optional<double> de(int venta) const
    {
        const auto deuda = m_deudas.find(venta);
        return deuda == m_deudas.end() || !deuda->second.deTienda ? std::nullopt : std::optional{deuda->second.importe};
    }

private:
    struct Deuda
    {
        double importe = 0; ///< of the first debt
        bool deTienda = false;
    };

    std::unordered_map<int, Deuda> m_deudas;
};

} // namespace kestrane::bench
