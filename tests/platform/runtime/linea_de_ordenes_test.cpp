#include "platform/runtime/linea_de_ordenes.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class LineaDeOrdenes : public testing::Test
{
protected:
    LineaDeOrdenes()
    {
        m_lector.addOptions({{u"sql"_s, {}, u"valor"_s}, {u"tienda"_s, {}, u"valor"_s}, {u"escribir"_s, {}}, {u"ticket"_s, {}}});
    }

    std::string lee(const QStringList& argumentos)
    {
        return leeLinea(m_lector, QStringList{u"programa"_s} + argumentos, {u"tienda"_s}).toStdString();
    }

    QCommandLineParser m_lector;
};

TEST_F(LineaDeOrdenes, AnUnknownOptionIsNamedAsItWasWritten)
{
    EXPECT_EQ(lee({u"--rapido"_s}), "Opción desconocida: --rapido.");
    EXPECT_EQ(lee({u"-rapido=si"_s}), "Opción desconocida: -rapido.");
    EXPECT_EQ(lee({u"--sql"_s, u"a"_s, u"-l"_s}), "Opción desconocida: -l.");
}

TEST_F(LineaDeOrdenes, AMissingValueIsTold)
{
    EXPECT_EQ(lee({u"--sql"_s}), "A --sql le falta su valor.");
    EXPECT_EQ(lee({u"--ticket"_s, u"-sql"_s}), "A -sql le falta su valor.");
    EXPECT_EQ(lee({u"--sql"_s, u""_s, u"--ticket"_s}), "A --sql le falta su valor.");
    EXPECT_EQ(lee({u"--sql="_s}), "A --sql le falta su valor.");
}

TEST_F(LineaDeOrdenes, TheOptionWithAValueTooManyIsNamedWhereverItStands)
{
    EXPECT_EQ(lee({u"--escribir=si"_s, u"--ticket"_s}), "--escribir no lleva valor.");
    EXPECT_EQ(lee({u"--sql=x"_s, u"--escribir=si"_s}), "--escribir no lleva valor.");
}

TEST_F(LineaDeOrdenes, WhatMakesSenseIsRead)
{
    EXPECT_EQ(lee({u"-sql"_s, u"-1"_s, u"--tienda"_s, u""_s, u"suelto"_s, u"--ticket"_s}), "");
    EXPECT_EQ(m_lector.value(u"sql"_s), u"-1"_s);
    EXPECT_TRUE(m_lector.isSet(u"tienda"_s) && m_lector.isSet(u"ticket"_s));
    EXPECT_EQ(m_lector.positionalArguments(), QStringList{u"suelto"_s});
}

} // namespace
} // namespace kestrane
