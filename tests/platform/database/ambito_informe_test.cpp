#include "platform/database/ambito_informe.h"

#include "platform/database/estado_informe.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

TEST(AmbitoInforme, TheScopeLastsAsLongAsTheObject)
{
    const auto estado = std::make_shared<EstadoInforme>(1000);
    {
        const AmbitoInforme ambito{estado};
        EXPECT_TRUE(estado->activo());
    }
    EXPECT_FALSE(estado->activo());
}

TEST(AmbitoInforme, ItMayBeEndedBeforeAndOnlyOnce)
{
    const auto estado = std::make_shared<EstadoInforme>(1000);
    const AmbitoInforme otro{estado};
    AmbitoInforme ambito{estado};
    ambito.TerminaInforme();
    ambito.TerminaInforme();
    EXPECT_TRUE(estado->activo()) << "the other one's";
}

TEST(AmbitoInforme, MovedItEndsOnce)
{
    const auto estado = std::make_shared<EstadoInforme>(1000);
    const AmbitoInforme otro{estado};
    {
        AmbitoInforme ambito{estado};
        const AmbitoInforme movido{std::move(ambito)};
    }
    EXPECT_TRUE(estado->activo());
}

} // namespace
} // namespace kestrane::database
