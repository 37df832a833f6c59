#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

/// A table with a column of every type, whose only row is written and read again.
class Valores : public Conformidad
{
protected:
    Valores()
    {
        tabla(u"valores"_s, {largo(u"entero"_s), corto(u"corto"_s), doble(u"doble"_s), fecha(u"fecha"_s), texto(u"texto"_s, 255),
                             memo(u"memo"_s), siNo(u"flag"_s)});
    }

    /// Assigns, updates and reads back on another connection.
    Valor idaYVuelta(const QString& campo, const Valor& valor)
    {
        tienda().Execute(u"delete from valores"_s);
        Recordset filas;
        filas.Open(u"Select * from valores"_s, tienda(), CursorType::Keyset);
        filas.AddNew();
        filas.Fields(u"flag") = Valor{false};
        filas.Fields(campo) = valor;
        filas.Update();
        const auto conexion = otra(Base::Tienda);
        Recordset leidas;
        leidas.Open(u"select "_s + campo + u" from valores"_s, *conexion);
        return leidas.Fields(0).valor();
    }
};

TEST_F(Valores, NullComesBackAsNullAndTheEmptyTextAsTheEmptyText)
{
    for (const QString& campo : {u"entero"_s, u"corto"_s, u"doble"_s, u"fecha"_s, u"texto"_s, u"memo"_s})
        EXPECT_EQ(idaYVuelta(campo, Valor{}), Valor{}) << qPrintable(campo);
    EXPECT_EQ(idaYVuelta(u"texto"_s, u""_s), Valor{u""_s});
    EXPECT_EQ(idaYVuelta(u"memo"_s, u""_s), Valor{u""_s});
}

TEST_F(Valores, NumbersComeBackWithTheirTypeToTheLastBit)
{
    for (const qint32 entero : {0, 1, -1, 2147483647, -2147483647 - 1})
        EXPECT_EQ(idaYVuelta(u"entero"_s, entero), Valor{entero});
    for (const qint16 corto : {qint16{0}, qint16{32767}, qint16{-32768}})
        EXPECT_EQ(idaYVuelta(u"corto"_s, corto), Valor{corto});
    for (const double doble : {0.0, 0.1, -12.5, 1.4210854715202e-14, 1e300, 123456789.0123456})
        EXPECT_EQ(idaYVuelta(u"doble"_s, doble), Valor{doble});
}

TEST_F(Valores, FlagsComeBackAsFlags)
{
    EXPECT_EQ(idaYVuelta(u"flag"_s, true), Valor{true});
    EXPECT_EQ(idaYVuelta(u"flag"_s, false), Valor{false});
}

TEST_F(Valores, DatesOfAllCenturiesAndBareTimesComeBack)
{
    for (const Fecha dia : {*Fecha::deCalendario(2024, 2, 29), *Fecha::deCalendario(1899, 12, 29), *Fecha::deCalendario(1850, 1, 1),
                            *Fecha::deCalendario(9999, 12, 31), *Fecha::deCalendario(2024, 3, 15, 23, 59, 59), Fecha{},
                            Fecha::deSerie(0, 9 * 3600 + 5 * 60)})
        EXPECT_EQ(idaYVuelta(u"fecha"_s, dia), Valor{dia}) << enPalabras(dia);
}

TEST_F(Valores, TextsComeBackAsTheyWere)
{
    for (const QString& texto : {u"Peluquería Núñez"_s, u"ESPAÑA"_s, u" dos  blancos "_s, u"O'Donnell"_s, u"a\\b"_s, u"100%"_s,
                                 u"\"x\""_s, u"línea\r\notra\ttab"_s, u"€ 日本 \U0001F600"_s, u"#--'' ?"_s})
        EXPECT_EQ(idaYVuelta(u"texto"_s, texto), Valor{texto}) << qPrintable(texto);
}

