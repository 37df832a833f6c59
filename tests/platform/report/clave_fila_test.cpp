#include "platform/report/clave_fila.h"

#include "platform/report/informe_de_prueba.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

QByteArray clave(const Valor& valor, Sentido sentido = Sentido::Ascendente)
{
    QByteArray bytes;
    anadeClave(bytes, valor, sentido);
    return bytes;
}

TEST(ClaveFila, ValuesSortNullFirstThenByTheirKind)
{
    const Fecha dia = *Fecha::deCalendario(2024, 3, 5);
    const std::vector<Valor> enOrden{Valor{}, -1e300,          true,       -0.5,
                                     0.0,     qint16{1},       1.5,        qint32{2},
                                     1e300,   dia.masDias(-1), dia,        Fecha::deSerie(dia.diaDeSerie(), 1),
                                     u""_s,   u"Ana"_s,        u"ángel"_s, u"Nube"_s,
                                     u"ñu"_s, u"oca"_s,        u"oca "_s};
    for (size_t i = 1; i < enOrden.size(); ++i) {
        EXPECT_LT(clave(enOrden[i - 1]), clave(enOrden[i])) << i;
        EXPECT_GT(clave(enOrden[i - 1], Sentido::Descendente), clave(enOrden[i], Sentido::Descendente)) << i;
    }
}

TEST(ClaveFila, EqualValuesHaveEqualKeys)
{
    EXPECT_EQ(clave(u"CASA"_s), clave(u"casa"_s));
    EXPECT_NE(clave(u"casa"_s), clave(u"casá"_s));
    EXPECT_EQ(clave(0.0), clave(-0.0));
    EXPECT_EQ(clave(qint32{7}), clave(7.0));
}

TEST(ClaveFila, TheKeysOfSortingGroupsComeBeforeTheLayouts)
{
    prueba::LayoutDePrueba prueba;
    prueba.grupo(u"a"_s);
    prueba.grupo(u"b"_s).ordena = false;
    prueba.grupo(u"c"_s).descendente = true;
    prueba.layout.orden.push_back({prueba.expresion(u"d"_s), false});
    const QStringList columnas{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    EXPECT_EQ(ClavesFila::deOrden(prueba.layout, columnas).cuantas(), 3U);
    EXPECT_EQ(ClavesFila::deGrupos(prueba.layout, columnas).cuantas(), 3U);
    EXPECT_TRUE(ClavesFila::deOrden(Layout{}, columnas).vacias());
}

} // namespace
} // namespace kestrane::report
