#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

class OrdenFilas : public Conformidad
{
protected:
    OrdenFilas()
    {
        tabla(u"ventas"_s, {largo(u"numero"_s), largo(u"cliente"_s), texto(u"tienda"_s), fecha(u"dia"_s)});
        tabla(u"lineas"_s, {largo(u"venta"_s), largo(u"empleado"_s), texto(u"tipo"_s, 6)});
    }

    void meteVentas(std::initializer_list<std::pair<int, QString>> ventas)
    {
        for (const auto& [numero, valores] : ventas)
            tienda().Execute(u"insert into ventas (numero,cliente,tienda,dia) values (%1,%2)"_s.arg(numero).arg(valores));
    }
    void meteLineas(std::initializer_list<QString> lineas)
    {
        for (const QString& linea : lineas)
            tienda().Execute(u"insert into lineas (venta,empleado,tipo) values (%1)"_s.arg(linea));
    }
};

TEST_F(OrdenFilas, OneTableGivesItsRowsAsTheyWereInserted)
{
    meteVentas({{3, u"1,'a',null"_s}, {1, u"1,'a',null"_s}, {2, u"1,'a',null"_s}});
    EXPECT_EQ(filas(u"select numero from ventas"_s), "3|1|2|");
    EXPECT_EQ(filas(u"select numero from ventas where cliente = 1"_s), "3|1|2|");
}

TEST_F(OrdenFilas, AnUpdatedRowKeepsItsPlace)
{
    meteVentas({{3, u"1,'a',null"_s}, {1, u"1,'a',null"_s}, {2, u"1,'a',null"_s}});
    ejecuta({u"update ventas set tienda = 'b' where numero = 3"_s});
    EXPECT_EQ(filas(u"select numero from ventas"_s), "3|1|2|");
}

TEST_F(OrdenFilas, ARangeOfDatesKeepsTheOrderOfInsertion)
{
    meteVentas({{3, u"1,'a',#03/20/2024#"_s}, {1, u"1,'a',#03/18/2024#"_s}, {2, u"1,'a',#03/19/2024#"_s}});
    EXPECT_EQ(filas(u"select numero from ventas where dia between #03/18/2024# and #03/20/2024#"_s), "3|1|2|");
}

TEST_F(OrdenFilas, AJoinFollowsTheFirstTableOfFromThenTheSecond)
{
    meteVentas({{20, u"1,'a',null"_s}, {10, u"1,'a',null"_s}});
    meteLineas({u"10,3,'S'"_s, u"20,7,'S'"_s, u"10,5,'S'"_s, u"20,1,'S'"_s});
    EXPECT_EQ(filas(u"select numero,empleado from ventas, lineas where ventas.numero = lineas.venta"_s), "20,7|20,1|10,3|10,5|");
    EXPECT_EQ(filas(u"select numero,empleado from lineas, ventas where ventas.numero = lineas.venta"_s), "10,3|20,7|10,5|20,1|");
    EXPECT_EQ(filas(u"select numero,empleado from ventas inner join lineas on ventas.numero = lineas.venta"_s),
              "20,7|20,1|10,3|10,5|");
}

TEST_F(OrdenFilas, AnOuterJoinKeepsTheRowsWithoutAPartnerInTheirPlace)
{
    meteVentas({{20, u"1,'a',null"_s}, {15, u"1,'a',null"_s}, {10, u"1,'a',null"_s}});
    meteLineas({u"10,3,'S'"_s, u"20,7,'S'"_s});
    EXPECT_EQ(filas(u"select numero,empleado from ventas left join lineas on ventas.numero = lineas.venta"_s),
              "20,7|15,NULL|10,3|");
}

TEST_F(OrdenFilas, GroupsAscendByTheirColumnsAndIgnoreCase)
{
    meteVentas({{1, u"7,'Zoe',null"_s},
                {2, u"3,'ana',null"_s},
                {3, u"7,'ÑU',null"_s},
                {4, u"3,'Ana',null"_s},
                {5, u"3,null,null"_s},
                {6, u"3,'ñu',null"_s}});
    EXPECT_EQ(filas(u"select count(numero) as n from ventas group by tienda"_s), "1|2|2|1|");
    EXPECT_EQ(filas(u"select cliente, sum(numero) as s from ventas group by cliente"_s), "3,17|7,4|");
}

