#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

/// What a layer that only hands texts through gets wrong without an error: seen on rows.
class Dialecto : public Conformidad
{
protected:
    Dialecto()
    {
        tabla(u"clientes"_s,
              {largo(u"codigo"_s), texto(u"nombre"_s), texto(u"tienda"_s), siNo(u"borrar"_s), fecha(u"UltimaVisita"_s)});
        tabla(u"ventas"_s, {largo(u"numero"_s), fecha(u"fechaventa"_s), fecha(u"hora"_s), texto(u"tienda"_s)});
        tabla(u"informes"_s, {doble(u"numerico1"_s), doble(u"numerico3"_s), fecha(u"fecha3"_s), texto(u"texto10"_s, 255)},
              Base::Listados);
    }
    void cliente(const QString& valores)
    {
        tienda().Execute(u"insert into clientes (codigo,nombre,tienda,borrar) values (%1)"_s.arg(valores));
    }
};

TEST_F(Dialecto, DifferentFromNullMeansNotNull)
{
    for (const QString& codigo : {u"1"_s, u"2"_s, u"null"_s})
        cliente(codigo + u",'x','c',0"_s);
    EXPECT_EQ(filas(u"select codigo from clientes where codigo <> null and borrar = false"_s), "1|2|");
    EXPECT_EQ(filas(u"select codigo from clientes where codigo = null"_s), "");
}

TEST_F(Dialecto, LikeIgnoresCaseAndNeverFindsNull)
{
    int codigo = 0;
    for (const QString& tienda :
         {u"'CENTRO'"_s, u"'centro'"_s, u"'Gran Centro'"_s, u"'Centro Sur'"_s, u"null"_s, u"''"_s, u"'ESPAÑA'"_s})
        cliente(u"%1,'x',%2,0"_s.arg(++codigo).arg(tienda));
    EXPECT_EQ(filas(u"select codigo from clientes where codigo <> 0and tienda like '%Centro'order by codigo"_s), "1|2|3|");
    EXPECT_EQ(filas(u"select codigo from clientes where tienda like '%'"_s), "1|2|3|4|6|7|");
    EXPECT_EQ(filas(u"select codigo from clientes where tienda like '%España'"_s), "7|");
    EXPECT_EQ(filas(u"select codigo from clientes where tienda like 'Centro'"_s), "1|2|");
    EXPECT_EQ(filas(u"select codigo from clientes where tienda like 'Centro%'"_s), "1|2|4|");
    EXPECT_EQ(filas(u"select codigo from clientes where tienda like '_entro'"_s), "1|2|");
}

TEST_F(Dialecto, EqualityOfTextsIgnoresCaseAndNothingElse)
{
    cliente(u"1,'Núñez','a',0"_s);
    cliente(u"2,'NÚÑEZ','a',0"_s);
    cliente(u"3,'Nuñez','a',0"_s);
    cliente(u"4,'Núñez ','a',0"_s);
    EXPECT_EQ(filas(u"select codigo from clientes where nombre = 'núñez'"_s), "1|2|");
    EXPECT_EQ(filas(u"select codigo from clientes where nombre <> 'núñez'"_s), "3|4|");
    EXPECT_EQ(filas(u"select codigo from clientes where nombre in ('NUÑEZ','x')"_s), "3|");
    EXPECT_EQ(filas(u"select count(codigo) from clientes group by nombre"_s), "1|2|1|");
}

TEST_F(Dialecto, APatternHasNoEscape)
{
    cliente(u"1,'a\\b','x',0"_s);
    cliente(u"2,'[a]','x',0"_s);
    EXPECT_EQ(filas(u"select codigo from clientes where nombre like 'a\\b%'"_s), "1|");
    EXPECT_EQ(filas(u"select codigo from clientes where nombre like '[a]'"_s), "2|");
}

