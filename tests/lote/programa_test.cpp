#include "lote/programa.h"

#include "apoyo/tienda_de_prueba.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

constexpr auto LayoutSecciones = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Secciones">
  <pagina papel="A4" orientacion="vertical" margenes="12 12 12 12"/>
  <consulta>select texto1, texto2 from informes</consulta>
  <datos>
    <columna titulo="Código" valor="texto1"/>
    <columna titulo="Nombre" valor="texto2"/>
  </datos>
</informe>
)";

class Programa : public testing::Test
{
protected:
    Programa()
    {
        m_tienda.ejecuta(
            {u"insert into opciones (nombre, direccion, numdecimales) values ('Ñandú', 'Mayor, 1', 2)"_s,
             u"insert into seccion (codigo, codigocliente, nombre) values (2, 'B', 'Color')"_s,
             u"insert into seccion (codigo, nombre) values (1, 'Corte')"_s,
             u"insert into servicios (codigo, nombre, seccion, precio, mostrarencaja) values (7, 'Lavar', 1, 12.5, 0)"_s});
        m_tienda.tienda().Close();
    }

    int programa(const QStringList& argumentos, const QString& carpeta = {})
    {
        QBuffer salida{&m_salida};
        QBuffer errores{&m_errores};
        salida.open(QIODevice::WriteOnly);
        errores.open(QIODevice::WriteOnly);
        return ejecutaPrograma(QStringList{u"listados-lote"_s, u"--datos"_s, carpeta.isEmpty() ? m_tienda.carpeta() : carpeta,
                                           u"--regional"_s, u"es_ES"_s} +
                                   argumentos,
                               m_tienda.carpeta(), salida, errores);
    }

    /// The layout of the sections' report.
    void layout(const QByteArray& xml) const
    {
        QFile fichero{QDir{m_tienda.carpeta()}.filePath(u"K_Secciones.rpt"_s)};
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(xml);
    }

    TiendaDePrueba m_tienda;
    QByteArray m_salida;
    QByteArray m_errores;
};

TEST_F(Programa, ACommandLineThatMakesNoSenseIsOneSentenceAndStatusTwo)
{
    EXPECT_EQ(programa({u"cmd_Nada"_s}), SalidaUso);
    EXPECT_EQ(m_errores,
              "listados-lote: No existe el listado \"cmd_Nada\"; con --lista se ven todos. Con --ayuda se ven las opciones.\n");
    EXPECT_EQ(m_salida, "");
}

TEST_F(Programa, AWrongValueIsStatusTwo)
{
    const auto expectUso = [this](const QStringList& argumentos, const QByteArray& frase) {
        m_errores.clear();
        EXPECT_EQ(programa(argumentos), SalidaUso);
        EXPECT_EQ(m_errores, "listados-lote: " + frase + " Con --ayuda se ven las opciones.\n");
        EXPECT_EQ(m_salida, "");
    };
    expectUso({u"cmd_Caja1"_s, u"--desde"_s, u"2024-+3-+5"_s}, "--desde lleva una fecha AAAA-MM-DD, no \"2024-+3-+5\".");
    expectUso({u"cmd_Caja1"_s, u"--hoy"_s, u"2024-02-30"_s}, "--hoy lleva una fecha AAAA-MM-DD, no \"2024-02-30\".");
    expectUso({u"cmd_Caja1"_s, u"--desde"_s}, "A --desde le falta su valor.");
    expectUso({u"cmd_Caja1"_s, u"--salida"_s, u""_s}, "A --salida le falta su valor.");
    expectUso({u"cmd_Caja1"_s, u"--completa=1"_s, u"--ticket"_s}, "--completa no lleva valor.");
    expectUso({u"cmd_Marcas"_s, u"--regional"_s, u"marciano"_s},
              "No existe la configuración regional \"marciano\"; escríbala como es_ES.");
    expectUso({u"cmd_Ventas3"_s, u"--cliente"_s, u"-1"_s}, "--cliente lleva un número desde 0, no \"-1\".");
}

