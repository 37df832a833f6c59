#include "platform/report/layout/lector_layout.h"

#include "platform/report/layout/soporte.h"

#include <QFile>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(LeeLayout, DeUnFicheroConSuCarpeta)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"K_Secciones.rpt"_s);
    QFile fichero{ruta};
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("<informe xmlns=\"urn:kestrane:informe\" titulo=\"Secciones\" dsn=\"Otra\">"
                  "<consulta>\n  select texto1,\n    texto2 from informes\n</consulta></informe>");
    fichero.close();
    const Layout layout = leeLayout(ruta);
    EXPECT_EQ(layout.fichero, u"K_Secciones.rpt"_s);
    EXPECT_EQ(layout.carpeta, carpeta.path());
    EXPECT_EQ(layout.titulo, u"Secciones"_s);
    EXPECT_EQ(layout.dsn, u"Otra"_s);
    EXPECT_EQ(layout.sentencia, u"select texto1, texto2 from informes"_s);
}

TEST(LeeLayout, UnFicheroQueNoEsta)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"K_x.rpt"_s);
    EXPECT_EQ(prueba::descripcionDeError([&] { return leeLayout(ruta); }),
              u"K_x.rpt: no se puede leer «%1»: no existe."_s.arg(ruta));
    EXPECT_EQ(prueba::numeroDeError([&] { return leeLayout(carpeta.path()); }), 20001);
}

} // namespace
} // namespace kestrane::report
