#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Fragancias = 1, Caballero, Maquillaje, Facial, Capilar, Higiene, Estuches, Servicios };

constexpr QStringView secciones[] = {u"Perfumes de Mujer",   u"Perfumes de Hombre", u"Maquillaje",         u"Cosmética Facial",
                                     u"Cuidado del Cabello", u"Higiene y Corporal", u"Estuches y Regalos", u"Servicios"};

constexpr DatosServicio servicios[] = {
    {u"Maquillaje Exprés", Servicios, 20, 15.00, 21, 10, Publico::Mujer},
    {u"Maquillaje de Fiesta", Servicios, 45, 35.00, 21, 6, Publico::Mujer},
    {u"Asesoramiento de Fragancias", Servicios, 15, 0.00, 21, 5},
    {u"Envoltorio de Regalo", Servicios, 5, 2.00, 21, 40},
    {u"Grabado de Frasco", Servicios, 15, 6.50, 21, 8},
    {u"Limpieza Facial en Cabina", Servicios, 50, 32.00, 21, 6, Publico::Mujer, 5},
};

constexpr auto Interno = ClaseProducto::ConsumoInterno;
constexpr auto Ambos = ClaseProducto::Ambos;

constexpr DatosProducto productos[] = {
    {u"Agua de Perfume Jazmín 50 ml", Fragancias, 1, 49.50, 29.50, 21, 20},
    {u"Agua de Perfume Jazmín 100 ml", Fragancias, 1, 72.00, 43.00, 21, 12},
    {u"Agua de Colonia Fresca Azahar de Valencia con Vaporizador 200 ml", Fragancias, 1, 18.50, 10.00, 21, 30},
    {u"Perfume Ámbar Intenso 30 ml", Fragancias, 2, 58.00, 35.00, 21, 9},
    {u"Agua de Tocador Rosas 100 ml", Fragancias, 2, 41.50, 25.00, 21, 16},
    {u"Perfume Medianoche 50 ml", Fragancias, 2, 65.00, 39.00, 21, 9},
    {u"Agua Fresca Cítrica 150 ml", Fragancias, 3, 24.00, 13.50, 21, 22, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Calor},
    {u"Colonia Infantil 500 ml", Fragancias, 3, 12.75, 6.75, 21, 20},
    {u"Agua de Tocador Cedro 100 ml", Caballero, 2, 46.00, 27.50, 21, 18},
    {u"Agua de Tocador Cuero 50 ml", Caballero, 2, 38.50, 23.00, 21, 12},
    {u"Agua de Perfume Vetiver 100 ml", Caballero, 1, 68.00, 41.00, 21, 9},
    {u"Loción para Después del Afeitado 100 ml", Caballero, 3, 16.75, 8.75, 21, 14},
    {u"Barra de Labios Mate", Maquillaje, 4, 14.50, 7.25, 21, 34},
    {u"Brillo de Labios", Maquillaje, 4, 9.75, 4.50, 21, 24},
    {u"Base de Maquillaje 30 ml", Maquillaje, 4, 23.50, 12.25, 21, 22},
    {u"Polvos Compactos", Maquillaje, 4, 19.50, 10.00, 21, 14},
    {u"Máscara de Pestañas Volumen", Maquillaje, 4, 17.25, 8.75, 21, 28},
    {u"Lápiz de Ojos", Maquillaje, 4, 7.50, 3.25, 21, 26},
    {u"Sombra de Ojos Cuarteto", Maquillaje, 4, 21.00, 10.75, 21, 12},
    {u"Esmalte de Uñas 8 ml", Maquillaje, 4, 5.50, 2.25, 21, 32},
    {u"Quitaesmalte 100 ml", Maquillaje, 4, 3.25, 1.25, 21, 18},
    {u"Crema de Día Antiedad 50 ml", Facial, 5, 44.00, 25.00, 21, 15},
    {u"Crema de Noche 50 ml", Facial, 5, 47.50, 27.00, 21, 10},
    {u"Contorno de Ojos 15 ml", Facial, 5, 32.00, 18.00, 21, 12},
    {u"Sérum Iluminador 30 ml", Facial, 5, 52.00, 30.00, 21, 9},
    {u"Agua Micelar 400 ml", Facial, 5, 11.25, 5.50, 21, 28},
    {u"Mascarilla Facial Monodosis", Facial, 5, 3.50, 1.50, 21, 34},
    {u"Protector Solar SPF 50 50 ml", Facial, 5, 21.50, 11.50, 21, 18, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Calor},
    {u"Champú Nutritivo 400 ml", Capilar, 3, 7.75, 4.00, 21, 26},
    {u"Tinte en Casa", Capilar, 3, 9.50, 5.00, 21, 24},
    {u"Laca 400 ml", Capilar, 3, 6.25, 3.00, 21, 18},
    {u"Mascarilla Capilar 300 ml", Capilar, 3, 10.50, 5.25, 21, 14},
    {u"Gel de Baño 750 ml", Higiene, 3, 4.50, 2.25, 21, 34},
    {u"Desodorante en Barra", Higiene, 3, 4.25, 2.00, 21, 30},
    {u"Leche Corporal 400 ml", Higiene, 3, 8.50, 4.25, 21, 22},
    {u"Crema de Manos 75 ml", Higiene, 3, 4.75, 2.25, 21, 24},
    {u"Jabón de Glicerina", Higiene, 3, 2.25, 1.00, 21, 20},
    {u"Compresas Normales 16 unidades", Higiene, 3, 2.75, 1.25, 4, 20},
    {u"Pasta Dentífrica Blanqueadora", Higiene, 3, 3.75, 1.75, 21, 16},
    {u"Estuche Perfume y Crema", Estuches, 1, 79.00, 47.00, 21, 9},
    {u"Estuche Caballero Cedro", Estuches, 2, 56.00, 33.50, 21, 9},
    {u"Neceser Floral", Estuches, 6, 15.50, 7.00, 21, 12},
    {u"Espejo de Aumento", Estuches, 6, 22.50, 11.00, 21, 4},
    {u"Brochas de Maquillaje Juego de 6", Estuches, 6, 26.50, 13.00, 21, 6},
    {u"Bolsa de Regalo", Estuches, 6, 1.50, 0.50, 21, 30},
    {u"Muestrario de Perfumes", Estuches, 1, 30.00, 18.00, 21, 0, Interno},
    {u"Algodón Discos 120", Higiene, 3, 2.50, 1.00, 21, 14, Ambos},
    {u"Toallitas Desmaquillantes 500", Higiene, 5, 18.00, 10.50, 21, 0, Interno},
};

