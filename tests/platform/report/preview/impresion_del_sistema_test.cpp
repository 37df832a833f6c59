#include "platform/report/preview/impresion_del_sistema.h"

#include "platform/printing/impresora.h"
#include "platform/report/preview/fuente_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

TEST(ImpresionDelSistema, OffersTheMachinesPrintersByName)
{
    QStringList nombres;
    for (const printing::Impresora& impresora : printing::impresoras())
        nombres += impresora.nombre;
    EXPECT_EQ(ImpresionDelSistema{}.impresoras(), nombres);
    EXPECT_EQ(ImpresionDelSistema{}.predeterminada(), printing::impresoraPredeterminada());
}

TEST(ImpresionDelSistema, WhatHasNoDocumentIsNotPrinted)
{
    prueba::FuenteDePrueba fuente{1, 1};
    EXPECT_FALSE(ImpresionDelSistema{}.imprime(fuente, {}, {}));
}

} // namespace
} // namespace kestrane::report
