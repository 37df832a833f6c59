#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Senora = 1, Caballero, Infantil, Deporte, Casa, Complementos, Taller };

constexpr QStringView secciones[] = {u"Zapato de Señora", u"Zapato de Caballero", u"Infantil", u"Deporte",
                                     u"Casa y Playa",     u"Complementos",        u"Taller"};

constexpr DatosServicio servicios[] = {
    {u"Poner Tapas", Taller, 20, 8.50, 21, 60},      {u"Medias Suelas", Taller, 45, 16.00, 21, 28},
    {u"Ensanchar Zapato", Taller, 15, 6.00, 21, 24}, {u"Teñir Zapato", Taller, 40, 14.50, 21, 12},
    {u"Coser y Pegar", Taller, 25, 9.00, 21, 20},    {u"Cambiar Cremallera de Bota", Taller, 40, 18.00, 21, 10},
    {u"Envío a Domicilio", Taller, 15, 5.00, 21, 5},
};

constexpr auto Venta = ClaseProducto::Venta;
constexpr auto Unidad = FormaVenta::Unidad;
constexpr auto Mujer = Tallaje::ZapatoMujer;
constexpr auto Hombre = Tallaje::ZapatoHombre;
constexpr auto Nino = Tallaje::ZapatoNino;

constexpr DatosProducto productos[] = {
    {u"Zapato Salón Tacón Medio", Senora, 1, 49.50, 23.50, 21, 26, Venta, Unidad, Mujer},
    {u"Bailarina de Piel", Senora, 1, 39.00, 18.00, 21, 26, Venta, Unidad, Mujer},
    {u"Mocasín de Señora", Senora, 2, 46.00, 21.50, 21, 22, Venta, Unidad, Mujer},
    {u"Botín de Ante", Senora, 2, 64.00, 30.50, 21, 20, Venta, Unidad, Mujer, Temporada::Frio},
    {u"Bota Alta de Piel", Senora, 1, 98.00, 48.00, 21, 9, Venta, Unidad, Mujer, Temporada::Frio},
    {u"Sandalia de Cuña", Senora, 3, 42.00, 19.50, 21, 24, Venta, Unidad, Mujer, Temporada::Calor},
    {u"Sandalia Plana", Senora, 3, 32.50, 14.50, 21, 24, Venta, Unidad, Mujer, Temporada::Calor},
    {u"Alpargata de Esparto", Senora, 3, 26.00, 11.50, 21, 20, Venta, Unidad, Mujer, Temporada::Calor},
    {u"Zapato de Fiesta", Senora, 1, 58.00, 28.00, 21, 8, Venta, Unidad, Mujer},
    {u"Deportivo Urbano de Señora con Plataforma y Cordones de Colores", Senora, 4, 54.00, 27.00, 21, 26, Venta, Unidad, Mujer},
    {u"Zapato Cordones Caballero", Caballero, 2, 69.00, 33.50, 21, 20, Venta, Unidad, Hombre},
    {u"Mocasín Castellano", Caballero, 2, 72.00, 35.00, 21, 14, Venta, Unidad, Hombre},
    {u"Náutico de Piel", Caballero, 2, 56.00, 27.00, 21, 16, Venta, Unidad, Hombre, Temporada::Calor},
    {u"Bota de Campo", Caballero, 5, 84.00, 41.00, 21, 10, Venta, Unidad, Hombre, Temporada::Frio},
    {u"Deportivo Urbano de Caballero", Caballero, 4, 59.00, 29.50, 21, 24, Venta, Unidad, Hombre},
    {u"Sandalia de Caballero", Caballero, 3, 38.00, 17.50, 21, 12, Venta, Unidad, Hombre, Temporada::Calor},
    {u"Zapato de Seguridad", Caballero, 5, 48.50, 24.50, 21, 10, Venta, Unidad, Hombre},
    {u"Merceditas Niña", Infantil, 6, 29.50, 13.50, 21, 18, Venta, Unidad, Nino},
    {u"Zapato Colegial", Infantil, 6, 36.00, 17.00, 21, 24, Venta, Unidad, Nino},
    {u"Deportivo Infantil Velcro", Infantil, 4, 31.00, 15.00, 21, 26, Venta, Unidad, Nino},
    {u"Bota de Agua Infantil", Infantil, 6, 18.50, 8.50, 21, 10, Venta, Unidad, Nino, Temporada::Frio},
    {u"Zapato de Comunión", Infantil, 6, 42.50, 20.50, 21, 5, Venta, Unidad, Nino, Temporada::Comuniones},
    {u"Zapatilla de Correr", Deporte, 4, 79.00, 42.00, 21, 14, Venta, Unidad, Hombre},
    {u"Zapatilla de Senderismo", Deporte, 4, 74.00, 38.50, 21, 10, Venta, Unidad, Hombre},
    {u"Zapatilla de Gimnasio", Deporte, 4, 49.00, 25.00, 21, 14, Venta, Unidad, Mujer},
    {u"Zapatilla de Casa Señora", Casa, 7, 16.50, 7.00, 21, 26, Venta, Unidad, Mujer, Temporada::Frio},
    {u"Zapatilla de Casa Caballero", Casa, 7, 17.50, 7.50, 21, 18, Venta, Unidad, Hombre, Temporada::Frio},
    {u"Chancla de Playa", Casa, 7, 9.50, 3.75, 21, 24, Venta, Unidad, Mujer, Temporada::Calor},
    {u"Betún en Crema", Complementos, 8, 4.25, 1.75, 21, 26},
    {u"Impermeabilizante Spray", Complementos, 8, 8.50, 3.75, 21, 18},
    {u"Plantillas de Gel", Complementos, 8, 9.75, 4.25, 21, 20},
    {u"Plantillas Ortopédicas de Descarga", Complementos, 8, 18.50, 9.75, 10, 14},
    {u"Cordones", Complementos, 8, 2.50, 0.75, 21, 30},
    {u"Calzador", Complementos, 8, 3.00, 1.00, 21, 10},
    {u"Calcetines de Hilo", Complementos, 7, 5.50, 2.25, 21, 26},
    {u"Bolso de Señora", Complementos, 1, 44.00, 20.50, 21, 10},
    {u"Cinturón de Caballero", Complementos, 1, 27.50, 12.50, 21, 10},
    {u"Horma de Madera", Complementos, 8, 14.50, 6.75, 21, 0, ClaseProducto::ConsumoInterno},
    {u"Cola de Contacto 1 l", Taller, 8, 17.00, 9.50, 21, 0, ClaseProducto::ConsumoInterno},
    {u"Cepillo de Cerdas", Complementos, 8, 5.75, 2.25, 21, 8, ClaseProducto::Ambos},
};

