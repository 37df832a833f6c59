#include "platform/report/recorrido.h"

#include "platform/report/filas_agrupadas.h"
#include "platform/report/informe_de_prueba.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

FilasDeLayout con(const CopiaFilas& copia)
{
    return
        [copia](const Layout& layout) { return std::make_unique<FilasAgrupadas>(layout, copia, ConfiguracionRegional::espania()); };
}

QString nombre(const Paso& paso)
{
    switch (paso.parte) {
    case Parte::CabeceraInforme:
        return u"principio"_s;
    case Parte::Encabezados:
        return u"encabezados"_s;
    case Parte::AbreGrupos:
        return u"abre %1"_s.arg(paso.fila);
    case Parte::CabeceraGrupo:
        return u"cabecera%1 %2"_s.arg(paso.nivel).arg(paso.fila);
    case Parte::Detalle:
        return u"detalle %1"_s.arg(paso.fila);
    case Parte::PieGrupo:
        return u"pie%1 %2"_s.arg(paso.nivel).arg(paso.fila);
    case Parte::PieInforme:
        return u"final"_s;
    case Parte::Fin:
        break;
    }
    return u"fin"_s;
}

QStringList pasos(const InformeEnlazado& informe)
{
    const Recorrido recorrido{informe};
    QStringList nombres;
    for (Paso paso = recorrido.primero(); paso.parte != Parte::Fin; recorrido.avanza(paso))
        nombres << nombre(paso);
    return nombres;
}

prueba::LayoutDePrueba completo()
{
    prueba::LayoutDePrueba prueba;
    prueba.layout.cabeceraInforme.push_back(prueba.banda(5, u"'x'"_s));
    prueba.layout.cabeceraPagina.push_back(prueba.banda(5, u"'x'"_s));
    prueba.layout.detalle.push_back(prueba.banda(5, u"'x'"_s));
    prueba.layout.pieInforme.push_back(prueba.banda(5, u"'x'"_s));
    return prueba;
}

TEST(Recorrido, GroupsNestAndEndBeforeTheNextBegins)
{
    prueba::LayoutDePrueba prueba = completo();
    prueba.grupo(u"a"_s, 5, u"'x'"_s);
    prueba.grupo(u"b"_s, 5, u"'x'"_s);
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, con(prueba::copiaDe({u"a"_s, u"b"_s}, {{1, 1}, {1, 2}, {2, 2}})), estilos};
    EXPECT_THAT(pasos(informe),
                ElementsAre(u"principio"_s, u"abre 0"_s, u"cabecera1 0"_s, u"cabecera2 0"_s, u"detalle 0"_s, u"pie2 0"_s,
                            u"abre 1"_s, u"cabecera2 1"_s, u"detalle 1"_s, u"pie2 1"_s, u"pie1 1"_s, u"abre 2"_s, u"cabecera1 2"_s,
                            u"cabecera2 2"_s, u"detalle 2"_s, u"pie2 2"_s, u"pie1 2"_s, u"final"_s));
}

TEST(Recorrido, WithoutRowsOnlyTheReportsOwnBandsAreLeft)
{
    prueba::LayoutDePrueba prueba = completo();
    prueba.grupo(u"n"_s, 5, u"'x'"_s);
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, con(prueba::copiaNumerada(0)), estilos};
    EXPECT_THAT(pasos(informe), ElementsAre(u"principio"_s, u"final"_s));
}

TEST(Recorrido, ASubreportHasItsHeadingsOnce)
{
    const prueba::LayoutDePrueba prueba = completo();
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, con(prueba::copiaNumerada(2)), estilos, 1};
    EXPECT_THAT(pasos(informe), ElementsAre(u"principio"_s, u"encabezados"_s, u"detalle 0"_s, u"detalle 1"_s, u"final"_s));
}

TEST(Recorrido, EmptySectionsArePassedOver)
{
    prueba::LayoutDePrueba prueba;
    prueba.grupo(u"n"_s, 5, u"'x'"_s).cabecera.clear();
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, con(prueba::copiaNumerada(2)), estilos};
    EXPECT_THAT(pasos(informe), ElementsAre(u"abre 0"_s, u"pie1 0"_s, u"abre 1"_s, u"pie1 1"_s));
}

TEST(Recorrido, TellsWhichGroupsGoOn)
{
    prueba::LayoutDePrueba prueba = completo();
    prueba.grupo(u"a"_s);
    prueba.grupo(u"b"_s);
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, con(prueba::copiaDe({u"a"_s, u"b"_s}, {{1, 1}, {1, 2}})), estilos};
    const Recorrido recorrido{informe};
    EXPECT_EQ(recorrido.nivelesAbiertos({Parte::AbreGrupos, 0, 0, 0}), 0);
    EXPECT_EQ(recorrido.nivelesAbiertos({Parte::AbreGrupos, 0, 0, 1}), 1);
    EXPECT_EQ(recorrido.nivelesAbiertos({Parte::CabeceraGrupo, 2, 0, 1}), 1);
    EXPECT_EQ(recorrido.nivelesAbiertos({Parte::Detalle, 0, 0, 1}), 2);
    EXPECT_EQ(recorrido.nivelesAbiertos({Parte::PieGrupo, 1, 0, 1}), 1);
    EXPECT_EQ(recorrido.nivelesAbiertos({Parte::PieInforme, 0, 0, 1}), 0);
}

} // namespace
} // namespace kestrane::report
