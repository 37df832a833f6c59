#pragma once

#include "instalacion/demo/calendario.h"
#include "instalacion/demo/catalogo.h"
#include "instalacion/demo/destino.h"
#include "instalacion/demo/dinero.h"

#include <vector>

namespace kestrane::demo {

struct Cliente
{
    int codigo = 0;
    int tienda = 0;
    bool mujer = true;
    bool profesional = false; // buys for a business: prices without tax, invoices
    qint16 nombre = 0;
    qint16 apellido1 = 0;
    qint16 apellido2 = 0;
    int intervalo = 30;              // days between visits
    int diaPreferido = 0;            // weekday
    std::array<int, 3> habituales{}; // positions of services
    Fecha ingreso;
    Fecha ultimaVisita; // the zero date: none yet
    Fecha hasta;        // does not come after this day
    Dinero deposito;
    qint16 gusto = 0; // which of a store's employees the client is used to

    [[nodiscard]] Publico publico() const { return mujer ? Publico::Mujer : Publico::Hombre; }
    /// Others who buy for a business do so in their own name.
    [[nodiscard]] bool esEmpresa() const { return profesional && codigo % 2 == 0; }
    [[nodiscard]] QString nombreDePila() const;
    [[nodiscard]] QString apellidosJuntos() const;
};

/// The known clients of all stores: who is due on a day, by each one's habits.
class Clientela
{
public:
    Clientela(const Parametros& parametros, const Catalogo& catalogo, const Calendario& calendario, int tiendas, Azar azar);

    /// At most `maximo` clients for a day, none twice. Those whose turn it is and find no place come some days later; when too few
    /// are due, others drop in.
    [[nodiscard]] std::vector<Cliente*> visitantes(int tienda, const DiaNegocio& dia, int maximo);
    /// Some client of the store who knows it on that day.
    [[nodiscard]] Cliente* cualquiera(int tienda, Fecha fecha);
    /// Someone who is not expected on that day any more: for appointments that are not kept.
    [[nodiscard]] Cliente* ausente(int tienda, Fecha fecha);
    /// Who holds most money in deposit in a store; null when nobody does.
    [[nodiscard]] Cliente* conDeposito(int tienda);
    [[nodiscard]] const Cliente& cliente(int codigo) const { return m_clientes[static_cast<std::size_t>(codigo - 1)]; }
    [[nodiscard]] Cliente& cliente(int codigo) { return m_clientes[static_cast<std::size_t>(codigo - 1)]; }
    /// A code of the cards that were removed, some of several.
    [[nodiscard]] int codigoSinFicha();
    [[nodiscard]] const std::vector<Cliente>& todos() const { return m_clientes; }

    /// The table `clientes`; `tiendas` are the stores' names.
    void escribe(Destino& destino, const std::vector<QString>& tiendas) const;

private:
    void alta(int tienda, Azar& azar);
    [[nodiscard]] int habito(Publico publico, Azar& azar) const;
    void programa(const Cliente& cliente, Fecha desde);
    [[nodiscard]] std::vector<Cliente*> atiendeEsperados(int tienda, Fecha fecha, int maximo);
    void completa(std::vector<Cliente*>& llegan, int tienda, Fecha fecha, int maximo);

    const Catalogo& m_catalogo;
    const Calendario& m_calendario;
    Azar m_azar;
    Azar m_azarFichas;
    std::vector<Cliente> m_clientes;
    std::vector<std::vector<int>> m_porTienda;
    std::vector<std::vector<std::vector<int>>> m_esperados; // store, day, codes
};

} // namespace kestrane::demo