constexpr DatosPack packs[] = {
    {u"Puesta a Punto: tapas y teñido", Taller, 21.00, 21, {0, 3, -1, -1}},
    {u"Restauración de Bota", Taller, 38.00, 21, {1, 5, 3, -1}},
};

constexpr DatosArreglo arreglos[] = {
    {u"Poner Tapas", 20, 8.50, 4.00},   {u"Medias Suelas", 45, 16.00, 8.00}, {u"Ensanchar Zapato", 15, 6.00, 3.00},
    {u"Teñir Zapato", 40, 14.50, 7.00}, {u"Coser y Pegar", 25, 9.00, 4.50},  {u"Cambiar Cremallera de Bota", 40, 18.00, 9.00},
};

constexpr QStringView proveedores[] = {
    u"Calzados Vinalopó S.L.", u"Zapateros de Almansa S.A.",     u"Alpargatas Rioja S.L.",  u"Sport Calzado Bidasoa S.L.",
    u"Botas Valverde S.L.",    u"Calzado Infantil Illueca S.L.", u"Zapatillas Arnedo S.A.", u"Curtidos y Cremas Igualada S.L."};

constexpr QStringView marcas[] = {u"Vinalopó", u"Almansa 1920", u"Bidasoa Sport", u"Valverde", u"Illueca Kids", u"Rioja Esparto"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},
    {u"Dependienta", u"Dependiente", TodasLasSecciones},
    {u"Zapatera", u"Zapatero", TodasLasSecciones},
    {u"Cajera", u"Cajero", TodasLasSecciones},
};

} // namespace

constexpr Sabor SaborZapateria{
    .tipo = TipoTienda::Zapateria,
    .tipoPrograma = u"ZAPATERIA",
    .oficio = Oficio::TallaColor,
    .empresa = u"Calzados El Paso",
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
              .ticketsDiaCadena = 47,
              .diasCadena = 730,
              .tiendasMes = 2,
              .tiendasAnio = 5,
              .laborable = {{{600, 840}, {1020, 1230}}},
              .sabado = {{{600, 840}, {1020, 1230}}},
              .domingo = {},
              .semana = {82, 82, 86, 92, 118, 142, 0},
              .meses = {118, 82, 92, 102, 110, 106, 116, 72, 104, 98, 100, 126},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 75, 105, 115, 85, 10, 0, 0, 85, 115, 120, 75, 0, 0, 0},
              .vacaciones = 0,
              .conCliente = 34,
              .intervalo = 75,
              .lineas = {66, 25, 7, 2, 0, 0, 0, 0},
              .conProducto = 10,
              .empleados = 4},
};

} // namespace kestrane::demo
