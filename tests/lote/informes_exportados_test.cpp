#include "lote/informes_exportados.h"

#include "apoyo/tienda_de_prueba.h"
#include "lote/peticion_imposible.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;
using report::FormatoExportacion;

constexpr auto LayoutPrueba = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Marcas">
  <pagina papel="A4" orientacion="vertical" margenes="12 12 12 12"/>
  <consulta>select texto1, numerico1 from informes</consulta>
  <orden por="texto1" sentido="descendente"/>
  <datos>
    <columna titulo="Marca" valor="texto1"/>
    <columna titulo="Importe" valor="numerico1" formato="moneda" total="suma"/>
  </datos>
</informe>
)";

class InformesExportadosTest : public testing::Test
{
protected:
    InformesExportadosTest()
    {
        QFile fichero{QDir{m_tienda.carpeta()}.filePath(u"K.rpt"_s)};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(LayoutPrueba);
        m_tienda.ejecutaListados({u"insert into informes (texto1, numerico1) values ('Ana', 1.5)"_s,
                                  u"insert into informes (texto1, numerico1) values ('Ñu', 2)"_s});
    }

    QStringList escribe(FormatoExportacion formato, const InformeMostrado& informe)
    {
        return InformesExportados{formato, m_tienda.carpeta()}.escribe(informe, m_tienda.listados(), base());
    }
    [[nodiscard]] QString base() const { return QDir{m_tienda.carpeta()}.filePath(u"informe-0"_s); }

    static QByteArray lee(const QString& nombre)
    {
        QFile fichero{nombre};
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
        return fichero.readAll();
    }

    TiendaDePrueba m_tienda;
    InformeMostrado m_informe{.control = u"cmd_Marcas"_s, .tienda = {}, .layout = u"K.rpt"_s, .impresora = {}, .datos = true};
};

TEST_F(InformesExportadosTest, ALayoutThatIsMissingIsItsError)
{
    m_informe.layout = u"nada.rpt"_s;
    try {
        static_cast<void>(escribe(FormatoExportacion::Csv, m_informe));
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::LayoutIncorrecto);
        EXPECT_TRUE(error.descripcion().contains(u"nada.rpt"_s)) << error.what();
    }
    EXPECT_FALSE(QFile::exists(base()));
}

TEST_F(InformesExportadosTest, AReportThatIsShownNowhereHasNoPaper)
{
    m_informe.layout.clear();
    EXPECT_THROW(static_cast<void>(escribe(FormatoExportacion::Pdf, m_informe)), PeticionImposible);
}

TEST_F(InformesExportadosTest, WithoutDataNothingIsWrittenThoughTheLayoutIsMissing)
{
    m_informe.datos = false;
    m_informe.layout = u"nada.rpt"_s;
    EXPECT_EQ(escribe(FormatoExportacion::Html, m_informe), QStringList{});
}

TEST_F(InformesExportadosTest, RowsStandUnderTheLayoutsHeadingsInItsOrder)
{
    ASSERT_EQ(escribe(FormatoExportacion::Csv, m_informe), QStringList{base()});
    EXPECT_EQ(lee(base()), "\xEF\xBB\xBFMarca;Importe\r\nÑu;2\r\nAna;1,5\r\n");
}

TEST_F(InformesExportadosTest, TotalsStandInThePage)
{
    ASSERT_EQ(escribe(FormatoExportacion::Html, m_informe), QStringList{base()});
    EXPECT_TRUE(lee(base()).contains("<th scope=\"row\">Total</th><td class=\"d\">3,50</td>")) << lee(base()).toStdString();
}

} // namespace
} // namespace kestrane::lote
