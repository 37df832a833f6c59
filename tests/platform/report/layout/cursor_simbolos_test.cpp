#include "platform/report/layout/cursor_simbolos.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

const LugarLayout Lugar{u"K_x.rpt"_s, 7};

TEST(CursorSimbolos, VaDeUnSimboloAlSiguiente)
{
    const QString texto = u"a + 'b'"_s;
    CursorSimbolos cursor{texto, Lugar};
    EXPECT_EQ(cursor.consume().texto, u"a"_s);
    EXPECT_TRUE(cursor.esOperador());
    EXPECT_FALSE(cursor.esSigno(u"-"));
    EXPECT_FALSE(cursor.consumeSi(u"-"));
    EXPECT_TRUE(cursor.consumeSi(u"+"));
    EXPECT_FALSE(cursor.esOperador()) << "a text";
    EXPECT_EQ(cursor.consume().texto, u"b"_s);
    EXPECT_EQ(cursor.actual().clase, ClaseSimbolo::Fin);
}

TEST(CursorSimbolos, ElErrorDiceQueSeEsperabaYQueHay)
{
    const QString texto = u"a b"_s;
    CursorSimbolos cursor{texto, Lugar};
    cursor.consume();
    EXPECT_EQ(prueba::descripcionDeError([&] {
                  cursor.exige(u")");
                  return 0;
              }),
              u"K_x.rpt, línea 7: en «a b», carácter 3: se esperaba «)» y hay «b»."_s);
    cursor.consume();
    EXPECT_EQ(prueba::descripcionDeError([&] {
                  cursor.exige(u")");
                  return 0;
              }),
              u"K_x.rpt, línea 7: en «a b», carácter 4: se esperaba «)» y se acaba la expresión."_s);
}

} // namespace
} // namespace kestrane::report
