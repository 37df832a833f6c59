#include "pipeline/sabores.h"

#include <gtest/gtest.h>

#include <QString>

namespace kestrane {
namespace {

/// "C" retail, "T" size and colour, "A" food and perfume, "" none of them.
std::string grupos(QStringView tipoPrograma)
{
    std::string letras;
    if (esComercio(tipoPrograma))
        letras += 'C';
    if (esDeTallaYColor(tipoPrograma))
        letras += 'T';
    if (esDeAlimentacionYPerfume(tipoPrograma))
        letras += 'A';
    return letras;
}

TEST(Sabores, EachFlavourHasItsGroups)
{
    EXPECT_EQ(grupos(u"PELUQUERIA"), "");
    EXPECT_EQ(grupos(u"SPA"), "");
    EXPECT_EQ(grupos(u"ESTETICA"), "");
    EXPECT_EQ(grupos(u"CLINICAS"), "");
    EXPECT_EQ(grupos(u"TPV"), "CA");
    EXPECT_EQ(grupos(u"PERFUMERIA"), "CA");
    EXPECT_EQ(grupos(u"TALLACOLOR"), "CT");
    EXPECT_EQ(grupos(u"ZAPATERIA"), "CT");
    EXPECT_EQ(grupos(u"SUPERMERCADO"), "CA");
    EXPECT_EQ(grupos(u"PANADERIA"), "CA");
}

TEST(Sabores, ATextIsComparedInFullAndWithCase)
{
    EXPECT_EQ(grupos(u""), "");
    EXPECT_EQ(grupos(u"tpv"), "");
    EXPECT_EQ(grupos(u"TPV "), "");
    EXPECT_EQ(grupos(u"TALLA"), "");
}

} // namespace
} // namespace kestrane
