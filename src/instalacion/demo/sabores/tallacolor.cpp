#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Senora = 1, Caballero, Infantil, Interior, Complementos, Arreglos };

constexpr QStringView secciones[] = {u"Señora", u"Caballero", u"Infantil", u"Ropa Interior", u"Complementos", u"Arreglos"};

constexpr DatosServicio servicios[] = {
    {u"Coger Bajo de Pantalón", Arreglos, 20, 7.50, 21, 60}, {u"Acortar Mangas", Arreglos, 30, 12.00, 21, 22},
    {u"Estrechar Cintura", Arreglos, 30, 11.00, 21, 26},     {u"Cambiar Cremallera", Arreglos, 30, 10.50, 21, 18},
    {u"Coger Bajo de Vestido", Arreglos, 35, 14.00, 21, 18}, {u"Poner Coderas", Arreglos, 25, 9.00, 21, 5},
    {u"Envío a Domicilio", Arreglos, 15, 5.50, 21, 8},
};

constexpr auto Venta = ClaseProducto::Venta;
constexpr auto Unidad = FormaVenta::Unidad;
constexpr auto Ropa = Tallaje::Ropa;
constexpr auto RopaNino = Tallaje::RopaNino;
constexpr auto Pantalon = Tallaje::Pantalon;

constexpr DatosProducto productos[] = {
    {u"Camiseta Básica de Algodón Orgánico Cuello Redondo Manga Corta", Senora, 1, 12.00, 5.00, 21, 40, Venta, Unidad, Ropa,
     Temporada::Calor},
    {u"Blusa Estampada", Senora, 1, 29.50, 13.50, 21, 26, Venta, Unidad, Ropa},
    {u"Vestido Midi de Flores", Senora, 2, 49.00, 23.00, 21, 20, Venta, Unidad, Ropa, Temporada::Calor},
    {u"Vestido de Fiesta", Senora, 2, 89.00, 44.00, 21, 6, Venta, Unidad, Ropa},
    {u"Falda Plisada", Senora, 1, 34.00, 15.50, 21, 16, Venta, Unidad, Pantalon},
    {u"Pantalón Vaquero Recto", Senora, 3, 39.50, 18.50, 21, 28, Venta, Unidad, Pantalon},
    {u"Pantalón de Vestir", Senora, 1, 42.00, 19.50, 21, 16, Venta, Unidad, Pantalon},
    {u"Jersey de Punto", Senora, 4, 36.50, 16.50, 21, 22, Venta, Unidad, Ropa, Temporada::Frio},
    {u"Chaqueta de Punto", Senora, 4, 44.00, 20.50, 21, 14, Venta, Unidad, Ropa, Temporada::Frio},
    {u"Abrigo de Paño", Senora, 2, 119.00, 59.00, 21, 6, Venta, Unidad, Ropa, Temporada::Frio},
    {u"Americana Entallada", Senora, 2, 69.00, 33.00, 21, 8, Venta, Unidad, Ropa},
    {u"Camisa Oxford", Caballero, 5, 34.50, 16.00, 21, 26, Venta, Unidad, Ropa},
    {u"Polo Piqué", Caballero, 5, 27.00, 12.00, 21, 24, Venta, Unidad, Ropa, Temporada::Calor},
    {u"Camiseta Estampada", Caballero, 1, 15.50, 6.50, 21, 22, Venta, Unidad, Ropa},
    {u"Pantalón Chino", Caballero, 3, 38.00, 17.50, 21, 24, Venta, Unidad, Pantalon},
    {u"Vaquero Slim", Caballero, 3, 42.50, 20.00, 21, 22, Venta, Unidad, Pantalon},
    {u"Jersey Cuello de Pico", Caballero, 4, 37.50, 17.00, 21, 16, Venta, Unidad, Ropa, Temporada::Frio},
    {u"Cazadora Acolchada", Caballero, 5, 72.00, 35.00, 21, 9, Venta, Unidad, Ropa, Temporada::Frio},
    {u"Traje de Dos Piezas", Caballero, 5, 159.00, 79.00, 21, 4, Venta, Unidad, Ropa},
    {u"Bermuda de Lino", Caballero, 3, 29.00, 13.00, 21, 14, Venta, Unidad, Pantalon, Temporada::Calor},
    {u"Chándal Infantil", Infantil, 6, 24.50, 11.00, 21, 18, Venta, Unidad, RopaNino},
    {u"Vestido de Niña", Infantil, 6, 26.00, 11.50, 21, 14, Venta, Unidad, RopaNino},
    {u"Camiseta Infantil", Infantil, 6, 9.50, 4.00, 21, 28, Venta, Unidad, RopaNino},
    {u"Pijama Infantil", Infantil, 6, 17.50, 7.50, 21, 16, Venta, Unidad, RopaNino},
    {u"Traje de Comunión", Infantil, 6, 129.00, 68.00, 21, 2, Venta, Unidad, RopaNino, Temporada::Comuniones},
    {u"Calcetines Pack de 3", Interior, 7, 7.50, 3.00, 21, 38},
    {u"Medias Panty", Interior, 7, 5.25, 2.25, 21, 34, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno, Temporada::Frio},
    {u"Conjunto de Lencería", Interior, 7, 26.50, 12.00, 21, 12, Venta, Unidad, Ropa},
    {u"Bóxer Algodón", Interior, 7, 8.75, 3.75, 21, 24, Venta, Unidad, Ropa},
    {u"Pijama de Señora", Interior, 7, 28.00, 12.50, 21, 12, Venta, Unidad, Ropa},
    {u"Bufanda de Lana", Complementos, 4, 16.50, 7.00, 21, 14, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Frio},
    {u"Pañuelo de Seda", Complementos, 4, 22.00, 10.00, 21, 10},
    {u"Revista de Patrones", Complementos, 8, 6.50, 4.25, 4, 16},
    {u"Cinturón de Piel", Complementos, 8, 24.50, 11.00, 21, 14},
    {u"Bolso Bandolera", Complementos, 8, 39.00, 18.50, 21, 10},
    {u"Cartera de Piel", Complementos, 8, 29.50, 13.50, 21, 10},
    {u"Corbata de Seda", Complementos, 8, 19.50, 8.50, 21, 6},
    {u"Guantes de Lana", Complementos, 4, 11.50, 4.75, 21, 9, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Frio},
    {u"Bolsa de Papel Reciclado", Complementos, 8, 0.25, 0.00, 21, 20},
    {u"Perchas Paquete de 50", Complementos, 8, 25.00, 14.00, 21, 0, ClaseProducto::ConsumoInterno},
    {u"Alarmas Antihurto Caja", Complementos, 8, 60.00, 38.00, 21, 0, ClaseProducto::ConsumoInterno},
    {u"Funda para Traje", Complementos, 8, 6.50, 3.00, 21, 4, ClaseProducto::Ambos},
};

