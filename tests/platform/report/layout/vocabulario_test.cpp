#include "platform/report/layout/vocabulario.h"

#include "platform/runtime/soporte.h"

#include <stdexcept>

namespace kestrane::report {
namespace {

TEST(Vocabulario, CadaHijoTieneSuTipo)
{
    for (const TipoElemento& tipo : tiposDeElemento())
        for (const HijoVocabulario& hijo : tipo.hijos)
            EXPECT_EQ(tipoDeElemento(hijo.tipo).tipo, hijo.tipo);
    for (const HijoVocabulario& raiz : raices())
        EXPECT_EQ(tipoDeElemento(raiz.tipo).tipo, raiz.nombre);
    EXPECT_THROW((void)tipoDeElemento(u"parrafo"), std::logic_error);
}

} // namespace
} // namespace kestrane::report
