#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Circuitos = 1, Masajes, Rituales, Faciales, Corporales, Manos, Venta, Consumo };

constexpr QStringView secciones[] = {
    u"Circuitos de Agua",       u"Masajes",      u"Rituales y Envolturas", u"Tratamientos Faciales",
    u"Tratamientos Corporales", u"Manos y Pies", u"Productos de Venta",    u"Productos de Consumo"};

constexpr auto Mujer = Publico::Mujer;
constexpr auto Todos = Publico::Todos;

constexpr DatosServicio servicios[] = {
    {u"Circuito Termal 90 minutos", Circuitos, 90, 29.00, 21, 95, Todos, 10},
    {u"Circuito Termal 60 minutos", Circuitos, 60, 22.00, 21, 60, Todos, 10},
    {u"Circuito Termal Infantil", Circuitos, 45, 14.00, 21, 12},
    {u"Baño Turco y Sauna", Circuitos, 45, 18.00, 21, 18, Todos, 5},
    {u"Bañera de Hidromasaje", Circuitos, 30, 24.00, 21, 10},
    {u"Masaje Relajante 30 minutos", Masajes, 30, 34.00, 21, 48, Todos, 5},
    {u"Masaje Relajante 60 minutos", Masajes, 60, 56.00, 21, 40, Todos, 5},
    {u"Masaje Descontracturante", Masajes, 50, 52.00, 21, 36, Todos, 5},
    {u"Masaje con Piedras Calientes", Masajes, 60, 64.00, 21, 18},
    {u"Masaje de Espalda", Masajes, 25, 29.00, 21, 32, Todos, 5},
    {u"Drenaje Linfático", Masajes, 50, 48.00, 21, 12, Mujer, 10},
    {u"Reflexología Podal", Masajes, 40, 39.00, 21, 14},
    {u"Masaje en Pareja", Masajes, 60, 108.00, 21, 8},
    {u"Ritual de Chocolate", Rituales, 75, 72.00, 21, 9},
    {u"Ritual Oriental", Rituales, 90, 89.00, 21, 7},
    {u"Envoltura de Algas", Rituales, 60, 58.00, 21, 9, Mujer},
    {u"Peeling de Sales Marinas", Rituales, 30, 36.00, 21, 14},
    {u"Higiene Facial", Faciales, 60, 46.00, 21, 24, Todos, 4},
    {u"Facial Vitamina C", Faciales, 50, 52.00, 21, 15, Mujer},
    {u"Facial Antiedad con Colágeno", Faciales, 70, 68.00, 21, 10, Mujer, 6},
    {u"Presoterapia", Corporales, 30, 26.00, 21, 20, Mujer, 10},
    {u"Tratamiento Reafirmante", Corporales, 50, 49.00, 21, 10, Mujer, 8},
    {u"Cavitación", Corporales, 45, 54.00, 21, 7, Mujer, 8},
    {u"Manicura Spa", Manos, 45, 28.00, 21, 16, Mujer},
    {u"Pedicura Spa", Manos, 60, 36.00, 21, 14, Mujer},
    {u"Parafina de Manos", Manos, 25, 17.00, 21, 7, Mujer},
};

constexpr auto Interno = ClaseProducto::ConsumoInterno;
constexpr auto Ambos = ClaseProducto::Ambos;

constexpr DatosProducto productos[] = {
    {u"Aceite Corporal de Almendras 200 ml", Venta, 1, 18.00, 8.50, 21, 22},
    {u"Aceite Esencial de Lavanda 15 ml", Venta, 1, 11.50, 5.25, 21, 18},
    {u"Aceite Esencial de Eucalipto 15 ml", Venta, 1, 10.75, 5.00, 21, 12},
    {u"Sales de Baño del Mar 500 g", Venta, 2, 12.00, 5.00, 21, 18},
    {u"Jabón Artesano de Aceite de Oliva y Romero de la Sierra 100 g", Venta, 2, 5.50, 2.25, 21, 26},
    {u"Crema Hidratante Corporal 250 ml", Venta, 3, 21.50, 10.25, 21, 16},
    {u"Crema Reafirmante 200 ml", Venta, 3, 34.00, 17.00, 21, 9},
    {u"Sérum Facial Vitamina C 30 ml", Venta, 3, 42.00, 21.50, 21, 8},
    {u"Agua Micelar 400 ml", Venta, 3, 15.75, 7.50, 21, 12},
    {u"Contorno de Ojos 15 ml", Venta, 3, 29.50, 14.50, 21, 7},
    {u"Vela Aromática", Venta, 4, 14.50, 6.25, 21, 14},
    {u"Difusor de Varillas 100 ml", Venta, 4, 19.00, 8.75, 21, 8},
    {u"Incienso Caja de 20", Venta, 4, 4.75, 1.75, 21, 9},
    {u"Gorro de Baño", Venta, 5, 3.00, 1.00, 21, 30},
    {u"Chanclas de Piscina", Venta, 5, 6.00, 2.50, 21, 24},
    {u"Albornoz de Rizo", Venta, 5, 39.00, 21.00, 21, 3},
    {u"Infusión Relajante Caja", Venta, 4, 6.25, 2.75, 10, 12},
    {u"Barro Termal 1 kg", Consumo, 2, 24.00, 13.00, 21, 2, Ambos},
    {u"Aceite de Masaje 5 l", Consumo, 1, 48.00, 29.00, 21, 0, Interno},
    {u"Algas en Polvo 1 kg", Consumo, 2, 32.00, 19.00, 21, 0, Interno},
    {u"Parafina 1 kg", Consumo, 3, 15.00, 8.00, 21, 0, Interno},
    {u"Toallas Desechables Caja de 100", Consumo, 5, 21.00, 13.50, 21, 0, Interno},
    {u"Chocolate Cosmético 1 kg", Consumo, 3, 27.50, 15.25, 21, 0, Interno},
};

