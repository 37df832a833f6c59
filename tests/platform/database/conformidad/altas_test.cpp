#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

/// Rows added through a recordset to a table of the reports database.
class Altas : public Conformidad
{
protected:
    Altas()
    {
        tabla(u"informes"_s,
              {texto(u"texto1"_s, 255), texto(u"texto33"_s, 255), doble(u"numerico1"_s), fecha(u"Fecha1"_s), largo(u"orden"_s)},
              Base::Listados);
        tablaConClave(u"claves"_s, {noNula(largo(u"codigo"_s)), texto(u"nombre"_s)}, Base::Listados);
        tabla(u"obligatorias"_s, {noNula(largo(u"codigo"_s)), texto(u"nombre"_s)}, Base::Listados);
    }
    void abre(Recordset& rs, const QString& tabla = u"informes"_s)
    {
        rs.Open(u"Select * from "_s + tabla, listados(), CursorType::Keyset, LockType::Optimistic);
    }
    static void anade(Recordset& rs, int orden)
    {
        rs.AddNew();
        rs.Fields(u"orden") = orden;
        rs.Update();
    }
    std::string ordenes(Conexion& conexion) { return filas(u"select orden from informes"_s, conexion); }
};

TEST_F(Altas, ARowIsAddedWithTheColumnsWrittenAndNullInTheOthers)
{
    Recordset rs;
    abre(rs);
    rs.AddNew();
    rs.Fields(u"TEXTO1") = u"Caja"_s;
    rs.Fields(u"numerico1") = 12.5;
    rs.Fields(u"fecha1") = *Fecha::deCalendario(2024, 3, 15);
    rs.Update();
    EXPECT_EQ(filas(u"select * from informes"_s, listados()), "'Caja',NULL,12.5,2024-03-15,NULL|");
}

TEST_F(Altas, AColumnOfTheRowBeingAddedReadsBack)
{
    Recordset rs;
    abre(rs);
    rs.AddNew();
    EXPECT_TRUE(rs.Fields(u"texto33").esNulo());
    rs.Fields(u"texto33") = u"Tienda = Centro"_s;
    rs.Fields(u"texto33") = rs.Fields(u"TEXTO33").texto() + u" B123"_s;
    rs.Update();
    EXPECT_EQ(rs.Fields(u"texto33").texto(), u"Tienda = Centro B123") << "the row added is the current one";
    EXPECT_EQ(filas(u"select texto33 from informes"_s, listados()), "'Tienda = Centro B123'|");
}

TEST_F(Altas, EachRowBeginsEmpty)
{
    Recordset rs;
    abre(rs);
    rs.AddNew();
    rs.Fields(u"texto1") = u"uno"_s;
    rs.Update();
    rs.AddNew();
    rs.Fields(u"numerico1") = 2;
    rs.Update();
    EXPECT_EQ(filas(u"select texto1,numerico1 from informes"_s, listados()), "'uno',NULL|NULL,2|");
}

TEST_F(Altas, RowsThatWroteDifferentColumnsKeepTheirOrder)
{
    Recordset rs;
    abre(rs);
    for (int i = 0; i < 7; ++i) {
        rs.AddNew();
        if (i % 2 == 0)
            rs.Fields(u"texto1") = u"par"_s;
        else
            rs.Fields(u"numerico1") = i;
        rs.Fields(u"orden") = i;
        if (i == 5)
            rs.Fields(u"texto33") = u"cinco"_s;
        rs.Update();
    }
    EXPECT_EQ(
        filas(u"select orden,texto1,numerico1,texto33 from informes"_s, listados()),
        "0,'par',NULL,NULL|1,NULL,1,NULL|2,'par',NULL,NULL|3,NULL,3,NULL|4,'par',NULL,NULL|5,NULL,5,'cinco'|6,'par',NULL,NULL|");
}

TEST_F(Altas, TheNextStatementOfTheSameConnectionSeesTheRows)
{
    Recordset rs;
    abre(rs);
    anade(rs, 1);
    anade(rs, 2);
    EXPECT_EQ(ordenes(listados()), "1|2|");
    listados().Execute(u"update informes set numerico1 = 5"_s);
    anade(rs, 3);
    EXPECT_EQ(filas(u"select orden,numerico1 from informes"_s, listados()), "1,5|2,5|3,NULL|");
}

TEST_F(Altas, AnotherConnectionOfTheProgramSeesTheRows)
{
    const auto segunda = otra(Base::Listados);
    Recordset rs;
    abre(rs);
    anade(rs, 1);
    EXPECT_EQ(ordenes(*segunda), "1|");
    segunda->Execute(u"Delete * from informes"_s);
    anade(rs, 2);
    EXPECT_EQ(ordenes(*segunda), "2|");
}

TEST_F(Altas, RowsOfTwoConnectionsKeepTheOrderInWhichTheyWereAdded)
{
    const auto segunda = otra(Base::Listados);
    Recordset una;
    abre(una);
    Recordset otra;
    otra.Open(u"informes"_s, *segunda, CursorType::Keyset);
    anade(una, 1);
    anade(otra, 2);
    anade(una, 3);
    EXPECT_EQ(ordenes(listados()), "1|2|3|");
}

TEST_F(Altas, RowsAddedStayWhenAnErrorRises)
{
    EXPECT_EQ(error([&] {
                  Recordset rs;
                  abre(rs);
                  anade(rs, 1);
                  rs.AddNew();
                  rs.Fields(u"orden") = 2;
                  throw ErrorEjecucion(ErrorEjecucion::DivisionPorCero);
              }),
              ErrorEjecucion::DivisionPorCero);
    EXPECT_EQ(ordenes(*otra(Base::Listados)), "1|") << "the row that was only begun is not there";
}

