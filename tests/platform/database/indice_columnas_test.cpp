#include "platform/database/indice_columnas.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;
using jet::ColumnaResultado;
using jet::TipoColumna;

ColumnaResultado nombrada(const QString& nombre)
{
    return {nombre, TipoColumna::Texto, 0, false};
}

ColumnaResultado deAsterisco(const QString& nombre)
{
    return {nombre, TipoColumna::Texto, 0, true};
}

TEST(IndiceColumnas, AnUnknownNameIsNotFound)
{
    const std::vector<ColumnaResultado> columnas{nombrada(u"codigo"_s)};
    const IndiceColumnas indice{columnas};
    EXPECT_EQ(indice.busca(u"cod"), -1);
    EXPECT_EQ(indice.busca(u""), -1);
    EXPECT_EQ(IndiceColumnas{}.busca(u"codigo"), -1);
}

TEST(IndiceColumnas, CaseDoesNotMatter)
{
    const std::vector<ColumnaResultado> columnas{nombrada(u"TEXTO35"_s), nombrada(u"Año"_s)};
    const IndiceColumnas indice{columnas};
    EXPECT_EQ(indice.busca(u"texto35"), 0);
    EXPECT_EQ(indice.busca(u"AÑO"), 1);
}

TEST(IndiceColumnas, TheOneNamedGoesBeforeTheOneFromTheAsterisk)
{
    const std::vector<ColumnaResultado> columnas{deAsterisco(u"nombre"_s), deAsterisco(u"coste"_s), nombrada(u"Nombre"_s)};
    const IndiceColumnas indice{columnas};
    EXPECT_EQ(indice.busca(u"nombre"), 2);
    EXPECT_EQ(indice.busca(u"coste"), 1);
}

TEST(IndiceColumnas, OfSeveralAlikeTheFirst)
{
    const std::vector<ColumnaResultado> asteriscos{deAsterisco(u"empleado"_s), deAsterisco(u"empleado"_s)};
    EXPECT_EQ(IndiceColumnas{asteriscos}.busca(u"empleado"), 0);
    const std::vector<ColumnaResultado> nombradas{nombrada(u"numero"_s), nombrada(u"numero"_s)};
    EXPECT_EQ(IndiceColumnas{nombradas}.busca(u"Numero"), 0);
}

TEST(IndiceColumnas, ManyColumnsAreAllFound)
{
    std::vector<ColumnaResultado> columnas;
    for (int i = 0; i < 200; ++i)
        columnas.push_back(deAsterisco(u"columna"_s + QString::number(i)));
    const IndiceColumnas indice{columnas};
    for (int i = 0; i < 200; ++i)
        EXPECT_EQ(indice.busca(u"COLUMNA"_s + QString::number(i)), i);
}

} // namespace
} // namespace kestrane::database
