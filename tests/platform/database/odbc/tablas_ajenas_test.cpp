// Tables of a server that somebody else made, through a program's connection.

#include "platform/database/conexion.h"
#include "platform/database/odbc/servidor.h"
#include "platform/database/recordset.h"

namespace kestrane::database::odbc {
namespace {

class TablasAjenas : public Servidor
{
protected:
    TablasAjenas()
    {
        for (const QString& tabla : {u"ajena"_s, u"compuesta"_s, u"suelta"_s})
            ejecuta(u"drop table if exists "_s + tabla);
        ejecuta(segun(u"create table ajena (codigo integer primary key, dia date, hora time, activo boolean, total bigint, "
                      u"importe numeric(10, 2), nota varchar(20) default 'sin nota')",
                      u"create table ajena (codigo int primary key, dia date, hora time, activo bit(1), total bigint, "
                      u"importe decimal(10, 2), nota varchar(20) default 'sin nota')"));
        ejecuta(u"create table compuesta (serie varchar(5), numero int, nota varchar(20), primary key (serie, numero))"_s);
        ejecuta(u"create table suelta (a int)"_s);
        ejecuta(segun(u"insert into ajena values (2, '2024-03-05', '09:05:00', true, 5000000000, 12.5, 'x'), "
                      u"(1, null, null, false, null, null, null)",
                      u"insert into ajena values (2, '2024-03-05', '09:05:00', b'1', 5000000000, 12.5, 'x'), "
                      u"(1, null, null, b'0', null, null, null)"));
        m_conexion.Open(u"dsn=Cualquiera"_s);
    }
    /// The rows of a query through the connection.
    std::string leidas(const QString& sentencia)
    {
        Recordset rs;
        rs.Open(sentencia, m_conexion);
        std::string todas;
        for (Recordset& fila : rs) {
            for (int i = 0; i < static_cast<int>(fila.columnas().size()); ++i)
                todas += (i > 0 ? "," : "") + enPalabras(fila.Fields(i));
            todas += "|";
        }
        return todas;
    }
    QString rechazo(const std::function<void()>& accion)
    {
        try {
            accion();
        } catch (const ErrorEjecucion& error) {
            return error.descripcion();
        }
        return {};
    }

    EntornoDatos m_entorno{opcionesDatos()};
    Conexion m_conexion{m_entorno};
};
KESTRANE_EN_TODOS(TablasAjenas);

TEST_P(TablasAjenas, WithoutAnyKeyTheRefusalSaysThatThereIsNoOrder)
{
    const QString descripcion = rechazo([this] { static_cast<void>(leidas(u"select * from suelta"_s)); });
    EXPECT_TRUE(descripcion.contains(u"\"suelta\"")) << qPrintable(descripcion);
    EXPECT_TRUE(descripcion.contains(u"orden")) << qPrintable(descripcion);
}

TEST_P(TablasAjenas, TheirTypesAreReadAsTheDialectsAndRowsComeByTheirKey)
{
    EXPECT_EQ(leidas(u"select codigo,dia,activo,total,importe,nota from ajena"_s),
              "1,NULL,no,NULL,NULL,NULL|2,2024-3-5 0:0:0,si,5000000000,12.5,'x'|");
    EXPECT_EQ(leidas(u"select hour(hora) as h from ajena where codigo = 2"_s), "9|");
}

TEST_P(TablasAjenas, ATimeOfDayHasNoDay)
{
    EXPECT_EQ(leidas(u"select hora from ajena"_s), "NULL|1899-12-30 9:5:0|");
}

TEST_P(TablasAjenas, ARowIsAddedWithTheDefaultsAndChangedByItsKey)
{
    Recordset rs;
    rs.Open(u"select codigo,dia,total,nota from ajena"_s, m_conexion, CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"codigo") = 3;
    rs.Fields(u"dia") = *Fecha::deCalendario(2024, 12, 31);
    rs.Update();
    rs.Close();
    EXPECT_EQ(leidas(u"select codigo,dia,nota from ajena where codigo > 2"_s), "3,2024-12-31 0:0:0,'sin nota'|");
    rs.Open(u"select codigo,total,nota from ajena where codigo = 3"_s, m_conexion);
    rs.Fields(u"total") = 6e9;
    rs.Update();
    EXPECT_EQ(leidas(u"select total,nota from ajena where codigo = 3"_s), "6000000000,'sin nota'|");
    rs.Delete();
    EXPECT_EQ(leidas(u"select codigo from ajena"_s), "1|2|");
}

TEST_P(TablasAjenas, RowsAreAddedToATableWithAKeyOfTwoColumnsButNotChangedOneByOne)
{
    Recordset rs;
    rs.Open(u"select * from compuesta"_s, m_conexion, CursorType::Keyset);
    for (const int numero : {2, 1}) {
        rs.AddNew();
        rs.Fields(u"serie") = u"A"_s;
        rs.Fields(u"numero") = numero;
        rs.Update();
    }
    rs.Close();
    EXPECT_EQ(leidas(u"select * from compuesta"_s), "'A',1,NULL|'A',2,NULL|");
    rs.Open(u"select * from compuesta"_s, m_conexion);
    rs.Fields(u"nota") = u"x"_s;
    EXPECT_TRUE(rechazo([&] { rs.Update(); }).contains(u"distinguir sus filas"));
    EXPECT_TRUE(rechazo([&] { rs.Delete(); }).contains(u"distinguir sus filas"));
}

TEST_P(TablasAjenas, ARowWhoseHiddenNumberIsBeyondThirtyTwoBitsIsReadChangedAndDeleted)
{
    ejecuta(segun(u"insert into t (orden_, a) overriding system value values (5000000001, 7), (5000000002, 8)",
                  u"insert into t (orden_, a) values (5000000001, 7), (5000000002, 8)"));
    EXPECT_EQ(leidas(u"select a from t"_s), "7|8|");
    Recordset rs;
    rs.Open(u"select * from t"_s, m_conexion);
    rs.Fields(u"x") = u"cambiada"_s;
    rs.MoveNext();
    rs.Delete();
    EXPECT_EQ(leidas(u"select a,x from t"_s), "7,'cambiada'|");
}

} // namespace
} // namespace kestrane::database::odbc
