#include "platform/jet/arboles.h"
#include "platform/jet/ast/impresor.h"
#include "platform/jet/limites.h"
#include "platform/jet/parser.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using namespace arboles;
using Clase = ErrorSql::Clase;
using enum OperadorBinario;

const QString Cabeza = u"select * from t where "_s;

/// Refuses the condition, at a place counted from its own beginning.
void rehusa(const QString& condicion, Clase clase, int posicion, int longitud)
{
    const auto arbol = parsea(Cabeza + condicion);
    ASSERT_FALSE(arbol.bien()) << qPrintable(condicion);
    EXPECT_EQ(arbol.error().clase, clase) << qPrintable(condicion) << '\n' << qPrintable(arbol.error().mensaje);
    EXPECT_EQ(arbol.error().posicion - Cabeza.size(), posicion) << qPrintable(condicion);
    EXPECT_EQ(arbol.error().longitud, longitud) << qPrintable(condicion);
}

void comprueba(const QString& condicion, const ExpresionPtr& esperada)
{
    const auto arbol = parsea(Cabeza + condicion);
    ASSERT_TRUE(arbol.bien()) << qPrintable(describe(arbol.error(), Cabeza + condicion));
    const auto& leida = std::get<Consulta>(arbol.valor()).donde;
    EXPECT_TRUE(iguales(leida, esperada)) << qPrintable(condicion) << '\n' << qPrintable(imprime(*leida));
}

ExpresionPtr a()
{
    return col(u"a"_s);
}
ExpresionPtr b()
{
    return col(u"b"_s);
}
ExpresionPtr c()
{
    return col(u"c"_s);
}

TEST(ParserExpresionTest, RefusesWhatLacksAnOperand)
{
    rehusa(u""_s, Clase::SintaxisIncorrecta, 0, 0);
    rehusa(u"a ="_s, Clase::SintaxisIncorrecta, 3, 0);
    rehusa(u"= 4"_s, Clase::SintaxisIncorrecta, 0, 1);
    rehusa(u"a = = 4"_s, Clase::SintaxisIncorrecta, 4, 1);
    rehusa(u"a and"_s, Clase::SintaxisIncorrecta, 5, 0);
    rehusa(u"and a"_s, Clase::SintaxisIncorrecta, 0, 3);
    rehusa(u"not"_s, Clase::SintaxisIncorrecta, 3, 0);
    rehusa(u"a between 1"_s, Clase::SintaxisIncorrecta, 11, 0);
    rehusa(u"a between 1, 5"_s, Clase::SintaxisIncorrecta, 11, 1);
    rehusa(u"a like"_s, Clase::SintaxisIncorrecta, 6, 0);
    rehusa(u"a is 'x'"_s, Clase::SintaxisIncorrecta, 5, 3);
    rehusa(u"a in 1"_s, Clase::SintaxisIncorrecta, 5, 1);
    rehusa(u"a in ()"_s, Clase::SintaxisIncorrecta, 6, 1);
    rehusa(u"a in (1,)"_s, Clase::SintaxisIncorrecta, 8, 1);
    rehusa(u"a in (1"_s, Clase::SintaxisIncorrecta, 7, 0);
    rehusa(u"(a"_s, Clase::SintaxisIncorrecta, 2, 0);
    rehusa(u"()"_s, Clase::SintaxisIncorrecta, 1, 1);
    rehusa(u"f(a"_s, Clase::SintaxisIncorrecta, 3, 0);
    rehusa(u"t."_s, Clase::SintaxisIncorrecta, 2, 0);
    rehusa(u"t..a"_s, Clase::SintaxisIncorrecta, 2, 1);
    rehusa(u"a = not b"_s, Clase::SintaxisIncorrecta, 4, 3);
}

TEST(ParserExpresionTest, RefusesWhatStandsBehind)
{
    rehusa(u"a b"_s, Clase::SintaxisIncorrecta, 2, 1);
    rehusa(u"a 'x'"_s, Clase::SintaxisIncorrecta, 2, 3);
    rehusa(u"a)"_s, Clase::SintaxisIncorrecta, 1, 1);
    rehusa(u"proveedorand t.x like '%'"_s, Clase::SintaxisIncorrecta, 13, 1);
    rehusa(u"a = 0x10"_s, Clase::SintaxisIncorrecta, 5, 3);
}

