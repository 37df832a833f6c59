#include "pipeline/fragmentos_sql.h"

#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/soporte.h"

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

/// The store pattern in a statement over rows of several stores, one of them without a name.
class FragmentosSqlConFilas : public testing::Test
{
protected:
    FragmentosSqlConFilas()
    {
        m_puesto.tienda.ejecuta({u"insert into gastos (motivo, tienda) values ('de centro', 'Centro')"_s,
                                 u"insert into gastos (motivo, tienda) values ('de gran centro', 'Gran Centro')"_s,
                                 u"insert into gastos (motivo, tienda) values ('de centro sur', 'Centro Sur')"_s,
                                 u"insert into gastos (motivo, tienda) values ('de nadie', '')"_s,
                                 u"insert into gastos (motivo, tienda) values ('sin tienda', null)"_s});
        m_puesto.tienda.tienda().Close();
    }

    QString motivosDe(const QString& tienda)
    {
        m_puesto.contexto.TiendaSeleccionada = tienda;
        Recordset filas;
        filas.Open(u"Select motivo from gastos where tienda like "_s + patronTienda(m_puesto.contexto),
                   m_puesto.contexto.ConexionTienda);
        QStringList motivos;
        for (Recordset& fila : filas)
            motivos += fila.Fields(u"motivo").texto();
        return motivos.join(u", "_s);
    }

    prueba::PuestoDePrueba m_puesto;
};

TEST_F(FragmentosSqlConFilas, AStoreMatchesAllThatEndInItsName)
{
    EXPECT_EQ(motivosDe(u"Centro"_s), u"de centro, de gran centro"_s);
    EXPECT_EQ(motivosDe(u"Gran Centro"_s), u"de gran centro"_s);
    EXPECT_EQ(motivosDe(u"centro sur"_s), u"de centro sur"_s);
    EXPECT_EQ(motivosDe(u"Norte"_s), QString{});
}

TEST_F(FragmentosSqlConFilas, AllStoresAreAllRowsThatHaveOne)
{
    EXPECT_EQ(motivosDe({}), u"de centro, de gran centro, de centro sur, de nadie"_s);
}

TEST_F(FragmentosSqlConFilas, AnApostropheMakesTheStatementARefusedOne)
{
    EXPECT_EQ(prueba::numeroDeError([this] { return motivosDe(u"O'Donnell"_s); }), ErrorEjecucion::SentenciaRechazada);
}

} // namespace
} // namespace kestrane
