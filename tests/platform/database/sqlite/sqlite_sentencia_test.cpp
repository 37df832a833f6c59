#include "platform/database/sqlite/sqlite_sentencia.h"

#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database::sqlite {
namespace {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

class SqliteSentenciaTest : public testing::Test
{
protected:
    std::unique_ptr<SentenciaMotor> prepara(const char* sql, std::vector<TipoColumna> resultado = {})
    {
        return m_motor.prepara(sql, {}, resultado);
    }

    BaseDePrueba m_base{"create table t (a INTEGER, b TEXT(50)); insert into t values (1, 'uno'), (2, 'dos'), (3, null)"};
    SqliteMotor m_motor{{m_base.fichero()}};
};

TEST_F(SqliteSentenciaTest, ANumberThatDoesNotFitItsTypeIsAnOverflow)
{
    m_base.ejecuta("insert into t values (3000000000, '')");
    const auto sentencia = prepara("select a from t where a > 5", {TipoColumna::Entero32});
    sentencia->ejecuta({});
    AlmacenFilas filas{1};
    EXPECT_THROW(static_cast<void>(sentencia->siguiente(filas)), ErrorEjecucion);
}

TEST_F(SqliteSentenciaTest, ATextThatIsNoNumberInAColumnOfNumbersIsRefusedWithItsColumn)
{
    m_base.ejecuta("create table n (precio DOUBLE, c INTEGER, s YESNO); insert into n values ('12,5', '7 u', 'si')");
    const std::pair<const char*, TipoColumna> columnas[] = {
        {"precio", TipoColumna::Doble}, {"c", TipoColumna::Entero32}, {"c", TipoColumna::Entero16}, {"s", TipoColumna::SiNo}};
    for (const auto& [nombre, tipo] : columnas) {
        const auto sentencia = prepara(("select " + std::string{nombre} + " from n").c_str(), {tipo});
        sentencia->ejecuta({});
        AlmacenFilas filas{1};
        try {
            static_cast<void>(sentencia->siguiente(filas));
            ADD_FAILURE() << nombre;
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.numero(), ErrorEjecucion::SentenciaRechazada);
            EXPECT_TRUE(error.descripcion().contains(u'"' + QString::fromLatin1(nombre) + u'"'));
        }
    }
}

TEST_F(SqliteSentenciaTest, ATextThatIsANumberFromEndToEndIsRead)
{
    const auto sentencia = prepara("select '12.5', '-7', ' 3 '", {TipoColumna::Doble, TipoColumna::Entero32, TipoColumna::Doble});
    sentencia->ejecuta({});
    AlmacenFilas filas{3};
    ASSERT_TRUE(sentencia->siguiente(filas));
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(0), Valor{12.5});
    EXPECT_EQ(filas.valor(1), Valor{-7});
    EXPECT_EQ(filas.valor(2), Valor{3.0});
}

TEST_F(SqliteSentenciaTest, ItRunsAgainWithOtherValues)
{
    const auto sentencia = prepara("select b from t where a = ?", {TipoColumna::Texto});
    AlmacenFilas filas{1};
    for (const qint32 clave : {1, 2, 9}) {
        const Ligado valor[] = {clave};
        sentencia->ejecuta(valor);
        EXPECT_EQ(sentencia->siguiente(filas), clave != 9);
        sentencia->reinicia();
    }
    ASSERT_EQ(filas.filas(), 2);
    ASSERT_TRUE(filas.siguiente());
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(0), Valor{u"dos"_s});
}

TEST_F(SqliteSentenciaTest, SeveralTextsAndDatesAreBoundAtOnce)
{
    const auto sentencia = prepara("select ? || ? || ? || ?", {TipoColumna::Texto});
    const QString largo(1000, u'ñ');
    const Ligado valores[] = {QStringView{largo}, Fecha::deSerie(45366, 0), QStringView{u"€"}, Fecha::deSerie(0, 60)};
    sentencia->ejecuta(valores);
    AlmacenFilas filas{1};
    ASSERT_TRUE(sentencia->siguiente(filas));
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(0), Valor{largo + u"2024-03-15€1899-12-30 00:01:00"_s});
}

TEST_F(SqliteSentenciaTest, ItTellsTheRowsThatItWrote)
{
    const auto cambio = prepara("update t set b = 'x' where a < ?");
    const Ligado tres[] = {qint32{3}};
    cambio->ejecuta(tres);
    EXPECT_EQ(cambio->afectadas(), 2);
    const Ligado ninguna[] = {qint32{0}};
    cambio->ejecuta(ninguna);
    EXPECT_EQ(cambio->afectadas(), 0);
}

TEST_F(SqliteSentenciaTest, AfterAnErrorItRunsAgain)
{
    m_base.ejecuta("create unique index i on t (a)");
    const auto alta = prepara("insert into t (a) values (?)");
    const Ligado repetida[] = {qint32{1}};
    EXPECT_THROW(alta->ejecuta(repetida), ErrorEjecucion);
    const Ligado nueva[] = {qint32{7}};
    alta->ejecuta(nueva);
    EXPECT_EQ(alta->afectadas(), 1);
}

TEST_F(SqliteSentenciaTest, AnEmptyTextIsNotNull)
{
    const auto sentencia = prepara("select ?, ?", {TipoColumna::Texto, TipoColumna::Texto});
    const Ligado valores[] = {QStringView{u""}, Nulo{}};
    sentencia->ejecuta(valores);
    AlmacenFilas filas{2};
    ASSERT_TRUE(sentencia->siguiente(filas));
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(0), Valor{u""_s});
    EXPECT_EQ(filas.valor(1), Valor{});
}

} // namespace
} // namespace kestrane::database::sqlite
