#include "lote/pedido_informe.h"

#include <gtest/gtest.h>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

Resultado<PedidoInforme, ErrorDeUso> lee(const QString& control, const QStringList& argumentos = {})
{
    QCommandLineParser lector;
    lector.addOptions(opcionesDeInforme());
    EXPECT_TRUE(lector.parse(QStringList{u"listados-lote"_s} + argumentos)) << lector.errorText().toStdString();
    return leePedido(control, lector);
}

std::string rechazo(const QString& control, const QStringList& argumentos = {})
{
    const auto pedido = lee(control, argumentos);
    return pedido ? "" : pedido.error().mensaje.toStdString();
}

Valor respuesta(Respuesta respuesta, const QStringList& argumentos)
{
    const auto pedido = lee(u"cmd_Marcas"_s, argumentos);
    EXPECT_TRUE(pedido);
    return pedido.valor().respuestas.at(respuesta);
}

TEST(PedidoInforme, WhatIsNoReportIsRefused)
{
    EXPECT_EQ(rechazo(u"cmd_Caja2"_s), "No existe el listado \"cmd_Caja2\"; con --lista se ven todos.");
    EXPECT_EQ(rechazo(u"cmd_Salir"_s), "cmd_Salir no es un listado: en el programa abre una ventana o termina.");
    EXPECT_EQ(rechazo(u"cmd_generales21"_s), "cmd_Generales21 no es un listado: en el programa abre una ventana o termina.");
    EXPECT_EQ(rechazo(u"cmdListados"_s), "cmdListados no es un listado: no hace nada.");
}

TEST(PedidoInforme, AValueThatMakesNoSenseIsRefused)
{
    EXPECT_EQ(rechazo(u"cmd_Caja1"_s, {u"--desde"_s, u"15/03/2024"_s}), "--desde lleva una fecha AAAA-MM-DD, no \"15/03/2024\".");
    EXPECT_EQ(rechazo(u"cmd_Caja1"_s, {u"--hasta"_s, u"2024-02-30"_s}), "--hasta lleva una fecha AAAA-MM-DD, no \"2024-02-30\".");
    EXPECT_EQ(rechazo(u"cmd_Ventas3"_s, {u"--cliente"_s, u"Ana"_s}), "--cliente lleva un número entero, no \"Ana\".");
    EXPECT_EQ(rechazo(u"cmd_Ventas3"_s, {u"--cliente"_s, u"99999999999"_s}),
              "--cliente lleva un número entero, no \"99999999999\".");
    EXPECT_EQ(rechazo(u"cmd_Ventas3"_s, {u"--cliente"_s, u"-1"_s}), "--cliente lleva un número desde 0, no \"-1\".");
    EXPECT_EQ(rechazo(u"cmd_Caja5"_s, {u"--factura"_s, u"-1"_s}), "--factura lleva un número desde 0, no \"-1\".");
    EXPECT_EQ(rechazo(u"cmd_Ventas6"_s, {u"--empleado"_s, u"-2"_s}), "--empleado lleva un número desde -1, no \"-2\".");
    EXPECT_EQ(rechazo(u"Command7"_s, {u"--mes"_s, u"13"_s}), "--mes va de 1 a 12, no es \"13\".");
    EXPECT_EQ(rechazo(u"Command7"_s, {u"--anio"_s, u"24"_s}), "--anio va de 100 a 9999, no es \"24\".");
    EXPECT_EQ(rechazo(u"cmd_Ventas3"_s, {u"--solo"_s, u"bonos"_s}), "--solo admite productos o servicios, no \"bonos\".");
    EXPECT_EQ(rechazo(u"cmd_Generales2"_s, {u"--clase"_s, u"X"_s}), "--clase admite V o CI o A, no \"X\".");
}

TEST(PedidoInforme, AnUnknownFormatIsRefused)
{
    EXPECT_EQ(rechazo(u"cmd_Marcas"_s, {u"--formato"_s, u"doc"_s}),
              "--formato admite json, csv, pdf, xlsx, png, html, no \"doc\".");
}

TEST(PedidoInforme, TheFormatIsReadInAnyCase)
{
    EXPECT_EQ(lee(u"cmd_Marcas"_s, {u"--formato"_s, u"JSON"_s}).valor().formato, Formato::Json);
    EXPECT_EQ(lee(u"cmd_Marcas"_s, {u"--formato"_s, u"Csv"_s}).valor().formato, Formato::Csv);
    EXPECT_EQ(lee(u"cmd_Marcas"_s, {u"--formato"_s, u"pdf"_s}).valor().formato, Formato::Pdf);
    EXPECT_EQ(lee(u"cmd_Marcas"_s, {u"--formato"_s, u"XLSX"_s}).valor().formato, Formato::Xlsx);
    EXPECT_EQ(lee(u"cmd_Marcas"_s, {u"--formato"_s, u"png"_s}).valor().formato, Formato::Png);
    EXPECT_EQ(lee(u"cmd_Marcas"_s, {u"--formato"_s, u"html"_s}).valor().formato, Formato::Html);
}

