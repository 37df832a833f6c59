#include "platform/report/preview/documento_vista.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/report/preview/ventanas_vista.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolButton>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

/// A line of 10 mm for each row, under headings of their first column.
constexpr QByteArrayView LayoutDePrueba = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="%1">
  <pagina papel="A4" orientacion="vertical" margenes="10 10 10 10"/>
  <consulta>select texto1, numerico1 from informes</consulta>
  <grupo nombre="seccion" por="texto1" titulo="texto1"/>
  <detalle><banda alto="10"><texto x="0" y="0" ancho="100" alto="5" valor="texto1"/></banda></detalle>
  <pie-pagina><banda alto="10"><texto x="0" y="0" ancho="100" alto="5" valor="'Página ' &amp; pagina &amp; ' de ' &amp; paginas"/></banda></pie-pagina>
</informe>
)";

class DocumentoVistaTest : public testing::Test
{
protected:
    DocumentoVistaTest() { escribe(u"Secciones"_s); }
    void escribe(const QString& titulo)
    {
        QFile fichero{ruta};
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(QString::fromUtf8(LayoutDePrueba).arg(titulo).toUtf8());
    }
    void llena(int filas)
    {
        for (int i = 1; i <= filas; ++i)
            tienda.ejecutaListados(u"insert into informes (texto1, numerico1) values ('Sección %1', %1)"_s.arg(100 + i));
    }
    [[nodiscard]] std::unique_ptr<DocumentoVista> abre()
    {
        return std::make_unique<DocumentoVista>(std::make_unique<Documento>(ruta, tienda.entorno()), exporta);
    }

    kestrane::prueba::TiendaDePrueba tienda;
    ExportaDocumento exporta;
    QString ruta = tienda.carpeta() + u"/K_secciones.rpt"_s;
};

TEST_F(DocumentoVistaTest, ShowsTheDocumentsPages)
{
    llena(60);
    const auto vista = abre();
    EXPECT_EQ(vista->titulo(), u"Secciones"_s);
    EXPECT_FALSE(vista->avanza(QDeadlineTimer{0}));
    EXPECT_EQ(vista->paginas(), 1);
    EXPECT_EQ(vista->tamano(0), QSizeF(210, 297));
    EXPECT_EQ(TextoPagina{vista->pagina(0)}.texto(0), u"Sección 101"_s);
    while (!vista->avanza(QDeadlineTimer{0})) {
    }
    EXPECT_EQ(vista->paginas(), 3) << "26 rows a page";
    EXPECT_EQ(vista->indice().size(), 60U);
    EXPECT_EQ(vista->avance(), 1);
    EXPECT_NE(vista->documento(), nullptr);
}

TEST_F(DocumentoVistaTest, ALayoutWithoutATitleGoesByItsFilesName)
{
    escribe({});
    EXPECT_EQ(abre()->titulo(), u"K_secciones.rpt"_s);
}

TEST_F(DocumentoVistaTest, ThePainterDrawsItsTexts)
{
    llena(1);
    const auto vista = abre();
    vista->avanza(QDeadlineTimer{0});
    QImage papel{420, 594, QImage::Format_RGB32};
    papel.fill(Qt::white);
    QPainter pintor{&papel};
    vista->pinta(pintor, vista->pagina(0), 2);
    pintor.end();
    const QRectF caja = TextoPagina{vista->pagina(0)}.caja(0, 0, 11);
    bool hayTinta = false;
    for (int x = int(2 * caja.left()); x < int(2 * caja.right()); ++x)
        hayTinta = hayTinta || papel.pixelColor(x, int(2 * caja.center().y())) != QColor{Qt::white};
    EXPECT_TRUE(hayTinta);
}

TEST_F(DocumentoVistaTest, AChangedLayoutShowsWhenItIsLaidOutAnew)
{
    llena(1);
    const auto vista = abre();
    escribe(u"Secciones nuevas"_s);
    vista->actualiza();
    EXPECT_EQ(vista->titulo(), u"Secciones nuevas"_s);
}

TEST_F(DocumentoVistaTest, TheDocumentItselfIsExported)
{
    llena(1);
    QStringList pedidos;
    exporta = [&pedidos](Documento& documento, FormatoExportacion formato, const QString& fichero,
                         const AvanceExportacion& avance) {
        pedidos += u"%1 %2 %3"_s.arg(documento.layout().titulo).arg(int(formato)).arg(fichero);
        return avance(1);
    };
    EXPECT_FALSE(abre()->exporta(FormatoExportacion::Csv, u"x.csv"_s, [](double) { return false; }));
    EXPECT_EQ(pedidos, QStringList{u"Secciones 2 x.csv"_s});
}

TEST_F(DocumentoVistaTest, AWindowWritesRealFilesAndTellsWhereItCannot)
{
    llena(3);
    exporta = report::exporta;
    QString elegido = tienda.carpeta() + u"/salida.pdf"_s;
    ServiciosVista servicios;
    servicios.eligeFichero = [&elegido](QWidget*, FormatoExportacion, const QString&) { return elegido; };
    VentanasVista ventanas{servicios};
    VentanaVista& ventana = ventanas.abre(abre(), u"INFORMES:"_s);
    auto* exportaPdf = ventana.findChild<QToolButton*>(u"exportar"_s)->menu()->actions().first();
    exportaPdf->trigger();
    QFile escrito{elegido};
    ASSERT_TRUE(escrito.open(QIODevice::ReadOnly));
    EXPECT_TRUE(escrito.readAll().startsWith("%PDF-"));
    elegido = tienda.carpeta() + u"/no/existe/salida.pdf"_s;
    exportaPdf->trigger();
    auto* banda = ventana.findChild<BandaAviso*>();
    EXPECT_TRUE(banda->isVisible());
    EXPECT_TRUE(banda->texto().startsWith(u"Exportando, algo ha fallado:"_s)) << banda->texto().toStdString();
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_FALSE(QFile::exists(elegido));
}

TEST_F(DocumentoVistaTest, AWindowOnARealReportFindsItsText)
{
    llena(60);
    VentanasVista ventanas{{}};
    VentanaVista& ventana = ventanas.abre(abre(), u"INFORMES:"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return ventana.fuente().completa(); }));
    auto* estado = ventana.findChild<QLabel*>(u"estado"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return estado->text() == u"Secciones · 3 páginas"_s; }));
    auto* barra = ventana.findChild<BarraBusqueda*>();
    barra->abre();
    QTest::keyClicks(ventana.findChild<QLineEdit*>(u"textoBuscado"_s), u"SECCION 15"_s);
    auto* cuenta = ventana.findChild<QLabel*>(u"cuentaAciertos"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return cuenta->text() == u"1 de 10"_s; })) << cuenta->text().toStdString();
}

} // namespace
} // namespace kestrane::report
