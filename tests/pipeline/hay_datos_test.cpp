#include "pipeline/hay_datos.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

TEST(HayDatos, NoRowsIsNoData)
{
    TiendaDePrueba tienda;
    EXPECT_FALSE(HayDatos(tienda.listados()));
}

TEST(HayDatos, ARowOfInformesIsData)
{
    TiendaDePrueba tienda;
    tienda.ejecutaListados(u"insert into informes (texto1) values ('a')"_s);
    EXPECT_TRUE(HayDatos(tienda.listados()));
}

TEST(HayDatos, ARowOfAllNullsIsData)
{
    TiendaDePrueba tienda;
    tienda.ejecutaListados(u"insert into informes (texto1) values (null)"_s);
    EXPECT_TRUE(HayDatos(tienda.listados()));
}

TEST(HayDatos, AReportThatFillsSubinformesAloneHasData)
{
    TiendaDePrueba tienda;
    tienda.ejecutaListados(u"insert into subinformes (texto1) values ('a')"_s);
    EXPECT_TRUE(HayDatos(tienda.listados()));
}

TEST(HayDatos, AMissingTableIsTheDatabasesError)
{
    TiendaDePrueba tienda;
    tienda.quitaTablaListados(u"subinformes"_s);
    try {
        static_cast<void>(HayDatos(tienda.listados()));
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::SentenciaRechazada);
    }
}

} // namespace
} // namespace kestrane
