#include "platform/report/documento.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/report/informe_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::textosDe;
using testing::ElementsAre;

class DocumentoFichero : public testing::Test
{
protected:
    DocumentoFichero()
    {
        m_tienda.ejecutaListados(
            {u"insert into informes (texto1) values ('uno')"_s, u"insert into informes (texto1) values ('dos')"_s});
        escribe(u"texto1"_s, u"ascendente"_s);
    }

    void escribe(const QString& columna, const QString& sentido) const
    {
        QFile fichero{m_ruta};
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(
            u"<informe xmlns=\"urn:kestrane:informe\" titulo=\"Prueba\"><consulta>select texto1 from informes</consulta>"
            "<orden por=\"texto1\" sentido=\"%2\"/><detalle><banda alto=\"5\"><texto x=\"0\" y=\"0\" ancho=\"50\" alto=\"5\" "
            "valor=\"%1\"/></banda></detalle></informe>"_s.arg(columna, sentido)
                .toUtf8());
    }

    prueba::TiendaDePrueba m_tienda;
    QString m_ruta = QDir{m_tienda.carpeta()}.filePath(u"prueba.rpt"_s);
};

TEST_F(DocumentoFichero, ReadsItsLayout)
{
    Documento documento{m_ruta, m_tienda.entorno()};
    EXPECT_EQ(documento.layout().titulo, u"Prueba"_s);
    EXPECT_THAT(textosDe(documento.pagina(0)), ElementsAre(u"dos"_s, u"uno"_s));
}

TEST_F(DocumentoFichero, LaidOutAnewItReadsTheFileAgainAndKeepsItsRows)
{
    Documento documento{m_ruta, m_tienda.entorno()};
    m_tienda.ejecutaListados(u"delete * from informes"_s);
    escribe(u"texto1"_s, u"descendente"_s);
    documento.actualiza();
    EXPECT_THAT(textosDe(documento.pagina(0)), ElementsAre(u"uno"_s, u"dos"_s));
}

TEST_F(DocumentoFichero, AFileThatNoLongerFitsLeavesItAsItWas)
{
    Documento documento{m_ruta, m_tienda.entorno()};
    escribe(u"texto2"_s, u"ascendente"_s);
    EXPECT_THROW(documento.actualiza(), ErrorEjecucion);
    QFile::remove(m_ruta);
    EXPECT_THROW(documento.actualiza(), ErrorEjecucion);
    EXPECT_THAT(textosDe(documento.pagina(0)), ElementsAre(u"dos"_s, u"uno"_s));
}

TEST_F(DocumentoFichero, AMissingLayoutIsAnError)
{
    try {
        const Documento documento{m_ruta + u"x"_s, m_tienda.entorno()};
        FAIL() << "read";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::LayoutIncorrecto);
    }
}

} // namespace
} // namespace kestrane::report