constexpr DatosPack packs[] = {
    {u"Pack Fiesta: maquillaje y grabado", Servicios, 38.00, 21, {1, 4, -1, -1}},
    {u"Pack Cabina: limpieza y maquillaje exprés", Servicios, 42.00, 21, {5, 0, -1, -1}, 3},
};

constexpr QStringView proveedores[] = {
    u"Esencias Levante S.A.",         u"Casa de Perfumes Alcántara S.L.", u"Droguería Central de Castilla S.A.",
    u"Color Maquillaje Ibérica S.L.", u"Dermocosmética Lirio S.L.",       u"Complementos Vega C.B."};

constexpr QStringView marcas[] = {u"Jazmín de Levante", u"Alcántara", u"Lirio Dermo", u"Iberia Color", u"Azahar"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},
    {u"Consejera de Belleza", u"Consejero de Belleza", TodasLasSecciones},
    {u"Dependienta", u"Dependiente", TodasLasSecciones},
    {u"Cajera", u"Cajero", TodasLasSecciones},
};

} // namespace

constexpr Sabor SaborPerfumeria{
    .tipo = TipoTienda::Perfumeria,
    .tipoPrograma = u"PERFUMERIA",
    .oficio = Oficio::Comercio,
    .empresa = u"Perfumerías Alhelí",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = {},
    .arreglos = {},
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 52,
              .ticketsDiaCadena = 38,
              .diasCadena = 730,
              .tiendasMes = 2,
              .tiendasAnio = 5,
              .laborable = {{{600, 840}, {1020, 1230}}},
              .sabado = {{{600, 840}, {1020, 1230}}},
              .domingo = {},
              .semana = {82, 84, 88, 94, 118, 136, 0},
              .meses = {98, 96, 88, 92, 114, 98, 92, 76, 84, 86, 104, 186},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 80, 105, 115, 85, 10, 0, 0, 85, 115, 120, 70, 0, 0, 0},
              .vacaciones = 0,
              .conCliente = 34,
              .intervalo = 42,
              .lineas = {52, 28, 12, 5, 2, 1, 0, 0},
              .conProducto = 8,
              .empleados = 5},
};

} // namespace kestrane::demo
