#include "platform/runtime/lector_numero.h"

#include "platform/runtime/soporte.h"

#include <cmath>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(LectorNumero, SinNumeroNoLee)
{
    for (const QStringView texto : {u"", u"x", u" 1", u",", u"-"})
        EXPECT_FALSE((LectorNumero{texto, u',', u'.'}.lee())) << texto.toString().toStdString();
}

TEST(LectorNumero, DiceSiLeyoTodoElTexto)
{
    LectorNumero entero{u"1.234,5", u',', u'.'};
    ASSERT_TRUE(entero.lee());
    EXPECT_TRUE(entero.alFinal());
    EXPECT_EQ(entero.numero(), 1234.5);

    LectorNumero prefijo{u"1.234,5", u',', LectorNumero::SinMiles};
    ASSERT_TRUE(prefijo.lee());
    EXPECT_FALSE(prefijo.alFinal());
    EXPECT_EQ(prefijo.numero(), 1);
}

double leido(const QString& texto)
{
    LectorNumero lector{texto, u'.', LectorNumero::SinMiles};
    EXPECT_TRUE(lector.lee());
    EXPECT_TRUE(lector.alFinal());
    return lector.numero();
}

TEST(LectorNumero, DistingueLoEnormeDeLoMinusculo)
{
    const QString nueves(400, u'9');
    const QString ceros(400, u'0');
    EXPECT_EQ(leido(u"1e309"_s), HUGE_VAL);
    EXPECT_EQ(leido(u"-1e309"_s), -HUGE_VAL);
    EXPECT_EQ(leido(nueves), HUGE_VAL);
    EXPECT_EQ(leido(nueves + u"e-10"_s), HUGE_VAL);
    EXPECT_EQ(leido(nueves + u"e-900"_s), 0);
    EXPECT_EQ(leido(u"0."_s + ceros + u"1"_s), 0);
    EXPECT_EQ(leido(u"0."_s + ceros + u"1e900"_s), HUGE_VAL);
    EXPECT_EQ(leido(u"1e-99999999999999999999"_s), 0);
    EXPECT_EQ(leido(u"1e99999999999999999999"_s), HUGE_VAL);
    EXPECT_EQ(leido(u"0e99999999999999999999"_s), 0);
    EXPECT_EQ(leido(u"1"_s + ceros + u"e-400"_s), 1);
}

} // namespace
} // namespace kestrane
