#include "platform/database/clave_espanol.h"

#include "platform/database/espanol.h"

#include <gtest/gtest.h>

namespace kestrane::database::espanol {
namespace {

using namespace Qt::StringLiterals;

QByteArray clave(const QString& texto)
{
    QByteArray bytes;
    anadeClave(bytes, texto);
    return bytes;
}

int signo(int orden)
{
    return (orden > 0) - (orden < 0);
}

TEST(ClaveEspanol, KeysSortAsTheTextsDo)
{
    const QString textos[] = {u""_s,         u" "_s,   u"a"_s,       u"A"_s,       u"á"_s,          u"ab"_s,
                              u"áb"_s,       u"abá"_s, u"abe"_s,     u"ábe"_s,     u"nube"_s,       u"ñu"_s,
                              u"n\u0303u"_s, u"o"_s,   u"ø"_s,       u"oz"_s,      u"zapato"_s,     u"ZAPATO "_s,
                              u"œuf"_s,      u"9"_s,   u"10"_s,      u"€ 5"_s,     u"\u05D0"_s,     u"\u4E2D"_s,
                              u"😀"_s,       u"zþ"_s,  u"\u4E2Da"_s, u"a\u0301"_s, u"aaaaaaaaaá"_s, u"aaaaaaaaaab"_s};
    for (const QString& a : textos) {
        for (const QString& b : textos)
            EXPECT_EQ(signo(clave(a).compare(clave(b))), signo(compara(a, b))) << qPrintable(a) << " | " << qPrintable(b);
    }
}

TEST(ClaveEspanol, NoKeyIsTheBeginningOfAnothers)
{
    EXPECT_FALSE(clave(u"casados"_s).startsWith(clave(u"casa"_s)));
    EXPECT_FALSE(clave(u"casá"_s).startsWith(clave(u"casa"_s)));
}

} // namespace
} // namespace kestrane::database::espanol
