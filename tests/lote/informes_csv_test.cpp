#include "lote/informes_csv.h"

#include "apoyo/tienda_de_prueba.h"
#include "lote/error_de_salida.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

class InformesCsvTest : public testing::Test
{
protected:
    QStringList lineas(const QString& tienda = {})
    {
        QBuffer cuerpo;
        cuerpo.open(QIODevice::WriteOnly);
        InformeMostrado informe;
        informe.tienda = tienda;
        m_csv.escribe(informe, m_tienda.listados(), cuerpo);
        return QString::fromUtf8(cuerpo.data()).split(u"\r\n"_s);
    }

    TiendaDePrueba m_tienda;
    InformesCsv m_csv;
};

TEST_F(InformesCsvTest, AnOutputThatTakesNothingIsAnError)
{
    m_tienda.ejecutaListados(u"insert into informes (texto1) values ('a')"_s);
    QBuffer cerrado;
    EXPECT_THROW(m_csv.escribe({}, m_tienda.listados(), cerrado), ErrorDeSalida);
}

TEST_F(InformesCsvTest, TheFirstLineHasTheMarkAndNamesStoreTableAndAllColumns)
{
    EXPECT_EQ(lineas(), QStringList{u""_s});
    const QByteArray principio = m_csv.principio();
    EXPECT_TRUE(principio.startsWith("\xEF\xBB\xBFtienda;tabla;texto1;texto2;"));
    EXPECT_TRUE(principio.endsWith(";fecha4;memo1\r\n"));
    EXPECT_EQ(principio.count(';'), 1 + 31 + 21 + 4 + 1); // behind the store: the table, texts, numbers, dates, the memo
}

TEST_F(InformesCsvTest, NullIsNothingAndTheEmptyTextTwoQuotes)
{
    m_tienda.ejecutaListados(u"insert into informes (texto1, texto3) values ('', 'a')"_s);
    EXPECT_TRUE(lineas().constFirst().startsWith(u"\"\";informes;\"\";;a;;"_s)) << lineas().constFirst().toStdString();
}

TEST_F(InformesCsvTest, WhatWouldEndAFieldIsQuoted)
{
    m_tienda.ejecutaListados(u"insert into informes (texto1, texto2, texto3) values ('a;b', 'di \"ya\"', 'dos\nlíneas')"_s);
    EXPECT_TRUE(
        lineas(u"Centro;1"_s).constFirst().startsWith(u"\"Centro;1\";informes;\"a;b\";\"di \"\"ya\"\"\";\"dos\nlíneas\";"_s));
}

TEST_F(InformesCsvTest, NumbersAndDatesAreWrittenByTheRegionalSettings)
{
    m_tienda.ejecutaListados(u"insert into informes (numerico1, Fecha1) values (1234.5, #03/05/2024#)"_s);
    EXPECT_TRUE(lineas().constFirst().contains(u";1234,5;"_s));
    EXPECT_TRUE(lineas().constFirst().contains(u";05/03/2024;"_s));
}

TEST_F(InformesCsvTest, RowsOfBothTablesComeOneBehindTheOther)
{
    m_tienda.ejecutaListados({u"insert into informes (texto1) values ('1')"_s, u"insert into informes (texto1) values ('2')"_s,
                              u"insert into subinformes (texto1) values ('3')"_s});
    const QStringList todas = lineas(u"Sur"_s);
    ASSERT_EQ(todas.size(), 4);
    EXPECT_TRUE(todas[0].startsWith(u"Sur;informes;1;"_s));
    EXPECT_TRUE(todas[1].startsWith(u"Sur;informes;2;"_s));
    EXPECT_TRUE(todas[2].startsWith(u"Sur;subinformes;3;"_s));
}

} // namespace
} // namespace kestrane::lote
