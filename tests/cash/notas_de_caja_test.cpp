#include "cash/notas_de_caja.h"

#include "cash/prueba_caja.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class NotasDeCajaTest : public prueba::PruebaCaja
{
protected:
    NotasDeCajaTest() { marzo(); }
    void observacion(const QString& dia, const QString& texto, const QString& tienda = u"'Centro'"_s)
    {
        alta(u"observacioncaja"_s, u"fecha, hora, observacion, tienda"_s, u"#%1#, '9:05:00', %2, %3"_s.arg(dia, texto, tienda));
    }
    void gasto(const QString& motivo, const QString& tienda = u"'Centro'"_s)
    {
        alta(u"gastos"_s, u"fecha, motivo, tienda"_s, u"#03/15/2024#, %1, %2"_s.arg(motivo, tienda));
    }
    QString notas() { return notasDeCaja(m_listados); }
};

TEST_F(NotasDeCajaTest, RemarksEndInACarriageReturnAndExpensesInOneWithALineFeed)
{
    observacion(u"03/16/2024"_s, u"'Avería'"_s);
    observacion(u"03/15/2024"_s, u"'Falta cambio'"_s);
    gasto(u"'Café'"_s);
    gasto(u"'Papel'"_s);
    EXPECT_EQ(
        notas(),
        u"Observaciones de Caja: 16/03/2024 - Avería\r15/03/2024 - Falta cambio\r\r\nGastos: 1 Café\r\nGastos: 2 Papel\r\n"_s);
    EXPECT_EQ(m_puesto.progreso.pasos, 4);
}

TEST_F(NotasDeCajaTest, WithoutEitherTheHeadAndALineEndAreLeft)
{
    EXPECT_EQ(notas(), u"Observaciones de Caja: \r\n"_s);
}

TEST_F(NotasDeCajaTest, NullsAreEmpty)
{
    observacion(u"03/15/2024"_s, u"null"_s);
    gasto(u"null"_s);
    EXPECT_EQ(notas(), u"Observaciones de Caja: 15/03/2024 - \r\r\nGastos: 1 \r\n"_s);
}

TEST_F(NotasDeCajaTest, OnlyThePeriodAndTheStoreCount)
{
    observacion(u"04/01/2024"_s, u"'abril'"_s);
    observacion(u"03/31/2024"_s, u"'gran'"_s, u"'Gran Centro'"_s);
    observacion(u"03/01/2024"_s, u"'sur'"_s, u"'Centro Sur'"_s);
    gasto(u"'nadie'"_s, u"null"_s);
    gasto(u"'aquí'"_s);
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(notas(), u"Observaciones de Caja: 31/03/2024 - gran\r\r\nGastos: 1 aquí\r\n"_s);
}

TEST_F(NotasDeCajaTest, WhatIsTooLongIsCutExpensesFirst)
{
    observacion(u"03/15/2024"_s, u"'%1'"_s.arg(QString(200, u'x')));
    gasto(u"'Un motivo largo'"_s);
    // 23 + 13 + 200 + 1 before the line end, 17 left behind it.
    const QString todo = u"Observaciones de Caja: 15/03/2024 - "_s + QString(200, u'x') + u"\r\r\nGastos: 1 Un motivo largo\r\n"_s;
    ASSERT_EQ(todo.indexOf(u"Gastos"_s), 239);
    EXPECT_EQ(notas(), todo.left(254));
    EXPECT_TRUE(notas().endsWith(u"Gastos: 1 Un mo"_s));
    observacion(u"03/15/2024"_s, u"'%1'"_s.arg(QString(200, u'y')));
    EXPECT_EQ(notas().size(), 254);
    EXPECT_TRUE(notas().endsWith(u"\r15/03/2024 - yyyy"_s));
}

} // namespace
} // namespace kestrane