TEST_F(Programa, AFolderWithoutDatabasesIsOneSentenceAndStatusOne)
{
    EXPECT_EQ(programa({u"cmd_Marcas"_s}, m_tienda.carpeta() + u"/nada"_s), SalidaError);
    EXPECT_TRUE(m_errores.startsWith("listados-lote: error -2147467259: ")) << m_errores.toStdString();
    EXPECT_EQ(m_errores.count('\n'), 1) << m_errores.toStdString();
    EXPECT_EQ(m_salida, "");
}

TEST_F(Programa, ATableThatIsMissingIsTheDatabasesErrorAndStatusOne)
{
    m_tienda.quitaTabla(u"marcas"_s);
    EXPECT_EQ(programa({u"cmd_Marcas"_s}), SalidaError);
    EXPECT_TRUE(m_errores.startsWith("listados-lote: error -2147217900: ")) << m_errores.toStdString();
    EXPECT_TRUE(m_errores.toLower().contains("marcas")) << m_errores.toStdString();
    EXPECT_EQ(m_salida, "");
}

TEST_F(Programa, AnAnswerThatTheDialogRefusesIsStatusTwo)
{
    EXPECT_EQ(programa({u"cmd_Generales4"_s, u"--orden"_s, u"Precio"_s}), SalidaUso);
    EXPECT_EQ(m_errores, "listados-lote: cmd_Generales4 no se ordena por \"Precio\"; puede ser Nombre, Seccion, Codigo.\n");
    EXPECT_EQ(m_salida, "");
}

TEST_F(Programa, AnOutputThatCannotBeWrittenIsStatusOne)
{
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--salida"_s, m_tienda.carpeta() + u"/nada/a.json"_s}), SalidaError);
    EXPECT_TRUE(m_errores.startsWith("listados-lote: no se puede escribir el resultado (\"")) << m_errores.toStdString();
    EXPECT_TRUE(m_errores.endsWith("/nada/a.json\": no existe).\n")) << m_errores.toStdString();
    EXPECT_EQ(m_errores.count('\n'), 1);
}

TEST_F(Programa, AReportIsAnArrayOfOneObject)
{
    EXPECT_EQ(programa({u"cmd_Generales8"_s}), SalidaBien);
    EXPECT_EQ(m_salida.toStdString(),
              R"([{"control":"cmd_Generales8","tienda":"","layout":"K_Secciones.rpt","impresora":"","datos":true,)"
              "\n \"informes\":[{\"texto1\":\"B\",\"texto2\":\"Color\",\"texto34\":\"Mayor, 1\",\"texto35\":\"Ñandú\"},\n"
              "  {\"texto2\":\"Corte\",\"texto34\":\"Mayor, 1\",\"texto35\":\"Ñandú\"}],\n"
              " \"subinformes\":[]}]\n");
    EXPECT_EQ(m_errores, "");
}

TEST_F(Programa, WithoutDataTheArrayIsWrittenAllTheSame)
{
    EXPECT_EQ(programa({u"cmd_Marcas"_s}), SalidaSinDatos);
    EXPECT_TRUE(
        m_salida.startsWith(R"([{"control":"cmd_Marcas","tienda":"","layout":"TC_Marcas.rpt","impresora":"","datos":false,)"));
    EXPECT_EQ(m_errores, "listados-lote: No hay datos para ser mostrados.\n");
}

TEST_F(Programa, WithoutDataThereIsNothingInTheFormatsOfPaper)
{
    const QString nombre = QDir{m_tienda.carpeta()}.filePath(u"marcas.xlsx"_s);
    EXPECT_EQ(programa({u"cmd_Marcas"_s, u"--formato"_s, u"CSV"_s}), SalidaSinDatos);
    EXPECT_EQ(m_salida, "");
    EXPECT_EQ(m_errores, "listados-lote: No hay datos para ser mostrados.\n");
    EXPECT_EQ(programa({u"cmd_Marcas"_s, u"--formato"_s, u"xlsx"_s, u"--salida"_s, nombre}), SalidaSinDatos);
    EXPECT_FALSE(QFile::exists(nombre));
}

