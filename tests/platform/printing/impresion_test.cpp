#include "platform/printing/impresion.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/printing/servidor_cups.h"
#include "platform/runtime/error_de_salida.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

namespace kestrane::printing {
namespace {

using namespace Qt::StringLiterals;

constexpr auto LayoutPrueba = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Secciones">
  <pagina papel="A4" orientacion="apaisada" margenes="10 10 10 10"/>
  <consulta>select texto1, numerico1 from informes</consulta>
  <orden por="numerico1"/>
  <detalle>
    <banda alto="60"><texto x="0" y="0" ancho="100" alto="6" valor="'Sección ' &amp; texto1"/></banda>
  </detalle>
  <pie-pagina>
    <banda alto="6"><texto x="0" y="0" ancho="100" alto="6" valor="'Página ' &amp; pagina &amp; ' de ' &amp; paginas"/></banda>
  </pie-pagina>
</informe>
)";

/// A report of rows A to G, three of which have room on a page, from its layout to the device of a queue.
class Imprime : public testing::Test
{
protected:
    Imprime()
    {
        QFile fichero{layout()};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(LayoutPrueba);
        for (int fila = 0; fila < 7; ++fila)
            m_tienda.ejecutaListados(
                u"insert into informes (texto1, numerico1) values ('%1', %2)"_s.arg(QChar{u'A' + fila}).arg(fila));
        m_servidor.anadeCola(u"Laser"_s);
        m_servidor.anadeCola(u"Tickets"_s);
        fichero.close();
        m_documento.emplace(layout(), m_tienda.entorno());
    }
    [[nodiscard]] QString layout() const { return QDir{m_tienda.carpeta()}.filePath(u"prueba.rpt"_s); }

    prueba::TiendaDePrueba m_tienda;
    prueba::ServidorCups m_servidor;
    std::optional<report::Documento> m_documento;
};

TEST_F(Imprime, ThePagesOfAReportComeOutOfTheQueueThatWasNamed)
{
    EXPECT_THROW(imprime(*m_documento, {.impresora = u"tickets"_s}), ErrorDeSalida);
    EXPECT_FALSE(imprime(*m_documento, {.impresora = u"Tickets"_s}, [](double) { return false; }));
    EXPECT_TRUE(imprime(*m_documento, {.impresora = u"Tickets"_s}));
    EXPECT_EQ(m_servidor.trabajo(1).cola, u"Tickets"_s);
    EXPECT_EQ(m_servidor.trabajo(1).titulo, u"Secciones"_s);
    EXPECT_THAT(prueba::paginasDe(m_servidor.trabajo(1)),
                testing::ElementsAre(u"Sección A Sección B Sección C Página 1 de 3"_s,
                                     u"Sección D Sección E Sección F Página 2 de 3"_s, u"Sección G Página 3 de 3"_s));
    EXPECT_TRUE(imprime(*m_documento, {.impresora = u"Laser"_s, .desde = 2, .hasta = 2}));
    EXPECT_EQ(m_servidor.trabajo(2).cola, u"Laser"_s);
    EXPECT_THAT(prueba::paginasDe(m_servidor.trabajo(2)), testing::ElementsAre(u"Sección D Sección E Sección F Página 2 de 3"_s));
}

} // namespace
} // namespace kestrane::printing
