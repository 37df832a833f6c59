#include "layouts/filas_de_caja.h"

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

void ponVendedor(TiendaDePrueba& tienda, const QString& nombre, const FilaDeCaja& importes)
{
    FilaDeCaja fila{{u"texto20"_s, nombre}};
    fila.insert(fila.end(), importes.begin(), importes.end());
    ponInforme(tienda, fila);
}

void ponTicket(TiendaDePrueba& tienda, double numero, const QString& marca, double importe, double cobrado, double forma)
{
    static const QStringList Nombres{u"Contado"_s, u"Tarjeta"_s, u"Contado y Tarjeta"_s, u"Deposito"_s};
    FilaDeCaja fila{{u"numerico2"_s, numero},
                    {u"numerico1"_s, importe},
                    {u"numerico22"_s, cobrado},
                    {u"numerico17"_s, forma},
                    {u"texto30"_s, Nombres.at(static_cast<qsizetype>(forma) - 1)}};
    if (!marca.isEmpty())
        fila.emplace_back(u"texto2"_s, marca);
    ponInforme(tienda, fila);
}

void ponServicio(TiendaDePrueba& tienda, const QString& bloque, const FilaDeCaja& mas)
{
    const QString titulo = bloque == u"2"   ? u"Ventas Generales"_s
                           : bloque == u"3" ? u"Ventas de Bonos"_s
                                            : u"Devoluciones de venta"_s;
    FilaDeCaja fila{{u"texto22"_s, bloque},
                    {u"texto21"_s, titulo},
                    {u"fecha3"_s, dia(20)},
                    {u"texto2"_s, u"Eva Soto"_s},
                    {u"texto7"_s, u"Ana Paz"_s}};
    fila.insert(fila.end(), mas.begin(), mas.end());
    ponInforme(tienda, fila);
}

FilaDeCaja servicio(const QString& ticket, const QString& codigo, const QString& texto, double unidades, double neto,
                    double impuestos)
{
    return {{u"texto10"_s, ticket},      {u"texto24"_s, codigo},      {u"texto3"_s, texto},
            {u"numerico5"_s, unidades},  {u"numerico11"_s, 12.1},     {u"numerico2"_s, neto},
            {u"numerico3"_s, impuestos}, {u"texto4"_s, u"Contado"_s}, {u"texto23"_s, u"1"_s}};
}

void ponPago(TiendaDePrueba& tienda, const QString& ticket, const QString& concepto, const QString& forma, const QString& codigo,
             double neto, double impuestos)
{
    ponInforme(tienda, {{u"texto10"_s, ticket},
                        {u"texto32"_s, ticket},
                        {u"texto3"_s, concepto},
                        {u"texto4"_s, forma},
                        {u"texto23"_s, codigo},
                        {u"numerico2"_s, neto},
                        {u"numerico3"_s, impuestos},
                        {u"fecha3"_s, dia(20)},
                        {u"texto2"_s, u"Eva Soto"_s},
                        {u"texto7"_s, concepto.startsWith(u"Pagado ") ? u"3"_s : u"Ana Paz"_s}, // money shows a code
                        {u"texto21"_s, u"Ventas Generales"_s}});
}

} // namespace

void llenaMovimientos(TiendaDePrueba& tienda)
{
    const std::pair<QString, double> lineas[] = {{u"Ventas no Cobradas:"_s, -37.5},       {u"Gastos del Dia:"_s, -23.4},
                                                 {u"Cobros de deudas Pendientes:"_s, 30}, {u"Caja Inicial:"_s, 150},
                                                 {u"Ingreso en Deposito:"_s, 40},         {u"Retiradas del dia:"_s, -100}};
    for (const auto& [rotulo, importe] : lineas)
        pon(tienda, u"subinformes"_s, {{u"texto1"_s, rotulo}, {u"numerico1"_s, importe}});
}

void llenaCajaGeneral(TiendaDePrueba& tienda)
{
    const Celda servicios{u"texto1"_s, u"Servicios"_s};
    ponVendedor(tienda, u"Ana P"_s, {{u"numerico1"_s, 120.5}, {u"numerico3"_s, 30.0}, servicios});
    ponVendedor(tienda, u"Luis G"_s,
                {{u"numerico1"_s, -12.0}, {u"numerico2"_s, 200.0}, servicios, {u"texto2"_s, u"Pack Servicios"_s}});
    ponVendedor(tienda, u"ompartida,Ana P,Luis G"_s, {{u"numerico1"_s, 45.0}, servicios});
    ponTotales(tienda, {{u"numerico19"_s, 59.1}});
    llenaMovimientos(tienda);
}