TEST_F(Programa, ALayoutThatIsMissingIsError20001AndNothingIsWritten)
{
    const QString nombre = QDir{m_tienda.carpeta()}.filePath(u"secciones.html"_s);
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--formato"_s, u"html"_s, u"--salida"_s, nombre}), SalidaError);
    EXPECT_TRUE(m_errores.startsWith("listados-lote: error 20001: ")) << m_errores.toStdString();
    EXPECT_TRUE(m_errores.contains("K_Secciones.rpt")) << m_errores.toStdString();
    EXPECT_FALSE(QFile::exists(nombre));
}

TEST_F(Programa, ALayoutThatIsBrokenNamesItsFileAndLine)
{
    layout("<informe xmlns=\"urn:kestrane:informe\" titulo=\"Secciones\">\n<nada/>\n</informe>\n");
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--formato"_s, u"csv"_s}), SalidaError);
    EXPECT_TRUE(m_errores.startsWith("listados-lote: error 20001: ")) << m_errores.toStdString();
    EXPECT_TRUE(m_errores.contains("K_Secciones.rpt") && m_errores.contains('2')) << m_errores.toStdString();
    EXPECT_EQ(m_salida, "");
}

TEST_F(Programa, ATableHasTheLayoutsHeadings)
{
    layout(LayoutSecciones);
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--formato"_s, u"csv"_s}), SalidaBien) << m_errores.toStdString();
    EXPECT_EQ(m_salida, "\xEF\xBB\xBF"
                        "Código;Nombre\r\nB;Color\r\n;Corte\r\n");
}

TEST_F(Programa, ASpreadsheetGoesThroughAPipeToo)
{
    layout(LayoutSecciones);
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--formato"_s, u"xlsx"_s}), SalidaBien) << m_errores.toStdString();
    EXPECT_TRUE(m_salida.startsWith("PK"));
}

TEST_F(Programa, AnOptionThatNoDialogOffersIsNamedAndIgnored)
{
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--desde"_s, u"2024-01-01"_s}), SalidaBien);
    EXPECT_EQ(m_errores, "listados-lote: cmd_Generales8 no ofrece --desde, que se ignora.\n");
}

TEST_F(Programa, TheOrderOfTheServicesIsAnAnswer)
{
    EXPECT_EQ(programa({u"cmd_Generales4"_s, u"--orden"_s, u"Codigo"_s}), SalidaBien);
    EXPECT_TRUE(m_salida.contains("Lavar")) << m_salida.toStdString();
    EXPECT_TRUE(m_salida.contains(":12.5"));
}

TEST_F(Programa, TheReportsDatabaseOfTheRunMayBeKept)
{
    const QString carpeta = QDir{m_tienda.carpeta()}.filePath(u"copia"_s);
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--listados"_s, carpeta}), SalidaBien);
    m_salida.clear();
    EXPECT_EQ(programa({u"--sql"_s, u"select count(*) as n from informes"_s, u"--conexion"_s, u"listados"_s}, carpeta), SalidaBien);
    EXPECT_TRUE(m_salida.contains("\"filas\":[[2]]")) << m_salida.toStdString();
}

TEST_F(Programa, AFileIsWrittenWholeAndTheOutputStaysEmpty)
{
    const QString nombre = QDir{m_tienda.carpeta()}.filePath(u"secciones.json"_s);
    EXPECT_EQ(programa({u"cmd_Generales8"_s, u"--salida"_s, nombre}), SalidaBien);
    EXPECT_EQ(m_salida, "");
    QFile fichero{nombre};
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    const QByteArray escrito = fichero.readAll();
    EXPECT_TRUE(escrito.startsWith("[{\"control\":\"cmd_Generales8\"") && escrito.endsWith("}]\n"));
}

TEST_F(Programa, HelpAndListNeedNoDatabase)
{
    EXPECT_EQ(programa({u"--ayuda"_s}, u"nada"_s), SalidaBien);
    EXPECT_TRUE(m_salida.startsWith("Uso: listados-lote --lista"));
    m_salida.clear();
    EXPECT_EQ(programa({u"--lista"_s}, u"nada"_s), SalidaBien);
    EXPECT_TRUE(m_salida.startsWith("cmd_Caja1\t"));
}

} // namespace
} // namespace kestrane::lote
