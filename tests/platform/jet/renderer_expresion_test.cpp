#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

void condicion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(condicionDe(jet, Motor::Sqlite), esperada);
}

void expresion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(expresionDe(jet, Motor::Sqlite), esperada);
}

TEST(RendererExpresionTest, ParenthesesOnlyWhereTheMeaningNeedsThem)
{
    expresion(u"(total + 1) * 2 - (pago - 3) - 4"_s, u"(t0.\"total\" + ?) * ? - (t0.\"pago\" - ?) - ?"_s);
    expresion(u"-(total + 1) - -pago"_s, u"-(t0.\"total\" + ?) - -t0.\"pago\""_s);
    condicion(u"(codigo = 1 or codigo = 2) and not (codigo = 3 and nombre is null)"_s,
              u"(t0.\"codigo\" = ? OR t0.\"codigo\" = ?) AND NOT (t0.\"codigo\" = ? AND t0.\"nombre\" IS NULL)"_s);
    condicion(u"not not codigo = 1"_s, u"NOT (NOT t0.\"codigo\" = ?)"_s);
}

TEST(RendererExpresionTest, NoTwoSignsEverTouch)
{
    expresion(u"-(-total)"_s, u"-(-t0.\"total\")"_s);
    expresion(u"-true"_s, u"-(-1)"_s);
    expresion(u"total - true"_s, u"t0.\"total\" - -1"_s);
    expresion(u"-(pago = 1)"_s, u"-(-(t0.\"pago\" = ?))"_s);
}

} // namespace
} // namespace kestrane::jet
