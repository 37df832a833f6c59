#include "escritorio/mostrador.h"

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/forms/tics_rapidos.h"
#include "pipeline/hay_datos.h"
#include "platform/suite/conector_tienda.h"
#include "platform/suite/preferencias_en_tabla.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTest>
#include <QTimer>

/// From a button to a preview, with all windows real and no time to wait.
namespace kestrane::escritorio {
namespace {

using namespace Qt::StringLiterals;

class MostradorTest : public testing::Test
{
protected:
    MostradorTest()
    {
        ConectorTiendaDsn{}.AbrirConexion({}, m_contexto.ConexionTienda);
        m_contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
        m_contexto.CarpetaPrograma = QStringLiteral(KESTRANE_LAYOUTS);
        m_contexto.TipoPrograma = u"PELUQUERIA"_s;
        m_contexto.AnchoVentana = m_contexto.AnchoDiseno = 15360;
        m_contexto.AltoVentana = m_contexto.AltoDiseno = 11085;
        m_tienda.ejecuta({u"insert into seccion (codigo, nombre, borrar) values (1, 'Peluquería', 0)"_s,
                          u"insert into formapago (codigo, nombre, borrar) values (1, 'Efectivo', 0)"_s});
        m_mostrador.menu().carga();
        m_mostrador.menu().show();
    }

    void pulsa(const QString& nombre)
    {
        auto* const boton = m_mostrador.menu().findChild<QWidget*>(nombre);
        ASSERT_NE(boton, nullptr);
        QTest::mouseClick(boton, Qt::LeftButton);
    }
    /// Presses once, when events are drained behind a builder that has written its rows.
    void pulsaTrasElConstructor(const QString& nombre)
    {
        auto* const vigia = new QTimer{&m_mostrador.menu()};
        QObject::connect(vigia, &QTimer::timeout, vigia, [this, vigia, nombre] {
            if (!HayDatos(m_contexto.ConexionListados))
                return;
            vigia->stop();
            pulsa(nombre);
        });
        vigia->start(0);
    }
    /// Accepts the message boxes that come up, and keeps what they say.
    void aceptaAvisos()
    {
        auto* const vigia = new QTimer{&m_mostrador.menu()};
        QObject::connect(vigia, &QTimer::timeout, [this] {
            if (auto* const caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                m_avisos += caja->windowTitle() + u": "_s + caja->text();
                caja->accept();
            }
        });
        vigia->start(0);
    }
    size_t vistas() { return m_mostrador.vistas().abiertas().size(); }
    bool hayParar()
    {
        for (const QWidget* const ventana : QApplication::topLevelWidgets()) {
            if (ventana->objectName() == u"frmParar" && ventana->isVisible())
                return true;
        }
        return false;
    }

    prueba::TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
    AspectoNeutro m_aspecto;
    PreferenciasEnTabla m_preferencias{u"MOSTRADOR"_s};
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15)};
    prueba::TicsRapidos m_tics;
    QStringList m_avisos;
    std::function<void()> m_alTerminar = [] {};
    int m_finales = 0;
    Mostrador m_mostrador{{.contexto = m_contexto,
                           .aspecto = m_aspecto,
                           .preferencias = m_preferencias,
                           .reloj = m_reloj,
                           .tics = m_tics,
                           .ObtenerList1 = [] { return QString{}; },
                           .termina =
                               [this] {
                                   ++m_finales;
                                   m_alTerminar();
                               }}};
};

TEST_F(MostradorTest, AListingWithoutADialogGoesFromItsButtonToAPreview)
{
    EXPECT_FALSE(m_contexto.FiltroAceptado); // as it stands when the program starts
    pulsa(u"cmd_Generales8"_s);
    ASSERT_EQ(vistas(), 1U);
    EXPECT_EQ(m_mostrador.vistas().abiertas()[0]->windowTitle(), u"INFORMES:"_s);
    EXPECT_FALSE(hayParar());
}

TEST_F(MostradorTest, AListingWithoutRowsSaysSoAndOpensNothing)
{
    m_tienda.ejecuta(u"delete from seccion"_s);
    aceptaAvisos();
    pulsa(u"cmd_Generales8"_s);
    EXPECT_EQ(m_avisos, QStringList{u"Listados: No hay datos para ser mostrados."_s});
    EXPECT_EQ(vistas(), 0U);
    EXPECT_FALSE(hayParar());
}