TEST(PedidoInforme, WithoutOptionsThereIsNothingButTheRow)
{
    const auto pedido = lee(u"CMD_MARCAS"_s);
    ASSERT_TRUE(pedido);
    EXPECT_EQ(pedido.valor().fila->control, u"cmd_Marcas");
    EXPECT_TRUE(pedido.valor().respuestas.empty());
    EXPECT_FALSE(pedido.valor().tienda);
    EXPECT_EQ(pedido.valor().formato, Formato::Json);
    EXPECT_EQ(pedido.valor().salida, u""_s);
    EXPECT_EQ(pedido.valor().carpetaListados, u""_s);
}

TEST(PedidoInforme, EveryAnswerIsReadInItsType)
{
    EXPECT_EQ(respuesta(Respuesta::Desde, {u"--desde"_s, u"2024-03-01"_s}), Valor{*Fecha::deCalendario(2024, 3, 1)});
    EXPECT_EQ(respuesta(Respuesta::Hasta, {u"--hasta"_s, u"2024-12-31"_s}), Valor{*Fecha::deCalendario(2024, 12, 31)});
    EXPECT_EQ(respuesta(Respuesta::Completa, {u"--completa"_s}), Valor{true});
    EXPECT_EQ(respuesta(Respuesta::Ticket, {u"--ticket"_s}), Valor{true});
    EXPECT_EQ(respuesta(Respuesta::Cliente, {u"--cliente"_s, u"7"_s}), Valor{qint32{7}});
    EXPECT_EQ(respuesta(Respuesta::Empleado, {u"--empleado"_s, u"-1"_s}), Valor{qint32{-1}});
    EXPECT_EQ(respuesta(Respuesta::Proveedor, {u"--proveedor"_s, u"3"_s}), Valor{qint32{3}});
    EXPECT_EQ(respuesta(Respuesta::Seccion, {u"--seccion"_s, u"4"_s}), Valor{qint32{4}});
    EXPECT_EQ(respuesta(Respuesta::Solo, {u"--solo"_s, u"Servicios"_s}), Valor{u"servicios"_s});
    EXPECT_EQ(respuesta(Respuesta::Clase, {u"--clase"_s, u"ci"_s}), Valor{u"CI"_s});
    EXPECT_EQ(respuesta(Respuesta::BajoMinimos, {u"--bajo-minimos"_s}), Valor{true});
    EXPECT_EQ(respuesta(Respuesta::Orden, {u"--orden"_s, u"Nombre"_s}), Valor{u"Nombre"_s});
    EXPECT_EQ(respuesta(Respuesta::SoloEmail, {u"--solo-email"_s}), Valor{true});
    EXPECT_EQ(respuesta(Respuesta::Totalizado, {u"--totalizado"_s}), Valor{true});
    EXPECT_EQ(respuesta(Respuesta::Mes, {u"--mes"_s, u"12"_s}), Valor{qint32{12}});
    EXPECT_EQ(respuesta(Respuesta::Anio, {u"--anio"_s, u"2024"_s}), Valor{qint32{2024}});
    EXPECT_EQ(respuesta(Respuesta::Factura, {u"--factura"_s, u"105"_s}), Valor{qint32{105}});
}

TEST(PedidoInforme, StoreFormatAndPlacesAreTaken)
{
    const auto pedido = lee(
        u"cmd_Marcas"_s, {u"--tienda"_s, u""_s, u"--formato"_s, u"csv"_s, u"--salida"_s, u"a.csv"_s, u"--listados"_s, u"copia"_s});
    ASSERT_TRUE(pedido);
    EXPECT_EQ(pedido.valor().tienda, u""_s);
    EXPECT_EQ(pedido.valor().formato, Formato::Csv);
    EXPECT_EQ(pedido.valor().salida, u"a.csv"_s);
    EXPECT_EQ(pedido.valor().carpetaListados, u"copia"_s);
}

TEST(PedidoInforme, PagesAndPicturesArePainted)
{
    EXPECT_TRUE(pinta(Formato::Pdf) && pinta(Formato::Png));
    EXPECT_FALSE(pinta(Formato::Json) || pinta(Formato::Csv) || pinta(Formato::Xlsx) || pinta(Formato::Html));
    EXPECT_TRUE(esBinario(Formato::Pdf) && esBinario(Formato::Png) && esBinario(Formato::Xlsx));
    EXPECT_FALSE(esBinario(Formato::Json) || esBinario(Formato::Csv) || esBinario(Formato::Html));
}

TEST(PedidoInforme, AnAnswerKnowsItsOption)
{
    EXPECT_EQ(opcionDe(Respuesta::BajoMinimos), u"--bajo-minimos"_s);
    EXPECT_EQ(opcionDe(Respuesta::Anio), u"--anio"_s);
}

} // namespace
} // namespace kestrane::lote
