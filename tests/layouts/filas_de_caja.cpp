#include "layouts/filas_de_caja.h"

#include "layouts/listado_de_prueba.h"
#include "platform/database/recordset.h"

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

/// What tells a line from another; the rest follows from it.
struct Linea
{
    QString bloque; ///< "": none
    QString ticket;
    QString concepto;
    QString forma; ///< code of payment
    double neto = 0;
    double impuestos = 0;
};

QString tituloDeBloque(const QString& bloque)
{
    static const QStringList Titulos{u"Caja Inicial"_s,         u"Ventas Generales"_s,
                                     u"Ventas de Bonos"_s,      u"Cobros de Deudas Pendientes"_s,
                                     u"Ventas no Cobradas"_s,   u"Devoluciones de venta"_s,
                                     u"Gastos del Dia"_s,       u"Retiradas del Dia"_s,
                                     u"Ventas Regularizadas"_s, u"Albaranes"_s};
    return Titulos.at(bloque.toInt() - 1);
}

QString nombreDeForma(const QString& forma)
{
    static const QStringList Nombres{u""_s, u"Contado"_s, u"Tarjeta"_s, u"Contado y Tarjeta"_s, u"Deposito"_s};
    return Nombres.at(forma.toInt());
}

FilaDeCaja comun(const Linea& linea)
{
    FilaDeCaja fila{{u"texto10"_s, linea.ticket}, {u"texto3"_s, linea.concepto},
                    {u"texto23"_s, linea.forma},  {u"texto4"_s, nombreDeForma(linea.forma)},
                    {u"numerico2"_s, linea.neto}, {u"numerico3"_s, linea.impuestos},
                    {u"fecha3"_s, dia(20)},       {u"texto7"_s, u"Ana Paz"_s}};
    if (!linea.bloque.isEmpty()) {
        fila.emplace_back(u"texto22"_s, linea.bloque);
        fila.emplace_back(u"texto21"_s, tituloDeBloque(linea.bloque));
    }
    return fila;
}

void pon(TiendaDePrueba& tienda, const Linea& linea, const FilaDeCaja& mas = {})
{
    FilaDeCaja fila = comun(linea);
    fila.insert(fila.end(), mas.begin(), mas.end());
    ponInforme(tienda, fila);
}

FilaDeCaja cliente(const QString& nombre, const QString& nif)
{
    return {{u"texto2"_s, nombre}, {u"texto30"_s, nif}};
}

} // namespace

Valor dia(int numero)
{
    return *Fecha::deCalendario(2026, 11, numero);
}

Valor hora(int horas, int minutos)
{
    constexpr int SegundosPorMinuto = 60;
    return Fecha::deSerie(0, (horas * SegundosPorMinuto + minutos) * SegundosPorMinuto);
}

void pon(TiendaDePrueba& tienda, const QString& tabla, const FilaDeCaja& fila)
{
    Recordset filas;
    filas.Open(u"select * from "_s + tabla, tienda.listados());
    filas.AddNew();
    for (const auto& [columna, valor] : fila)
        filas.Fields(columna) = valor;
    filas.Update();
}

void ponInforme(TiendaDePrueba& tienda, const FilaDeCaja& fila)
{
    FilaDeCaja entera{{u"texto35"_s, Empresa},
                      {u"texto34"_s, Direccion},
                      {u"texto33"_s, u"Tienda = Centro"_s},
                      {u"Fecha1"_s, dia(20)},
                      {u"fecha2"_s, dia(20)}};
    entera.insert(entera.end(), fila.begin(), fila.end());
    pon(tienda, u"informes"_s, entera);
}

void ponTotales(TiendaDePrueba& tienda, std::initializer_list<std::pair<QString, double>> totales)
{
    for (const auto& [columna, valor] : totales)
        tienda.ejecutaListados(u"update informes set %1 = %2"_s.arg(columna).arg(valor, 0, 'f', 2));
}

