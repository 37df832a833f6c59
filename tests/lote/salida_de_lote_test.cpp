#include "lote/salida_de_lote.h"

#include "apoyo/tienda_de_prueba.h"
#include "lote/informes_json.h"
#include "lote/pantalla_de_lote.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

class SalidaDeLoteTest : public testing::Test
{
protected:
    SalidaDeLoteTest()
    {
        m_errores.open(QIODevice::WriteOnly);
        m_contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
    }

    static std::string cuerpo(const CuerpoInforme& informe)
    {
        EXPECT_EQ(informe.partes.size(), 1);
        QFile fichero{informe.partes.constFirst()};
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
        return fichero.readAll().toStdString();
    }

    TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
    [[nodiscard]] std::string errores() const { return m_errores.data().toStdString(); }

    InformesJson m_escritor;
    QBuffer m_errores;
    Avisos m_avisos{u"listados-lote"_s, m_errores, DestinoErrores::Fichero, [] { return qint64{0}; }};
    MensajesDeLote m_mensajes{m_avisos};
    SalidaDeLote m_salida{m_contexto, u"cmd_Caja1", m_escritor, m_mensajes, m_tienda.carpeta()};
};

TEST_F(SalidaDeLoteTest, AFolderThatTakesNoFileIsAnError)
{
    SalidaDeLote salida{m_contexto, u"cmd_Caja1", m_escritor, m_mensajes, m_tienda.carpeta() + u"/nada"_s};
    EXPECT_THROW(salida.ImprimirReport(u"K.rpt"_s), ErrorDeSalida);
}

TEST_F(SalidaDeLoteTest, AChartSaysThatItIsNotThereYet)
{
    EXPECT_THROW(m_salida.MostrarGrafico(u"porEmpleado"_s, {}), ErrorEjecucion);
}

TEST_F(SalidaDeLoteTest, EachReportKeepsTheRowsItHadWhenItWasShown)
{
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    m_tienda.ejecutaListados(u"insert into informes (texto1) values ('del sur')"_s);
    m_salida.DarImpresora(u"Laser"_s);
    m_salida.ImprimirReport(u"K.rpt"_s);
    m_tienda.ejecutaListados(u"delete from informes"_s);
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    m_salida.ImprimirReport(u"K.rpt"_s);
    m_salida.termina();
    ASSERT_EQ(m_salida.informes().size(), 2U);
    EXPECT_EQ(m_salida.informes()[0].tienda, u"Sur"_s);
    EXPECT_EQ(cuerpo(m_salida.informes()[0]),
              R"({"control":"cmd_Caja1","tienda":"Sur","layout":"K.rpt","impresora":"Laser","datos":true,)"
              "\n \"informes\":[{\"texto1\":\"del sur\"}],\n \"subinformes\":[]}");
    EXPECT_EQ(cuerpo(m_salida.informes()[1]),
              R"({"control":"cmd_Caja1","tienda":"Centro","layout":"K.rpt","impresora":"","datos":false,)"
              "\n \"informes\":[],\n \"subinformes\":[]}");
    EXPECT_FALSE(m_salida.sinDatos());
    EXPECT_EQ(errores(), "listados-lote: No hay datos para ser mostrados.\n") << "of the second alone";
}

TEST_F(SalidaDeLoteTest, WithoutDataInAnyReportThereIsNoneAndEachSaysSo)
{
    m_salida.ImprimirReport(u"K.rpt"_s);
    m_salida.ImprimirReport(u"K.rpt"_s);
    EXPECT_TRUE(m_salida.sinDatos());
    EXPECT_EQ(errores(), "listados-lote: No hay datos para ser mostrados.\nlistados-lote: No hay datos para ser mostrados.\n");
}

TEST_F(SalidaDeLoteTest, RowsThatAnEarlierReportLeftInSubinformesAreData)
{
    m_tienda.ejecutaListados(u"insert into subinformes (texto1) values ('antes')"_s);
    m_salida.ImprimirReport(u"K.rpt"_s);
    EXPECT_FALSE(m_salida.sinDatos());
}

TEST_F(SalidaDeLoteTest, WhatIsBuiltAndShownNowhereHasAnEmptyLayout)
{
    m_tienda.ejecutaListados(u"insert into informes (texto1) values ('albarán')"_s);
    m_salida.termina();
    ASSERT_EQ(m_salida.informes().size(), 1U);
    EXPECT_EQ(cuerpo(m_salida.informes()[0]), R"({"control":"cmd_Caja1","tienda":"","layout":"","impresora":"","datos":true,)"
                                              "\n \"informes\":[{\"texto1\":\"albarán\"}],\n \"subinformes\":[]}");
}

} // namespace
} // namespace kestrane::lote
