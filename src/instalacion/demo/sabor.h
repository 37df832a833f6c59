#pragma once

#include <QStringView>

#include <array>
#include <initializer_list>
#include <span>

/// What a trade sells, for how much, when and to whom: the tables of data that the demo shops are made from, one file per flavour
/// in sabores/. Positions in these tables count from 0, except where "code" is said.
namespace kestrane::demo {

enum class TipoTienda { Peluqueria, Spa, Estetica, Clinicas, Tpv, Perfumeria, TallaColor, Zapateria, Supermercado, Panaderia };

inline constexpr std::array TodosLosTipos{
    TipoTienda::Peluqueria, TipoTienda::Spa,        TipoTienda::Estetica,  TipoTienda::Clinicas,     TipoTienda::Tpv,
    TipoTienda::Perfumeria, TipoTienda::TallaColor, TipoTienda::Zapateria, TipoTienda::Supermercado, TipoTienda::Panaderia};

/// What decides the kinds of line and of customs: services by appointment, general goods, goods in sizes, food by the basket.
enum class Oficio { Salon, Comercio, TallaColor, Alimentacion };

enum class Publico { Todos, Mujer, Hombre };
enum class ClaseProducto { Venta = 0, ConsumoInterno = 1, Ambos = 2 };
enum class FormaVenta { Unidad, Peso };
/// When a thing is asked for.
enum class Temporada { Siempre, Calor, Frio, Navidad, Santos, Cuaresma, Comuniones };
enum class Tallaje { Ninguno, Ropa, RopaNino, Pantalon, ZapatoMujer, ZapatoHombre, ZapatoNino };

struct DatosServicio
{
    QStringView nombre;
    int seccion; // code
    int minutos;
    double precio;
    int iva;
    int peso; // how often it is asked for
    Publico publico = Publico::Todos;
    int sesionesBono = 0; // 0: not sold as a bono
};

struct DatosProducto
{
    QStringView nombre;
    int seccion;   // code
    int proveedor; // code
    double precio; // of a unit or of a kilo
    double coste;
    int iva;
    int peso;
    ClaseProducto clase = ClaseProducto::Venta;
    FormaVenta forma = FormaVenta::Unidad;
    Tallaje tallaje = Tallaje::Ninguno;
    Temporada temporada = Temporada::Siempre;
};

/// A pack of services, or a spa pack whose n-th service is given on day n. Services by position, -1 for none.
struct DatosPack
{
    QStringView nombre;
    int seccion; // code
    double precio;
    int iva;
    std::array<int, 4> servicios;
    int sesionesBono = 0;
};

/// What an employee is, and the sections whose services are in such hands.
struct DatosCategoria
{
    QStringView mujer;
    QStringView hombre;
    quint32 secciones;

    [[nodiscard]] constexpr bool atiende(int seccion) const { return (secciones >> seccion & 1U) != 0; }
};

inline constexpr quint32 TodasLasSecciones = ~0U;
inline constexpr quint32 NingunaSeccion = 0;

/// Some sections, by their codes.
[[nodiscard]] constexpr quint32 estasSecciones(std::initializer_list<int> codigos)
{
    quint32 suyas = 0;
    for (const int codigo : codigos)
        suyas |= 1U << codigo;
    return suyas;
}

struct DatosArreglo
{
    QStringView nombre;
    int minutos;
    double precio;
    double pagoTaller;
};

/// Minutes since midnight; from == to is no opening.
struct Franja
{
    int desde = 0;
    int hasta = 0;
};

using Horario = std::array<Franja, 2>;

struct Ritmo
{
    int ticketsDia;       // on an average open day of an average store
    int ticketsDiaCadena; // the same in a chain of fifty
    int diasCadena;       // length of the period of the chain
    int tiendasMes;
    int tiendasAnio;
    Horario laborable;
    Horario sabado;
    Horario domingo;
    std::array<int, 7> semana; // percent of the average, Monday first
    std::array<int, 12> meses; // percent of the average
    std::array<int, 24> horas; // weight of each hour
    int vacaciones;            // days closed in August
    int conCliente;            // percent of tickets with a known client
    int intervalo;             // average days between two visits of a regular client
    std::array<int, 8> lineas; // weight of tickets of 1, 2, ... lines
    int conProducto;           // salons: percent of tickets that take a product too. Shops: percent with a service
    int empleados;             // per store
};

struct Sabor
{
    TipoTienda tipo;
    QStringView tipoPrograma;
    Oficio oficio;
    QStringView empresa;
    std::span<const QStringView> secciones;
    std::span<const DatosServicio> servicios;
    std::span<const DatosProducto> productos;
    std::span<const DatosPack> packs;
    std::span<const DatosPack> packsSpa;
    std::span<const DatosArreglo> arreglos;
    std::span<const QStringView> proveedores;
    std::span<const QStringView> marcas;
    std::span<const DatosCategoria> categorias; // of employees, the head of a store first
    Ritmo ritmo;
};

/// The tables of a flavour.
[[nodiscard]] const Sabor& sabor(TipoTienda tipo);

/// True in the flavours that sell goods and not appointments.
[[nodiscard]] constexpr bool esComercio(const Sabor& datos)
{
    return datos.oficio != Oficio::Salon;
}

extern const Sabor SaborPeluqueria;
extern const Sabor SaborSpa;
extern const Sabor SaborEstetica;
extern const Sabor SaborClinicas;
extern const Sabor SaborTpv;
extern const Sabor SaborPerfumeria;
extern const Sabor SaborTallaColor;
extern const Sabor SaborZapateria;
extern const Sabor SaborSupermercado;
extern const Sabor SaborPanaderia;

} // namespace kestrane::demo
