#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Pan = 1, Bolleria, Pasteleria, Salados, Cafeteria, Encargos };

constexpr QStringView secciones[] = {u"Pan", u"Bollería", u"Pastelería", u"Salados y Empanadas", u"Cafetería", u"Encargos"};

constexpr DatosServicio servicios[] = {
    {u"Dedicatoria en Tarta", Encargos, 10, 3.00, 10, 30},
    {u"Tarta Personalizada", Encargos, 60, 28.00, 10, 18},
    {u"Reparto a Domicilio", Encargos, 30, 3.50, 21, 14},
    {u"Bandeja de Desayuno", Encargos, 20, 14.50, 10, 12},
};

constexpr auto Venta = ClaseProducto::Venta;
constexpr auto Kilo = FormaVenta::Peso;

constexpr DatosProducto productos[] = {
    {u"Barra Artesana", Pan, 1, 1.00, 0.25, 4, 160},
    {u"Barra Pequeña", Pan, 1, 0.75, 0.25, 4, 90},
    {u"Chapata", Pan, 1, 1.25, 0.50, 4, 46},
    {u"Hogaza de Pueblo", Pan, 1, 3.00, 1.00, 4, 40},
    {u"Pan Integral de Espelta con Semillas de Lino y Calabaza", Pan, 1, 2.25, 0.75, 4, 38},
    {u"Pan de Centeno", Pan, 1, 3.25, 1.25, 4, 16},
    {u"Pan de Molde Casero", Pan, 1, 3.50, 1.25, 4, 14},
    {u"Pan sin Sal", Pan, 1, 1.00, 0.25, 4, 10},
    {u"Pan Rallado Bolsa", Pan, 1, 1.50, 0.50, 4, 8},
    {u"Croissant de Mantequilla", Bolleria, 2, 1.50, 0.50, 10, 80},
    {u"Napolitana de Chocolate", Bolleria, 2, 1.50, 0.50, 10, 60},
    {u"Ensaimada", Bolleria, 2, 1.75, 0.75, 10, 30},
    {u"Magdalenas Bolsa de 6", Bolleria, 2, 3.25, 1.25, 10, 26},
    {u"Palmera de Chocolate", Bolleria, 2, 1.75, 0.75, 10, 34},
    {u"Rosquillas", Bolleria, 2, 9.00, 4.00, 10, 12, Venta, Kilo},
    {u"Bizcocho de Yogur", Bolleria, 2, 4.50, 1.75, 10, 14},
    {u"Torrijas", Bolleria, 2, 1.75, 0.75, 10, 8, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno, Temporada::Cuaresma},
    {u"Pastas de Té", Pasteleria, 3, 16.00, 7.00, 10, 20, Venta, Kilo},
    {u"Pasteles Surtidos", Pasteleria, 3, 18.00, 8.00, 10, 22, Venta, Kilo},
    {u"Milhojas de Crema", Pasteleria, 3, 2.50, 1.00, 10, 18},
    {u"Tarta de Queso", Pasteleria, 3, 21.00, 9.50, 10, 8},
    {u"Tarta de Chocolate", Pasteleria, 3, 22.50, 10.00, 10, 8},
    {u"Tarta de San Marcos", Pasteleria, 3, 24.00, 10.50, 10, 6},
    {u"Brazo de Gitano", Pasteleria, 3, 12.50, 5.50, 10, 9},
    {u"Roscón", Pasteleria, 3, 19.50, 8.50, 10, 5, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno, Temporada::Navidad},
    {u"Huesos de Santo", Pasteleria, 3, 22.00, 10.00, 10, 4, Venta, Kilo, Tallaje::Ninguno, Temporada::Santos},
    {u"Empanada de Atún", Salados, 4, 12.00, 5.50, 10, 22, Venta, Kilo},
    {u"Empanadilla", Salados, 4, 1.75, 0.75, 10, 26},
    {u"Pizza Porción", Salados, 4, 2.50, 1.00, 10, 24},
    {u"Bocadillo de Jamón", Salados, 4, 3.75, 1.50, 10, 26},
    {u"Cocas Saladas", Salados, 4, 2.75, 1.00, 10, 14},
    {u"Café Solo", Cafeteria, 5, 1.25, 0.25, 10, 50},
    {u"Café con Leche", Cafeteria, 5, 1.50, 0.50, 10, 90},
    {u"Chocolate a la Taza", Cafeteria, 5, 2.50, 0.75, 10, 16},
    {u"Zumo de Naranja", Cafeteria, 5, 2.75, 1.00, 10, 24},
    {u"Agua Botellín", Cafeteria, 5, 1.00, 0.25, 10, 18},
    {u"Refresco Lata", Cafeteria, 5, 1.75, 0.75, 21, 18},
    {u"Leche Fresca 1 l", Cafeteria, 5, 1.50, 1.00, 4, 20},
    {u"Bolsa de Papel", Pan, 6, 0.25, 0.00, 21, 18},
    {u"Velas de Cumpleaños", Pasteleria, 6, 2.00, 0.75, 21, 8},
    {u"Harina de Fuerza 25 kg", Pan, 1, 22.00, 15.50, 4, 0, ClaseProducto::ConsumoInterno},
    {u"Mantequilla en Bloque 10 kg", Pasteleria, 2, 74.00, 58.00, 10, 0, ClaseProducto::ConsumoInterno},
    {u"Cajas de Tarta Paquete de 50", Pasteleria, 6, 21.00, 12.00, 21, 0, ClaseProducto::ConsumoInterno},
    {u"Masa Madre 1 kg", Pan, 1, 5.50, 2.25, 4, 2, ClaseProducto::Ambos},
};

