#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Papeleria = 1, Libros, Juguetes, Regalos, Hogar, Informatica, Servicios };

constexpr QStringView secciones[] = {u"Papelería", u"Libros", u"Juguetes", u"Regalos", u"Hogar", u"Informática", u"Servicios"};

constexpr DatosServicio servicios[] = {
    {u"Fotocopias", Servicios, 5, 0.50, 21, 60},
    {u"Encuadernación", Servicios, 10, 3.50, 21, 24},
    {u"Plastificado", Servicios, 5, 1.75, 21, 18},
    {u"Envoltorio de Regalo", Servicios, 5, 1.50, 21, 30},
    {u"Impresión a Color", Servicios, 5, 1.00, 21, 34},
    {u"Envío a Domicilio", Servicios, 15, 6.00, 21, 8},
    {u"Instalación de Equipo", Servicios, 60, 29.00, 21, 2},
};

constexpr DatosProducto productos[] = {
    {u"Cuaderno A4 Cuadrícula 80 hojas", Papeleria, 1, 2.75, 1.25, 21, 60},
    {u"Cuaderno A5 Rayas 80 hojas", Papeleria, 1, 1.75, 0.75, 21, 40},
    {u"Bolígrafo Azul", Papeleria, 1, 0.75, 0.25, 21, 90},
    {u"Bolígrafo Borrable", Papeleria, 1, 2.50, 1.25, 21, 34},
    {u"Lápiz HB", Papeleria, 1, 0.50, 0.25, 21, 48},
    {u"Goma de Borrar", Papeleria, 1, 0.75, 0.25, 21, 40},
    {u"Rotuladores Caja de 12", Papeleria, 1, 5.25, 2.50, 21, 26},
    {u"Pinturas de Cera Caja de 24", Papeleria, 1, 4.75, 2.25, 21, 18},
    {u"Archivador A4", Papeleria, 2, 3.50, 1.75, 21, 22},
    {u"Carpeta de Gomas", Papeleria, 2, 2.25, 1.00, 21, 28},
    {u"Paquete de Folios 500 hojas A4 80 g Blanco para Impresora y Fotocopiadora", Papeleria, 2, 5.50, 3.50, 21, 36},
    {u"Cartulina de Color", Papeleria, 2, 0.75, 0.25, 21, 44},
    {u"Pegamento en Barra", Papeleria, 1, 1.75, 0.75, 21, 30},
    {u"Tijeras Escolares", Papeleria, 1, 2.25, 1.00, 21, 16},
    {u"Estuche de Tela", Papeleria, 2, 8.50, 4.00, 21, 12},
    {u"Mochila Escolar", Papeleria, 2, 34.50, 19.00, 21, 8},
    {u"Agenda del Año", Papeleria, 2, 11.00, 5.50, 21, 12},
    {u"Novela de Bolsillo", Libros, 3, 10.50, 6.75, 4, 28},
    {u"Novela Novedad Tapa Dura", Libros, 3, 22.00, 14.25, 4, 18},
    {u"Cuento Infantil Ilustrado", Libros, 3, 14.50, 9.50, 4, 22},
    {u"Diccionario Escolar", Libros, 3, 19.75, 13.00, 4, 6},
    {u"Libro de Recetas", Libros, 3, 18.50, 12.00, 4, 7},
    {u"Cuadernillo de Vacaciones", Libros, 3, 12.00, 7.75, 4, 12, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Calor},
    {u"Periódico", Libros, 3, 2.00, 1.50, 4, 70},
    {u"Revista Mensual", Libros, 3, 4.50, 3.25, 4, 34},
    {u"Muñeca de Trapo", Juguetes, 4, 19.50, 10.00, 21, 8},
    {u"Coche Teledirigido", Juguetes, 4, 32.00, 18.00, 21, 6},
    {u"Puzle 500 piezas", Juguetes, 4, 13.50, 6.75, 21, 11},
    {u"Juego de Mesa Familiar", Juguetes, 4, 26.00, 14.00, 21, 9},
    {u"Plastilina 6 colores", Juguetes, 4, 3.75, 1.75, 21, 16},
    {u"Peluche Mediano", Juguetes, 4, 15.00, 7.00, 21, 10},
    {u"Globos Bolsa de 20", Juguetes, 4, 2.50, 1.00, 21, 18},
    {u"Marco de Fotos 13x18", Regalos, 5, 9.50, 4.25, 21, 9},
    {u"Taza Decorada", Regalos, 5, 7.25, 3.00, 21, 18},
    {u"Vela Perfumada", Regalos, 5, 8.75, 3.75, 21, 12},
    {u"Llavero", Regalos, 5, 3.50, 1.25, 21, 18},
    {u"Tarjeta de Felicitación", Regalos, 2, 2.25, 0.75, 21, 26},
    {u"Jarrón de Cristal", Hogar, 5, 24.50, 12.50, 21, 4},
    {u"Pilas Alcalinas AA 4 unidades", Hogar, 6, 4.25, 2.25, 21, 26},
    {u"Bombilla LED E27", Hogar, 6, 3.75, 1.75, 21, 14},
    {u"Regleta de 4 Enchufes", Hogar, 6, 9.75, 5.25, 21, 6},
    {u"Memoria USB 64 GB", Informatica, 6, 9.50, 5.75, 21, 12},
    {u"Ratón Inalámbrico", Informatica, 6, 14.50, 8.25, 21, 7},
    {u"Teclado USB", Informatica, 6, 16.00, 9.25, 21, 4},
    {u"Cartucho de Tinta Negra", Informatica, 6, 18.75, 12.50, 21, 14},
    {u"Cable Cargador USB-C", Informatica, 6, 8.00, 3.50, 21, 15},
    {u"Auriculares", Informatica, 6, 17.50, 9.50, 21, 8},
    {u"Bolsa de Papel", Regalos, 2, 0.25, 0.00, 21, 40},
    {u"Tóner de la Fotocopiadora", Informatica, 6, 64.00, 41.00, 21, 0, ClaseProducto::ConsumoInterno},
    {u"Rollo de Papel de Regalo 50 m", Regalos, 2, 16.00, 8.50, 21, 1, ClaseProducto::Ambos},
};

