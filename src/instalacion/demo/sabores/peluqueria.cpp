#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Corte = 1, Color, Peinado, Tratamientos, Caballeros, Manicura, Venta, Consumo };

constexpr QStringView secciones[] = {u"Corte",      u"Color y Mechas",      u"Peinado y Recogidos", u"Tratamientos Capilares",
                                     u"Caballeros", u"Manicura y Estética", u"Productos de Venta",  u"Productos de Consumo"};

constexpr auto Mujer = Publico::Mujer;
constexpr auto Hombre = Publico::Hombre;
constexpr auto Todos = Publico::Todos;

constexpr DatosServicio servicios[] = {
    {u"Corte Señora", Corte, 30, 18.50, 21, 70, Mujer, 5},
    {u"Corte Caballero", Caballeros, 20, 13.50, 21, 90, Hombre, 6},
    {u"Corte Infantil", Corte, 20, 10.00, 21, 14, Todos},
    {u"Corte de Flequillo", Corte, 10, 5.00, 21, 10, Mujer},
    {u"Lavar y Marcar", Peinado, 30, 14.00, 21, 80, Mujer, 10},
    {u"Lavar y Secar a Mano", Peinado, 35, 16.50, 21, 50, Mujer, 10},
    {u"Plancha", Peinado, 30, 17.00, 21, 25, Mujer},
    {u"Recogido", Peinado, 50, 32.00, 21, 7, Mujer},
    {u"Recogido de Novia", Peinado, 90, 95.00, 21, 1, Mujer},
    {u"Tinte Raíz", Color, 60, 27.50, 21, 60, Mujer, 5},
    {u"Tinte Completo", Color, 75, 34.00, 21, 22, Mujer},
    {u"Baño de Color", Color, 45, 22.00, 21, 16, Mujer},
    {u"Mechas de Papel", Color, 105, 52.00, 21, 18, Mujer},
    {u"Mechas Balayage", Color, 135, 78.00, 21, 10, Mujer},
    {u"Decoloración", Color, 60, 38.00, 21, 4, Mujer},
    {u"Tratamiento de Keratina", Tratamientos, 120, 110.00, 21, 3, Mujer},
    {u"Mascarilla Hidratante", Tratamientos, 15, 8.50, 21, 26, Mujer, 5},
    {u"Ampolla Anticaída", Tratamientos, 10, 7.50, 21, 14, Todos, 10},
    {u"Masaje Capilar", Tratamientos, 15, 9.00, 21, 9, Todos},
    {u"Permanente", Tratamientos, 90, 45.00, 21, 4, Mujer},
    {u"Arreglo de Barba", Caballeros, 20, 9.50, 21, 34, Hombre, 6},
    {u"Afeitado a Navaja", Caballeros, 25, 14.00, 21, 10, Hombre},
    {u"Rapado a Máquina", Caballeros, 15, 9.00, 21, 22, Hombre},
    {u"Color de Canas Caballero", Caballeros, 30, 17.50, 21, 5, Hombre},
    {u"Manicura", Manicura, 30, 13.00, 21, 16, Mujer, 5},
    {u"Pedicura", Manicura, 45, 24.00, 21, 8, Mujer},
    {u"Depilación de Cejas", Manicura, 10, 6.00, 21, 24, Mujer},
    {u"Depilación de Labio", Manicura, 5, 4.00, 21, 14, Mujer},
    {u"Maquillaje de Fiesta", Manicura, 45, 38.00, 21, 3, Mujer},
};

constexpr auto Interno = ClaseProducto::ConsumoInterno;
constexpr auto Ambos = ClaseProducto::Ambos;

