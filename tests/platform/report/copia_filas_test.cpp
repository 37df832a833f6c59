#include "platform/report/copia_filas.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

Layout con(const QString& sentencia)
{
    Layout layout;
    layout.fichero = u"prueba.rpt"_s;
    layout.sentencia = sentencia;
    layout.lineaSentencia = 4;
    return layout;
}

TEST(CopiaFilas, ColumnsAreThoseOfTheResult)
{
    prueba::TiendaDePrueba tienda;
    tienda.ejecutaListados({u"insert into informes (texto1, numerico1) values ('a', 1)"_s,
                            u"insert into informes (texto1, numerico1) values ('b', 2)"_s,
                            u"insert into informes (texto1, numerico1) values ('a', 3)"_s});
    const CopiaFilas copia =
        copiaFilas(con(u"select texto1, sum(numerico1) as total from informes group by texto1"_s), tienda.entorno());
    EXPECT_EQ(copia.columnas, (QStringList{u"texto1"_s, u"total"_s}));
    database::LectorFilas lector{*copia.filas};
    ASSERT_TRUE(lector.siguiente());
    EXPECT_EQ(lector.valor(0), Valor{u"a"_s});
    EXPECT_EQ(lector.valor(1), Valor{4.0});
    ASSERT_TRUE(lector.siguiente());
    EXPECT_EQ(lector.valor(1), Valor{2.0});
    EXPECT_FALSE(lector.siguiente());
}

TEST(CopiaFilas, RowsStayWhenTheTableIsEmptied)
{
    prueba::TiendaDePrueba tienda;
    tienda.ejecutaListados(u"insert into informes (texto1) values ('a')"_s);
    const CopiaFilas copia = copiaFilas(con(u"select * from informes"_s), tienda.entorno());
    tienda.ejecutaListados(u"delete * from informes"_s);
    EXPECT_EQ(copia.filas->filas(), 1);
}

TEST(CopiaFilas, WhatIsNoQueryIsRefusedWithItsPlace)
{
    prueba::TiendaDePrueba tienda;
    for (const QString& sentencia : {u"delete * from informes"_s, u"select from"_s, u"select * from notiene"_s}) {
        try {
            static_cast<void>(copiaFilas(con(sentencia), tienda.entorno()));
            ADD_FAILURE() << qPrintable(sentencia);
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.numero(), ErrorEjecucion::SentenciaRechazada);
            EXPECT_TRUE(error.descripcion().endsWith(u"prueba.rpt, línea 4"_s)) << error.what();
        }
    }
}

} // namespace
} // namespace kestrane::report
