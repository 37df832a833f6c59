#include "apoyo/tienda_de_prueba.h"
#include "pipeline/forms/aspecto_anotado.h"
#include "pipeline/forms/control_report_vista.h"
#include "pipeline/forms/frm_esperar.h"
#include "pipeline/forms/impresoras_del_sistema.h"
#include "pipeline/forms/mensajes_en_ventana.h"
#include "pipeline/forms/tics_rapidos.h"
#include "platform/printing/servidor_cups.h"
#include "platform/report/preview/impresion_del_sistema.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

constexpr QByteArrayView Layout = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Secciones">
  <pagina papel="A4" orientacion="vertical" margenes="10 10 10 10"/>
  <consulta>select texto1, numerico1 from informes</consulta>
  <orden por="numerico1"/>
  <detalle><banda alto="60"><texto x="0" y="0" ancho="100" alto="6" valor="texto1"/></banda></detalle>
</informe>
)";

/// From rows to the device of a print queue, with nothing in between but the time to wait that is not real.
class CaminoImpresion : public testing::Test
{
protected:
    CaminoImpresion()
    {
        contexto.CarpetaPrograma = tienda.carpeta();
        contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
        QFile fichero{tienda.carpeta() + u"/K_secciones.rpt"_s};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(Layout.data(), Layout.size());
        for (int fila = 0; fila < 6; ++fila)
            contexto.ConexionListados.Execute(
                u"insert into informes (texto1, numerico1) values ('Sección %1', %2)"_s.arg(QChar{u'A' + fila}).arg(fila));
        servidor.anadeCola(u"Laser"_s);
        servidor.anadeCola(u"Tickets"_s);
        servidor.eligePredeterminada(u"Laser"_s);
    }

    /// Shows the report, prints it from its preview as it offers to, and closes it; the printer that was offered.
    QString imprimeDesdeLaVista()
    {
        salida.ImprimirReport(u"K_secciones.rpt"_s);
        const auto abiertas = ventanas.abiertas();
        EXPECT_EQ(abiertas.size(), 1U);
        report::VentanaVista& ventana = *abiertas.at(0);
        QTest::keyClick(&ventana, Qt::Key_P, Qt::ControlModifier);
        auto* dialogo = ventana.findChild<QDialog*>(u"dialogoImpresion"_s);
        EXPECT_NE(dialogo, nullptr);
        const QString ofrecida = dialogo->findChild<QComboBox*>(u"impresora"_s)->currentText();
        QTest::mouseClick(dialogo->findChild<QPushButton*>(u"imprime"_s), Qt::LeftButton);
        const auto* banda = ventana.findChild<report::BandaAviso*>();
        EXPECT_TRUE(QTest::qWaitFor([banda] { return !banda->texto().isEmpty(); }));
        EXPECT_EQ(banda->texto(), u"El informe se ha enviado a la impresora %1."_s.arg(ofrecida));
        ventana.close();
        return ofrecida;
    }

    prueba::TiendaDePrueba tienda;
    prueba::ServidorCups servidor;
    ContextoEjecucion contexto{tienda.entorno()};
    prueba::AspectoAnotado aspecto;
    prueba::TicsRapidos tics;
    report::ImpresionDelSistema impresion;
    report::VentanasVista ventanas{{.impresion = &impresion, .eligeFichero = {}}};
    ControlReportVista control{ventanas, abreDocumento(tienda.entorno(), {})};
    ImpresorasDelSistema impresoras;
    EsperaEnVentana espera{contexto, aspecto, tics};
    MensajesEnVentana mensajes;
    ColaEventosDeQt eventos;
    SalidaDeReport salida{contexto, {control, impresoras, espera, mensajes, eventos}};
};

TEST_F(CaminoImpresion, RowsComeOutOfTheQueueThatWasChosenByItsExactName)
{
    salida.DarImpresora(u"Tickets"_s);
    EXPECT_EQ(imprimeDesdeLaVista(), u"Tickets"_s);
    EXPECT_EQ(servidor.trabajo(1).cola, u"Tickets"_s);
    EXPECT_EQ(servidor.trabajo(1).titulo, u"Secciones"_s);
    EXPECT_THAT(prueba::paginasDe(servidor.trabajo(1)),
                testing::ElementsAre(u"Sección A Sección B Sección C Sección D"_s, u"Sección E Sección F"_s));
    salida.DarImpresora(u"tickets"_s);
    EXPECT_EQ(imprimeDesdeLaVista(), u"Laser"_s) << "not in the list: the default printer";
    EXPECT_EQ(servidor.trabajo(2).cola, u"Laser"_s);
}

} // namespace
} // namespace kestrane
