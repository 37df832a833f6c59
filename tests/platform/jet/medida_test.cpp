#include "platform/jet/medida.h"

#include "platform/jet/limites.h"
#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

/// The measure of what "select EXPRESION from ventas" shows.
Medida medidaDe(const QString& expresion)
{
    CatalogoPrueba catalogo = tiendaDePrueba();
    const auto arbol = parsea(u"select %1 from ventas"_s.arg(expresion));
    const auto enlazada = enlaza(arbol.valor(), catalogo);
    return medida(*std::get<enlazado::Consulta>(enlazada.valor().dato).lista.front().expresion);
}

Clase claseDe(const QString& condicion)
{
    const auto traduccion = traduce(u"select numero from ventas where "_s + condicion);
    return traduccion ? Clase::TextoVacio : traduccion.error().clase;
}

QString anidada(const QString& antes, int veces, const QString& despues)
{
    return antes.repeated(veces) + u"numero"_s + despues.repeated(veces) + u" > 0"_s;
}

TEST(MedidaTest, WhatStandsOnTheLeftOfAnOperatorWaitsForNothing)
{
    EXPECT_EQ(medidaDe(u"numero + 1"_s).abiertos, medidaDe(u"numero + 1 + 1 + 1 + 1"_s).abiertos);
    EXPECT_EQ(medidaDe(u"pago + (pago + (pago + numero))"_s).abiertos - medidaDe(u"pago + (pago + numero)"_s).abiertos, 3);
    EXPECT_EQ(medidaDe(u"((numero))"_s).abiertos, medidaDe(u"numero"_s).abiertos);
}

TEST(MedidaTest, ADivisorCountsTwice)
{
    EXPECT_EQ(medidaDe(u"numero + 1"_s).escritos, 3);
    EXPECT_EQ(medidaDe(u"numero / 1"_s).escritos, 4);
    EXPECT_EQ(medidaDe(u"1 / (1 / numero)"_s).escritos, 10);
    EXPECT_EQ(medidaDe(u"1 / numero / 1"_s).escritos, 7);
}

TEST(MedidaTest, RefusesWhatAnEngineCouldNotHold)
{
    EXPECT_EQ(claseDe(anidada(u"1+("_s, 60, u")"_s)), Clase::DemasiadoProfundo);
    EXPECT_EQ(claseDe(anidada(u"-("_s, 90, u")"_s)), Clase::DemasiadoProfundo);
    EXPECT_EQ(claseDe(u"tienda"_s + u" like 'a'"_s.repeated(400)), Clase::DemasiadoProfundo);
    EXPECT_EQ(claseDe(anidada(u"1/("_s, 17, u")"_s)), Clase::DemasiadoLargo);
    EXPECT_EQ(claseDe(u"0 in (numero"_s + u", numero + pago + cliente"_s.repeated(4900) + u')'), Clase::DemasiadoLargo);
}

TEST(MedidaTest, TheTextOfAnEngineStaysWithinAMultipleOfTheMeasure)
{
    constexpr qsizetype BytesPorEscrito = 200;
    for (const QString& condicion : {anidada(u"1/("_s, 11, u")"_s), anidada(u"8 mod ("_s, 11, u")"_s),
                                     u"tienda"_s + u" like 'a'"_s.repeated(17), u"fecha & fecha & fecha like 'a'"_s}) {
        for (const Motor motor : {Motor::Sqlite, Motor::PostgreSql, Motor::MariaDb}) {
            const auto traduccion = traduce(u"select numero from ventas where "_s + condicion, motor);
            ASSERT_TRUE(traduccion.bien()) << qPrintable(condicion);
            EXPECT_LT(traduccion.valor().sql.size(), limites::Escritos * BytesPorEscrito) << qPrintable(condicion);
        }
    }
    // A condition as a text is written once, however often it is one again.
    EXPECT_EQ(condicionDe(u"tienda like 'a' like 'b'"_s, Motor::Sqlite, u"ventas"_s),
              u"CASE t0.\"tienda\" LIKE ? WHEN TRUE THEN 'Verdadero' WHEN FALSE THEN 'Falso' END LIKE ?"_s);
}

} // namespace
} // namespace kestrane::jet
