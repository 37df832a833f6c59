#include "platform/report/layout/lexico_expresion.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

const LugarLayout Lugar{u"K_x.rpt"_s, 4};

TEST(SimbolosDe, CadaClaseConSuLugar)
{
    const auto simbolos = simbolosDe(u" texto1<=12.5&'a''b';", Lugar);
    ASSERT_EQ(simbolos.size(), 7U);
    EXPECT_EQ(simbolos[0].clase, ClaseSimbolo::Nombre);
    EXPECT_EQ(simbolos[0].texto, u"texto1"_s);
    EXPECT_EQ(simbolos[0].posicion, 1);
    EXPECT_EQ(simbolos[1].texto, u"<="_s);
    EXPECT_EQ(simbolos[2].numero, 12.5);
    EXPECT_EQ(simbolos[3].texto, u"&"_s);
    EXPECT_EQ(simbolos[4].clase, ClaseSimbolo::Texto);
    EXPECT_EQ(simbolos[4].texto, u"a'b"_s);
    EXPECT_EQ(simbolos[5].texto, u";"_s);
    EXPECT_EQ(simbolos[6].clase, ClaseSimbolo::Fin);
}

TEST(SimbolosDe, LoQueNoEmpiezaNada)
{
    const auto rechazo = [](QStringView texto) {
        return prueba::descripcionDeError([&] { return simbolosDe(texto, Lugar).size(); });
    };
    EXPECT_EQ(rechazo(u"a # b"), u"K_x.rpt, línea 4: en «a # b», carácter 3: no se entiende el signo «#»."_s);
    EXPECT_TRUE(rechazo(u"1.").endsWith(u"carácter 2: no se entiende el signo «.»."_s));
    EXPECT_TRUE(rechazo(u"a & 'b").endsWith(u"carácter 5: al texto que empieza aquí le falta la comilla (') del final."_s));
}

TEST(SimbolosDe, UnaLetraDeDosMitadesSeCitaEntera)
{
    const auto rechazo = [](const QString& texto) {
        return prueba::descripcionDeError([&] { return simbolosDe(texto, Lugar).size(); });
    };
    EXPECT_EQ(rechazo(u"a 😀 b"_s), u"K_x.rpt, línea 4: en «a 😀 b», carácter 3: no se entiende el signo «😀»."_s);
    EXPECT_TRUE(rechazo(u"#"_s + u"😀"_s.repeated(40)).isValidUtf16());
    EXPECT_TRUE(rechazo(u"'"_s + u"😀"_s.repeated(40) + u"' #"_s).isValidUtf16());
}

TEST(FallaExpresion, UnaLargaSeCitaAlrededor)
{
    const QString larga = u"a+"_s.repeated(60) + u"#"_s;
    const QString dice = prueba::descripcionDeError([&] { return simbolosDe(larga, Lugar).size(); });
    EXPECT_TRUE(dice.startsWith(u"K_x.rpt, línea 4: en «…a+"_s));
    EXPECT_TRUE(dice.contains(u"a+#», carácter 121: "_s));
}

} // namespace
} // namespace kestrane::report
