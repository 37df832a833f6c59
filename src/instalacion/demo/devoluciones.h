#pragma once

#include "instalacion/demo/bonos.h"
#include "instalacion/demo/negocio.h"
#include "instalacion/demo/vales.h"

#include <array>
#include <deque>

namespace kestrane::demo {

/// Goods and services brought back: some sales of the last weeks are remembered for it, store by store.
class Devoluciones
{
public:
    Devoluciones(Negocio& negocio, Bonos& bonos, Vales& vales, Azar azar);

    /// A sale that may be brought back one day.
    void apunta(const Venta& venta);
    /// One return at a time of the day, in seconds; false when there is nothing to return. `efectivo` falls by the cash paid out.
    bool devuelve(const Turno& turno, int segundos, Dinero& efectivo);

    /// The stock that comes back, line by line, of the last return.
    [[nodiscard]] const std::vector<Linea>& lineasDevueltas() const { return m_devueltas; }
    [[nodiscard]] const Venta& ventaDevuelta() const { return m_venta; }

private:
    /// What returns differ by: the kinds of line, and then some.
    enum Rareza : std::size_t {
        DeTipo,
        IngresoEnDeposito = static_cast<std::size_t>(TipoLinea::SP) + 1,
        PagoDividido,
        PagoDelDeposito,
        Compartida,
        SegundaVez,
        DeAlbaran,
        Cuantas
    };
    /// A sale as far as it is still with the client.
    struct Recuerdo
    {
        Venta venta;
        bool yaDevuelta = false;
    };
    /// A store's book of returns.
    struct Talonario
    {
        int ultimo = 0;
        int abierto = 0; // month in which it was opened, or the last day
    };

    [[nodiscard]] bool devoluble(const Linea& linea) const;
    [[nodiscard]] bool sePuede(const Venta& venta) const;
    [[nodiscard]] std::vector<Rareza> rarezas(const Recuerdo& recuerdo) const;
    /// How often the rarest thing about a sale has been returned.
    [[nodiscard]] int vistas(const Recuerdo& recuerdo) const;
    [[nodiscard]] std::size_t elige(const std::deque<Recuerdo>& suyas, Fecha hoy);
    void separa(Recuerdo& recuerdo);
    void cancela();
    [[nodiscard]] int numera(const Turno& turno);
    [[nodiscard]] Dinero liquida(Fecha fecha, Dinero total);
    void escribe(const Turno& turno, int segundos, Dinero total, Dinero efectivo);

    Negocio& m_negocio;
    Bonos& m_bonos;
    Vales& m_vales;
    Azar m_azar;
    std::vector<std::deque<Recuerdo>> m_recientes; // by store
    std::vector<Talonario> m_talonarios;
    std::array<int, Cuantas> m_vueltas{};
    int m_hechas = 0;
    bool m_conVale = false;
    Venta m_venta;
    std::vector<Linea> m_devueltas;
};

} // namespace kestrane::demo
