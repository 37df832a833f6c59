#include "platform/controls/help_page_viewer.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class HelpPageViewerTest : public testing::Test
{
protected:
    QString escribe(const QByteArray& html)
    {
        QFile fichero{carpeta.filePath(u"p.html"_s)};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(html);
        QString ruta = fichero.fileName();
        return ruta.replace(u'/', u'\\');
    }

    QTemporaryDir carpeta;
    HelpPageViewer visor{u"Open1"_s, nullptr};
};

TEST_F(HelpPageViewerTest, ItShowsThePageAtAPathFormedWithBackslashes)
{
    visor.ponRuta(escribe("<p>La caja del día</p>"));
    visor.abre();
    EXPECT_EQ(visor.pagina().toPlainText(), u"La caja del día"_s);
}

TEST_F(HelpPageViewerTest, APageThatIsMissingIsNamed)
{
    visor.ponRuta(u"C:\\nada\\prilis1.html"_s);
    visor.abre();
    EXPECT_TRUE(visor.pagina().toPlainText().startsWith(u"No se puede leer la página de ayuda C:/nada/prilis1.html: "_s))
        << visor.pagina().toPlainText().toStdString();
}

TEST_F(HelpPageViewerTest, ItsCloseControlAndEscapeTellThatItShouldGo)
{
    QSignalSpy cierres{&visor, &HelpPageViewer::cierre};
    visor.show();
    QTest::mouseClick(visor.findChild<QPushButton*>(u"cierreAyuda"_s), Qt::LeftButton);
    ASSERT_EQ(cierres.count(), 1);
    EXPECT_TRUE(cierres.takeFirst().constFirst().toBool());
    QTest::keyClick(&visor.pagina(), Qt::Key_Escape);
    EXPECT_EQ(cierres.count(), 1);
    EXPECT_TRUE(visor.isVisible());
}

} // namespace
} // namespace kestrane
