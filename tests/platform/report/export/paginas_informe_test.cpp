#include "platform/report/export/paginas_informe.h"

#include "apoyo/tienda_de_prueba.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class PaginasInformeTest : public testing::Test
{
protected:
    PaginasInformeTest()
    {
        QFile fichero{layout()};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write("<informe xmlns=\"urn:kestrane:informe\" titulo=\"Grupos\"><pagina papel=\"80x60\" margenes=\"5 5 5 5\"/>"
                      "<consulta>select texto1 from informes</consulta>"
                      "<detalle><banda alto=\"25\"><texto x=\"0\" y=\"0\" ancho=\"50\" alto=\"5\" "
                      "valor=\"texto1\"/></banda></detalle></informe>");
        for (int fila = 0; fila < 5; ++fila)
            m_tienda.ejecutaListados(u"insert into informes (texto1) values ('fila')"_s);
        fichero.close();
        m_documento.emplace(layout(), m_tienda.entorno());
    }
    [[nodiscard]] QString layout() const { return QDir{m_tienda.carpeta()}.filePath(u"prueba.rpt"_s); }

    prueba::TiendaDePrueba m_tienda;
    std::optional<Documento> m_documento;
};

TEST_F(PaginasInformeTest, AllPagesAreLaidOut)
{
    const auto paginas = paginasDe(*m_documento, {});
    ASSERT_TRUE(paginas);
    EXPECT_EQ(paginas->titulo, u"Grupos"_s);
    EXPECT_EQ(paginas->paginas, 3) << "two rows of 25 mm on each 50 mm";
    EXPECT_EQ(paginas->pagina(2).tamano, QSizeF(80, 60));
}

TEST_F(PaginasInformeTest, ItPaintsThem)
{
    const auto paginas = paginasDe(*m_documento, {});
    ASSERT_TRUE(paginas);
    QImage imagen{320, 240, QImage::Format_RGB32};
    imagen.fill(Qt::white);
    const QImage blanca = imagen;
    QPainter lienzo{&imagen};
    paginas->pinta(lienzo, paginas->pagina(0), 4);
    lienzo.end();
    EXPECT_NE(imagen, blanca);
}

} // namespace
} // namespace kestrane::report
