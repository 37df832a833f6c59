#pragma once

#include "instalacion/demo/azar.h"
#include "instalacion/demo/dinero.h"
#include "instalacion/demo/sabor.h"
#include "platform/runtime/fecha.h"

#include <QString>

#include <vector>

namespace kestrane::demo {

/// The reserved service that records money paid into a client's deposit.
inline constexpr int CodigoIngresoDeposito = 2;

/// One size and colour of an article.
struct Variante
{
    QString codigo; // child code
    QString barras; // null: none of its own
    int talla = 0;
    int color = 0;
    double stock = 0;
};

struct Articulo
{
    int codigo = 0;
    const DatosProducto* datos = nullptr;
    QString nombre;
    Dinero precio;
    Dinero coste;
    double stock = 0;
    double minimo = 0;
    double consumoInterno = 0;
    std::vector<Variante> variantes;

    [[nodiscard]] bool porPeso() const { return datos->forma == FormaVenta::Peso; }
    [[nodiscard]] bool seVende() const { return datos->clase != ClaseProducto::ConsumoInterno; }
};

struct Servicio
{
    int codigo = 0;
    const DatosServicio* datos = nullptr;
    QString nombre;
    Dinero precio;
};

/// A pack of services or a spa pack, with the positions of its services in the list.
struct Pack
{
    int codigo = 0;
    const DatosPack* datos = nullptr;
    QString nombre;
    Dinero precio;
    std::vector<int> servicios;
};

/// What the shop sells, with its codes, and its stock as the days go by.
class Catalogo
{
public:
    Catalogo(const Sabor& datos, Azar azar);

    [[nodiscard]] const Sabor& sabor() const { return m_sabor; }
    [[nodiscard]] std::vector<Articulo>& articulos() { return m_articulos; }
    [[nodiscard]] const std::vector<Articulo>& articulos() const { return m_articulos; }
    [[nodiscard]] const std::vector<Servicio>& servicios() const { return m_servicios; }
    [[nodiscard]] const std::vector<Pack>& packs() const { return m_packs; }
    [[nodiscard]] const std::vector<Pack>& packsSpa() const { return m_packsSpa; }
    /// Positions of the services that are sold as a bono, and of the packs.
    [[nodiscard]] const std::vector<int>& serviciosConBono() const { return m_serviciosConBono; }
    [[nodiscard]] const std::vector<int>& packsConBono() const { return m_packsConBono; }

    /// How long a service takes, by its code.
    [[nodiscard]] int minutosDe(int codigo) const;
    /// Whether a service, or all of a pack, is for such people.
    [[nodiscard]] bool esPara(Publico publico, int posicion) const;
    [[nodiscard]] bool esPara(Publico publico, const Pack& pack) const;

    /// Positions, drawn by how often each is asked for, articles by the season too.
    [[nodiscard]] int sorteaArticulo(Fecha fecha, Azar& azar) const;
    [[nodiscard]] int sorteaServicio(Publico publico, Azar& azar) const;

private:
    void cargaServicios();
    void cargaArticulos(Azar& azar);
    void cargaVariantes(Articulo& articulo, Azar& azar) const;

    const Sabor& m_sabor;
    std::vector<Articulo> m_articulos;
    std::vector<Servicio> m_servicios;
    std::vector<Pack> m_packs;
    std::vector<Pack> m_packsSpa;
    std::vector<int> m_serviciosConBono;
    std::vector<int> m_packsConBono;
    std::array<Ruleta, 12> m_ruletaArticulos; // by month
    Ruleta m_ruletaReyes;                     // the days before the sixth of January
    Ruleta m_ruletaMujer;
    Ruleta m_ruletaHombre;
};

struct DatosTalla
{
    QStringView nombre;
    QStringView corta;
};

/// Sizes and colours by code less 1; in the flavours without variants they are not written.
[[nodiscard]] std::span<const DatosTalla> tallasDemo();
[[nodiscard]] std::span<const QStringView> coloresDemo();

} // namespace kestrane::demo
