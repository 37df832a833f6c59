#include "platform/report/preview/paginas_vista.h"

#include "platform/report/preview/fuente_de_prueba.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class PaginasVistaTest : public testing::Test
{
protected:
    prueba::FuenteDePrueba fuente{100, 100};
    QStringList fallos;
    PaginasVista paginas{fuente, [this](const QString& motivo) { fallos += motivo; }};
};

TEST_F(PaginasVistaTest, APageIsComposedOnceAsLongAsItIsLookedAt)
{
    int veces = 0;
    fuente.alComponer = [&veces](int) { ++veces; };
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(paginas.vista(7).texto.texto(0), u"Hoja 8"_s);
    EXPECT_EQ(veces, 1);
}

TEST_F(PaginasVistaTest, ForgottenPagesAreComposedAnew)
{
    static_cast<void>(paginas.vista(7));
    fuente.hojas[7] = {u"otra"_s};
    paginas.olvida();
    EXPECT_EQ(paginas.vista(7).texto.texto(0), u"otra"_s);
}

TEST_F(PaginasVistaTest, KeepsOnlyTheLastPages)
{
    int veces = 0;
    for (int i = 0; i < 100; ++i)
        static_cast<void>(paginas.vista(i));
    fuente.alComponer = [&veces](int) { ++veces; };
    static_cast<void>(paginas.vista(99));
    EXPECT_EQ(veces, 0);
    static_cast<void>(paginas.vista(0));
    EXPECT_EQ(veces, 1);
}

TEST_F(PaginasVistaTest, APageThatFailsIsEmptyAndTold)
{
    fuente.alComponer = [](int) { throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero, u"División por cero."_s}; };
    EXPECT_EQ(paginas.vista(3).texto.tramos(), 0);
    EXPECT_EQ(fallos, QStringList{u"División por cero."_s});
}

TEST_F(PaginasVistaTest, APageWhoseSizeFailsIsToldAndAsLargeAsTheOneBefore)
{
    fuente.papel = {80, 500};
    EXPECT_EQ(paginas.tamano(0), QSizeF(80, 500));
    fuente.alMedir = [](int) { throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero, u"División por cero."_s}; };
    EXPECT_EQ(paginas.tamano(1), QSizeF(80, 500));
    EXPECT_EQ(fallos, QStringList{u"División por cero."_s});
}

TEST(Fallo, IsTheReasonOfAReportsError)
{
    EXPECT_EQ(fallo([] {}), QString{});
    EXPECT_EQ(fallo([] { throw ErrorEjecucion{ErrorEjecucion::TiposNoCoinciden, u"tipos"_s}; }), u"tipos"_s);
    EXPECT_EQ(fallo([] { throw ErrorDeSalida{u"disco lleno"_s}; }), u"disco lleno"_s);
}

TEST(Fallo, IsAlsoWhatMemoryAndLibrariesGiveUpWith)
{
    EXPECT_EQ(fallo([] { throw std::bad_alloc{}; }), u"No hay memoria suficiente."_s);
    EXPECT_EQ(fallo([] { throw std::length_error{"too long"}; }), u"Error inesperado: too long."_s);
}

TEST(Fallo, LetsRiseWhatIsNoError)
{
    EXPECT_THROW(static_cast<void>(fallo([] { throw 7; })), int);
}

} // namespace
} // namespace kestrane::report
