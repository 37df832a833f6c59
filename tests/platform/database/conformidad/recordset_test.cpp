#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

class Filas : public Conformidad
{
protected:
    Filas()
    {
        tabla(u"clientes"_s, {largo(u"codigo"_s), texto(u"Nombre"_s), doble(u"saldo"_s)});
        ejecuta({u"insert into clientes (codigo,nombre,saldo) values (1,'Ana',10)"_s,
                 u"insert into clientes (codigo,nombre,saldo) values (2,'Eva',20)"_s,
                 u"insert into clientes (codigo,nombre,saldo) values (2,'Eva',20)"_s,
                 u"insert into clientes (codigo,nombre,saldo) values (3,null,null)"_s});
    }
    const QString m_todas = u"select * from clientes"_s;
};

TEST_F(Filas, WhatIsNotThereIsAnErrorWithItsNumber)
{
    Recordset rs;
    EXPECT_EQ(error([&] { static_cast<void>(rs.Fields(u"codigo")); }), ErrorEjecucion::SentenciaRechazada) << "closed";
    rs.Open(m_todas, tienda());
    EXPECT_EQ(error([&] { static_cast<void>(rs.Fields(u"apodo").valor()); }), ErrorEjecucion::CampoInexistente);
    EXPECT_EQ(error([&] { static_cast<void>(rs.Fields(3).valor()); }), ErrorEjecucion::CampoInexistente);
    EXPECT_EQ(error([&] { static_cast<void>(rs.Fields(-1).valor()); }), ErrorEjecucion::CampoInexistente);
    rs.Open(u"select * from clientes where codigo = 99"_s, tienda());
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(error([&] { static_cast<void>(rs.Fields(u"codigo").valor()); }), ErrorEjecucion::SinRegistroActual);
    EXPECT_EQ(error([&] { rs.MoveNext(); }), ErrorEjecucion::SinRegistroActual);
    EXPECT_EQ(error([&] { rs.Delete(); }), ErrorEjecucion::SinRegistroActual);
}

TEST_F(Filas, TheFirstRowIsCurrentAndTheWalkEndsPastTheLast)
{
    Recordset rs;
    rs.Open(m_todas, tienda());
    std::string codigos;
    while (!rs.Eof()) {
        codigos += enPalabras(rs.Fields(u"codigo")) + " ";
        rs.MoveNext();
    }
    EXPECT_EQ(codigos, "1 2 2 3 ");
    EXPECT_EQ(error([&] { static_cast<void>(rs.Fields(u"codigo").valor()); }), ErrorEjecucion::SinRegistroActual);
}

TEST_F(Filas, ARangeForWalksFromTheCurrentRowOn)
{
    Recordset rs;
    rs.Open(m_todas, tienda());
    rs.MoveNext();
    int filas = 0;
    for (Recordset& fila : rs) {
        EXPECT_NE(fila.Fields(u"codigo").entero32(), 1);
        ++filas;
    }
    EXPECT_EQ(filas, 3);
}

TEST_F(Filas, TheCountIsExactAndComparesAsANumber)
{
    Recordset rs;
    rs.Open(m_todas, tienda());
    EXPECT_TRUE(rs.RecordCount() > 0);
    EXPECT_TRUE(rs.RecordCount() >= 4);
    EXPECT_FALSE(rs.RecordCount() >= 5);
    EXPECT_FALSE(rs.RecordCount() < 1);
    EXPECT_FALSE(rs.RecordCount() == 0);
    EXPECT_FALSE(rs.RecordCount() == 1);
    EXPECT_TRUE(rs.RecordCount() != 1);
    EXPECT_TRUE(rs.RecordCount() == 4);
    EXPECT_EQ(qint32{rs.RecordCount()}, 4);
    EXPECT_EQ(rs.Fields(u"codigo").entero32(), 1) << "counting moves nothing";
}

TEST_F(Filas, FieldsAreFoundInAnyCaseAndByPosition)
{
    Recordset rs;
    rs.Open(m_todas, tienda());
    EXPECT_EQ(rs.Fields(u"NOMBRE").texto(), u"Ana");
    EXPECT_EQ(rs.Fields(u"nombre").texto(), u"Ana");
    EXPECT_EQ(rs.Fields(1).texto(), u"Ana");
}

