#include "platform/jet/tipos.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

TEST(TiposTest, EachTypeHasTheDialectsName)
{
    EXPECT_EQ(nombreDeTipo(TipoColumna::Texto), "TEXT"_L1);
    EXPECT_EQ(nombreDeTipo(TipoColumna::Memo), "MEMO"_L1);
    EXPECT_EQ(nombreDeTipo(TipoColumna::Entero32), "LONG"_L1);
    EXPECT_EQ(nombreDeTipo(TipoColumna::Entero16), "INTEGER"_L1);
    EXPECT_EQ(nombreDeTipo(TipoColumna::Doble), "DOUBLE"_L1);
    EXPECT_EQ(nombreDeTipo(TipoColumna::FechaHora), "DATETIME"_L1);
    EXPECT_EQ(nombreDeTipo(TipoColumna::SiNo), "YESNO"_L1);
}

} // namespace
} // namespace kestrane::jet