TEST(ParserExpresionTest, RefusesSubqueriesOutsideIn)
{
    rehusa(u"a = (select b from c)"_s, Clase::SentenciaNoAdmitida, 5, 6);
    rehusa(u"exists (select b from c)"_s, Clase::SentenciaNoAdmitida, 0, 6);
}

TEST(ParserExpresionTest, RefusesNestingAndChainsPastTheLimits)
{
    const auto parentesis = [](int veces) { return QString(veces, u'(') + u'a' + QString(veces, u')'); };
    EXPECT_TRUE(parsea(Cabeza + parentesis(limites::Anidamiento)).bien());
    rehusa(parentesis(limites::Anidamiento + 1), Clase::DemasiadoProfundo, limites::Anidamiento, 1);
    EXPECT_TRUE(parsea(Cabeza + u"1+("_s.repeated(limites::Anidamiento) + u'a' + QString(limites::Anidamiento, u')')).bien());
    EXPECT_EQ(parsea(Cabeza + QString(100'000, u'-') + u'5').error().clase, Clase::DemasiadoProfundo);
    EXPECT_EQ(parsea(Cabeza + u"not "_s.repeated(100'000) + u'a').error().clase, Clase::DemasiadoProfundo);
    EXPECT_TRUE(parsea(Cabeza + u"a"_s + u" or a"_s.repeated(limites::ProfundidadArbol - 1)).bien());
    EXPECT_EQ(parsea(Cabeza + u"a"_s + u"+a"_s.repeated(100'000)).error().clase, Clase::DemasiadoProfundo);
    EXPECT_EQ(parsea(Cabeza + u"a in (select a from t where "_s.repeated(1000)).error().clase, Clase::DemasiadoProfundo);
}

TEST(ParserExpresionTest, ChainsInsideSubqueriesAddUp)
{
    const QString cadena = u" and a"_s.repeated(300);
    const QString una = u"a in (select a from t where a"_s + cadena + u")"_s;
    EXPECT_TRUE(parsea(Cabeza + una + u" and "_s + una).bien());
    EXPECT_EQ(parsea(Cabeza + una + cadena).error().clase, Clase::DemasiadoProfundo);
}

TEST(ParserExpresionTest, Values)
{
    comprueba(u"a"_s, a());
    comprueba(u"t.a"_s, col(u"t"_s, u"a"_s));
    comprueba(u"[t 1].[order]"_s, col(u"t 1"_s, u"order"_s));
    comprueba(u"5"_s, entero(5));
    comprueba(u"5.5"_s, doble(5.5));
    comprueba(u"'O''D'"_s, texto(u"O'D"_s));
    comprueba(u"#03/15/2024#"_s, fecha(2024, 3, 15));
    comprueba(u"null"_s, nulo());
    comprueba(u"TRUE"_s, logico(true));
    comprueba(u"((a))"_s, a());
}

TEST(ParserExpresionTest, CallsAndNamesThatLookLikeThem)
{
    comprueba(u"count(*)"_s, cuentaTodo());
    comprueba(u"month (a)"_s, llama(u"month"_s, a()));
    comprueba(u"f(a, b)"_s, llama(u"f"_s, a(), b()));
    comprueba(u"f()"_s, llama(u"f"_s));
    comprueba(u"count = 1"_s, igual(col(u"count"_s), entero(1)));
}

TEST(ParserExpresionTest, SignsAddUp)
{
    comprueba(u"--5.5"_s, menos(menos(doble(5.5))));
    comprueba(u"a --5"_s, resta(a(), menos(entero(5))));
    comprueba(u"+-a"_s, mas(menos(a())));
    comprueba(u"-a * b"_s, por(menos(a()), b()));
}

TEST(ParserExpresionTest, OperatorsOfOneLevelGroupFromTheLeft)
{
    comprueba(u"a - b - c"_s, resta(resta(a(), b()), c()));
    comprueba(u"a - (b - c)"_s, resta(a(), resta(b(), c())));
    comprueba(u"a and b and c"_s, y(y(a(), b()), c()));
    comprueba(u"a = b = c"_s, igual(igual(a(), b()), c()));
    comprueba(u"a * b / c"_s, op(por(a(), b()), Division, c()));
}

TEST(ParserExpresionTest, TighterOperatorsGatherFirst)
{
    comprueba(u"a or b and c"_s, o(a(), y(b(), c())));
    comprueba(u"not a = b and c"_s, y(no(igual(a(), b())), c()));
    comprueba(u"not not a"_s, no(no(a())));
    comprueba(u"a + b * c"_s, suma(a(), por(b(), c())));
    comprueba(u"a & b + c"_s, op(a(), Une, suma(b(), c())));
    comprueba(u"a mod b \\ c"_s, op(a(), Resto, op(b(), DivisionEntera, c())));
    comprueba(u"a + b mod c"_s, suma(a(), op(b(), Resto, c())));
    comprueba(u"a \\ b * c"_s, op(a(), DivisionEntera, por(b(), c())));
    comprueba(u"a & b = c"_s, igual(op(a(), Une, b()), c()));
}

TEST(ParserExpresionTest, TestsBehindAValue)
{
    comprueba(u"a is null"_s, esNulo(a()));
    comprueba(u"a is not null"_s, esNulo(a(), Sentido::Negado));
    comprueba(u"a like 'x%'"_s, parecido(a(), texto(u"x%"_s)));
    comprueba(u"a not like 'x' & b"_s, parecido(a(), op(texto(u"x"_s), Une, b()), Sentido::Negado));
    comprueba(u"a between 1 and 2 and b"_s, y(entre(a(), entero(1), entero(2, 1)), b()));
    comprueba(u"a not between b + 1 and c"_s, entre(a(), suma(b(), entero(1)), c(), Sentido::Negado));
    comprueba(u"a in (1, 'x', null)"_s, en(a(), lista(entero(1), texto(u"x"_s, 1), nulo())));
    comprueba(u"not a in (b)"_s, no(en(a(), lista(b()))));
    comprueba(u"a + 1 in (2)"_s, en(suma(a(), entero(1)), lista(entero(2, 1))));
    comprueba(u"a not in (select b from u)"_s, en(a(), elige(tabla(u"u"_s), elem(b())), Sentido::Negado));
    comprueba(u"a = b like c"_s, parecido(igual(a(), b()), c()));
}

/// An operator as the generated texts write it, with its level; higher holds tighter.
struct OperadorEscrito
{
    QString texto;
    int nivel;
};

const std::array<OperadorEscrito, 15> Operadores = {{
    {u"or"_s, 1},
    {u"and"_s, 2},
    {u"="_s, 4},
    {u"<>"_s, 4},
    {u"<"_s, 4},
    {u"<="_s, 4},
    {u">"_s, 4},
    {u">="_s, 4},
    {u"&"_s, 5},
    {u"+"_s, 6},
    {u"-"_s, 6},
    {u"mod"_s, 7},
    {u"\\"_s, 8},
    {u"*"_s, 9},
    {u"/"_s, 9},
}};

/// The same text with all its parentheses: the loosest operator, of several the last, splits it.
QString conParentesis(const std::vector<QString>& operandos, const std::vector<OperadorEscrito>& operadores, size_t desde,
                      size_t hasta)
{
    if (desde == hasta)
        return operandos[desde];
    size_t corte = desde;
    for (size_t i = desde; i < hasta; ++i)
        if (operadores[i].nivel <= operadores[corte].nivel)
            corte = i;
    return u"(%1 %2 %3)"_s.arg(conParentesis(operandos, operadores, desde, corte), operadores[corte].texto,
                               conParentesis(operandos, operadores, corte + 1, hasta));
}

TEST(ParserExpresionTest, GeneratedChainsGroupAsTheirParenthesesSay)
{
    std::mt19937 azar{20240315};
    const auto hasta = [&](size_t n) { return std::uniform_int_distribution<size_t>{0, n - 1}(azar); };
    for (int vez = 0; vez < 2000; ++vez) {
        std::vector<QString> operandos{u"a"_s};
        std::vector<OperadorEscrito> operadores;
        QString llano = u"a"_s;
        const size_t largo = 1 + hasta(7);
        for (size_t i = 0; i < largo; ++i) {
            operadores.push_back(Operadores[hasta(Operadores.size())]);
            operandos.push_back(QString(QChar(u'b' + static_cast<char16_t>(i))));
            llano += u" %1 %2"_s.arg(operadores.back().texto, operandos.back());
        }
        const QString cerrado = conParentesis(operandos, operadores, 0, largo);
        const auto uno = parsea(Cabeza + llano);
        const auto otro = parsea(Cabeza + cerrado);
        ASSERT_TRUE(uno.bien() && otro.bien()) << qPrintable(llano);
        EXPECT_TRUE(uno.valor() == otro.valor()) << qPrintable(llano) << '\n' << qPrintable(cerrado);
    }
}

} // namespace
} // namespace kestrane::jet