TEST_F(Altas, RowsAddedStayWhenAStatementIsRefused)
{
    Recordset rs;
    abre(rs);
    anade(rs, 1);
    EXPECT_EQ(error([&] { listados().Execute(u"insert into informes (texto1) values ('O'Donnell')"_s); }),
              ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(error([&] { listados().Execute(u"update informes set numerico1 = 'doce'"_s); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(ordenes(listados()), "1|");
}

TEST_F(Altas, TheProgramsErrorHandlerSendsThem)
{
    const auto segunda = std::make_unique<EntornoDatos>(entorno().opciones());
    Recordset rs;
    abre(rs);
    anade(rs, 1);
    EXPECT_TRUE(entorno().enviaPendientes());
    Conexion deOtroPrograma{*segunda};
    deOtroPrograma.Open(u"dsn=ListKestrane"_s);
    EXPECT_EQ(ordenes(deOtroPrograma), "1|");
}

TEST_F(Altas, ClosingOrReleasingSendsThem)
{
    EntornoDatos aparte{entorno().opciones()};
    Conexion deOtroPrograma{aparte};
    deOtroPrograma.Open(u"dsn=ListKestrane"_s);
    {
        Recordset rs;
        abre(rs);
        anade(rs, 1);
    }
    EXPECT_EQ(ordenes(deOtroPrograma), "1|") << "the recordset was released";
    Recordset rs;
    abre(rs);
    anade(rs, 2);
    rs.Close();
    EXPECT_EQ(ordenes(deOtroPrograma), "1|2|") << "the recordset was closed";
    abre(rs);
    anade(rs, 3);
    listados().Close();
    EXPECT_EQ(ordenes(deOtroPrograma), "1|2|3|") << "the connection was closed";
}

TEST_F(Altas, FiveHundredRowsAreSentTogether)
{
    EntornoDatos aparte{entorno().opciones()};
    Conexion deOtroPrograma{aparte};
    deOtroPrograma.Open(u"dsn=ListKestrane"_s);
    const QString cuenta = u"select count(orden) from informes"_s;
    Recordset rs;
    abre(rs);
    for (int i = 0; i < 499; ++i)
        anade(rs, i);
    EXPECT_EQ(filas(cuenta, deOtroPrograma), "0|");
    anade(rs, 499);
    EXPECT_EQ(filas(cuenta, deOtroPrograma), "500|");
}

TEST_F(Altas, ARowThatTheDatabaseWouldRefuseIsFoundWhenItIsAdded)
{
    Recordset rs;
    abre(rs, u"claves"_s);
    rs.AddNew();
    rs.Fields(u"codigo") = 1;
    rs.Update();
    rs.AddNew();
    rs.Fields(u"codigo") = 1;
    EXPECT_EQ(error([&] { rs.Update(); }), ErrorEjecucion::SentenciaRechazada) << "a key that is there already";
    EXPECT_EQ(filas(u"select codigo from claves"_s, listados()), "1|");

    Recordset otras;
    abre(otras, u"obligatorias"_s);
    otras.AddNew();
    otras.Fields(u"nombre") = u"sin código"_s;
    EXPECT_EQ(error([&] { otras.Update(); }), ErrorEjecucion::SentenciaRechazada) << "a column that must be written";
    EXPECT_EQ(error([&] { otras.Fields(u"codigo") = Valor{}; }), ErrorEjecucion::SentenciaRechazada);
    otras.Fields(u"codigo") = 5;
    otras.Update();
    EXPECT_EQ(filas(u"select codigo from obligatorias"_s, listados()), "5|");
}

TEST_F(Altas, RowsKeepTheirOrderAmongInsertStatements)
{
    Recordset rs;
    abre(rs);
    anade(rs, 1);
    listados().Execute(u"insert into informes (orden) values (2)"_s);
    anade(rs, 3);
    listados().Execute(u"Insert into informes (orden)  values (4)"_s);
    EXPECT_EQ(ordenes(listados()), "1|2|3|4|");
}

TEST_F(Altas, AddNewWritesTheRowBegunBefore)
{
    Recordset rs;
    abre(rs);
    rs.AddNew();
    rs.Fields(u"orden") = 1;
    rs.AddNew();
    rs.Fields(u"orden") = 2;
    rs.Update();
    EXPECT_EQ(ordenes(listados()), "1|2|");
}

TEST_F(Altas, TheCountHoldsTheRowsAddedSinceTheRowsWereRead)
{
    Recordset rs;
    abre(rs);
    anade(rs, 1);
    EXPECT_EQ(qint32{rs.RecordCount()}, 1);
    anade(rs, 2);
    EXPECT_TRUE(rs.RecordCount() == 2);
    EXPECT_FALSE(rs.Eof());
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
}

TEST_F(Altas, ARowIsFoundAgainAndChangedThroughAnotherRecordset)
{
    Recordset rs;
    abre(rs);
    for (const double importe : {1.5, 2.5}) {
        Recordset hallada;
        hallada.Open(u"Select * from informes where texto1 = 'S'"_s, listados(), CursorType::Keyset);
        if (hallada.RecordCount() > 0) {
            hallada.Fields(u"numerico1") = hallada.Fields(u"numerico1").doble() + importe;
            hallada.Update();
            continue;
        }
        rs.AddNew();
        rs.Fields(u"texto1") = u"S"_s;
        rs.Fields(u"numerico1") = importe;
        rs.Update();
    }
    EXPECT_EQ(filas(u"select texto1,numerico1 from informes"_s, listados()), "'S',4|");
}

} // namespace
} // namespace kestrane::database::conformidad
