#include "pipeline/forms/visibilidad_menu.h"

#include "pipeline/catalogue/catalogo.h"
#include "pipeline/forms/menu_de_prueba.h"

#include <QSet>

/// Which of its controls the menu shows to whom.
namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::MenuTest;

using Nombres = QSet<QString>;

/// What no flavour shows.
const Nombres Nunca{u"cmdListados"_s, u"Command1"_s, u"Command3"_s, u"cmd_Estadisticas6"_s};

const Nombres SinTienda{u"cmdAlbaranes"_s, u"cmd_Generales21"_s, u"cmd_Generales22"_s}; ///< what only shops that sell goods have
const Nombres SinSalon{u"cmd_Ventas1"_s, u"cmd_Generales4"_s, u"cmd_Generales7"_s, u"cmd_GeneralesCliDinDep"_s,
                       u"Command5"_s,    u"Frame11"_s}; ///< what only salons have
const Nombres SinSpa{u"cmd_Ventas4"_s, u"cmd_Generales5"_s};
const Nombres SinTallas{u"cmd_Ventas20"_s, u"fr_TallaColor"_s};
const Nombres SinConsumo{u"Command11"_s, u"Command12"_s, u"Command19"_s};

/// What each flavour hides.
const std::pair<QString, Nombres> Sabores[] = {
    {u"PELUQUERIA"_s, SinTienda + SinSpa + SinTallas + Nombres{u"cmd_Generales7"_s}},
    {u"SPA"_s, SinTienda + SinTallas},
    {u"ESTETICA"_s, SinTienda + SinSpa + SinTallas},
    {u"CLINICAS"_s, SinTienda + SinSpa + SinTallas},
    {u"TPV"_s, SinSalon + SinSpa + SinTallas},
    {u"PERFUMERIA"_s, SinSalon + SinSpa + SinTallas},
    {u"PANADERIA"_s, SinSalon + SinSpa + SinTallas},
    {u"TALLACOLOR"_s, SinSalon + SinSpa + SinConsumo},
    {u"ZAPATERIA"_s, SinSalon + SinSpa + SinConsumo},
    {u"SUPERMERCADO"_s, SinSalon + SinSpa + SinTallas + SinConsumo + Nombres{u"Frame10"_s}},
};
/// Of a text that is no flavour: the form as it is designed.
const Nombres Diseno = SinTienda + SinSpa + SinTallas;

class VisibilidadMenuTest : public MenuTest
{
protected:
    /// All buttons and groups of the catalogue that are out of sight by themselves.
    Nombres ocultos(const QString& sabor)
    {
        m_contexto.TipoPrograma = sabor;
        construye().carga();
        Nombres nombres;
        const auto mira = [&](QStringView nombre) {
            if (control(nombre.toString()).isHidden())
                nombres += nombre.toString();
        };
        for (const catalogue::FilaCatalogo& fila : catalogue::catalogo())
            mira(fila.control);
        for (const catalogue::GrupoMenu& grupo : catalogue::grupos())
            mira(grupo.control);
        return nombres;
    }
};

TEST_F(VisibilidadMenuTest, EachFlavourShowsItsControlsAndNoOthers)
{
    for (const auto& [sabor, ocultosSuyos] : Sabores)
        EXPECT_EQ(ocultos(sabor), ocultosSuyos + Nunca) << sabor.toStdString();
}

TEST_F(VisibilidadMenuTest, ATextThatIsNoFlavourLeavesTheFormAsItIsDesigned)
{
    EXPECT_EQ(ocultos(u"FLORISTERIA"_s), Diseno + Nunca);
    EXPECT_EQ(ocultos(u"peluqueria"_s), Diseno + Nunca);
    EXPECT_EQ(ocultos({}), Diseno + Nunca);
}

TEST_F(VisibilidadMenuTest, PerfumeriesHaveAllStockRowsAndSupermarketsLackThree)
{
    EXPECT_FALSE(ocultos(u"PERFUMERIA"_s).intersects(SinConsumo));
    EXPECT_TRUE(ocultos(u"SUPERMERCADO"_s).contains(SinConsumo));
}