constexpr DatosProducto productos[] = {
    {u"Champú Hidratante 300 ml", Venta, 1, 12.50, 6.25, 21, 30},
    {u"Champú Anticaspa 300 ml", Venta, 1, 13.25, 6.50, 21, 14},
    {u"Champú para Cabello Teñido con Filtro Solar y Aceite de Argán 300 ml", Venta, 1, 13.75, 6.75, 21, 26},
    {u"Champú Volumen 300 ml", Venta, 2, 12.75, 6.25, 21, 16},
    {u"Acondicionador Nutritivo 250 ml", Venta, 1, 13.00, 6.50, 21, 18},
    {u"Mascarilla Reparadora 200 ml", Venta, 2, 18.50, 9.25, 21, 20},
    {u"Mascarilla de Keratina 500 ml", Venta, 2, 26.00, 13.00, 21, 8},
    {u"Aceite de Argán 100 ml", Venta, 3, 21.00, 10.50, 21, 15},
    {u"Sérum de Puntas 50 ml", Venta, 3, 16.75, 8.25, 21, 12},
    {u"Laca Extra Fuerte 400 ml", Venta, 2, 9.75, 4.50, 21, 22},
    {u"Espuma Rizos 250 ml", Venta, 2, 10.50, 5.00, 21, 14},
    {u"Cera Mate Caballero 100 ml", Venta, 4, 11.50, 5.25, 21, 20},
    {u"Gomina Fijación Fuerte 150 ml", Venta, 4, 8.50, 4.00, 21, 14},
    {u"Aceite para Barba 30 ml", Venta, 4, 13.50, 6.00, 21, 11},
    {u"Bálsamo para Después del Afeitado 100 ml", Venta, 4, 12.00, 5.50, 21, 6},
    {u"Complemento Alimenticio para el Cabello 60 cápsulas", Venta, 1, 24.50, 13.00, 10, 9},
    {u"Ampollas Anticaída Caja de 12", Venta, 1, 42.00, 22.50, 21, 6},
    {u"Protector Térmico 200 ml", Venta, 3, 14.50, 7.00, 21, 10},
    {u"Cepillo Desenredante", Venta, 5, 8.00, 3.50, 21, 12},
    {u"Cepillo Térmico 33 mm", Venta, 5, 15.50, 7.25, 21, 5},
    {u"Peine de Carey", Venta, 5, 4.50, 1.75, 21, 6},
    {u"Plancha Profesional Titanio", Venta, 5, 89.00, 54.00, 21, 1},
    {u"Secador Iónico 2200 W", Venta, 5, 74.50, 45.00, 21, 1},
    {u"Esmalte de Uñas", Venta, 3, 6.50, 2.75, 21, 9},
    {u"Crema de Manos 75 ml", Venta, 3, 7.25, 3.25, 21, 8},
    {u"Tinte Castaño Claro 60 ml", Consumo, 2, 7.50, 4.25, 21, 2, Ambos},
    {u"Tinte Rubio Oscuro 60 ml", Consumo, 2, 7.50, 4.25, 21, 2, Ambos},
    {u"Tinte Negro Azulado 60 ml", Consumo, 2, 7.50, 4.25, 21, 1, Ambos},
    {u"Oxidante 20 Volúmenes 1 l", Consumo, 2, 9.00, 4.75, 21, 0, Interno},
    {u"Polvo Decolorante 500 g", Consumo, 2, 19.50, 10.50, 21, 0, Interno},
    {u"Champú Profesional 5 l", Consumo, 1, 24.00, 13.00, 21, 0, Interno},
    {u"Guantes de Nitrilo Caja de 100", Consumo, 5, 8.75, 5.00, 21, 0, Interno},
    {u"Papel de Mechas Rollo", Consumo, 5, 6.25, 3.25, 21, 0, Interno},
};

constexpr DatosPack packs[] = {
    {u"Pack Novia: prueba, recogido y maquillaje", Peinado, 145.00, 21, {8, 28, 24, -1}},
    {u"Pack Cambio de Imagen", Color, 69.00, 21, {0, 12, 16, -1}, 3},
    {u"Pack Caballero Completo", Caballeros, 21.00, 21, {1, 20, -1, -1}, 5},
    {u"Pack Fiesta", Peinado, 62.00, 21, {7, 28, -1, -1}},
};

constexpr QStringView proveedores[] = {u"Capilar Norte Distribuciones S.L.", u"Laboratorios Trenzal S.A.",
                                       u"Argania Cosmética S.L.", u"Barbería y Afeitado Molina S.L.",
                                       u"Suministros de Peluquería Ordesa S.L."};

constexpr QStringView marcas[] = {u"Trenzal Professional", u"Argania", u"Norte Hair", u"Don Molina", u"Titania Style"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},
    {u"Oficial Mayor", u"Oficial Mayor", TodasLasSecciones},
    {u"Oficial de Primera", u"Oficial de Primera", TodasLasSecciones},
    {u"Ayudante", u"Ayudante", estasSecciones({Peinado, Tratamientos, Caballeros, Color})},
    {u"Aprendiza", u"Aprendiz", estasSecciones({Peinado, Tratamientos})},
    {u"Esteticista", u"Esteticista", estasSecciones({Manicura})},
};

} // namespace

constexpr Sabor SaborPeluqueria{
    .tipo = TipoTienda::Peluqueria,
    .tipoPrograma = u"PELUQUERIA",
    .oficio = Oficio::Salon,
    .empresa = u"Peluquería Aurora Vidal",
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
              .laborable = {{{570, 840}, {990, 1230}}},
              .sabado = {{{540, 900}, {}}},
              .domingo = {},
              .semana = {55, 82, 92, 108, 140, 125, 0},
              .meses = {88, 90, 98, 104, 118, 112, 102, 78, 92, 96, 98, 128},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 70, 100, 115, 100, 70, 20, 0, 60, 95, 110, 100, 50, 0, 0, 0},
              .vacaciones = 14,
              .conCliente = 68,
              .intervalo = 34,
              .lineas = {50, 34, 13, 3, 0, 0, 0, 0},
              .conProducto = 16,
              .empleados = 10},
};

} // namespace kestrane::demo