void llenaCajaDiaria(TiendaDePrueba& tienda)
{
    pon(tienda, {u"1"_s, u"0"_s, u"Caja Inicial"_s, u""_s, 150, 0});
    pon(tienda, {u"2"_s, u"1001"_s, u"1 X Corte"_s, u"1"_s, 10, 2.1}, cliente(u"Begoña Núñez"_s, u"11H"_s));
    pon(tienda, {u"2"_s, u"1001"_s, u"1 X Champú"_s, u"1"_s, 5, 1.05}, cliente(u"Begoña Núñez"_s, u"11H"_s));
    pon(tienda, {u"2"_s, u"1002"_s, u"1 X Tinte"_s, u"2"_s, 40, 8.4}, cliente(u"Cliente Generico"_s, u"11H"_s));
    pon(tienda, {u"3"_s, u"1002"_s, u"10 - de - Corte"_s, u"2"_s, 80, 16.8}, cliente(u"Cliente Generico"_s, u"11H"_s));
    pon(tienda, {u"2"_s, u"1003"_s, u"1 X Peinado"_s, u"3"_s, 20, 4.2}, cliente(u"Luis Gil"_s, u"22J"_s));
    pon(tienda, {u"2"_s, u"1004"_s, u"Cons.Deposito: Manicura"_s, u"4"_s, 0, 0}, cliente(u"Luis Gil"_s, u"22J"_s));
    pon(tienda, {{}, u"1005"_s, u"1 X Novia"_s, u"2"_s, 50, 10.5}, cliente(u"Eva Soto"_s, u""_s));
    pon(tienda, {u"5"_s, u"1001"_s, u"Venta no Cobrada"_s, u"1"_s, -6.15, 0}, {{u"texto7"_s, u"3"_s}});
    pon(tienda, {u"9"_s, u"-4"_s, u"1 X Barba"_s, u"1"_s, 9, 1.89}, cliente(u"Iván Rey"_s, u""_s));
    pon(tienda, {u"4"_s, u"311"_s, u"Pago Pendiente de Factura: 990"_s, u"2"_s, 30, 0}, cliente(u"Luis Gil"_s, u"22J"_s));
    pon(tienda, {u"6"_s, u"88 / 990"_s, u"Abono: Laca"_s, u"1"_s, -14.2, -2.1}, cliente(u"Luis Gil"_s, u"22J"_s));
    pon(tienda, {u"7"_s, u"0"_s, u"Café"_s, u""_s, -23.4, 0});
    pon(tienda, {u"8"_s, u"0"_s, u"Retirada"_s, u""_s, -100, 0});
    ponTotales(tienda, {{u"numerico13"_s, 1234.5},
                        {u"numerico14"_s, 67.8},
                        {u"numerico9"_s, 30.3},
                        {u"numerico8"_s, 4},
                        {u"numerico10"_s, 150},
                        {u"numerico17"_s, 5},
                        {u"numerico16"_s, 23.4},
                        {u"numerico18"_s, 30}});
}

void llenaAlbaranes(TiendaDePrueba& tienda)
{
    pon(tienda, {u"10"_s, u"71"_s, u"2 X Laca"_s, u"1"_s, 10, 2.1}, {{u"texto2"_s, u"Eva Soto"_s}});
    pon(tienda, {u"10"_s, u"71"_s, u"1 X Champú"_s, u"1"_s, 5, 1.05}, {{u"texto2"_s, u"Eva Soto"_s}});
    pon(tienda, {u"10"_s, u"72"_s, u"1 X Peine"_s, u"2"_s, 4, 0.84}, {{u"texto2"_s, u"Luis Gil"_s}});
    pon(tienda, {{}, u"72"_s, u"1 X Bono"_s, u"2"_s, 80, 16.8}, {{u"texto2"_s, u"Luis Gil"_s}});
    ponTotales(
        tienda,
        {{u"numerico13"_s, 96.8}, {u"numerico14"_s, 22.99}, {u"numerico9"_s, 9.5}, {u"numerico8"_s, 1}, {u"numerico17"_s, 2}});
}

void llenaObservaciones(TiendaDePrueba& tienda)
{
    pon(tienda, u"subinformes"_s,
        {{u"Fecha1"_s, dia(20)}, {u"fecha2"_s, hora(9, 5)}, {u"texto1"_s, u"Ana P"_s}, {u"texto2"_s, u"Falta cambio"_s}});
    pon(tienda, u"subinformes"_s,
        {{u"Fecha1"_s, dia(20)}, {u"fecha2"_s, hora(20, 30)}, {u"texto1"_s, u"Luis G"_s}, {u"texto2"_s, u"Sin línea"_s}});
}

void llenaVales(TiendaDePrueba& tienda)
{
    const auto vale = [&](const QString& venta, double importe, const QString& uso) {
        pon(tienda, u"subinformes"_s,
            {{u"fecha3"_s, dia(20)},
             {u"texto10"_s, venta},
             {u"texto11"_s, u"Eva Soto"_s},
             {u"texto12"_s, u"Abono venta = "_s + venta},
             {u"texto14"_s, u"3"_s},
             {u"numerico1"_s, importe},
             {u"texto15"_s, uso}});
    };
    vale(u"901"_s, 25.5, u"Venta = 1003"_s);
    vale(u"902"_s, 11.9, u""_s);
}

} // namespace kestrane::prueba
