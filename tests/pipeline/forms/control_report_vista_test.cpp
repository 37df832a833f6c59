#include "pipeline/forms/control_report_vista.h"

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/salida_de_report.h"
#include "platform/report/preview/texto_pagina.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

constexpr QByteArrayView Layout = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Secciones">
  <pagina papel="A4" orientacion="vertical" margenes="10 10 10 10"/>
  <consulta>select texto1 from informes</consulta>
  <detalle><banda alto="10"><texto x="0" y="0" ancho="100" alto="5" valor="texto1"/></banda></detalle>
</informe>
)";

/// What of the road does not matter here: no printers, no wait.
class RestoDelCamino final : public Impresoras, public Espera, public Mensajes, public ColaEventos
{
public:
    [[nodiscard]] std::vector<ImpresoraInstalada> lista() const override { return {{u"OKI"_s, u"oki"_s, u"USB1"_s}}; }
    void Muestra() override {}
    void Informa(const QString& texto, const QString&) override { mensajes += texto; }
    void Critico(const QString& texto, const QString& titulo) override { mensajes += titulo + u": "_s + texto; }
    void drena() override {}

    QStringList mensajes;
};

class ControlReportVistaTest : public testing::Test
{
protected:
    ControlReportVistaTest()
    {
        QDir{tienda.carpeta()}.mkpath(u"programa"_s);
        contexto.CarpetaPrograma = tienda.carpeta() + u"/programa"_s;
        contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
        QFile fichero{contexto.CarpetaPrograma + u"/K_secciones.rpt"_s};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(Layout.data(), Layout.size());
    }
    void construye(const QStringList& filas)
    {
        contexto.ConexionListados.Execute(u"Delete * from informes"_s);
        for (const QString& fila : filas)
            contexto.ConexionListados.Execute(u"insert into informes (texto1) values ('%1')"_s.arg(fila));
    }
    [[nodiscard]] QString textoDe(report::VentanaVista& ventana)
    {
        const report::TextoPagina pagina{ventana.fuente().pagina(0)};
        return pagina.entre({}, pagina.final());
    }

    prueba::TiendaDePrueba tienda;
    ContextoEjecucion contexto{tienda.entorno()};
    report::VentanasVista ventanas{{}};
    ControlReportVista control{ventanas, abreDocumento(tienda.entorno(), {})};
    RestoDelCamino resto;
    SalidaDeReport salida{contexto, {control, resto, resto, resto, resto}};
};

TEST_F(ControlReportVistaTest, OpensAPreviewThatIsLeftOpen)
{
    construye({u"Corte"_s, u"Tinte"_s});
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    ASSERT_EQ(ventanas.abiertas().size(), 1U);
    EXPECT_EQ(ventanas.abiertas()[0]->windowTitle(), u"INFORMES:"_s);
    EXPECT_EQ(textoDe(*ventanas.abiertas()[0]), u"Corte\nTinte"_s);
    EXPECT_TRUE(resto.mensajes.isEmpty());
}

TEST_F(ControlReportVistaTest, WithTwoStoresInALoopTheFirstPreviewIsStillRightAfterTheSecondReport)
{
    construye({u"Centro"_s});
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    construye({u"Norte"_s, u"Sur"_s});
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    construye({});
    const auto abiertas = ventanas.abiertas();
    ASSERT_EQ(abiertas.size(), 2U);
    EXPECT_EQ(textoDe(*abiertas[0]), u"Centro"_s);
    EXPECT_EQ(textoDe(*abiertas[1]), u"Norte\nSur"_s);
    abiertas[0]->fuente().actualiza();
    abiertas[0]->fuente().avanza(QDeadlineTimer{0});
    EXPECT_EQ(textoDe(*abiertas[0]), u"Centro"_s) << "laid out anew from its own rows";
}

TEST_F(ControlReportVistaTest, AMissingLayoutIsToldOnceAndOpensNothing)
{
    construye({u"Corte"_s});
    salida.ImprimirReport(u"K_otra.rpt"_s);
    EXPECT_TRUE(ventanas.abiertas().empty());
    ASSERT_EQ(resto.mensajes.size(), 1);
    EXPECT_TRUE(resto.mensajes[0].startsWith(u"20001: "_s)) << resto.mensajes[0].toStdString();
    EXPECT_TRUE(resto.mensajes[0].contains(u"K_otra.rpt"_s)) << resto.mensajes[0].toStdString();
}

TEST_F(ControlReportVistaTest, ThePathIsTheMachines)
{
    QString abierta;
    ControlReportVista otro{ventanas, [&abierta](const QString& ruta) -> std::unique_ptr<report::FuenteVista> {
                                abierta = ruta;
                                throw ErrorEjecucion{ErrorEjecucion::LayoutIncorrecto};
                            }};
    otro.ReportFileName(u"programa\\K_secciones.rpt"_s);
    EXPECT_THROW(otro.Action(AccionReport::Ejecuta), ErrorEjecucion);
    EXPECT_TRUE(abierta.endsWith(u"programa/K_secciones.rpt"_s)) << abierta.toStdString();
    EXPECT_FALSE(abierta.contains(u'\\'));
}

TEST_F(ControlReportVistaTest, AReportWithRowsOnlyInSubinformesOpensWithoutDetailRows)
{
    tienda.ejecutaListados(u"insert into subinformes (texto1) values ('a')"_s);
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(ventanas.abiertas().size(), 1U);
    EXPECT_TRUE(resto.mensajes.isEmpty());
}

} // namespace
} // namespace kestrane