TEST_F(VisibilidadMenuTest, TheFlavourHasTheLastWordOverRights)
{
    m_aspecto.alAplicarPermisos = [](QWidget& menu) {
        menu.findChild<QWidget*>(u"cmd_Ventas1"_s)->hide();
        menu.findChild<QWidget*>(u"cmd_Caja1"_s)->hide();
    };
    EXPECT_EQ(ocultos(u"SPA"_s), SinTienda + SinTallas + Nunca + Nombres{u"cmd_Caja1"_s});
    EXPECT_TRUE(ocultos(u"OTRA"_s).contains(u"cmd_Ventas1"_s));
}

TEST_F(VisibilidadMenuTest, DeliveryNotesCannotBePressedWhereTheyAreHidden)
{
    m_contexto.TipoPrograma = u"PELUQUERIA"_s;
    abre();
    EXPECT_FALSE(control(u"cmdAlbaranes"_s).isVisible());
}

/// Whether all that a person sees stands apart from the rest, whole, and large enough for a finger.
class MenuDibujadoTest : public MenuTest, public testing::WithParamInterface<std::tuple<QString, QSize>>
{
protected:
    QList<BotonMenu*> vistos()
    {
        QList<BotonMenu*> botones;
        for (BotonMenu* const boton : m_menu->findChildren<BotonMenu*>()) {
            if (boton->isVisible())
                botones += boton;
        }
        return botones;
    }
    QRect caja(const QWidget* quien) { return {quien->mapTo(m_menu->window(), QPoint{}), quien->size()}; }
};

TEST_P(MenuDibujadoTest, NoCaptionIsCutNoButtonIsSmallAndNothingOverlaps)
{
    const auto& [sabor, tamano] = GetParam();
    m_contexto.TipoPrograma = sabor;
    abre().resize(tamano);
    asienta();
    const QList<BotonMenu*> botones = vistos();
    ASSERT_GE(botones.size(), 40);
    for (qsizetype i = 0; i < botones.size(); ++i) {
        const BotonMenu& boton = *botones[i];
        EXPECT_GE(boton.height(), boton.heightForWidth(boton.width())) << boton.objectName().toStdString();
        EXPECT_GE(boton.width(), boton.minimumSizeHint().width()) << boton.objectName().toStdString();
        for (qsizetype j = i + 1; j < botones.size(); ++j)
            EXPECT_FALSE(caja(&boton).intersects(caja(botones[j]))) << boton.objectName().toStdString();
    }
}

TEST_P(MenuDibujadoTest, CardsLeaveNoGapBetweenThem)
{
    const auto& [sabor, tamano] = GetParam();
    m_contexto.TipoPrograma = sabor;
    abre().resize(tamano);
    asienta();
    QRegion libre{control(u"frGrupos"_s).findChild<QWidget*>(u"qt_scrollarea_viewport"_s)->rect()};
    int fin = 0;
    for (const GrupoBotones* const tarjeta : m_menu->findChildren<GrupoBotones*>()) {
        if (!tarjeta->isVisible())
            continue;
        fin = std::max(fin, tarjeta->geometry().bottom());
        libre -= tarjeta->geometry().adjusted(-11, -11, 11, 11); // what parts cards, and the margin
    }
    for (const QRect& hueco : libre)
        EXPECT_GT(hueco.top(), fin);
}

INSTANTIATE_TEST_SUITE_P(Sabores, MenuDibujadoTest,
                         testing::Combine(testing::Values(u"PELUQUERIA"_s, u"SPA"_s, u"TPV"_s, u"TALLACOLOR"_s, u"SUPERMERCADO"_s),
                                          testing::Values(QSize{1024, 739}, QSize{1920, 1080}, QSize{800, 600})),
                         [](const auto& caso) {
                             return std::get<0>(caso.param).toStdString() + std::to_string(std::get<1>(caso.param).width());
                         });

} // namespace
} // namespace kestrane
