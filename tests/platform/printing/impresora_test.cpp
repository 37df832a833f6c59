#include "platform/printing/impresora.h"

#include "platform/printing/servidor_cups.h"

#include <gmock/gmock.h>

namespace kestrane::printing {
namespace {

using namespace Qt::StringLiterals;

TEST(Impresoras, AreThoseOfTheSystemInItsOrderAndFoundByTheirExactNames)
{
    prueba::ServidorCups servidor;
    EXPECT_THAT(impresoras(), testing::IsEmpty());
    EXPECT_EQ(impresoraPredeterminada(), u""_s);
    servidor.anadeCola(u"Tickets"_s, u"Mostrador"_s);
    servidor.anadeCola(u"Laser"_s);
    EXPECT_THAT(impresoras(), testing::ElementsAre(Impresora{u"Laser"_s, u"Local Raw Printer"_s, u""_s},
                                                   Impresora{u"Tickets"_s, u"Local Raw Printer"_s, u"Mostrador"_s}));
    EXPECT_TRUE(existeImpresora(u"Laser"_s));
    EXPECT_FALSE(existeImpresora(u"laser"_s));
    EXPECT_FALSE(existeImpresora(u""_s));
    servidor.eligePredeterminada(u"Tickets"_s);
    EXPECT_EQ(impresoraPredeterminada(), u"Tickets"_s);
    servidor.quitaCola(u"Tickets"_s);
    EXPECT_FALSE(existeImpresora(u"Tickets"_s));
}

} // namespace
} // namespace kestrane::printing
