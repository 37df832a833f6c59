#include "pipeline/catalogue/filas.h"

#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;

/// A builder that serves several buttons and leaves its number where the test sees it.
void ListadoConNumero(Listados& listados, qint16 numero)
{
    listados.contexto.filtros.titulo = u"numero %1"_s.arg(numero);
}

TEST(Filas, ABuilderThatServesSeveralButtonsIsCalledWithTheNumberOfItsRow)
{
    EntornoDatos entorno{{}};
    ContextoEjecucion contexto{entorno};
    prueba::ProgresoContado progreso;
    const RelojFijo reloj{prueba::dia(2024, 3, 15)};
    Listados listados{contexto, progreso, reloj};
    const Constructores dos = con<2, ListadoConNumero>(u"ListadoConNumero");
    EXPECT_EQ(dos[0].numero, 2);
    dos[0].constructor(listados);
    EXPECT_EQ(contexto.filtros.titulo, u"numero 2"_s);
    con<3, ListadoConNumero>(u"ListadoConNumero")[0].constructor(listados);
    EXPECT_EQ(contexto.filtros.titulo, u"numero 3"_s);
}

TEST(Filas, UntilThereIsSuchABuilderItsRowHoldsTheNumberAlone)
{
    const OpcionConstructor opcion = con<2>(u"ListadoConNumero")[0];
    EXPECT_EQ(opcion.numero, 2);
    EXPECT_TRUE(opcion.presente());
    EXPECT_TRUE(opcion.constructor == nullptr);
}

TEST(Filas, GroupsAreJoinedInTheirOrderAndEachRowKnowsItsOwn)
{
    constexpr std::array Primero{sinAccion(u"a", u""), sinAccion(u"b", u"")};
    constexpr std::array Segundo{sinAccion(u"c", u"")};
    constexpr auto Todas = juntas(enGrupo(Grupo::Frame5, Primero), enGrupo(Grupo::Frame1, Segundo));
    QStringList controles;
    for (const FilaCatalogo& fila : Todas)
        controles += fila.control.toString() + (fila.grupo == Grupo::Frame5   ? u"5"_s
                                                : fila.grupo == Grupo::Frame1 ? u"1"_s
                                                                              : u"?"_s);
    EXPECT_EQ(controles, (QStringList{u"a5"_s, u"b5"_s, u"c1"_s}));
}

} // namespace
} // namespace kestrane::catalogue
