#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Depilacion = 1, Laser, Faciales, Corporales, Unas, Pestanas, Venta, Consumo };

constexpr QStringView secciones[] = {u"Depilación",
                                     u"Láser",
                                     u"Tratamientos Faciales",
                                     u"Tratamientos Corporales",
                                     u"Manicura y Uñas",
                                     u"Pestañas y Maquillaje",
                                     u"Productos de Venta",
                                     u"Productos de Consumo"};

constexpr auto Mujer = Publico::Mujer;
constexpr auto Hombre = Publico::Hombre;
constexpr auto Todos = Publico::Todos;

constexpr DatosServicio servicios[] = {
    {u"Depilación Media Pierna", Depilacion, 20, 12.00, 21, 60, Mujer, 6},
    {u"Depilación Pierna Entera", Depilacion, 35, 19.50, 21, 46, Mujer, 6},
    {u"Depilación Ingles", Depilacion, 15, 9.50, 21, 50, Mujer, 6},
    {u"Depilación Axilas", Depilacion, 10, 7.50, 21, 52, Mujer, 6},
    {u"Depilación Cejas", Depilacion, 10, 6.50, 21, 56, Todos},
    {u"Depilación Labio", Depilacion, 5, 4.50, 21, 34, Mujer},
    {u"Depilación Espalda Caballero", Depilacion, 30, 22.00, 21, 14, Hombre},
    {u"Depilación Pecho Caballero", Depilacion, 25, 19.00, 21, 10, Hombre},
    {u"Láser Axilas", Laser, 15, 29.00, 21, 22, Mujer, 6},
    {u"Láser Ingles", Laser, 20, 35.00, 21, 20, Mujer, 6},
    {u"Láser Piernas Enteras", Laser, 60, 95.00, 21, 10, Mujer, 8},
    {u"Láser Espalda", Laser, 40, 79.00, 21, 7, Hombre, 6},
    {u"Higiene Facial Profunda", Faciales, 70, 42.00, 21, 34, Todos, 4},
    {u"Radiofrecuencia Facial", Faciales, 45, 49.00, 21, 14, Mujer, 8},
    {u"Peeling Químico Suave", Faciales, 40, 55.00, 21, 9, Mujer, 4},
    {u"Tratamiento Hidratante", Faciales, 50, 38.00, 21, 20, Mujer},
    {u"Tratamiento Acné", Faciales, 50, 36.00, 21, 9, Todos, 6},
    {u"Masaje Reductor", Corporales, 45, 34.00, 21, 16, Mujer, 10},
    {u"Presoterapia", Corporales, 30, 22.00, 21, 18, Mujer, 10},
    {u"Cavitación y Vacumterapia", Corporales, 60, 48.00, 21, 10, Mujer, 8},
    {u"Masaje Relajante", Corporales, 45, 36.00, 21, 16, Todos, 5},
    {u"Manicura Sencilla", Unas, 30, 13.50, 21, 30, Mujer, 5},
    {u"Manicura Semipermanente", Unas, 45, 19.50, 21, 48, Mujer, 5},
    {u"Uñas de Gel", Unas, 90, 38.00, 21, 22, Mujer},
    {u"Retirar Esmalte Permanente", Unas, 20, 7.00, 21, 18, Mujer},
    {u"Pedicura Completa", Unas, 50, 27.00, 21, 24, Mujer, 5},
    {u"Lifting de Pestañas", Pestanas, 50, 39.00, 21, 13, Mujer},
    {u"Extensiones de Pestañas", Pestanas, 110, 65.00, 21, 7, Mujer},
    {u"Maquillaje Social", Pestanas, 45, 35.00, 21, 6, Mujer},
};

constexpr auto Interno = ClaseProducto::ConsumoInterno;
constexpr auto Ambos = ClaseProducto::Ambos;

