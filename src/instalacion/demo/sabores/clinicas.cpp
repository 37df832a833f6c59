#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

namespace {

enum Seccion { Consultas = 1, Fisioterapia, Podologia, Medicina, Nutricion, Laser, Venta, Consumo };

constexpr QStringView secciones[] = {u"Consultas", u"Fisioterapia",     u"Podología",          u"Medicina Estética",
                                     u"Nutrición", u"Láser y Aparatos", u"Productos de Venta", u"Material Clínico"};

constexpr auto Mujer = Publico::Mujer;
constexpr auto Todos = Publico::Todos;

constexpr DatosServicio servicios[] = {
    {u"Primera Consulta", Consultas, 40, 45.00, 0, 34},
    {u"Revisión", Consultas, 20, 25.00, 0, 62},
    {u"Consulta de Dermatología", Consultas, 30, 70.00, 0, 24},
    {u"Sesión de Fisioterapia", Fisioterapia, 45, 38.00, 0, 95, Todos, 10},
    {u"Fisioterapia a Domicilio", Fisioterapia, 60, 55.00, 0, 8},
    {u"Punción Seca", Fisioterapia, 30, 42.00, 0, 18},
    {u"Masaje Terapéutico", Fisioterapia, 40, 36.00, 21, 40, Todos, 5},
    {u"Suelo Pélvico", Fisioterapia, 45, 48.00, 0, 16, Mujer, 6},
    {u"Electroterapia", Fisioterapia, 30, 24.00, 0, 20, Todos, 10},
    {u"Quiropodia", Podologia, 30, 28.00, 0, 52, Todos, 5},
    {u"Estudio de la Pisada", Podologia, 45, 60.00, 0, 10},
    {u"Plantillas a Medida", Podologia, 30, 160.00, 10, 6},
    {u"Tratamiento de Papilomas", Podologia, 25, 35.00, 0, 9},
    {u"Ácido Hialurónico Labios", Medicina, 40, 290.00, 21, 4, Mujer},
    {u"Toxina Botulínica", Medicina, 30, 320.00, 21, 5},
    {u"Mesoterapia Facial", Medicina, 40, 120.00, 21, 8, Mujer, 4},
    {u"Peeling Médico", Medicina, 40, 95.00, 21, 8, Mujer, 4},
    {u"Eliminación de Verrugas", Medicina, 20, 60.00, 0, 9},
    {u"Consulta de Nutrición", Nutricion, 40, 50.00, 0, 18},
    {u"Seguimiento de Dieta", Nutricion, 20, 25.00, 0, 34, Todos, 6},
    {u"Láser Médico Piernas", Laser, 60, 110.00, 21, 7, Mujer, 8},
    {u"Láser Médico Axilas", Laser, 15, 35.00, 21, 12, Mujer, 8},
    {u"Radiofrecuencia Corporal", Laser, 50, 65.00, 21, 9, Mujer, 8},
    {u"Ondas de Choque", Laser, 25, 45.00, 0, 12, Todos, 5},
};

constexpr auto Interno = ClaseProducto::ConsumoInterno;
constexpr auto Ambos = ClaseProducto::Ambos;

constexpr DatosProducto productos[] = {
    {u"Crema Cicatrizante 50 ml", Venta, 1, 14.50, 7.75, 21, 18},
    {u"Crema de Urea 20% 100 ml", Venta, 1, 12.75, 6.50, 21, 22},
    {u"Protector Solar SPF 50+", Venta, 2, 23.50, 12.25, 21, 20, ClaseProducto::Venta, FormaVenta::Unidad, Tallaje::Ninguno,
     Temporada::Calor},
    {u"Sérum Despigmentante 30 ml", Venta, 2, 46.00, 24.00, 21, 7},
    {u"Gel Frío Muscular con Árnica y Mentol para Deportistas 150 ml", Venta, 3, 11.00, 5.25, 21, 24},
    {u"Crema de Calor 150 ml", Venta, 3, 11.50, 5.50, 21, 18},
    {u"Venda Neuromuscular Rollo", Venta, 3, 9.50, 4.50, 21, 20},
    {u"Rodillera Elástica", Venta, 4, 24.00, 13.00, 10, 8},
    {u"Muñequera", Venta, 4, 16.00, 8.50, 10, 7},
    {u"Taloneras de Silicona", Venta, 4, 13.50, 6.25, 10, 10},
    {u"Almohada Cervical", Venta, 4, 39.00, 22.00, 10, 4},
    {u"Pelota de Masaje", Venta, 3, 8.00, 3.50, 21, 10},
    {u"Banda Elástica de Ejercicio", Venta, 3, 9.00, 4.00, 21, 12},
    {u"Batidos Proteicos Caja de 7", Venta, 5, 27.50, 15.00, 10, 8},
    {u"Complejo Vitamínico 60 cápsulas", Venta, 5, 19.75, 10.50, 10, 11},
    {u"Suero Fisiológico Caja de 30", Consumo, 1, 7.50, 4.00, 21, 3, Ambos},
    {u"Agujas de Punción Caja de 100", Consumo, 1, 12.00, 7.00, 21, 0, Interno},
    {u"Guantes de Vinilo Caja de 100", Consumo, 1, 7.00, 3.75, 21, 0, Interno},
    {u"Gasas Estériles Caja de 50", Consumo, 1, 6.25, 3.25, 21, 0, Interno},
    {u"Papel de Camilla Rollo", Consumo, 4, 7.25, 4.00, 21, 0, Interno},
    {u"Aceite Neutro de Masaje 1 l", Consumo, 3, 14.50, 8.00, 21, 0, Interno},
};

constexpr DatosPack packs[] = {
    {u"Pack Espalda: valoración y dos sesiones", Fisioterapia, 109.00, 0, {0, 3, 6, -1}},
    {u"Pack Pie Sano: estudio y quiropodia", Podologia, 79.00, 0, {10, 9, -1, -1}, 2},
    {u"Pack Rejuvenecimiento", Medicina, 199.00, 21, {15, 16, -1, -1}, 3},
};

constexpr QStringView proveedores[] = {u"Distribuciones Clínicas Duero S.L.", u"Laboratorios Solmar S.A.",
                                       u"Fisiosuministros Aragón S.L.", u"Ortopedia Técnica Galdós S.L.",
                                       u"Nutrilab Complementos S.A."};

constexpr QStringView marcas[] = {u"Solmar Derma", u"Fisioarag", u"Galdós Orto", u"Nutrilab"};

constexpr DatosCategoria categorias[] = {
    {u"Directora Médica", u"Director Médico", estasSecciones({Consultas, Medicina, Nutricion, Laser})},
    {u"Fisioterapeuta", u"Fisioterapeuta", estasSecciones({Fisioterapia})},
    {u"Podóloga", u"Podólogo", estasSecciones({Podologia})},
    {u"Médica", u"Médico", estasSecciones({Consultas, Medicina})},
    {u"Recepcionista", u"Recepcionista", NingunaSeccion},
    {u"Fisioterapeuta", u"Fisioterapeuta", estasSecciones({Fisioterapia})},
    {u"Enfermera", u"Enfermero", estasSecciones({Laser, Nutricion})},
};

} // namespace

