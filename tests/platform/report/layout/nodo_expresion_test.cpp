#include "platform/report/layout/nodo_expresion.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

bool igualesTextos(const QString& a, const QString& b)
{
    std::vector<Agregado> agregados;
    ContextoAnalisis contexto{{}, 0, agregados};
    return iguales(analizaExpresion(a, {}, contexto).raiz(), analizaExpresion(b, {}, contexto).raiz());
}

TEST(NodoExpresion, ElMismoArbol)
{
    EXPECT_TRUE(igualesTextos(u"a + b * 2"_s, u"A+(b*2)"_s));
    EXPECT_FALSE(igualesTextos(u"a + b"_s, u"b + a"_s));
    EXPECT_FALSE(igualesTextos(u"a - b"_s, u"a + b"_s));
    EXPECT_FALSE(igualesTextos(u"'a'"_s, u"'A'"_s));
    EXPECT_FALSE(igualesTextos(u"redondea(a)"_s, u"redondea(a; 0)"_s));
}

TEST(NodoExpresion, UnLiteralDaSuTexto)
{
    const ExpresionEnlazada enlazada{expresionLiteral(u"it's"_s, {}), {}};
    EXPECT_EQ(enlazada.valor(prueba::AmbitoFijo{}, prueba::es()), Valor{u"it's"_s});
}

} // namespace
} // namespace kestrane::report
