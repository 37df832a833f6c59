#include "pipeline/forms/impresoras_del_sistema.h"

#include "platform/printing/servidor_cups.h"

#include <gmock/gmock.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(ImpresorasDelSistema, AreThoseThatTheMachineHasNow)
{
    prueba::ServidorCups servidor;
    const ImpresorasDelSistema impresoras;
    EXPECT_THAT(impresoras.lista(), testing::IsEmpty());
    servidor.anadeCola(u"Tickets"_s, u"Mostrador"_s);
    EXPECT_THAT(impresoras.lista(), testing::ElementsAre(ImpresoraInstalada{u"Tickets"_s, u"Local Raw Printer"_s, u"Mostrador"_s}));
}

} // namespace
} // namespace kestrane
