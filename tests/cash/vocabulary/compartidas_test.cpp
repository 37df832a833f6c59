#include "cash/vocabulary/compartidas.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class CompartidasTest : public prueba::PruebaVocabulario
{
protected:
    CompartidasTest()
    {
        ejecuta({u"insert into empleados (codigo, Nombre) values (3, 'Triflar')"_s,
                 u"insert into empleados (codigo, Nombre, Apellidos) values (7, 'Luis', 'Paz')"_s,
                 u"insert into empleados (codigo, Nombre, Apellidos) values (5, 'Ana', 'Gil')"_s});
    }
    void parte(const QString& factura, const QString& codigo, const QString& tipo, const QString& empleado)
    {
        ejecuta(
            {u"insert into ventas_compartidas (num_factura, cod_detalle, tipo_venta, cod_empleado) values (%1, %2, '%3', %4)"_s.arg(
                factura, codigo, tipo, empleado)});
    }
    QString empleados(const LineaCompartida& linea) { return EmpleadosCompartida(m_listados, linea); }
    QString codigos(const LineaCompartida& linea) { return CodigosCompartida(m_listados, linea); }

    /// The short name of the line of sale 115, code 9, kind S, that holds this name.
    QString nombreCorto(const QString& nombre)
    {
        ejecuta({u"delete from detalle_factura"_s,
                 u"insert into detalle_factura (num_factura, codigo, tipo_venta, NombreEmpleado) values (1, 9, 'S', %1)"_s.arg(
                     nombre)});
        QString hallado;
        porCadaFila(u"Select * from detalle_factura"_s,
                    [&](Recordset& linea) { hallado = nombreCortoDeLinea(m_listados, qint32{115}, linea); });
        return hallado;
    }

    const LineaCompartida m_linea{qint32{115}, qint32{9}, u"S"_s};
};

TEST_F(CompartidasTest, TheSeedLosesItsFirstLetterAndTheNamesFollowByCode)
{
    parte(u"115"_s, u"9"_s, u"S"_s, u"7"_s);
    parte(u"115"_s, u"9"_s, u"S"_s, u"3"_s);
    EXPECT_EQ(empleados(m_linea), u"ompartida,Triflar ,Luis P"_s);
    EXPECT_EQ(codigos(m_linea), u"1,3,7"_s);
}

TEST_F(CompartidasTest, ALineThatNobodySharesKeepsWhatIsLeftOfTheSeed)
{
    EXPECT_EQ(empleados(m_linea), u"ompartida"_s);
    EXPECT_EQ(codigos(m_linea), u"1"_s);
}

TEST_F(CompartidasTest, OnlySharesOfThatSaleCodeAndKindCountAndTheKindWithoutCase)
{
    parte(u"115"_s, u"9"_s, u"s"_s, u"5"_s);
    parte(u"116"_s, u"9"_s, u"S"_s, u"3"_s);
    parte(u"115"_s, u"8"_s, u"S"_s, u"3"_s);
    parte(u"115"_s, u"9"_s, u"CB"_s, u"3"_s);
    EXPECT_EQ(empleados(m_linea), u"ompartida,Ana G"_s);
    EXPECT_EQ(codigos(m_linea), u"1,5"_s);
}

TEST_F(CompartidasTest, AShareOfAnUnknownEmployeeHasACodeAndNoName)
{
    parte(u"115"_s, u"9"_s, u"S"_s, u"99"_s);
    parte(u"115"_s, u"9"_s, u"S"_s, u"5"_s);
    EXPECT_EQ(empleados(m_linea), u"ompartida,Ana G"_s);
    EXPECT_EQ(codigos(m_linea), u"1,5,99"_s);
}

TEST_F(CompartidasTest, AnEmployeeHasAShareInASaleOrNot)
{
    parte(u"115"_s, u"9"_s, u"S"_s, u"7"_s);
    EXPECT_TRUE(EmpleadoEnCompartida(m_listados, qint32{7}, qint32{115}));
    EXPECT_FALSE(EmpleadoEnCompartida(m_listados, qint32{3}, qint32{115}));
    EXPECT_FALSE(EmpleadoEnCompartida(m_listados, qint32{7}, qint32{116}));
}

TEST_F(CompartidasTest, NullNumbersAndApostrophesAreRefused)
{
    EXPECT_EQ(numeroDeError([&] { return empleados({qint32{115}, m_nulo, u"S"_s}); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return codigos({m_nulo, qint32{9}, u"S"_s}); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return codigos({qint32{115}, qint32{9}, u"'"_s}); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return EmpleadoEnCompartida(m_listados, m_nulo, qint32{115}); }),
              ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return EmpleadoEnCompartida(m_listados, qint32{3}, m_nulo); }),
              ErrorEjecucion::SentenciaRechazada);
}

TEST_F(CompartidasTest, ALinesEmployeeIsTheFirstTwoWordsOfTheName)
{
    EXPECT_EQ(nombreCorto(u"'Ana Paz Gil'"_s), u"Ana Paz"_s);
    EXPECT_EQ(nombreCorto(u"'Ana Paz'"_s), u"Ana Paz"_s);
    EXPECT_EQ(nombreCorto(u"'Ana'"_s), u"Ana"_s);
}

TEST_F(CompartidasTest, TwoBlanksBetweenWordsGiveAnEmptySecondWord)
{
    EXPECT_EQ(nombreCorto(u"'Ana  Paz'"_s), u"Ana "_s);
}

TEST_F(CompartidasTest, AnEmptyNameGivesThoseWhoShareTheHeadersSale)
{
    parte(u"115"_s, u"9"_s, u"S"_s, u"5"_s);
    parte(u"1"_s, u"9"_s, u"S"_s, u"7"_s);
    EXPECT_EQ(nombreCorto(u"''"_s), u"ompartida,Ana G"_s);
    EXPECT_EQ(numeroDeError([&] { return nombreCorto(u"null"_s); }), ErrorEjecucion::UsoNoValidoDeNull);
}

} // namespace
} // namespace kestrane