constexpr DatosPack packs[] = {
    {u"Encuadernado y Plastificado", Servicios, 4.50, 21, {1, 2, -1, -1}},
    {u"Impresión y Encuadernado", Servicios, 4.00, 21, {4, 1, -1, -1}},
};

constexpr QStringView proveedores[] = {u"Papelera del Pisuerga S.A.",           u"Escolar y Oficina Miralles S.L.",
                                       u"Distribuidora de Libros Quevedo S.L.", u"Juguetes Arlequín S.A.",
                                       u"Regalos y Cerámica Talavera S.L.",     u"Mayorista Informático Teide S.L."};

constexpr QStringView marcas[] = {u"Pisuerga", u"Miralles Office", u"Arlequín", u"Teide Tech", u"Quevedo Ediciones"};

constexpr DatosCategoria categorias[] = {
    {u"Encargada", u"Encargado", TodasLasSecciones},
    {u"Dependienta", u"Dependiente", TodasLasSecciones},
    {u"Cajera", u"Cajero", TodasLasSecciones},
    {u"Moza de Almacén", u"Mozo de Almacén", TodasLasSecciones},
};

} // namespace

constexpr Sabor SaborTpv{
    .tipo = TipoTienda::Tpv,
    .tipoPrograma = u"TPV",
    .oficio = Oficio::Comercio,
    .empresa = u"Papelería y Regalos La Pluma",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = {},
    .arreglos = {},
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 60,
              .ticketsDiaCadena = 35,
              .diasCadena = 730,
              .tiendasMes = 2,
              .tiendasAnio = 4,
              .laborable = {{{570, 840}, {990, 1230}}},
              .sabado = {{{600, 840}, {1020, 1230}}},
              .domingo = {},
              .semana = {92, 88, 92, 98, 118, 124, 0},
              .meses = {94, 80, 86, 96, 92, 98, 84, 70, 142, 98, 94, 166},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 80, 95, 105, 110, 80, 15, 0, 60, 105, 115, 100, 50, 0, 0, 0},
              .vacaciones = 0,
              .conCliente = 14,
              .intervalo = 24,
              .lineas = {46, 28, 14, 7, 3, 2, 0, 0},
              .conProducto = 14,
              .empleados = 4},
};

} // namespace kestrane::demo
