#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion {
    Fruteria = 1,
    Carniceria,
    Pescaderia,
    Charcuteria,
    Lacteos,
    Despensa,
    Bebidas,
    Congelados,
    Drogueria,
    Panaderia,
    Servicios
};

constexpr QStringView secciones[] = {u"Frutería", u"Carnicería", u"Pescadería", u"Charcutería",          u"Lácteos y Huevos",
                                     u"Despensa", u"Bebidas",    u"Congelados", u"Droguería y Limpieza", u"Panadería",
                                     u"Servicios"};

constexpr DatosServicio servicios[] = {
    {u"Reparto a Domicilio", Servicios, 30, 4.00, 21, 60},
    {u"Cesta de Regalo", Servicios, 15, 6.00, 21, 3},
    {u"Corte de Jamón", Servicios, 20, 5.00, 21, 6},
    {u"Recarga de Agua", Servicios, 5, 1.00, 10, 12},
};

constexpr auto Venta = ClaseProducto::Venta;
constexpr auto Kilo = FormaVenta::Peso;

constexpr DatosProducto productos[] = {
    {u"Tomate de Rama", Fruteria, 1, 2.00, 1.25, 4, 60, Venta, Kilo},
    {u"Patata Nueva", Fruteria, 1, 1.00, 0.50, 4, 60, Venta, Kilo},
    {u"Cebolla", Fruteria, 1, 1.00, 0.50, 4, 46, Venta, Kilo},
    {u"Plátano de Canarias", Fruteria, 1, 2.00, 1.25, 4, 58, Venta, Kilo},
    {u"Manzana Golden", Fruteria, 1, 2.00, 1.00, 4, 48, Venta, Kilo},
    {u"Naranja de Mesa", Fruteria, 1, 1.00, 0.50, 4, 46, Venta, Kilo},
    {u"Fresón", Fruteria, 1, 4.00, 2.50, 4, 20, Venta, Kilo},
    {u"Pimiento Rojo", Fruteria, 1, 3.00, 1.75, 4, 26, Venta, Kilo},
    {u"Lechuga Romana", Fruteria, 1, 1.25, 0.75, 4, 40},
    {u"Ajos Malla", Fruteria, 1, 1.50, 0.75, 4, 20},
    {u"Pechuga de Pollo", Carniceria, 2, 8.00, 5.50, 10, 44, Venta, Kilo},
    {u"Muslos de Pollo", Carniceria, 2, 4.00, 2.50, 10, 30, Venta, Kilo},
    {u"Carne Picada Mixta", Carniceria, 2, 8.00, 5.75, 10, 32, Venta, Kilo},
    {u"Lomo de Cerdo", Carniceria, 2, 7.00, 4.75, 10, 28, Venta, Kilo},
    {u"Filetes de Ternera", Carniceria, 2, 15.00, 11.00, 10, 20, Venta, Kilo},
    {u"Chuletas de Cordero", Carniceria, 2, 17.00, 12.50, 10, 8, Venta, Kilo},
    {u"Merluza", Pescaderia, 3, 13.00, 9.50, 10, 16, Venta, Kilo},
    {u"Salmón", Pescaderia, 3, 14.00, 10.00, 10, 16, Venta, Kilo},
    {u"Boquerones", Pescaderia, 3, 6.00, 4.00, 10, 12, Venta, Kilo},
    {u"Gamba Blanca", Pescaderia, 3, 18.00, 13.00, 10, 7, Venta, Kilo},
    {u"Jamón Cocido", Charcuteria, 4, 10.00, 6.75, 10, 30, Venta, Kilo},
    {u"Jamón Serrano", Charcuteria, 4, 16.00, 11.00, 10, 22, Venta, Kilo},
    {u"Queso Semicurado", Charcuteria, 4, 12.00, 8.25, 4, 28, Venta, Kilo},
    {u"Chorizo Sarta", Charcuteria, 4, 4.50, 2.75, 10, 16},
    {u"Fiambre de Pavo", Charcuteria, 4, 2.25, 1.25, 10, 34},
    {u"Leche Entera 1 l", Lacteos, 5, 1.00, 0.75, 4, 110},
    {u"Leche Semidesnatada sin Lactosa Enriquecida con Calcio Brik 1 l", Lacteos, 5, 1.00, 0.75, 4, 120},
    {u"Huevos Docena", Lacteos, 5, 2.50, 1.75, 4, 60},
    {u"Yogur Natural Pack de 8", Lacteos, 5, 1.75, 1.00, 10, 60},
    {u"Yogur de Sabores Pack de 8", Lacteos, 5, 2.00, 1.25, 10, 48},
    {u"Mantequilla 250 g", Lacteos, 5, 2.75, 1.75, 10, 20},
    {u"Queso Rallado 200 g", Lacteos, 5, 2.25, 1.25, 4, 26},
    {u"Aceite de Oliva Virgen 1 l", Despensa, 6, 9.50, 7.75, 4, 26},
    {u"Aceite de Girasol 1 l", Despensa, 6, 1.75, 1.25, 10, 30},
    {u"Arroz Redondo 1 kg", Despensa, 6, 1.50, 1.00, 4, 40},
    {u"Macarrones 500 g", Despensa, 6, 1.00, 0.50, 4, 42},
    {u"Harina 1 kg", Despensa, 6, 0.75, 0.50, 4, 20},
    {u"Azúcar 1 kg", Despensa, 6, 1.50, 1.00, 10, 26},
    {u"Lentejas 1 kg", Despensa, 6, 2.25, 1.50, 4, 24},
    {u"Garbanzos Bote", Despensa, 6, 1.00, 0.50, 4, 30},
    {u"Atún en Aceite Pack de 6", Despensa, 6, 5.50, 3.75, 10, 34},
    {u"Tomate Frito Brik", Despensa, 6, 0.75, 0.50, 10, 44},
    {u"Galletas María 800 g", Despensa, 6, 2.00, 1.25, 10, 34},
    {u"Café Molido 250 g", Despensa, 6, 3.25, 2.25, 10, 32},
    {u"Cacao Soluble 400 g", Despensa, 6, 3.50, 2.25, 10, 18},
    {u"Turrón de Jijona 250 g", Despensa, 6, 5.75, 3.50, 10, 4, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Navidad},
    {u"Agua Mineral 1,5 l", Bebidas, 7, 0.50, 0.25, 10, 70},
    {u"Agua Mineral Pack de 6", Bebidas, 7, 2.75, 1.75, 10, 50},
    {u"Refresco de Cola 2 l", Bebidas, 7, 2.25, 1.50, 21, 40},
    {u"Refresco de Naranja 2 l", Bebidas, 7, 1.75, 1.25, 21, 24},
    {u"Cerveza Lata", Bebidas, 7, 0.75, 0.50, 21, 60},
    {u"Vino Tinto Crianza", Bebidas, 7, 5.25, 3.25, 21, 20},
    {u"Zumo de Piña Brik", Bebidas, 7, 1.25, 0.75, 10, 26},
    {u"Guisantes Congelados 1 kg", Congelados, 8, 2.25, 1.25, 4, 18},
    {u"Pizza Margarita", Congelados, 8, 2.75, 1.75, 10, 34},
    {u"Croquetas de Jamón 500 g", Congelados, 8, 3.00, 1.75, 10, 26},
    {u"Helado de Vainilla 1 l", Congelados, 8, 2.50, 1.50, 10, 20, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Calor},
    {u"Merluza Congelada 400 g", Congelados, 8, 5.00, 3.50, 10, 16},
    {u"Detergente Líquido 40 lavados", Drogueria, 9, 7.50, 5.00, 21, 20},
    {u"Lavavajillas a Mano", Drogueria, 9, 1.75, 1.00, 21, 24},
    {u"Papel Higiénico 12 rollos", Drogueria, 9, 4.25, 2.75, 21, 30},
    {u"Papel de Cocina 3 rollos", Drogueria, 9, 2.50, 1.50, 21, 24},
    {u"Lejía 2 l", Drogueria, 9, 1.25, 0.75, 21, 22},
    {u"Gel de Ducha 750 ml", Drogueria, 9, 2.25, 1.25, 21, 20},
    {u"Pañales Talla 4", Drogueria, 9, 9.75, 7.00, 21, 8},
    {u"Bolsas de Basura", Drogueria, 9, 1.50, 0.75, 21, 24},
    {u"Barra de Pan", Panaderia, 10, 0.75, 0.25, 4, 130},
    {u"Pan de Molde", Panaderia, 10, 1.50, 1.00, 4, 36},
    {u"Croissant", Panaderia, 10, 0.75, 0.50, 10, 40},
    {u"Bolsa de Compra", Drogueria, 9, 0.25, 0.00, 21, 60},
    {u"Rollo de Papel de Báscula", Drogueria, 9, 2.00, 1.25, 21, 0, ClaseProducto::ConsumoInterno},
    {u"Guantes de Frutería", Drogueria, 9, 1.50, 0.75, 21, 1, ClaseProducto::Ambos},
};

