#include "lote/informes_csv.h"

#include "apoyo/tienda_de_prueba.h"
#include "lote/ficheros_salida.h"
#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>

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

/// Reports of two stores, the second without rows, as a run leaves them.
class CsvDeVariasTiendas : public InformesCsvTest
{
protected:
    CsvDeVariasTiendas()
    {
        m_tienda.ejecutaListados({u"insert into informes (texto1) values ('1')"_s});
        anade(u"Sur"_s);
        m_tienda.ejecutaListados({u"delete from informes"_s});
        anade(u"Centro"_s);
    }

    void anade(const QString& tienda)
    {
        CuerpoInforme cuerpo{.tienda = tienda, .fichero = std::make_unique<QTemporaryFile>()};
        ASSERT_TRUE(cuerpo.fichero->open());
        m_csv.escribe({.control = {}, .tienda = tienda, .layout = {}, .impresora = {}}, m_tienda.listados(), *cuerpo.fichero);
        m_informes.push_back(std::move(cuerpo));
    }

    /// The lines of a document up to the first column of the tables.
    static QStringList comienzos(const QByteArray& documento)
    {
        QStringList todos;
        for (const QString& linea : QString::fromUtf8(documento).split(u"\r\n"_s))
            todos += linea.section(u';', 0, 2);
        return todos;
    }

    [[nodiscard]] QByteArray fichero(const QString& nombre) const
    {
        QFile escrito{QDir{m_tienda.carpeta()}.filePath(nombre)};
        EXPECT_TRUE(escrito.open(QIODevice::ReadOnly)) << nombre.toStdString();
        return escrito.readAll();
    }

    const QString m_cabeza = u"tienda;tabla;texto1"_s; // reading takes the mark away
    std::vector<CuerpoInforme> m_informes;
};

TEST_F(CsvDeVariasTiendas, OnTheOutputTheyAreOneTableUnderOneFirstLine)
{
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    escribeEn(salida, m_csv, m_informes);
    EXPECT_EQ(comienzos(salida.data()), (QStringList{m_cabeza, u"Sur;informes;1"_s, u""_s}));
}

TEST_F(CsvDeVariasTiendas, AsFilesEachHasItsFirstLineThoughItHasNoRows)
{
    escribeFicheros(QDir{m_tienda.carpeta()}.filePath(u"caja.csv"_s), m_csv, m_informes);
    EXPECT_EQ(comienzos(fichero(u"caja-Sur.csv"_s)), (QStringList{m_cabeza, u"Sur;informes;1"_s, u""_s}));
    EXPECT_EQ(comienzos(fichero(u"caja-Centro.csv"_s)), (QStringList{m_cabeza, u""_s}));
}

} // namespace
} // namespace kestrane::lote