TEST_F(MostradorTest, ListingsWithoutADialogAllGoFromTheirButtonToAPreview)
{
    m_tienda.ejecuta({u"insert into proveedores (codigo, nombre, borrar) values (1, 'Aqua', 0)"_s,
                      u"insert into marcas (codigo, nombre) values (1, 'Nube')"_s});
    for (const QString& nombre : {u"cmd_Generales8"_s, u"cmd_Generales9"_s, u"cmd_Generales10"_s}) {
        const size_t antes = vistas();
        pulsa(nombre);
        EXPECT_EQ(vistas(), antes + 1) << nombre.toStdString();
    }
}

TEST_F(MostradorTest, TheListingOfServicesGoesThroughItsDialog)
{
    m_tienda.ejecuta(u"insert into servicios (codigo, nombre, borrar, precio, seccion) values (1, 'Corte', 0, 12.5, 1)"_s);
    QTimer::singleShot(0, &m_mostrador.menu(), [] {
        auto* const dialogo = QApplication::activeModalWidget();
        ASSERT_NE(dialogo, nullptr);
        EXPECT_EQ(dialogo->objectName(), u"frmOrdenServicios"_s);
        QTest::mouseClick(dialogo->findChild<QWidget*>(u"Command2"_s), Qt::LeftButton);
    });
    pulsa(u"cmd_Generales4"_s);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Seccion"_s);
    EXPECT_EQ(vistas(), 1U);
}

TEST_F(MostradorTest, WithTheKeyboardAloneAListingIsLeftHalfWayAndAskedForAgain)
{
    m_tienda.ejecuta(u"insert into servicios (codigo, nombre, borrar, precio, seccion) values (1, 'Corte', 0, 12.5, 1)"_s);
    auto* const boton = m_mostrador.menu().findChild<QWidget*>(u"cmd_Generales4"_s);
    ASSERT_NE(boton, nullptr);
    const auto pideY = [&](std::initializer_list<Qt::Key> teclas) {
        QTimer::singleShot(0, &m_mostrador.menu(), [teclas = std::vector<Qt::Key>{teclas}] {
            QWidget* const dialogo = QApplication::activeModalWidget();
            ASSERT_NE(dialogo, nullptr);
            ASSERT_TRUE(QTest::qWaitForWindowActive(dialogo)); // its first button has the keyboard then
            for (const Qt::Key tecla : teclas)
                QTest::keyClick(dialogo->focusWidget() ? dialogo->focusWidget() : dialogo, tecla);
        });
        boton->setFocus();
        QTest::keyClick(boton, Qt::Key_Space);
    };
    pideY({Qt::Key_Tab, Qt::Key_Escape});
    EXPECT_EQ(vistas(), 0U);
    pideY({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return});
    EXPECT_EQ(vistas(), 1U);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Codigo"_s);
}

/// With the mouse alone: a report with formats is left half-way, behind its first stage, and asked for again.
TEST_F(MostradorTest, AReportLeftAtItsFormatsIsAskedForAgainByTheMouseAlone)
{
    const auto pideY = [this](const QStringList& pulsados) {
        QTimer::singleShot(0, &m_mostrador.menu(), [pulsados] {
            QWidget* const dialogo = QApplication::activeModalWidget();
            ASSERT_NE(dialogo, nullptr);
            for (const QString& nombre : pulsados)
                QTest::mouseClick(dialogo->findChild<QWidget*>(nombre), Qt::LeftButton);
        });
        pulsa(u"cmd_Caja3"_s);
    };
    m_contexto.PermiteListadoVariosDias = true;
    m_tienda.ejecuta({u"insert into caja_inicial (fecha, tienda, importe) values (#03/15/2024#, 'Centro', 50)"_s,
                      u"insert into gastos (fecha, tienda, importe, motivo) values (#03/15/2024#, 'Centro', 5, 'Luz')"_s});
    pideY({u"Command1"_s, u"cmd_Salir"_s});
    EXPECT_EQ(vistas(), 0U);
    EXPECT_FALSE(m_contexto.FiltroAceptado);
    pideY({u"Command1"_s, u"cmdFolio"_s});
    EXPECT_TRUE(m_contexto.FiltroAceptado);
    EXPECT_EQ(vistas(), 1U);
}