constexpr DatosPack packs[] = {
    {u"Pack Pareja: circuito y masaje", Circuitos, 125.00, 21, {0, 12, -1, -1}},
    {u"Pack Relax: circuito y masaje de espalda", Circuitos, 52.00, 21, {0, 9, -1, -1}, 5},
    {u"Pack Belleza: facial, manicura y pedicura", Faciales, 95.00, 21, {17, 23, 24, -1}, 3},
};

constexpr DatosPack packsSpa[] = {
    {u"Escapada Termal 2 días", Circuitos, 76.00, 21, {0, 6, -1, -1}},
    {u"Semana de Bienestar 4 días", Circuitos, 135.00, 21, {0, 5, 16, 7}},
    {u"Programa Reductor 3 días", Corporales, 109.00, 21, {20, 22, 21, -1}},
};

constexpr QStringView proveedores[] = {u"Aromas de la Alcarria S.L.", u"Termas y Barros del Sur S.A.", u"Dermocosmética Lirio S.L.",
                                       u"Velas y Esencias Romero C.B.", u"Textil Hotelero Llobera S.L."};

constexpr QStringView marcas[] = {u"Lirio Dermo", u"Alcarria Natural", u"Termasur", u"Romero & Luz"};

constexpr quint32 deMasaje = estasSecciones({Masajes, Rituales});
constexpr quint32 deBelleza = estasSecciones({Faciales, Corporales, Manos, Rituales});
constexpr quint32 deAguas = estasSecciones({Circuitos});

constexpr DatosCategoria categorias[] = {
    {u"Directora", u"Director", TodasLasSecciones},
    {u"Auxiliar de Aguas", u"Auxiliar de Aguas", deAguas},
    {u"Masajista", u"Masajista", deMasaje},
    {u"Esteticista", u"Esteticista", deBelleza},
    {u"Recepcionista", u"Recepcionista", NingunaSeccion},
    {u"Auxiliar de Aguas", u"Auxiliar de Aguas", deAguas},
    {u"Masajista", u"Masajista", deMasaje},
    {u"Esteticista", u"Esteticista", deBelleza},
    {u"Auxiliar de Aguas", u"Auxiliar de Aguas", deAguas},
    {u"Masajista", u"Masajista", deMasaje},
    {u"Auxiliar de Aguas", u"Auxiliar de Aguas", deAguas},
    {u"Esteticista", u"Esteticista", deBelleza},
};

} // namespace

constexpr Sabor SaborSpa{
    .tipo = TipoTienda::Spa,
    .tipoPrograma = u"SPA",
    .oficio = Oficio::Salon,
    .empresa = u"Balneario Urbano Aguas Claras",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = packsSpa,
    .arreglos = {},
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 45,
              .ticketsDiaCadena = 46,
              .diasCadena = 730,
              .tiendasMes = 3,
              .tiendasAnio = 5,
              .laborable = {{{600, 840}, {960, 1290}}},
              .sabado = {{{600, 870}, {960, 1290}}},
              .domingo = {},
              .semana = {65, 78, 85, 98, 130, 145, 0},
              .meses = {104, 112, 100, 102, 104, 92, 86, 78, 90, 102, 106, 134},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 70, 95, 100, 70, 10, 0, 60, 90, 110, 115, 95, 40, 0, 0},
              .vacaciones = 7,
              .conCliente = 60,
              .intervalo = 40,
              .lineas = {62, 30, 8, 0, 0, 0, 0, 0},
              .conProducto = 18,
              .empleados = 13},
};

} // namespace kestrane::demo