constexpr DatosPack packs[] = {
    {u"Arreglo Completo de Traje", Arreglos, 28.00, 21, {0, 1, 2, -1}},
    {u"Arreglo de Novia", Arreglos, 32.00, 21, {4, 2, 1, -1}},
};

constexpr DatosArreglo arreglos[] = {
    {u"Coger Bajo de Pantalón", 20, 7.50, 3.50}, {u"Acortar Mangas", 30, 12.00, 6.00},
    {u"Estrechar Cintura", 30, 11.00, 5.50},     {u"Cambiar Cremallera", 30, 10.50, 5.25},
    {u"Coger Bajo de Vestido", 35, 14.00, 7.00}, {u"Poner Coderas", 25, 9.00, 4.50},
};

constexpr QStringView proveedores[] = {
    u"Confecciones Albaicín S.L.", u"Modas Serrano y Ruiz S.A.",  u"Vaqueros del Ebro S.L.", u"Géneros de Punto Cardona S.A.",
    u"Camisería Pontevedra S.L.",  u"Moda Infantil Pilarín S.L.", u"Lencería Mataró S.A.",   u"Marroquinería Ubrique S.L."};

constexpr QStringView marcas[] = {u"Albaicín", u"Serrano Moda", u"Ebro Jeans", u"Cardona", u"Pontevedra 1931", u"Pilarín"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},
    {u"Dependienta", u"Dependiente", TodasLasSecciones},
    {u"Modista", u"Modisto", TodasLasSecciones},
    {u"Cajera", u"Cajero", TodasLasSecciones},
};

} // namespace

constexpr Sabor SaborTallaColor{
    .tipo = TipoTienda::TallaColor,
    .tipoPrograma = u"TALLACOLOR",
    .oficio = Oficio::TallaColor,
    .empresa = u"Modas Hilo y Aguja",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = {},
    .arreglos = arreglos,
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 48,
              .ticketsDiaCadena = 41,
              .diasCadena = 730,
              .tiendasMes = 2,
              .tiendasAnio = 5,
              .laborable = {{{600, 840}, {1020, 1230}}},
              .sabado = {{{600, 840}, {1020, 1230}}},
              .domingo = {},
              .semana = {80, 82, 86, 92, 120, 142, 0},
              .meses = {124, 84, 90, 98, 108, 100, 118, 70, 92, 98, 104, 148},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 75, 105, 115, 85, 10, 0, 0, 85, 115, 120, 75, 0, 0, 0},
              .vacaciones = 0,
              .conCliente = 38,
              .intervalo = 60,
              .lineas = {56, 28, 11, 4, 1, 0, 0, 0},
              .conProducto = 9,
              .empleados = 5},
};

} // namespace kestrane::demo