TEST_F(Dialecto, FlagsAreMinusOneAndZeroHoweverTheyAreAskedFor)
{
    cliente(u"1,'x','a',0"_s);
    cliente(u"2,'x','a',-1"_s);
    cliente(u"3,'x','a',true"_s);
    for (const QString& condicion : {u"borrar=false"_s, u"borrar = 0"_s, u"borrar= 0"_s})
        EXPECT_EQ(filas(u"select codigo from clientes where "_s + condicion), "1|") << qPrintable(condicion);
    for (const QString& condicion : {u"borrar=-1"_s, u"borrar = true"_s})
        EXPECT_EQ(filas(u"select codigo from clientes where "_s + condicion), "2|3|") << qPrintable(condicion);
}

TEST_F(Dialecto, SignsAddUp)
{
    listados().Execute(u"insert into informes (texto10) values ('x')"_s);
    listados().Execute(u"update informes set numerico3 = --5.5"_s);
    EXPECT_EQ(filas(u"select numerico3 from informes"_s, listados()), "5.5|");
    listados().Execute(u"update informes set numerico3 = -0"_s);
    EXPECT_EQ(filas(u"select numerico3 from informes"_s, listados()), "0|");
    listados().Execute(u"update informes set numerico3 = -1.4210854715202E-14"_s);
    EXPECT_EQ(filas(u"select numerico3 from informes"_s, listados()), "-1.4210854715202e-14|");
}