constexpr DatosPack packs[] = {
    {u"Cesta de Regalo con Reparto", Servicios, 9.00, 10, {1, 0, -1, -1}},
};

constexpr QStringView proveedores[] = {u"Frutas Vega Baja S.L.",  u"Cárnicas Sayago S.A.",    u"Pescados La Lonja S.L.",
                                       u"Embutidos Gredos S.L.",  u"Lácteos del Eo S.A.",     u"Alimentación Tormes S.A.",
                                       u"Bebidas Jarama S.L.",    u"Congelados Miramar S.L.", u"Droguería Central de Castilla S.A.",
                                       u"Obrador San Isidro S.L."};

constexpr QStringView marcas[] = {u"Tormes", u"Lácteos del Eo", u"Gredos", u"Miramar", u"Vega Baja"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},  {u"Cajera", u"Cajero", TodasLasSecciones},
    {u"Carnicera", u"Carnicero", TodasLasSecciones},  {u"Pescadera", u"Pescadero", TodasLasSecciones},
    {u"Reponedora", u"Reponedor", TodasLasSecciones}, {u"Frutera", u"Frutero", TodasLasSecciones},
};

} // namespace

constexpr Sabor SaborSupermercado{
    .tipo = TipoTienda::Supermercado,
    .tipoPrograma = u"SUPERMERCADO",
    .oficio = Oficio::Alimentacion,
    .empresa = u"Supermercados La Despensa",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = {},
    .arreglos = {},
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 118,
              .ticketsDiaCadena = 124,
              .diasCadena = 91,
              .tiendasMes = 2,
              .tiendasAnio = 2,
              .laborable = {{{540, 1290}, {}}},
              .sabado = {{{540, 1290}, {}}},
              .domingo = {},
              .semana = {92, 86, 88, 94, 118, 132, 0},
              .meses = {96, 94, 98, 100, 100, 100, 98, 82, 100, 100, 104, 128},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 60, 85, 100, 110, 95, 50, 35, 40, 65, 95, 110, 90, 35, 0, 0},
              .vacaciones = 0,
              .conCliente = 22,
              .intervalo = 7,
              .lineas = {14, 15, 15, 13, 12, 11, 10, 10},
              .conProducto = 3,
              .empleados = 8},
};

} // namespace kestrane::demo
