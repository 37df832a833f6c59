// Columns of the servers' own type of truths (PostgreSQL's boolean, MariaDB's bit), in tables that somebody else made.

#include "platform/database/conexion.h"
#include "platform/database/odbc/servidor.h"
#include "platform/database/recordset.h"

namespace kestrane::database::odbc {
namespace {

class VerdadesAjenas : public Servidor
{
protected:
    VerdadesAjenas()
    {
        ejecuta(u"drop table if exists ajena"_s);
        ejecuta(segun(u"create table ajena (codigo integer primary key, activo boolean, visible boolean not null default true)",
                      u"create table ajena (codigo int primary key, activo bit(1), visible bit(1) not null default b'1')"));
        ejecuta(segun(u"insert into ajena values (1, true, true), (2, false, true), (3, null, false), (4, true, false)",
                      u"insert into ajena values (1, b'1', b'1'), (2, b'0', b'1'), (3, null, b'0'), (4, b'1', b'0')"));
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
    std::string codigos(const QString& condicion) { return leidas(u"select codigo from ajena where "_s + condicion); }
    /// What the server itself holds: the codes of the rows where that column holds.
    std::string ciertas(const QString& columna)
    {
        return filas(u"select codigo from ajena where "_s + columna + segun(u" is true", u" = b'1'") + u" order by codigo"_s,
                     {TipoColumna::Entero32});
    }

    EntornoDatos m_entorno{opcionesDatos()};
    Conexion m_conexion{m_entorno};
};
KESTRANE_EN_TODOS(VerdadesAjenas);

TEST_P(VerdadesAjenas, AreReadAsFlags)
{
    EXPECT_EQ(leidas(u"select * from ajena"_s), "1,si,si|2,no,si|3,NULL,no|4,si,no|");
    Recordset rs;
    rs.Open(u"select activo from ajena where codigo = 1"_s, m_conexion);
    EXPECT_EQ(rs.columnas()[0].tipo, TipoColumna::SiNo);
    EXPECT_EQ(rs.Fields(u"activo").valor(), Valor{true});
}

TEST_P(VerdadesAjenas, CompareWithTrueFalseAndNumbers)
{
    EXPECT_EQ(codigos(u"activo = true"_s), "1|4|");
    EXPECT_EQ(codigos(u"activo = false"_s), "2|");
    EXPECT_EQ(codigos(u"activo = -1"_s), "1|4|");
    EXPECT_EQ(codigos(u"activo = 1"_s), "") << "a flag is -1 or 0";
    EXPECT_EQ(codigos(u"activo <> 0"_s), "1|4|");
    EXPECT_EQ(codigos(u"activo <> null"_s), "1|2|4|");
    EXPECT_EQ(codigos(u"activo is null"_s), "3|");
    EXPECT_EQ(codigos(u"activo in (true, 7)"_s), "1|4|");
    EXPECT_EQ(codigos(u"activo = visible"_s), "1|");
    EXPECT_EQ(codigos(u"codigo in (select codigo from ajena where visible = 0)"_s), "3|4|");
}

TEST_P(VerdadesAjenas, HoldAsConditions)
{
    EXPECT_EQ(codigos(u"activo"_s), "1|4|");
    EXPECT_EQ(codigos(u"not activo"_s), "2|");
    EXPECT_EQ(codigos(u"activo and not visible"_s), "4|");
}

TEST_P(VerdadesAjenas, CountAsMinusOneAndZero)
{
    EXPECT_EQ(leidas(u"select activo + 10 as a, -visible as b, activo * 2.5 as c from ajena where codigo < 3"_s),
              "9,1,-2.5|10,1,0|");
    EXPECT_EQ(leidas(u"select sum(activo) as s, count(activo) as n, max(activo) as m, min(activo) as x from ajena"_s),
              "-2,3,no,si|");
    EXPECT_EQ(leidas(u"select activo & '' as a from ajena where codigo < 4"_s), "'Verdadero'|'Falso'|''|");
}

TEST_P(VerdadesAjenas, GroupAndSort)
{
    EXPECT_EQ(leidas(u"select visible,count(*) as n from ajena group by visible"_s), "si,2|no,2|") << "-1 before 0";
    EXPECT_EQ(leidas(u"select codigo from ajena order by activo desc"_s), "2|1|4|3|");
    EXPECT_EQ(leidas(u"select distinct activo from ajena"_s), "NULL|si|no|");
}

TEST_P(VerdadesAjenas, StatementsWriteThem)
{
    m_conexion.Execute(u"insert into ajena (codigo,activo,visible) values (5,true,false)"_s);
    m_conexion.Execute(u"insert into ajena (codigo,activo,visible) values (6,null,-1)"_s);
    m_conexion.Execute(u"insert into ajena (codigo,activo) values (7,7)"_s);
    EXPECT_EQ(leidas(u"select * from ajena where codigo > 4"_s), "5,si,no|6,NULL,si|7,si,si|");
    m_conexion.Execute(u"update ajena set activo = false, visible = true where codigo in (1, 5)"_s);
    m_conexion.Execute(u"update ajena set activo = codigo > 6 where codigo > 5"_s);
    m_conexion.Execute(u"update ajena set visible = activo where codigo = 6"_s);
    m_conexion.Execute(u"update ajena set activo = null where codigo = 4"_s);
    EXPECT_EQ(ciertas(u"activo"_s), "7|");
    EXPECT_EQ(ciertas(u"visible"_s), "1|2|5|7|");
    EXPECT_EQ(codigos(u"activo is null"_s), "3|4|");
    m_conexion.Execute(u"delete from ajena where visible = true"_s);
    EXPECT_EQ(leidas(u"select codigo from ajena"_s), "3|4|6|");
}

TEST_P(VerdadesAjenas, ARecordsetWritesThem)
{
    Recordset rs;
    rs.Open(u"select * from ajena"_s, m_conexion, CursorType::Keyset);
    for (const int codigo : {5, 6, 7}) {
        rs.AddNew();
        rs.Fields(u"codigo") = codigo;
        rs.Fields(u"activo") = codigo == 7 ? Valor{} : Valor{codigo == 5};
        rs.Fields(u"visible") = Valor{codigo != 5};
        rs.Update();
    }
    rs.Close();
    EXPECT_EQ(leidas(u"select * from ajena where codigo > 4"_s), "5,si,no|6,no,si|7,NULL,si|");
    rs.Open(u"select * from ajena where codigo = 5"_s, m_conexion);
    rs.Fields(u"activo") = Valor{false};
    rs.Fields(u"visible") = 3;
    rs.Update();
    rs.Close();
    EXPECT_EQ(ciertas(u"activo"_s), "1|4|");
    EXPECT_EQ(ciertas(u"visible"_s), "1|2|5|6|7|");
}

TEST_P(VerdadesAjenas, ManyRowsAtOnceCarryThem)
{
    ejecuta(u"drop table if exists ajena"_s);
    ejecuta(segun(u"create table ajena (orden_ bigint generated always as identity primary key, codigo integer, activo boolean)",
                  u"create table ajena (orden_ bigint not null invisible auto_increment primary key, codigo int, activo bit(1))"));
    Conexion conexion{m_entorno};
    conexion.Open(u"dsn=Cualquiera"_s);
    Recordset rs;
    rs.Open(u"ajena"_s, conexion, CursorType::Keyset);
    for (int codigo = 1; codigo <= 600; ++codigo) {
        rs.AddNew();
        rs.Fields(u"codigo") = codigo;
        if (codigo % 3 != 0)
            rs.Fields(u"activo") = Valor{codigo % 3 == 1};
        rs.Update();
    }
    rs.Close();
    const QString cuantas = u"select count(*) as n from ajena where activo "_s;
    EXPECT_EQ(leidas(cuantas + u"= true"_s), "200|");
    EXPECT_EQ(leidas(cuantas + u"= false"_s), "200|");
    EXPECT_EQ(leidas(cuantas + u"is null"_s), "200|");
    EXPECT_EQ(leidas(u"select codigo from ajena where activo and codigo > 595"_s), "598|");
}

TEST_P(VerdadesAjenas, ATextIsNoFlag)
{
    EXPECT_THROW(m_conexion.Execute(u"update ajena set activo = 'si'"_s), ErrorEjecucion);
    EXPECT_THROW(static_cast<void>(codigos(u"activo = 'si'"_s)), ErrorEjecucion);
}

} // namespace
} // namespace kestrane::database::odbc