TEST_F(Valores, TextsOfSixtyFourKilobytesComeBackWhole)
{
    const QString texto = QString(65'536, u'ñ') + u"fin"_s;
    EXPECT_EQ(idaYVuelta(u"memo"_s, texto), Valor{texto});
}

TEST_F(Valores, WhatIsWrittenByAStatementComesBackTheSame)
{
    ejecuta({u"insert into valores (entero,corto,doble,fecha,texto,memo,flag) values "
             "(-5,7,12.5,#03/15/2024#,'O''Donnell','línea\r\notra',true)"_s});
    EXPECT_EQ(filas(u"select * from valores"_s), "-5,7,12.5,2024-03-15,'O'Donnell','línea\r\notra',si|");
}

TEST_F(Valores, AFieldTakesWhatConvertsToItsType)
{
    EXPECT_EQ(idaYVuelta(u"doble"_s, u"12,5"_s), Valor{12.5});
    EXPECT_EQ(idaYVuelta(u"fecha"_s, u"1/2/2000"_s), Valor{*Fecha::deCalendario(2000, 2, 1)});
    EXPECT_EQ(idaYVuelta(u"fecha"_s, u"09:05"_s), Valor{Fecha::deSerie(0, 9 * 3600 + 5 * 60)});
    EXPECT_EQ(idaYVuelta(u"texto"_s, *Fecha::deCalendario(2024, 3, 5)), Valor{u"05/03/2024"_s});
    EXPECT_EQ(idaYVuelta(u"texto"_s, 12.5), Valor{u"12,5"_s});
    EXPECT_EQ(idaYVuelta(u"entero"_s, 2.5), Valor{2});
    EXPECT_EQ(idaYVuelta(u"doble"_s, true), Valor{-1.0});
}

TEST_F(Valores, AFieldRefusesWhatDoesNotConvertWhenItIsAssigned)
{
    Recordset filas;
    filas.Open(u"valores"_s, tienda(), CursorType::Keyset);
    filas.AddNew();
    EXPECT_EQ(error([&] { filas.Fields(u"doble") = u"doce"_s; }), ErrorEjecucion::TiposNoCoinciden);
    EXPECT_EQ(error([&] { filas.Fields(u"fecha") = u"mañana"_s; }), ErrorEjecucion::TiposNoCoinciden);
    EXPECT_EQ(error([&] { filas.Fields(u"corto") = 40000; }), ErrorEjecucion::Desbordamiento);
    EXPECT_EQ(error([&] { filas.Fields(u"entero") = 3e9; }), ErrorEjecucion::Desbordamiento);
    EXPECT_EQ(error([&] { filas.Fields(u"flag") = Valor{}; }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(error([&] { filas.Fields(u"texto") = QString(256, u'x'); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(ultimaDescripcion().contains(u"texto")) << qPrintable(ultimaDescripcion());
    EXPECT_TRUE(ultimaDescripcion().contains(u"256") && ultimaDescripcion().contains(u"255"));
    filas.Fields(u"texto") = QString(255, u'ñ');
    filas.Fields(u"flag") = Valor{true};
    filas.Update();
    EXPECT_EQ(this->filas(u"select doble,flag from valores"_s), "NULL,si|");
}

TEST_F(Valores, ExpressionsHaveTheTypeOfWhatTheyCompute)
{
    ejecuta({u"insert into valores (entero,doble,fecha,flag) values (3,1.5,#03/15/2024#,0)"_s,
             u"insert into valores (entero,doble,fecha,flag) values (4,2.5,#03/16/2024#,0)"_s});
    EXPECT_EQ(filas(u"select max(fecha) as f, count(entero) as n, sum(doble) as s, min(entero) as m from valores"_s),
              "2024-03-16,2,4,3|");
    EXPECT_EQ(filas(u"select max(fecha) from valores where entero = 9"_s), "NULL|");
    Recordset tipos;
    tipos.Open(u"select max(fecha) as f, count(entero) as n, sum(doble) as s from valores"_s, tienda());
    ASSERT_EQ(tipos.columnas().size(), 3u);
    EXPECT_EQ(tipos.columnas()[0].tipo, TipoColumna::FechaHora);
    EXPECT_EQ(tipos.columnas()[1].tipo, TipoColumna::Entero32);
    EXPECT_EQ(tipos.columnas()[2].tipo, TipoColumna::Doble);
}

} // namespace
} // namespace kestrane::database::conformidad
