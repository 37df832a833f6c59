#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::AmbitoFijo;
using prueba::enPagina;
using prueba::es;
using prueba::evalua;

Expresion expresion(const QString& texto)
{
    std::vector<Agregado> agregados;
    ContextoAnalisis contexto{{}, 0, agregados};
    return analizaExpresion(texto, {u"K_x.rpt"_s, 12}, contexto);
}

TEST(ExpresionEnlazada, LasColumnasSeBuscanSinMirarMayusculas)
{
    EXPECT_EQ(evalua(u"t & T"_s), Valor{u"AnaAna"_s});
    const ExpresionEnlazada enlazada{expresion(u"B + a * b"_s), {u"A"_s, u"b"_s}};
    EXPECT_EQ(std::vector<int>(enlazada.columnas().begin(), enlazada.columnas().end()), (std::vector<int>{1, 0}));
}

TEST(ExpresionEnlazada, UnaColumnaQueNoEsta)
{
    EXPECT_EQ(prueba::descripcionDeError([] { return evalua(u"a + texto99"_s); }),
              u"K_x.rpt, línea 12: la consulta no da ninguna columna «texto99»; da a, b, T, f, n."_s);
    EXPECT_EQ(prueba::numeroDeError([] { return evalua(u"texto99"_s); }), 20001);
}

TEST(ExpresionEnlazada, LaVaciaSeCumpleYNoDaNada)
{
    const ExpresionEnlazada vacia{Expresion{}, {}};
    EXPECT_TRUE(vacia.vacia());
    EXPECT_TRUE(vacia.cierto(AmbitoFijo{}, es()));
    EXPECT_EQ(vacia.valor(AmbitoFijo{}, es()), Valor{});
    EXPECT_TRUE(vacia.columnas().empty());
    EXPECT_FALSE(vacia.usaPaginas());
}

TEST(ExpresionEnlazada, CiertoEsNiNullNiCero)
{
    const auto cierto = [](const QString& texto) { return ExpresionEnlazada{expresion(texto), {}}.cierto(AmbitoFijo{}, es()); };
    EXPECT_TRUE(cierto(u"2"_s));
    EXPECT_FALSE(cierto(u"0"_s));
    EXPECT_FALSE(cierto(u"1 > 2"_s));
    EXPECT_FALSE(cierto(u"paginas = 1"_s));
    EXPECT_EQ(prueba::numeroDeError([&] { return cierto(u"'quizá'"_s); }), 13);
}

TEST(ExpresionEnlazada, PaginaYPaginas)
{
    const QString texto = u"'Página ' & pagina & ' de ' & paginas"_s;
    EXPECT_EQ(evalua(texto, enPagina(2, 9)), Valor{u"Página 2 de 9"_s});
    EXPECT_EQ(evalua(texto, enPagina(2)), Valor{u"Página 2 de ..."_s});
    EXPECT_EQ(evalua(u"paginas"_s), Valor{u"..."_s});
    EXPECT_EQ(evalua(u"pagina = paginas"_s, enPagina(2)), Valor{});
    EXPECT_EQ(evalua(u"pagina = paginas"_s, enPagina(2, 2)), Valor{true});
    EXPECT_EQ(evalua(u"fila"_s), Valor{7.0});
    EXPECT_TRUE((ExpresionEnlazada{expresion(texto), {}}.usaPaginas()));
    EXPECT_FALSE((ExpresionEnlazada{expresion(u"pagina"_s), {}}.usaPaginas()));
}

TEST(ExpresionEnlazada, LosAgregadosVienenDelAmbito)
{
    EXPECT_EQ(evalua(u"suma(a) - suma(b) / 2"_s, prueba::conAgregados({30.0, 8.0})), Valor{26.0});
}

TEST(ExpresionEnlazada, LosErroresDicenDonde)
{
    EXPECT_EQ(prueba::descripcionDeError([] { return evalua(u"a / 0"_s); }), u"División por cero.\nK_x.rpt, línea 12."_s);
    EXPECT_EQ(prueba::numeroDeError([] { return evalua(u"a / 0"_s); }), 11);
    EXPECT_EQ(prueba::numeroDeError([] { return evalua(u"a + t"_s); }), 13);
}

} // namespace
} // namespace kestrane::report