TEST_F(MostradorTest, EachDialogIsOfferedUnderItsNameAndGoneWhenItIsLeft)
{
    const std::pair<Dialogo, QString> casos[] = {
        {Dialogo::Fechas, u"frmFechas"_s},
        {Dialogo::FechasConFormatos, u"frmFechas"_s},
        {Dialogo::HistoricoXClientes, u"frmHistoricoXClientes"_s},
        {Dialogo::HistoricoXEmpleados, u"frmHistoricoXEmpleados"_s},
        {Dialogo::FiltrosProductos, u"frmFiltrosProductos"_s},
        {Dialogo::ProductosVendidos, u"frmProductosVendidos"_s},
        {Dialogo::OrdenClientes, u"FrmOrdenClientes"_s},
        {Dialogo::OrdenServicios, u"frmOrdenServicios"_s},
        {Dialogo::ClientesPerdidos, u"frClientesPerdidos"_s},
        {Dialogo::Meses, u"frmMeses"_s},
        {Dialogo::SelTienda, u"frmSelTienda"_s},
    };
    for (const auto& [dialogo, nombre] : casos) {
        ASSERT_TRUE(m_mostrador.dialogos().Existe(dialogo)) << nombre.toStdString();
        QString mostrado;
        QTimer::singleShot(0, &m_mostrador.menu(), [&mostrado] {
            if (QWidget* const abierto = QApplication::activeModalWidget()) {
                mostrado = abierto->objectName();
                QTest::keyClick(abierto, Qt::Key_Escape);
            }
        });
        m_mostrador.dialogos().Muestra(dialogo, {});
        EXPECT_EQ(mostrado, nombre);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

TEST_F(MostradorTest, AListingWhoseDialogIsLeftIsNotBuilt)
{
    QTimer::singleShot(0, &m_mostrador.menu(), [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    pulsa(u"cmd_Generales4"_s);
    EXPECT_EQ(vistas(), 0U);
    EXPECT_TRUE(m_avisos.isEmpty());
}

TEST_F(MostradorTest, AReportThatIsNotThereYetSaysSo)
{
    aceptaAvisos();
    pulsa(u"cmd_Ventas7"_s);
    EXPECT_EQ(m_avisos, QStringList{u"Listados: Este listado todavía no está disponible."_s});
}

TEST_F(MostradorTest, AMissingLayoutIsToldOnceAndTheMenuGoesOn)
{
    m_contexto.CarpetaPrograma = m_tienda.carpeta();
    aceptaAvisos();
    pulsa(u"cmd_Generales8"_s);
    ASSERT_EQ(m_avisos.size(), 1);
    EXPECT_TRUE(m_avisos[0].startsWith(u"20001: "_s)) << m_avisos[0].toStdString();
    EXPECT_FALSE(hayParar());
    EXPECT_EQ(m_finales, 0);
}

TEST_F(MostradorTest, PreviewsStayOpenBesideEachOther)
{
    pulsa(u"cmd_Generales8"_s);
    pulsa(u"cmd_Generales9"_s);
    EXPECT_EQ(vistas(), 2U);
}

TEST_F(MostradorTest, APressWhileEventsAreDrainedRunsItsReportInsideTheOther)
{
    pulsaTrasElConstructor(u"cmd_Generales9"_s);
    pulsa(u"cmd_Generales8"_s);
    EXPECT_EQ(vistas(), 2U);
    EXPECT_FALSE(hayParar());
}

TEST_F(MostradorTest, LeavingInsideARunningReportEndsTheProgramThereAndThen)
{
    size_t vistasEntonces = 99;
    bool pararEntonces = false;
    m_alTerminar = [&] {
        vistasEntonces = vistas();
        pararEntonces = hayParar();
    };
    pulsaTrasElConstructor(u"cmd_Salir"_s);
    pulsa(u"cmd_Generales8"_s);
    EXPECT_EQ(m_finales, 1);
    EXPECT_EQ(vistasEntonces, 0U);
    EXPECT_TRUE(pararEntonces);
}

TEST_F(MostradorTest, ClosingTheMenuEndsTheProgramThoughPreviewsAreOpen)
{
    pulsa(u"cmd_Generales8"_s);
    size_t vistasEntonces = 0;
    m_alTerminar = [&] { vistasEntonces = vistas(); };
    m_mostrador.menu().close();
    EXPECT_EQ(m_finales, 1);
    EXPECT_EQ(vistasEntonces, 1U);
}

TEST_F(MostradorTest, ThePanelOfClientLabelsAnswersItsReport)
{
    EXPECT_TRUE(m_mostrador.dialogos().Existe(Dialogo::EtiquetasClientes));
    pulsa(u"cmd_Generales12"_s);
    QTest::keyClick(m_mostrador.menu().findChild<QWidget*>(u"optTodos"_s), Qt::Key_Space);
    m_mostrador.dialogos().Muestra(Dialogo::EtiquetasClientes, {});
    EXPECT_TRUE(m_contexto.filtros.etiquetas.optTodos);
    EXPECT_FALSE(m_mostrador.menu().findChild<QWidget*>(u"frAviso"_s)->isVisible());
}

} // namespace
} // namespace kestrane::escritorio
