#include "platform/jet/error_sql.h"

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

ErrorSql error(int posicion, int longitud)
{
    return {ErrorSql::Clase::SintaxisIncorrecta, u"Algo falla."_s, posicion, longitud};
}

TEST(DescribeTest, MarksThePlaceUnderTheStatement)
{
    EXPECT_EQ(describe(error(14, 8), u"select * from clientez"_s), u"Algo falla. (posición 15)\n"
                                                                   "select * from clientez\n"
                                                                   "              ^^^^^^^^"_s);
}

TEST(DescribeTest, MarksThePointBehindTheEnd)
{
    EXPECT_EQ(describe(error(8, 0), u"select *"_s), u"Algo falla. (posición 9)\n"
                                                    "select *\n"
                                                    "        ^"_s);
    EXPECT_EQ(describe(error(0, 0), u""_s), u"Algo falla. (posición 1)\n"
                                            "\n"
                                            "^"_s);
}

TEST(DescribeTest, ShowsOneLineOfAStatementOfSeveral)
{
    EXPECT_EQ(describe(error(10, 1), u"select a\r\n,from\tt"_s), u"Algo falla. (posición 11)\n"
                                                                 "select a  ,from t\n"
                                                                 "          ^"_s);
}

TEST(DescribeTest, ShowsAStretchOfALongStatement)
{
    const QString larga = QString(100, u'a') + u"X"_s + QString(100, u'b');
    EXPECT_EQ(describe(error(100, 1), larga), u"Algo falla. (posición 101)\n..."_s + QString(40, u'a') + u"X"_s +
                                                  QString(40, u'b') + u"...\n"_s + QString(43, u' ') + u"^"_s);
}

TEST(DescribeTest, CutsNoCharacterInTwo)
{
    const QString emoji = u"\U0001F600"_s;
    const QString larga = emoji.repeated(50) + u"X"_s;
    const QString texto = describe(error(100, 1), larga);
    EXPECT_FALSE(texto.section(u'\n', 1, 1).mid(3, 1)[0].isLowSurrogate());
}

TEST(DescribeTest, BearsAPlaceOutsideTheText)
{
    EXPECT_EQ(describe(error(50, 5), u"abc"_s), u"Algo falla. (posición 4)\n"
                                                "abc\n"
                                                "   ^"_s);
}

} // namespace
} // namespace kestrane::jet
