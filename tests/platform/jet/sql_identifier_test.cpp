#include "platform/jet/sql_identifier.h"

#include <gtest/gtest.h>

namespace kestrane::jet {
namespace {

QByteArray citado(QStringView nombre, char comilla)
{
    QByteArray sql = "x";
    SqlIdentifier{nombre}.escribe(sql, comilla);
    return sql;
}

TEST(SqlIdentifierTest, QuotesInsideANameAreDoubled)
{
    EXPECT_EQ(citado(u"a\"b\"\"", '"'), "x\"a\"\"b\"\"\"\"\"");
    EXPECT_EQ(citado(u"a`; drop", '`'), "x`a``; drop`");
    EXPECT_EQ(citado(u"ñ\"o", '"'), "x\"\xC3\xB1\"\"o\"");
}

TEST(SqlIdentifierTest, ANameStandsAloneToo)
{
    EXPECT_EQ(SqlIdentifier{u"d'or"}.entre('\''), "'d''or'");
}

TEST(SqlIdentifierTest, NamesAreWrittenInUtf8)
{
    EXPECT_EQ(citado(u"codigo", '"'), "x\"codigo\"");
    EXPECT_EQ(citado(u"año`", '"'), "x\"a\xC3\xB1o`\"");
    EXPECT_EQ(citado(u"", '`'), "x``");
}

} // namespace
} // namespace kestrane::jet
