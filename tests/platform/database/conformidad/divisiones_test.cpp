// Divisions inside statements, and the refusal of those by zero, on every engine.

#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

std::string dichoDe(const QString& sentencia)
{
    return "La base de datos rechaza la sentencia: División por cero.\nSentencia: " + sentencia.toStdString();
}

class Divisiones : public Conformidad
{
protected:
    Divisiones()
    {
        tabla(u"cuentas"_s, {largo(u"codigo"_s), doble(u"total"_s), largo(u"unidades"_s)});
        ejecuta({u"insert into cuentas (codigo,total,unidades) values (1,10,4)"_s,
                 u"insert into cuentas (codigo,total,unidades) values (2,10,0)"_s,
                 u"insert into cuentas (codigo,total,unidades) values (3,null,4)"_s,
                 u"insert into cuentas (codigo,total,unidades) values (4,10,null)"_s});
    }
    /// The statement is refused when the division is reached, in words of the project's own.
    void expectPorCero(const QString& sentencia)
    {
        EXPECT_EQ(error([&] { static_cast<void>(filas(sentencia)); }), ErrorEjecucion::SentenciaRechazada) << qPrintable(sentencia);
        EXPECT_EQ(ultimaDescripcion().toStdString(), dichoDe(sentencia)) << qPrintable(sentencia);
    }
    void expectPorCeroAlEscribir(const QString& sentencia)
    {
        const std::string antes = filas(u"select * from cuentas"_s);
        EXPECT_EQ(errorDe(sentencia), ErrorEjecucion::SentenciaRechazada) << qPrintable(sentencia);
        EXPECT_EQ(ultimaDescripcion().toStdString(), dichoDe(sentencia)) << qPrintable(sentencia);
        EXPECT_EQ(filas(u"select * from cuentas"_s), antes) << qPrintable(sentencia);
    }

    const QStringList PorCero{u"total / unidades"_s,
                              u"total \\ unidades"_s,
                              u"codigo mod unidades"_s,
                              u"1 / 0"_s,
                              u"total / (4 - 4)"_s,
                              u"codigo \\ 0.4"_s,
                              u"-7 mod 0"_s,
                              u"total / (total - 10)"_s,
                              u"1 / (1 / total - 0.1)"_s,
                              u"0 / unidades"_s};
};

TEST_F(Divisiones, ByZeroInAListRefuseTheStatement)
{
    for (const QString& cuenta : PorCero)
        expectPorCero(u"select "_s + cuenta + u" as x from cuentas where codigo = 2"_s);
}

TEST_F(Divisiones, ByZeroInAConditionOrASumRefuseTheStatement)
{
    for (const QString& cuenta : PorCero) {
        expectPorCero(u"select codigo from cuentas where codigo = 2 and "_s + cuenta + u" > 1"_s);
        expectPorCero(u"select sum("_s + cuenta + u") as s from cuentas where codigo = 2"_s);
    }
    expectPorCero(u"select codigo,total,unidades from cuentas order by total / unidades,codigo"_s);
}

TEST_F(Divisiones, ByZeroInAWriteRefuseItWhole)
{
    for (const QString& cuenta : PorCero)
        expectPorCeroAlEscribir(u"update cuentas set total = "_s + cuenta + u" where codigo < 3"_s);
    expectPorCeroAlEscribir(u"insert into cuentas (codigo,total) values (9,1 / 0)"_s);
    expectPorCeroAlEscribir(u"delete from cuentas where codigo / unidades < 1"_s);
}

TEST_F(Divisiones, ARowThatIsNotAskedForIsNotDivided)
{
    EXPECT_EQ(filas(u"select total / unidades as x from cuentas where codigo = 1"_s), "2.5|");
    EXPECT_EQ(filas(u"select codigo / 0 as x from cuentas where codigo = 9"_s), "");
}

TEST_F(Divisiones, ANullOnEitherSideGivesNull)
{
    for (const QString& operador : {u"/"_s, u"\\"_s, u"mod"_s})
        EXPECT_EQ(filas(u"select total "_s + operador + u" unidades as x from cuentas where codigo > 2"_s), "NULL|NULL|")
            << qPrintable(operador);
}

TEST_F(Divisiones, ANullByZeroGivesNull)
{
    ejecuta({u"update cuentas set unidades = 0 where codigo = 3"_s});
    for (const QString& operador : {u"/"_s, u"\\"_s, u"mod"_s})
        EXPECT_EQ(filas(u"select total "_s + operador + u" unidades as x from cuentas where codigo = 3"_s), "NULL|")
            << qPrintable(operador);
}

} // namespace
} // namespace kestrane::database::conformidad