TEST_F(Dialecto, QuotedNumbersAndDatesAreReadByTheRegionalSettings)
{
    listados().Execute(u"insert into informes (fecha3,numerico1,texto10) values ('15/03/2024','12,5','100')"_s);
    EXPECT_EQ(filas(u"select fecha3,numerico1,texto10 from informes"_s, listados()), "2024-03-15,12.5,'100'|");
    EXPECT_EQ(error([&] { listados().Execute(u"insert into informes (numerico1) values ('')"_s); }),
              ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(error([&] { listados().Execute(u"insert into informes (fecha3) values ('')"_s); }),
              ErrorEjecucion::SentenciaRechazada);
}

TEST_F(Dialecto, APeriodEndsAtTheMidnightOfItsLastDay)
{
    ejecuta({u"insert into ventas (numero,fechaventa) values (1,#03/20/2024#)"_s,
             u"insert into ventas (numero,fechaventa) values (2,#03/14/2024#)"_s});
    Recordset rs;
    rs.Open(u"ventas"_s, tienda(), CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"numero") = 3;
    rs.Fields(u"fechaventa") = *Fecha::deCalendario(2024, 3, 20, 10);
    rs.Update();
    EXPECT_EQ(filas(u"select numero from ventas where fechaventa between #03/15/2024# and #03/20/2024#"_s), "1|");
    EXPECT_EQ(filas(u"select numero from ventas where fechaventa between #12/30/1899# and #03/20/2024#"_s), "1|2|");
}

TEST_F(Dialecto, TheHourOfATimeIsItsNumber)
{
    Recordset rs;
    rs.Open(u"ventas"_s, tienda(), CursorType::Keyset);
    for (const QString& hora : {u"9:05"_s, u"08:59"_s, u"22:30"_s}) {
        rs.AddNew();
        rs.Fields(u"hora") = hora;
        rs.Update();
    }
    EXPECT_EQ(filas(u"select hora from ventas where hour(hora) = 8"_s), "08:59:00|");
    EXPECT_EQ(filas(u"select hora from ventas where hour(hora) = 9"_s), "09:05:00|");
    EXPECT_EQ(filas(u"select hora from ventas where hour(hora) = 22"_s), "22:30:00|");
    EXPECT_EQ(filas(u"select hora from ventas where month(fechaventa) = 12"_s), "") << "Null in, null out";
}

TEST_F(Dialecto, NullsComeFirstInAListByLastVisit)
{
    cliente(u"1,'x','a',0"_s);
    cliente(u"2,'x','a',0"_s);
    ejecuta({u"update clientes set UltimaVisita = #03/15/2024# where codigo = 1"_s});
    EXPECT_EQ(filas(u"select codigo from clientes order by UltimaVisita"_s), "2|1|");
}

TEST_F(Dialecto, TheGreatestOfNoRowsIsOneRowOfNull)
{
    EXPECT_EQ(filas(u"select max(fechaventa) as fecha from ventas"_s), "NULL|");
    EXPECT_EQ(filas(u"select count(numero), sum(numero) from ventas"_s), "0,NULL|");
}

TEST_F(Dialecto, ASortKeyMayBeAnExpressionOverTheResultAlone)
{
    ejecuta({u"insert into ventas (numero,tienda) values (3,'Centro')"_s,
             u"insert into ventas (numero,tienda) values (1,'Centro')"_s,
             u"insert into ventas (numero,tienda) values (2,'Gran Centro')"_s});
    EXPECT_EQ(filas(u"select numero from (ventas)"_s).size(), filas(u"select numero from ventas"_s).size());
    Recordset rs;
    rs.Open(u"Select * from ventas where tienda like '%Centro' order by numero and tienda like '%Centro'"_s, tienda());
    std::string numeros;
    for (Recordset& fila : rs)
        numeros += enPalabras(fila.Fields(u"numero")) + "|";
    EXPECT_EQ(numeros, "3|1|2|");
}

TEST_F(Dialecto, WhatTheDialectRefusesIsRefusedOnEmptyTablesToo)
{
    Recordset rs;
    for (
        const QString& texto :
        {u"Select A.* from clientes A, ventas C where A.codigo = C.numero order by A.nombre,A.codigo  and C.tienda like '%Centro'"_s,
         u"select * from clientes where clientes.codigoand clientes.tienda like '%Centro'"_s,
         u"(select codigo from  where codigo = 7)"_s, u"select codigo from  where codigo = 7"_s,
         u"select * from clientes where nombre = 'O'Donnell'"_s, u"select * from clientes where codigo = "_s,
         u"select nada from clientes"_s, u"select * from nada"_s, u"drop table clientes"_s, u""_s}) {
        EXPECT_EQ(error([&] { rs.Open(texto, tienda()); }), ErrorEjecucion::SentenciaRechazada) << qPrintable(texto);
        EXPECT_FALSE(ultimaDescripcion().isEmpty());
        EXPECT_FALSE(rs.abierto());
    }
}

TEST_F(Dialecto, ARefusedStatementLeavesTheDatabaseAsItWas)
{
    cliente(u"1,'Ana','a',0"_s);
    for (const QString& texto :
         {u"update clientes set nombre = 'x', codigo = 'doce'"_s, u"insert into clientes (codigo,nombre) values (2,'Eva','más')"_s,
          u"insert into clientes (codigo,nombre,borrar) values (2,'%1',0)"_s.arg(QString(51, u'x')),
          u"delete from clientes where apodo = 1"_s, u"insert into clientes (codigo,borrar) values (2,null)"_s}) {
        EXPECT_EQ(errorDe(texto), ErrorEjecucion::SentenciaRechazada) << qPrintable(texto);
        EXPECT_EQ(filas(u"select codigo,nombre from clientes"_s), "1,'Ana'|") << qPrintable(texto);
    }
}

TEST_F(Dialecto, ExecuteTellsHowManyRowsItWrote)
{
    EXPECT_EQ(tienda().Execute(u"insert into clientes (codigo,borrar) values (1,0)"_s), 1);
    EXPECT_EQ(tienda().Execute(u"insert into clientes (codigo,borrar) values (2,0)"_s), 1);
    EXPECT_EQ(tienda().Execute(u"update clientes set nombre = 'x'"_s), 2);
    EXPECT_EQ(tienda().Execute(u"update clientes set nombre = 'y' where codigo = 9"_s), 0);
    EXPECT_EQ(tienda().Execute(u"Delete * from clientes"_s), 2);
    EXPECT_EQ(tienda().Execute(u"select * from clientes"_s), 0);
}

} // namespace
} // namespace kestrane::database::conformidad
