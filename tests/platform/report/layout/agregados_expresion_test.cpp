#include "platform/report/layout/agregados_expresion.h"

#include "platform/report/layout/nodo_expresion.h"
#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(AgregadosExpresion, PorSuNombre)
{
    EXPECT_EQ(agregadoDeNombre(u"Media"), FuncionAgregado::Media);
    EXPECT_FALSE(agregadoDeNombre(u"mediana").has_value());
}

TEST(AgregadosExpresion, NivelDeGrupo)
{
    const QStringList grupos = {u"seccion"_s, u"dia"_s};
    EXPECT_EQ(nivelDeGrupo(grupos, u"DIA"), 2);
    EXPECT_EQ(nivelDeGrupo(grupos, u"seccion"), 1);
    EXPECT_EQ(nivelDeGrupo(grupos, u"informe"), 0);
    EXPECT_FALSE(nivelDeGrupo(grupos, u"mes").has_value());
}

TEST(AgregadosExpresion, LosIgualesCompartenSitioHastaElLimite)
{
    std::vector<Agregado> todos;
    const auto de = [](const QString& texto) { return expresionLiteral(texto, {}); };
    EXPECT_EQ(apuntaAgregado(todos, {FuncionAgregado::Suma, de(u"a"_s), 1}), 0);
    EXPECT_EQ(apuntaAgregado(todos, {FuncionAgregado::Suma, de(u"a"_s), 0}), 1);
    EXPECT_EQ(apuntaAgregado(todos, {FuncionAgregado::Suma, de(u"a"_s), 1}), 0);
    EXPECT_EQ(apuntaAgregado(todos, {FuncionAgregado::Cuenta, {}, 1}), 2);
    EXPECT_EQ(apuntaAgregado(todos, {FuncionAgregado::Cuenta, {}, 1}), 2);
    for (int i = 3; i < 500; ++i)
        EXPECT_EQ(apuntaAgregado(todos, {FuncionAgregado::Cuenta, {}, i}), i);
    EXPECT_FALSE(apuntaAgregado(todos, {FuncionAgregado::Cuenta, {}, 500}).has_value());
    EXPECT_EQ(apuntaAgregado(todos, {FuncionAgregado::Cuenta, {}, 499}), 499);
}

} // namespace
} // namespace kestrane::report