void llenaCajaTickets(TiendaDePrueba& tienda)
{
    ponTicket(tienda, 501, {}, 100, 100, 1);
    ponTicket(tienda, 502, {}, 80.5, 68, 2);
    ponTicket(tienda, 503, u"Albaran"_s, 60, 60, 3);
    ponTicket(tienda, 504, {}, 0, 0, 4);
    ponTicket(tienda, -4, u" Eliminado"_s, 12, 12, 1);
    ponTotales(tienda, {{u"numerico13"_s, -12.5}});
    ponTicket(tienda, 88, u" / 490 Abono"_s, -20, -20, 1);
    pon(tienda, u"informes"_s,
        {{u"Fecha1"_s, dia(20)},
         {u"fecha2"_s, dia(20)},
         {u"numerico2"_s, 0.0},
         {u"texto2"_s, u"Caja Inicial"_s},
         {u"numerico1"_s, 150.0}});
    ponTotales(
        tienda,
        {{u"numerico10"_s, 265}, {u"numerico11"_s, 98}, {u"numerico3"_s, -23.4}, {u"numerico20"_s, -100}, {u"numerico12"_s, 30}});
    tienda.ejecutaListados(u"update informes set texto1 = 'Observaciones de Caja: 20/11/2026 - Falta cambio'"_s);
    const auto tipo = [&](const QString& texto, double importe, double cuota) {
        pon(tienda, u"subinformes"_s, {{u"texto3"_s, texto}, {u"numerico5"_s, importe}, {u"numerico4"_s, cuota}});
    };
    tipo(u" al 0% "_s, 0, 0);
    tipo(u" al 10% "_s, 110, 10);
    tipo(u" al 21% "_s, 121, 21);
}

void llenaServicios(TiendaDePrueba& tienda)
{
    ponServicio(tienda, u"2"_s, servicio(u"601"_s, u"101"_s, u"Cons.Bono: Corte"_s, 1, 0, 0));
    ponServicio(tienda, u"2"_s, servicio(u"602"_s, u"101"_s, u"Corte"_s, 2, 20, 4.2));
    ponServicio(tienda, u"2"_s, servicio(u"602"_s, u"102"_s, u"Tinte"_s, 1, 40, 8.4));
    ponServicio(tienda, u"3"_s, servicio(u"603"_s, u"102"_s, u"10 - de - Tinte"_s, 1, 300, 63));
    ponServicio(tienda, u"6"_s, servicio(u"89 / 590"_s, u"101"_s, u"Abono: Corte"_s, -1, -10, -2.1));
    ponTotales(tienda, {{u"numerico13"_s, 423.5},
                        {u"numerico9"_s, 0},
                        {u"numerico8"_s, 4},
                        {u"numerico10"_s, 150},
                        {u"numerico17"_s, 7},
                        {u"numerico16"_s, 23.4},
                        {u"numerico18"_s, 30}});
}

void llenaFormasDePago(TiendaDePrueba& tienda)
{
    ponPago(tienda, u"701"_s, u"Corte"_s, u"Contado"_s, u"1"_s, 10, 2.1);
    ponPago(tienda, u"702"_s, u"Tinte"_s, u"Contado y Tarjeta"_s, u"3"_s, 0, 0);
    ponPago(tienda, u"702"_s, u"Pagado al Contado Factura: 702"_s, u"Contado"_s, u"1"_s, 20, 0);
    ponPago(tienda, u"702"_s, u"Pagado en Tarjeta Factura: 702"_s, u"Tarjeta"_s, u"2"_s, 28.4, 0);
    ponPago(tienda, u"703"_s, u"Peinado"_s, u"Venta no cobrada"_s, u"1 - Deuda"_s, 30, 6.3);
    ponPago(tienda, u"690"_s, u""_s, u"Tarjeta"_s, u"2"_s, 15, 0);
    ponPago(tienda, u"90 / 680"_s, u"Abono: Laca"_s, u"Contado"_s, u"1"_s, -5, -1.05);
    ponTotales(tienda, {{u"numerico13"_s, 96.8},
                        {u"numerico14"_s, 7.5},
                        {u"numerico8"_s, 3},
                        {u"numerico10"_s, 0},
                        {u"numerico17"_s, 4},
                        {u"numerico16"_s, 23.4},
                        {u"numerico18"_s, 30},
                        {u"numerico19"_s, 29.1}});
    llenaMovimientos(tienda);
}

} // namespace kestrane::prueba
