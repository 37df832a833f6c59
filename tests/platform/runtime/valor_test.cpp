#include "platform/runtime/valor.h"

#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::numeroDeError;

constexpr int TiposNoCoinciden = 13;
constexpr int UsoNoValidoDeNull = 94;

TEST(Valor, NullEnCadaLectorConTipoEsError94)
{
    const Valor nulo;
    EXPECT_EQ(numeroDeError([&] { return nulo.logico(); }), UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return nulo.entero16(); }), UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return nulo.entero32(); }), UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return nulo.doble(); }), UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return nulo.fecha(); }), UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return nulo.texto(); }), UsoNoValidoDeNull);
}

TEST(Valor, NiTextoNiFechaSonNumeros)
{
    for (const Valor& valor : {Valor{u"12"_s}, Valor{dia(2024, 3, 5)}}) {
        EXPECT_EQ(numeroDeError([&] { return valor.logico(); }), TiposNoCoinciden);
        EXPECT_EQ(numeroDeError([&] { return valor.entero16(); }), TiposNoCoinciden);
        EXPECT_EQ(numeroDeError([&] { return valor.entero32(); }), TiposNoCoinciden);
        EXPECT_EQ(numeroDeError([&] { return valor.doble(); }), TiposNoCoinciden);
    }
}

TEST(Valor, NingunNumeroEsTextoNiFecha)
{
    for (const Valor& valor : {Valor{true}, Valor{qint16{1}}, Valor{1}, Valor{1.0}}) {
        EXPECT_EQ(numeroDeError([&] { return valor.fecha(); }), TiposNoCoinciden);
        EXPECT_EQ(numeroDeError([&] { return valor.texto(); }), TiposNoCoinciden);
    }
    EXPECT_EQ(numeroDeError([] { return Valor{u"05/03/2024"_s}.fecha(); }), TiposNoCoinciden);
    EXPECT_EQ(numeroDeError([] { return Valor{dia(2024, 3, 5)}.texto(); }), TiposNoCoinciden);
}

TEST(Valor, UnNumeroQueNoCabeEsError6)
{
    EXPECT_EQ(numeroDeError([] { return Valor{32768}.entero16(); }), 6);
    EXPECT_EQ(numeroDeError([] { return Valor{-32769}.entero16(); }), 6);
    EXPECT_EQ(numeroDeError([] { return Valor{32767.5}.entero16(); }), 6);
    EXPECT_EQ(numeroDeError([] { return Valor{2147483647.5}.entero32(); }), 6);
}

TEST(Valor, LeerLoPropio)
{
    EXPECT_EQ(Valor{true}.logico(), true);
    EXPECT_EQ(Valor{qint16{-7}}.entero16(), -7);
    EXPECT_EQ(Valor{70000}.entero32(), 70000);
    EXPECT_EQ(Valor{12.5}.doble(), 12.5);
    EXPECT_EQ(Valor{dia(2024, 3, 5)}.fecha(), dia(2024, 3, 5));
    EXPECT_EQ(Valor{u"Ana"_s}.texto(), u"Ana"_s);
    EXPECT_EQ(Valor{QStringView{u"Ana"}}.texto(), u"Ana"_s);
}

TEST(Valor, LaBanderaEsMenosUnoOCero)
{
    EXPECT_EQ(Valor{true}.entero16(), -1);
    EXPECT_EQ(Valor{true}.entero32(), -1);
    EXPECT_EQ(Valor{true}.doble(), -1);
    EXPECT_EQ(Valor{false}.doble(), 0);
    EXPECT_TRUE(Valor{-1}.logico());
    EXPECT_TRUE(Valor{qint16{1}}.logico());
    EXPECT_TRUE(Valor{0.25}.logico());
    EXPECT_FALSE(Valor{0}.logico());
    EXPECT_FALSE(Valor{0.0}.logico());
}

TEST(Valor, LosNumerosSeConviertenEntreSi)
{
    EXPECT_EQ(Valor{32767}.entero16(), 32767);
    EXPECT_EQ(Valor{32767.4}.entero16(), 32767);
    EXPECT_EQ(Valor{2.5}.entero16(), 2);
    EXPECT_EQ(Valor{3.5}.entero32(), 4);
    EXPECT_EQ(Valor{qint16{5}}.entero32(), 5);
    EXPECT_EQ(Valor{qint16{5}}.doble(), 5.0);
    EXPECT_EQ(Valor{70000}.doble(), 70000.0);
}

TEST(Valor, LaClaseEsLaDeLoQueSePuso)
{
    EXPECT_EQ(Valor{}.clase(), Valor::Clase::Nulo);
    EXPECT_EQ(Valor{Nulo{}}.clase(), Valor::Clase::Nulo);
    EXPECT_EQ(Valor{false}.clase(), Valor::Clase::Logico);
    EXPECT_EQ(Valor{qint16{0}}.clase(), Valor::Clase::Entero16);
    EXPECT_EQ(Valor{0}.clase(), Valor::Clase::Entero32);
    EXPECT_EQ(Valor{0.0}.clase(), Valor::Clase::Doble);
    EXPECT_EQ(Valor{Fecha{}}.clase(), Valor::Clase::Fecha);
    EXPECT_EQ(Valor{QString{}}.clase(), Valor::Clase::Texto);
    EXPECT_TRUE(Valor{}.esNulo());
    EXPECT_FALSE(Valor{QString{}}.esNulo());
}

TEST(Valor, IgualSoloConLaMismaClaseYContenido)
{
    EXPECT_EQ(Valor{}, Valor{Nulo{}});
    EXPECT_EQ(Valor{u"a"_s}, Valor{u"a"_s});
    EXPECT_NE(Valor{u"a"_s}, Valor{u"A"_s});
    EXPECT_NE(Valor{0}, Valor{0.0});
    EXPECT_NE(Valor{0}, Valor{false});
    EXPECT_NE(Valor{}, Valor{QString{}});
}

} // namespace
} // namespace kestrane