TEST_F(OrdenFilas, DistinctAscendsByTheSelectListAndIgnoresCase)
{
    meteLineas({u"2,5,'S'"_s, u"1,9,'P'"_s, u"2,5,'s'"_s, u"1,3,'P'"_s});
    EXPECT_EQ(filas(u"select distinct(venta),empleado from lineas"_s), "1,3|1,9|2,5|");
    EXPECT_EQ(filas(u"select distinct venta,empleado from lineas"_s), "1,3|1,9|2,5|");
}

TEST_F(OrdenFilas, EqualKeysFallBackOnTheOrderOfInsertion)
{
    meteVentas({{5, u"2,'a',null"_s}, {4, u"1,'a',null"_s}, {3, u"2,'A',null"_s}, {2, u"1,'a',null"_s}});
    EXPECT_EQ(filas(u"select numero from ventas order by cliente"_s), "4|2|5|3|");
    EXPECT_EQ(filas(u"select numero from ventas order by cliente desc"_s), "5|3|4|2|");
    EXPECT_EQ(filas(u"select numero from ventas order by tienda"_s), "5|4|3|2|");
}

TEST_F(OrdenFilas, NullsComeFirstAscendingAndLastDescending)
{
    meteVentas({{1, u"2,'b',#01/02/2024#"_s}, {2, u"null,null,null"_s}, {3, u"1,'a',#01/01/2024#"_s}});
    for (const QString& clave : {u"cliente"_s, u"tienda"_s, u"dia"_s}) {
        EXPECT_EQ(filas(u"select numero from ventas order by "_s + clave), "2|3|1|");
        EXPECT_EQ(filas(u"select numero from ventas order by "_s + clave + u" desc"_s), "1|3|2|");
    }
}

TEST_F(OrdenFilas, TextsSortAsInSpanish)
{
    meteVentas({{1, u"0,'Zoe',null"_s},
                {2, u"0,'ñandú',null"_s},
                {3, u"0,'Álvaro',null"_s},
                {4, u"0,'oso',null"_s},
                {5, u"0,'nube',null"_s},
                {6, u"0,'ana',null"_s},
                {7, u"0,'12',null"_s},
                {8, u"0,'',null"_s},
                {9, u"0,'Ana María',null"_s}});
    EXPECT_EQ(filas(u"select numero from ventas order by tienda"_s), "8|7|3|6|9|5|2|4|1|");
}

TEST_F(OrdenFilas, CharactersSortInOneOrderOnEveryEngine)
{
    const QString orden = u" _-,;:!¡?¿.·'\"«»()[]{}§¶@*/\\&#%`´^¯¨¸°©®+±÷×<=>¬|¦~¤¢$£¥€012345\
6789aáàâåäãbcçdðeéèêëfghiíìîïjklmnñoóòôöõøpqrstuúùûüvwxyýÿzþ"_s;
    Recordset altas;
    altas.Open(u"ventas"_s, tienda(), CursorType::Keyset);
    for (qsizetype i = 0; i < orden.size(); ++i) {
        altas.AddNew();
        altas.Fields(u"numero") = static_cast<qint32>(i * 37 % orden.size());
        altas.Fields(u"tienda") = u"x"_s + orden[i * 37 % orden.size()] + u"y"_s;
        altas.Update();
    }
    Recordset leidas;
    leidas.Open(u"select tienda from ventas order by tienda"_s, tienda());
    QString leido;
    for (Recordset& fila : leidas)
        leido += fila.Fields(0).texto()[1];
    EXPECT_EQ(leido, orden);
}

TEST_F(OrdenFilas, CapitalsSortAndGroupWithTheirSmallLetters)
{
    const QString letras = u"aÁñçøþ"_s;
    for (const QChar letra : letras) {
        tienda().Execute(u"insert into ventas (tienda) values ('%1')"_s.arg(letra.toLower()));
        tienda().Execute(u"insert into ventas (tienda) values ('%1')"_s.arg(letra.toUpper()));
    }
    EXPECT_EQ(filas(u"select count(tienda) from ventas group by tienda"_s), "2|2|2|2|2|2|");
}

TEST_F(OrdenFilas, TopGivesExactlyThatMany)
{
    meteVentas({{1, u"5,'a',null"_s}, {2, u"6,'a',null"_s}, {3, u"6,'a',null"_s}, {4, u"6,'a',null"_s}});
    EXPECT_EQ(filas(u"select top 2 numero from ventas order by cliente desc"_s), "2|3|");
}

} // namespace
} // namespace kestrane::database::conformidad