constexpr DatosProducto productos[] = {
    {u"Crema Hidratante de Día 50 ml", Venta, 1, 28.50, 14.00, 21, 18},
    {u"Crema de Noche Regeneradora 50 ml", Venta, 1, 34.00, 17.00, 21, 12},
    {u"Sérum Ácido Hialurónico 30 ml", Venta, 1, 39.50, 19.50, 21, 14},
    {u"Protector Solar Facial SPF 50", Venta, 2, 22.00, 11.00, 21, 22, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Calor},
    {u"Protector Solar Corporal SPF 30", Venta, 2, 19.50, 9.75, 21, 12, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Calor},
    {u"Leche Limpiadora 200 ml", Venta, 1, 17.00, 8.25, 21, 14},
    {u"Tónico Facial 200 ml", Venta, 1, 15.50, 7.50, 21, 12},
    {u"Exfoliante Corporal 250 ml", Venta, 3, 18.75, 8.75, 21, 10},
    {u"Gel de Aloe Vera de Canarias para Después de la Depilación 250 ml", Venta, 3, 9.50, 4.25, 21, 24},
    {u"Aceite Retardador del Vello 100 ml", Venta, 4, 14.00, 6.50, 21, 11},
    {u"Crema Anticelulítica 200 ml", Venta, 3, 31.00, 15.50, 21, 8},
    {u"Esmalte Semipermanente 10 ml", Venta, 5, 11.50, 5.00, 21, 10},
    {u"Aceite de Cutículas 15 ml", Venta, 5, 7.50, 3.00, 21, 13},
    {u"Lima de Uñas", Venta, 5, 2.50, 0.75, 21, 20},
    {u"Máscara de Pestañas", Venta, 1, 16.50, 7.75, 21, 9},
    {u"Barra de Labios", Venta, 1, 13.25, 6.00, 21, 9},
    {u"Colonia Fresca 150 ml", Venta, 2, 12.00, 5.50, 21, 5},
    {u"Infusión Drenante 20 sobres", Venta, 3, 6.75, 3.25, 10, 12},
    {u"Cera Tibia Roll-on", Consumo, 4, 3.75, 1.75, 21, 2, Ambos},
    {u"Cera Caliente 1 kg", Consumo, 4, 14.50, 7.75, 21, 0, Interno},
    {u"Bandas Depilatorias Caja de 100", Consumo, 4, 6.50, 3.25, 21, 0, Interno},
    {u"Camilla Papel Rollo", Consumo, 5, 7.25, 4.00, 21, 0, Interno},
    {u"Gel Conductor 5 l", Consumo, 3, 18.00, 10.00, 21, 0, Interno},
    {u"Peeling Profesional 250 ml", Consumo, 1, 46.00, 27.00, 21, 0, Interno},
};

constexpr DatosPack packs[] = {
    {u"Pack Depilación Completa", Depilacion, 39.00, 21, {1, 2, 3, 4}, 4},
    {u"Pack Manos y Pies", Unas, 42.00, 21, {22, 25, -1, -1}, 3},
    {u"Pack Novia: facial, uñas y maquillaje", Pestanas, 119.00, 21, {12, 22, 28, 26}},
    {u"Pack Reductor", Corporales, 89.00, 21, {17, 18, 19, -1}, 5},
};

constexpr QStringView proveedores[] = {u"Dermocosmética Lirio S.L.", u"Laboratorios Solmar S.A.", u"Naturalia Aloe Canario S.L.",
                                       u"Ceras y Depilación Ibérica S.L.", u"Uñas Nácar Distribución S.L."};

constexpr QStringView marcas[] = {u"Lirio Dermo", u"Solmar", u"Aloe Timanfaya", u"Nácar Nails"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},
    {u"Esteticista de Primera", u"Esteticista de Primera", TodasLasSecciones},
    {u"Esteticista", u"Esteticista", TodasLasSecciones},
    {u"Técnica de Láser", u"Técnico de Láser", estasSecciones({Laser, Depilacion, Corporales})},
    {u"Auxiliar", u"Auxiliar", estasSecciones({Depilacion, Unas})},
};

} // namespace

constexpr Sabor SaborEstetica{
    .tipo = TipoTienda::Estetica,
    .tipoPrograma = u"ESTETICA",
    .oficio = Oficio::Salon,
    .empresa = u"Centro de Estética Nenúfar",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = {},
    .arreglos = {},
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 47,
              .ticketsDiaCadena = 43,
              .diasCadena = 730,
              .tiendasMes = 3,
              .tiendasAnio = 5,
              .laborable = {{{600, 840}, {990, 1230}}},
              .sabado = {{{600, 840}, {}}},
              .domingo = {},
              .semana = {78, 90, 98, 112, 134, 86, 0},
              .meses = {84, 88, 98, 108, 122, 130, 120, 76, 90, 92, 90, 106},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 85, 100, 100, 75, 15, 0, 60, 95, 110, 110, 60, 0, 0, 0},
              .vacaciones = 14,
              .conCliente = 76,
              .intervalo = 30,
              .lineas = {44, 34, 16, 6, 0, 0, 0, 0},
              .conProducto = 14,
              .empleados = 11},
};

} // namespace kestrane::demo
