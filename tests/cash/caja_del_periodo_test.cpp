#include "cash/caja_del_periodo.h"

#include "cash/prueba_caja.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::numeroDeError;

class CajaDelPeriodoTest : public prueba::PruebaCaja
{
protected:
    void cajaInicial(const QString& importe, const QString& tienda, const QString& fecha = u"#03/15/2024#"_s)
    {
        alta(u"caja_inicial"_s, u"fecha, tienda, importe"_s, u"%1, '%2', %3"_s.arg(fecha, tienda, importe));
    }
};

TEST_F(CajaDelPeriodoTest, APeriodIsOneDayWhateverItsTimes)
{
    EXPECT_TRUE(esDeUnDia(m_contexto));
    periodo(dia(2024, 3, 15, 8), dia(2024, 3, 15, 20));
    EXPECT_TRUE(esDeUnDia(m_contexto));
    periodo(dia(2024, 3, 15, 23), dia(2024, 3, 16));
    EXPECT_FALSE(esDeUnDia(m_contexto));
    periodo(dia(2024, 3, 16), dia(2024, 3, 15));
    EXPECT_FALSE(esDeUnDia(m_contexto));
}

TEST_F(CajaDelPeriodoTest, TheOpeningCashIsTheFirstRowOfTheDayAndStore)
{
    EXPECT_EQ(importeDeCajaInicial(m_listados), Valor{});
    cajaInicial(u"1"_s, u"Centro"_s, u"#03/14/2024#"_s);
    cajaInicial(u"10"_s, u"Centro Sur"_s);
    cajaInicial(u"100.5"_s, u"Gran Centro"_s);
    cajaInicial(u"1000"_s, u"Centro"_s);
    EXPECT_EQ(importeDeCajaInicial(m_listados), Valor{10.0});
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(importeDeCajaInicial(m_listados), Valor{100.5});
}

TEST_F(CajaDelPeriodoTest, AnOpeningCashWithoutAnAmountEndsTheRun)
{
    cajaInicial(u"null"_s, u"Centro"_s);
    EXPECT_EQ(numeroDeError([&] { return importeDeCajaInicial(m_listados); }), ErrorEjecucion::UsoNoValidoDeNull);
}

TEST_F(CajaDelPeriodoTest, ASumOfNothingIsZero)
{
    const QString suma = u"Select sum(importe) as valor from gastos"_s;
    EXPECT_EQ(sumaDelPeriodo(m_listados, suma), 0);
    alta(u"gastos"_s, u"importe"_s, u"12.5"_s);
    alta(u"gastos"_s, u"importe"_s, u"-2"_s);
    alta(u"gastos"_s, u"importe"_s, u"null"_s);
    EXPECT_EQ(sumaDelPeriodo(m_listados, suma), 10.5);
}

} // namespace
} // namespace kestrane