constexpr Sabor SaborClinicas{
    .tipo = TipoTienda::Clinicas,
    .tipoPrograma = u"CLINICAS",
    .oficio = Oficio::Salon,
    .empresa = u"Clínicas Valdeazahar",
    .secciones = secciones,
    .servicios = servicios,
    .productos = productos,
    .packs = packs,
    .packsSpa = {},
    .arreglos = {},
    .proveedores = proveedores,
    .marcas = marcas,
    .categorias = categorias,
    .ritmo = {.ticketsDia = 50,
              .ticketsDiaCadena = 56,
              .diasCadena = 730,
              .tiendasMes = 3,
              .tiendasAnio = 5,
              .laborable = {{{540, 840}, {960, 1230}}},
              .sabado = {{{570, 810}, {}}},
              .domingo = {},
              .semana = {108, 106, 104, 106, 112, 52, 0},
              .meses = {106, 102, 100, 100, 102, 98, 90, 64, 104, 112, 108, 92},
              .horas = {0, 0, 0, 0, 0, 0, 0, 0, 0, 85, 105, 110, 100, 70, 10, 0, 75, 105, 110, 100, 50, 0, 0, 0},
              .vacaciones = 14,
              .conCliente = 92,
              .intervalo = 26,
              .lineas = {78, 18, 4, 0, 0, 0, 0, 0},
              .conProducto = 12,
              .empleados = 8},
};

} // namespace kestrane::demo