constexpr DatosPack packs[] = {
    {u"Cumpleaños: tarta personalizada con dedicatoria", Encargos, 30.00, 10, {1, 0, -1, -1}},
    {u"Desayuno a Domicilio", Encargos, 17.00, 10, {3, 2, -1, -1}},
};

constexpr QStringView proveedores[] = {u"Harinas Tierra de Campos S.A.",
                                       u"Masas y Hojaldres Astorga S.L.",
                                       u"Obrador San Isidro S.L.",
                                       u"Salados y Empanadas Rías S.L.",
                                       u"Cafés Cibeles S.L.",
                                       u"Envases Papelcart S.L."};

constexpr QStringView marcas[] = {u"Tierra de Campos", u"Astorga", u"Cibeles", u"San Isidro"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},    {u"Dependienta", u"Dependiente", TodasLasSecciones},
    {u"Panadera", u"Panadero", TodasLasSecciones},      {u"Pastelera", u"Pastelero", TodasLasSecciones},
    {u"Repartidora", u"Repartidor", TodasLasSecciones},
};

} // namespace

constexpr Sabor SaborPanaderia{
    .tipo = TipoTienda::Panaderia,
    .tipoPrograma = u"PANADERIA",
    .oficio = Oficio::Alimentacion,
    .empresa = u"Panaderías El Horno de Leña",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = {},
    .arreglos = {},
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 112,
              .ticketsDiaCadena = 115,
              .diasCadena = 183,
              .tiendasMes = 2,
              .tiendasAnio = 2,
              .laborable = {{{435, 855}, {1035, 1230}}},
              .sabado = {{{450, 870}, {1050, 1230}}},
              .domingo = {{{480, 870}, {}}},
              .semana = {84, 84, 86, 90, 104, 130, 122},
              .meses = {104, 94, 98, 102, 100, 98, 94, 84, 98, 102, 102, 124},
              .horas = {0, 0, 0, 0, 0, 0, 0, 60, 100, 105, 110, 115, 120, 125, 50, 0, 0, 45, 70, 75, 40, 0, 0, 0},
              .vacaciones = 14,
              .conCliente = 12,
              .intervalo = 6,
              .lineas = {36, 34, 18, 8, 3, 1, 0, 0},
              .conProducto = 2,
              .empleados = 4},
};

} // namespace kestrane::demo
