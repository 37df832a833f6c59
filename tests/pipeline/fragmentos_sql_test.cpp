#include "pipeline/fragmentos_sql.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FragmentosSql : public testing::Test
{
protected:
    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
};

TEST_F(FragmentosSql, DaysAreWrittenMonthFirstWithoutTheirTime)
{
    EXPECT_EQ(diaSql(*Fecha::deCalendario(2024, 3, 5)), u"#03/05/2024#"_s);
    EXPECT_EQ(diaSql(*Fecha::deCalendario(2024, 12, 31, 23, 59)), u"#12/31/2024#"_s);
}

TEST_F(FragmentosSql, ThePeriodBeforeAnyDialogIsTheZeroDate)
{
    EXPECT_EQ(entreFechas(m_contexto), u"#12/30/1899# and #12/30/1899#"_s);
}

TEST_F(FragmentosSql, ThePeriodRunsFromTheFirstDayToTheLast)
{
    m_contexto.FechaDesde = *Fecha::deCalendario(2024, 2, 1);
    m_contexto.FechaHasta = *Fecha::deCalendario(2024, 2, 29);
    EXPECT_EQ(entreFechas(m_contexto), u"#02/01/2024# and #02/29/2024#"_s);
}

TEST_F(FragmentosSql, TheStorePatternHasAWildcardBeforeTheNameAloneAndEscapesNothing)
{
    EXPECT_EQ(patronTienda(m_contexto), u"'%'"_s);
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(patronTienda(m_contexto), u"'%Centro'"_s);
    m_contexto.TiendaSeleccionada = u"O'Donnell"_s;
    EXPECT_EQ(patronTienda(m_contexto), u"'%O'Donnell'"_s);
}

} // namespace
} // namespace kestrane