TEST_F(Filas, OfTwoFieldsOfOneNameTheOneNamedGoesBeforeTheOneFromTheAsterisk)
{
    tabla(u"historico"_s, {largo(u"cliente"_s), texto(u"nombre"_s)});
    ejecuta({u"insert into historico (cliente,nombre) values (1,'Antiguo')"_s});
    Recordset rs;
    rs.Open(u"select historico.*, clientes.nombre from historico, clientes where historico.cliente = clientes.codigo"_s, tienda());
    EXPECT_EQ(rs.Fields(u"nombre").texto(), u"Ana");
    rs.Open(u"select * from historico, clientes where historico.cliente = clientes.codigo"_s, tienda());
    EXPECT_EQ(rs.Fields(u"nombre").texto(), u"Antiguo");
}

TEST_F(Filas, ATextThatIsATableNameOpensTheTable)
{
    EXPECT_EQ(filas(u"CLIENTES"_s), filas(m_todas));
}

TEST_F(Filas, AStatementThatGivesNoRowsCannotBeOpened)
{
    Recordset rs;
    EXPECT_EQ(error([&] { rs.Open(u"delete from clientes"_s, tienda()); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(filas(u"select count(codigo) from clientes"_s), "4|");
}

TEST_F(Filas, RecordsetsNestAlsoThoseOfOneShape)
{
    std::string pares;
    Recordset fuera;
    fuera.Open(u"select codigo from clientes where codigo < 3"_s, tienda());
    for (Recordset& una : fuera) {
        Recordset dentro;
        dentro.Open(u"select codigo from clientes where codigo < 2"_s, tienda());
        for (Recordset& otra : dentro)
            pares += enPalabras(una.Fields(0)) + enPalabras(otra.Fields(0)) + " ";
    }
    EXPECT_EQ(pares, "11 21 21 ");
}

TEST_F(Filas, ARecordsetMayBeOpenedAgain)
{
    Recordset rs;
    rs.Open(u"select nombre from clientes where codigo = 1"_s, tienda());
    EXPECT_EQ(rs.Fields(0).texto(), u"Ana");
    rs.Open(u"select nombre from clientes where codigo = 2"_s, tienda());
    EXPECT_EQ(rs.Fields(0).texto(), u"Eva");
    rs.Close();
    EXPECT_FALSE(rs.abierto());
    rs.Close();
}

TEST_F(Filas, TheRowsAreThoseOfTheMomentOfOpening)
{
    Recordset rs;
    rs.Open(m_todas, tienda());
    EXPECT_TRUE(rs.RecordCount() > 0); // one row is read, the others are not
    tienda().Execute(u"update clientes set nombre = 'Nadie'"_s);
    tienda().Execute(u"delete from clientes where codigo = 3"_s);
    tienda().Execute(u"insert into clientes (codigo,nombre) values (4,'Nueva')"_s);
    std::string nombres;
    for (Recordset& fila : rs)
        nombres += enPalabras(fila.Fields(u"nombre")) + " ";
    EXPECT_EQ(nombres, "'Ana' 'Eva' 'Eva' NULL ");
}

TEST_F(Filas, AWriteByAnotherConnectionOfTheProgramFindsNoLockAndChangesNoOpenRows)
{
    Recordset rs;
    rs.Open(m_todas, tienda());
    EXPECT_TRUE(rs.RecordCount() > 0);
    otra(Base::Tienda)->Execute(u"Delete * from clientes"_s);
    EXPECT_EQ(qint32{rs.RecordCount()}, 4);
    EXPECT_EQ(filas(m_todas), "");
}

TEST_F(Filas, OnlyTheCurrentRowChangesAlsoAmongEqualOnes)
{
    Recordset rs;
    rs.Open(u"select * from clientes where codigo = 2"_s, tienda(), CursorType::Keyset);
    ASSERT_TRUE(rs.RecordCount() == 2);
    rs.Fields(u"saldo") = rs.Fields(u"saldo").doble() + 1.5;
    EXPECT_EQ(rs.Fields(u"saldo").doble(), 21.5) << "read back before Update";
    rs.Update();
    EXPECT_EQ(rs.Fields(u"saldo").doble(), 21.5) << "and after";
    EXPECT_EQ(filas(u"select codigo,saldo from clientes"_s), "1,10|2,21.5|2,20|3,NULL|");
}

TEST_F(Filas, MovingOnWritesWhatWasAssigned)
{
    Recordset rs;
    rs.Open(m_todas, tienda(), CursorType::Keyset);
    rs.Fields(u"nombre") = u"Ada"_s;
    rs.MoveNext();
    EXPECT_EQ(rs.Fields(u"nombre").texto(), u"Eva");
    EXPECT_EQ(filas(u"select nombre from clientes where codigo = 1"_s), "'Ada'|");
}

TEST_F(Filas, WhatIsAssignedAndNotWrittenIsDropped)
{
    {
        Recordset rs;
        rs.Open(m_todas, tienda(), CursorType::Keyset);
        rs.Fields(u"nombre") = u"Ada"_s;
        rs.Close();
    }
    EXPECT_EQ(filas(u"select nombre from clientes where codigo = 1"_s), "'Ana'|");
}

TEST_F(Filas, UpdateWithNothingAssignedWritesNothing)
{
    Recordset rs;
    rs.Open(m_todas, tienda(), CursorType::Keyset);
    rs.Update();
    rs.Fields(u"nombre") = u"Ana"_s;
    rs.Update();
    EXPECT_EQ(filas(u"select nombre from clientes where codigo = 1"_s), "'Ana'|");
}

TEST_F(Filas, OnlyTheCurrentRowIsDeletedAlsoAmongEqualOnes)
{
    Recordset rs;
    rs.Open(u"select * from clientes where codigo = 2"_s, tienda(), CursorType::Keyset);
    rs.MoveNext();
    rs.Delete();
    EXPECT_EQ(error([&] { static_cast<void>(rs.Fields(u"codigo").valor()); }), ErrorEjecucion::SinRegistroActual);
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(qint32{rs.RecordCount()}, 1);
    EXPECT_EQ(filas(u"select codigo from clientes"_s), "1|2|3|");
}

TEST_F(Filas, ARowThatIsGoneCannotBeChanged)
{
    Recordset rs;
    rs.Open(m_todas, tienda(), CursorType::Keyset);
    EXPECT_FALSE(rs.Eof());
    tienda().Execute(u"delete from clientes where codigo = 1"_s);
    rs.Fields(u"nombre") = u"Ada"_s;
    EXPECT_EQ(error([&] { rs.Update(); }), ErrorEjecucion::SentenciaRechazada);
}

TEST_F(Filas, TheRowsOfAJoinOrAGroupCannotBeChanged)
{
    for (const QString& texto : {u"select a.codigo from clientes a, clientes b where a.codigo = b.codigo"_s,
                                 u"select codigo from clientes group by codigo"_s}) {
        Recordset rs;
        rs.Open(texto, tienda());
        EXPECT_EQ(error([&] { rs.Fields(u"codigo") = 5; }), ErrorEjecucion::SentenciaRechazada) << qPrintable(texto);
        EXPECT_EQ(error([&] { rs.Delete(); }), ErrorEjecucion::SentenciaRechazada) << qPrintable(texto);
        EXPECT_EQ(error([&] { rs.AddNew(); }), ErrorEjecucion::SentenciaRechazada) << qPrintable(texto);
    }
}

TEST_F(Filas, ClosingTheConnectionEndsItsRecordsets)
{
    Recordset rs;
    rs.Open(m_todas, tienda());
    tienda().Close();
    EXPECT_FALSE(rs.abierto());
    EXPECT_EQ(error([&] { static_cast<void>(rs.Eof()); }), ErrorEjecucion::SentenciaRechazada);
}

TEST_F(Filas, AClosedConnectionSaysSo)
{
    Conexion cerrada{entorno()};
    EXPECT_EQ(error([&] { cerrada.Execute(u"delete from clientes"_s); }), ErrorEjecucion::ConexionImposible);
    cerrada.Close();
}

TEST_F(Filas, ALargeResultComesBackWholeAndInOrder)
{
    Recordset altas;
    altas.Open(m_todas, tienda(), CursorType::Keyset);
    for (int i = 0; i < 20'000; ++i) {
        altas.AddNew();
        altas.Fields(u"codigo") = 1000 + i;
        altas.Fields(u"nombre") = u"Cliente número "_s + QString::number(i);
        altas.Update();
    }
    Recordset rs;
    rs.Open(u"select * from clientes where codigo >= 1000"_s, tienda());
    int esperado = 1000;
    for (Recordset& fila : rs)
        ASSERT_EQ(fila.Fields(u"codigo").entero32(), esperado++);
    EXPECT_EQ(esperado, 21'000);
}

} // namespace
} // namespace kestrane::database::conformidad
