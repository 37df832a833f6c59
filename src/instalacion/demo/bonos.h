#pragma once

#include "instalacion/demo/negocio.h"

#include <QHash>

#include <optional>

namespace kestrane::demo {

/// Prepaid sessions of services and packs, and the days of spa packs that are still to be enjoyed.
class Bonos
{
public:
    struct Bono
    {
        int numero = 0;
        int factura = 0;
        int sesiones = 0;
        int usadas = 0;
        int cliente = 0;
        int servicio = -1; // position, or -1
        int pack = -1;     // position, or -1
        Fecha alta;
        Fecha hasta;
        QString tienda;

        [[nodiscard]] bool vigente(Fecha fecha) const { return usadas < sesiones && fecha <= hasta; }
    };

    explicit Bonos(Numeradores& numeros) : m_numeros{numeros} {}

    /// Exactly one of the positions is not -1.
    void vende(const Venta& venta, int servicio, int pack, int sesiones);
    /// The bono of a sale that was annulled: it lapsed at once.
    void vendeAnulado(const Venta& venta, int servicio, int pack, int sesiones);
    /// The client's bono with sessions left, bought before `fecha`; null when there is none.
    [[nodiscard]] Bono* vigente(int cliente, Fecha fecha);
    /// True when the client has sessions or days left that were bought before `fecha`.
    [[nodiscard]] bool tiene(int cliente, Fecha fecha);
    /// Clients of a store who have something prepaid left, some of them.
    [[nodiscard]] std::vector<int> titulares(const QString& tienda, Fecha fecha) const;
    void consume(Destino& destino, Bono& bono, const Venta& venta);
    /// Whether a bono, or a spa pack, could be given back: none of it has been used.
    [[nodiscard]] bool intacto(int factura) const;
    [[nodiscard]] bool intactoSpa(int cliente) const;
    /// A bono that was given back; false when it has been used already or there is none of that sale.
    bool cancela(int factura);

    void vendeSpa(const Venta& venta, const Pack& pack);
    /// The position of the next service of a spa pack that the client bought before `fecha`.
    [[nodiscard]] std::optional<int> consumeSpa(int cliente, Fecha fecha);
    /// A spa pack that was given back; false when some of it has been enjoyed.
    bool cancelaSpa(int cliente);

    /// The table of bonos, as it stands on `hoy`.
    void escribe(Destino& destino, const Catalogo& catalogo, Fecha hoy) const;

private:
    struct Spa
    {
        const Pack* pack = nullptr;
        std::size_t dado = 0;
        Fecha alta;
        QString tienda;
    };

    Bono& nuevo(const Venta& venta, int servicio, int pack, int sesiones);

    Numeradores& m_numeros;
    std::vector<Bono> m_bonos;
    QHash<int, std::size_t> m_deCliente;
    QHash<int, std::size_t> m_deFactura;
    QHash<int, Spa> m_spa;
};

} // namespace kestrane::demo
