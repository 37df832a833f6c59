#include "escritorio/programa.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/suite/copia_unica.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <cstdio>

/// The whole program, each in a process of its own, which it ends.
namespace kestrane::escritorio {
namespace {

using namespace Qt::StringLiterals;

class ProgramaTest : public testing::Test
{
protected:
    ProgramaTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    /// A program folder with the two databases of an empty shop.
    void conTienda() { ASSERT_TRUE(QFile::link(m_tienda.carpeta(), m_carpeta.filePath(u"datos"_s))); }
    static Aplicacion& laAplicacion() { return *static_cast<Aplicacion*>(qApp); }
    /// A name that no other process takes.
    QString nombreCopia() const { return u"prueba-"_s + QDir{m_carpeta.path()}.dirName(); }

    /// Runs the program, while `mira` is asked again and again whether it did its part.
    void corre(std::function<bool()> mira)
    {
        QTimer vigia;
        QObject::connect(&vigia, &QTimer::timeout, [&vigia, mira = std::move(mira)] {
            if (mira())
                vigia.stop();
        });
        vigia.start(5);
        const int estado = ejecutaPrograma(laAplicacion(), m_carpeta.path(), nombreCopia());
        std::fputs(qPrintable(u"ventanas: %1"_s.arg(QApplication::topLevelWidgets().size())), stderr);
        std::exit(100 + estado);
    }
    static QWidget* menu()
    {
        for (QWidget* const ventana : QApplication::topLevelWidgets()) {
            if (ventana->objectName() == u"frmListados" && ventana->isVisible())
                return ventana;
        }
        return nullptr;
    }
    static bool cierraAviso()
    {
        auto* const caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!caja)
            return false;
        std::fputs(qPrintable(caja->windowTitle() + u" | "_s + caja->text()), stderr);
        caja->accept();
        return true;
    }

    prueba::TiendaDePrueba m_tienda{jet::Motor::Sqlite};
    QTemporaryDir m_carpeta;
};

TEST_F(ProgramaTest, WithoutAShopItShowsTheErrorWithItsNumberAndEndsWithOne)
{
    EXPECT_EXIT(corre(cierraAviso), testing::ExitedWithCode(1), "-2147467259 \\| .*TiendaKestrane");
}

TEST_F(ProgramaTest, TheMenuOfAShopOpensAndItsWayOutEndsWithZero)
{
    conTienda();
    const auto sale = [] {
        QWidget* const abierto = menu();
        if (!abierto)
            return false;
        std::fputs("menu", stderr);
        QTest::mouseClick(abierto->findChild<QWidget*>(u"cmd_Salir"_s), Qt::LeftButton);
        return true;
    };
    EXPECT_EXIT(corre(sale), testing::ExitedWithCode(0), "menu");
}

TEST_F(ProgramaTest, ClosingTheMenuEndsWithZeroToo)
{
    conTienda();
    const auto cierra = [] {
        QWidget* const abierto = menu();
        return abierto && abierto->close();
    };
    EXPECT_EXIT(corre(cierra), testing::ExitedWithCode(0), "");
}

TEST_F(ProgramaTest, ATableThatIsMissingEndsTheStartWithTheDatabasesOwnNumber)
{
    m_tienda.quitaTabla(u"opciones"_s);
    conTienda();
    EXPECT_EXIT(corre(cierraAviso), testing::ExitedWithCode(1), "-2147217900 \\| .*opciones");
}

TEST_F(ProgramaTest, AnErrorInsideAReportEndsTheRun)
{
    m_tienda.quitaTabla(u"seccion"_s);
    conTienda();
    const auto pulsa = [] {
        QWidget* const abierto = menu();
        if (!abierto)
            return false;
        QTimer::singleShot(0, [] {
            auto* const vigia = new QTimer{qApp};
            QObject::connect(vigia, &QTimer::timeout, [] { cierraAviso(); });
            vigia->start(5);
        });
        QTimer::singleShot(0, abierto,
                           [abierto] { QTest::mouseClick(abierto->findChild<QWidget*>(u"cmd_Generales8"_s), Qt::LeftButton); });
        return true;
    };
    EXPECT_EXIT(corre(pulsa), testing::ExitedWithCode(1), "-2147217900 \\| .*seccion");
}

TEST_F(ProgramaTest, LeavingInsideARunningReportEndsTheProcessThere)
{
    m_tienda.ejecuta(u"insert into seccion (codigo, nombre, borrar) values (1, 'Peluquería', 0)"_s);
    conTienda();
    const auto pulsaYSale = [] {
        QWidget* const abierto = menu();
        if (!abierto)
            return false;
        auto* const vigia = new QTimer{abierto};
        QObject::connect(vigia, &QTimer::timeout, abierto, [abierto] {
            for (const QWidget* const ventana : QApplication::topLevelWidgets()) {
                if (ventana->objectName() != u"frmParar" || !ventana->isVisible())
                    continue;
                std::fputs("en obra", stderr);
                QTest::mouseClick(abierto->findChild<QWidget*>(u"cmd_Salir"_s), Qt::LeftButton);
            }
        });
        vigia->start(0);
        QTimer::singleShot(0, abierto,
                           [abierto] { QTest::mouseClick(abierto->findChild<QWidget*>(u"cmd_Generales8"_s), Qt::LeftButton); });
        return true;
    };
    EXPECT_EXIT(corre(pulsaYSale), testing::ExitedWithCode(0), "en obra");
}

TEST_F(ProgramaTest, ASecondCopyEndsAtOnceWithoutAWindow)
{
    conTienda();
    const auto primera = creaCopiaUnica(nombreCopia());
    ASSERT_TRUE(primera->ocupa());
    EXPECT_EXIT(corre([] { return menu() != nullptr; }), testing::ExitedWithCode(100), "ventanas: 0");
}

} // namespace
} // namespace kestrane::escritorio
