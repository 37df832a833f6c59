#include "lote/informes_json.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

class InformesJsonTest : public testing::Test
{
protected:
    QByteArray escrito(const InformeMostrado& informe)
    {
        QBuffer cuerpo;
        cuerpo.open(QIODevice::WriteOnly);
        InformesJson::escribeCuerpo(informe, m_tienda.listados(), cuerpo);
        return cuerpo.data();
    }

    /// A report of nothing but rows.
    QByteArray escrito(bool datos)
    {
        InformeMostrado informe;
        informe.datos = datos;
        return escrito(informe);
    }

    TiendaDePrueba m_tienda;
};

TEST_F(InformesJsonTest, AnOutputThatTakesNothingIsAnError)
{
    QBuffer cerrado;
    EXPECT_THROW(InformesJson::escribeCuerpo({}, m_tienda.listados(), cerrado), ErrorDeSalida);
}

TEST_F(InformesJsonTest, AFolderThatIsNotThereIsAnError)
{
    EXPECT_THROW(static_cast<void>(InformesJson{}.escribe({}, m_tienda.listados(), m_tienda.carpeta() + u"/nada/a"_s)),
                 ErrorDeSalida);
}

TEST_F(InformesJsonTest, AReportIsOneFileThoughItHasNoData)
{
    const QStringList partes = InformesJson{}.escribe({}, m_tienda.listados(), m_tienda.carpeta() + u"/a"_s);
    ASSERT_EQ(partes, QStringList{m_tienda.carpeta() + u"/a.json"_s});
    QFile parte{partes[0]};
    ASSERT_TRUE(parte.open(QIODevice::ReadOnly));
    EXPECT_EQ(parte.readAll(), escrito(false));
}

TEST_F(InformesJsonTest, WithoutRowsBothTablesAreEmptyArrays)
{
    EXPECT_EQ(escrito({.control = u"cmd_Caja1"_s,
                       .tienda = u"Peñíscola"_s,
                       .layout = u"K.rpt"_s,
                       .impresora = u"HP \"1\""_s,
                       .datos = false}),
              R"({"control":"cmd_Caja1","tienda":"Peñíscola","layout":"K.rpt","impresora":"HP \"1\"","datos":false,)"
              "\n \"informes\":[],\n \"subinformes\":[]}");
}

TEST_F(InformesJsonTest, ColumnsAreInLowerCaseNullOnesAreLeftOutAndRowsKeepTheirOrder)
{
    m_tienda.ejecutaListados(
        {u"insert into informes (TEXTO35, texto1, numerico2, Fecha1, memo1) values ('Ñandú', '', 12.5, #03/15/2024#, 'nota')"_s,
         u"insert into informes (numerico2) values (0)"_s, u"insert into informes (texto1) values (null)"_s,
         u"insert into subinformes (fecha2) values (#12/30/1899 9:05:00#)"_s});
    EXPECT_EQ(escrito(true),
              "{\"control\":\"\",\"tienda\":\"\",\"layout\":\"\",\"impresora\":\"\",\"datos\":true,\n"
              " \"informes\":[{\"texto1\":\"\",\"texto35\":\"Ñandú\",\"numerico2\":12.5,\"fecha1\":\"2024-03-15T00:00:00\","
              "\"memo1\":\"nota\"},\n  {\"numerico2\":0},\n  {}],\n"
              " \"subinformes\":[{\"fecha2\":\"1899-12-30T09:05:00\"}]}");
}

TEST_F(InformesJsonTest, AReportOfManyRowsIsOneDocumentThatParses)
{
    const QString largo(250, u'x');
    for (int i = 0; i < 1000; ++i)
        m_tienda.ejecutaListados(u"insert into informes (texto1, numerico1) values ('%1', %2)"_s.arg(largo).arg(i));
    const InformesJson json;
    const QByteArray documento = json.principio() + escrito(true) + json.separador() + escrito(false) + json.final();
    QJsonParseError error;
    const QJsonArray informes = QJsonDocument::fromJson(documento, &error).array();
    ASSERT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    ASSERT_EQ(informes.size(), 2);
    const QJsonArray filas = informes[0].toObject().value(u"informes").toArray();
    ASSERT_EQ(filas.size(), 1000);
    EXPECT_EQ(filas[999].toObject().value(u"numerico1").toInt(), 999);
}

} // namespace
} // namespace kestrane::lote
