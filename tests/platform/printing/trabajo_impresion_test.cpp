#include "platform/printing/trabajo_impresion.h"

#include "platform/printing/servidor_cups.h"
#include "platform/runtime/error_de_salida.h"

#include <gmock/gmock.h>

#include <QFont>
#include <QProcess>
#include <QRegularExpression>

namespace kestrane::printing {
namespace {

using namespace Qt::StringLiterals;
using prueba::paginasDe;
using prueba::ServidorCups;
using prueba::TrabajoSalido;

/// Pages that say which they are, on A4, printed through queues of a server of the test's own.
class TrabajoImpresionTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_servidor = std::make_unique<ServidorCups>(); }
    static void TearDownTestSuite() { s_servidor.reset(); }

    void SetUp() override
    {
        s_servidor->anadeCola(u"Laser"_s);
        s_servidor->anadeCola(u"Tickets"_s);
    }
    void TearDown() override
    {
        for (const QString& cola : m_colas)
            s_servidor->quitaCola(cola);
    }

    static TrabajoImpresion trabajo(int paginas, QSizeF tamano = {210, 297})
    {
        const auto pinta = [](QPainter& lienzo, const report::PaginaCompuesta& pagina, double porMilimetro) {
            lienzo.setFont(QFont{u"DejaVu Sans"_s, 12});
            const auto& texto = std::get<report::TextoCompuesto>(pagina.primitivas.at(0));
            lienzo.drawText(texto.base * porMilimetro, texto.texto);
        };
        return {.titulo = u"Servicios de la peluquería"_s,
                .paginas = paginas,
                .pagina = [tamano](int indice) { return pagina(indice, tamano); },
                .pinta = pinta};
    }

    static report::PaginaCompuesta pagina(int indice, QSizeF tamano)
    {
        report::PaginaCompuesta nueva{.tamano = tamano, .primitivas = {}, .estilos = {}};
        nueva.primitivas.emplace_back(
            report::TextoCompuesto{.base = {20, 30}, .ancho = 100, .texto = u"página %1 señalada"_s.arg(indice + 1)});
        return nueva;
    }

    static QString motivo(const TrabajoImpresion& trabajo, const PeticionImpresion& peticion)
    {
        try {
            imprimeTrabajo(trabajo, peticion, {});
        } catch (const ErrorDeSalida& error) {
            return error.motivo();
        }
        return u"(se ha impreso)"_s;
    }

    static QString salidaDe(const QString& programa, const QStringList& argumentos)
    {
        QProcess proceso;
        proceso.start(programa, argumentos);
        EXPECT_TRUE(proceso.waitForFinished());
        EXPECT_EQ(proceso.exitCode(), 0) << proceso.readAllStandardError().toStdString();
        return QString::fromUtf8(proceso.readAllStandardOutput());
    }
    /// Width and height in points of what is sent for such a page.
    static std::pair<double, double> papelDe(QSizeF milimetros)
    {
        const int antes = s_servidor->trabajos();
        EXPECT_TRUE(imprimeTrabajo(trabajo(1, milimetros), {.impresora = u"Laser"_s}, {}));
        const QString datos = salidaDe(u"pdfinfo"_s, {s_servidor->trabajo(antes + 1).fichero});
        const auto medidas = QRegularExpression{u"Page size: +([0-9.]+) x ([0-9.]+)"_s}.match(datos);
        EXPECT_TRUE(medidas.hasMatch()) << datos.toStdString();
        return {medidas.captured(1).toDouble(), medidas.captured(2).toDouble()};
    }

    static std::unique_ptr<ServidorCups> s_servidor;
    QStringList m_colas{u"Laser"_s, u"Tickets"_s};
};
std::unique_ptr<ServidorCups> TrabajoImpresionTest::s_servidor;

TEST_F(TrabajoImpresionTest, APrinterThatTheSystemDoesNotHaveIsAnError)
{
    EXPECT_EQ(motivo(trabajo(1), {.impresora = u"laser"_s}), u"la impresora \"laser\" no existe"_s) << "case counts";
}

TEST_F(TrabajoImpresionTest, WithoutAnyPrinterItSaysSo)
{
    TearDown();
    m_colas.clear();
    EXPECT_EQ(motivo(trabajo(1), {}), u"no hay ninguna impresora"_s);
}

TEST_F(TrabajoImpresionTest, APrinterThatVanishesWhileItPrintsIsAnError)
{
    TrabajoImpresion largo = trabajo(2);
    int veces = 0;
    largo.pagina = [this, &veces](int indice) {
        if (indice == 1 && ++veces == 2) { // the first time it is only looked at
            s_servidor->quitaCola(u"Laser"_s);
            m_colas.removeOne(u"Laser"_s);
        }
        return pagina(indice, {210, 297});
    };
    EXPECT_EQ(motivo(largo, {.impresora = u"Laser"_s}), u"la impresora \"Laser\" no existe"_s);
}

TEST_F(TrabajoImpresionTest, APageThatCannotBeMadeLeavesNothingInTheQueue)
{
    const int antes = s_servidor->trabajos();
    TrabajoImpresion roto = trabajo(3);
    roto.pagina = [](int indice) {
        if (indice == 2)
            throw ErrorDeSalida{u"la página no sale"_s};
        return pagina(indice, {210, 297});
    };
    EXPECT_EQ(motivo(roto, {.impresora = u"Laser"_s}), u"la página no sale"_s);
    EXPECT_TRUE(imprimeTrabajo(trabajo(1), {.impresora = u"Laser"_s}, {}));
    EXPECT_EQ(paginasDe(s_servidor->trabajo(antes + 1)), QStringList{u"página 1 señalada"_s}) << "the second alone";
}

TEST_F(TrabajoImpresionTest, PagesThatTheReportDoesNotHaveAreAnError)
{
    EXPECT_EQ(motivo(trabajo(3), {.impresora = u"Laser"_s, .desde = 4}), u"el informe no tiene las páginas pedidas"_s);
    EXPECT_EQ(motivo(trabajo(3), {.impresora = u"Laser"_s, .desde = 3, .hasta = 2}), u"el informe no tiene las páginas pedidas"_s);
}

TEST_F(TrabajoImpresionTest, WhatIsBrokenOffBeforeTheFirstPageIsNotPrinted)
{
    const int antes = s_servidor->trabajos();
    EXPECT_FALSE(imprimeTrabajo(trabajo(3), {.impresora = u"Laser"_s}, [](double) { return false; }));
    EXPECT_TRUE(imprimeTrabajo(trabajo(1), {.impresora = u"Laser"_s}, {}));
    EXPECT_EQ(paginasDe(s_servidor->trabajo(antes + 1)), QStringList{u"página 1 señalada"_s}) << "the second alone";
}

TEST_F(TrabajoImpresionTest, WhatIsBrokenOffLaterEndsBehindThePagesThatWereOut)
{
    const int antes = s_servidor->trabajos();
    EXPECT_EQ(imprimeTrabajo(trabajo(4), {.impresora = u"Laser"_s}, [](double hecho) { return hecho < 0.5; }), 2);
    EXPECT_EQ(paginasDe(s_servidor->trabajo(antes + 1)), (QStringList{u"página 1 señalada"_s, u"página 2 señalada"_s}));
}

TEST_F(TrabajoImpresionTest, TellsHowFarItIsAndHowManyPagesWereSent)
{
    const int antes = s_servidor->trabajos();
    std::vector<double> avisos;
    const PeticionImpresion peticion{.impresora = u"Laser"_s, .desde = 2};
    EXPECT_EQ(imprimeTrabajo(trabajo(5), peticion,
                             [&avisos](double hecho) {
                                 avisos.push_back(hecho);
                                 return true;
                             }),
              4);
    EXPECT_THAT(avisos, testing::ElementsAre(0, 0, 0, 0, 0, 0.25, 0.5, 0.75));
    EXPECT_EQ(paginasDe(s_servidor->trabajo(antes + 1)).size(), 4); // and no job is on its way when the queue goes
}

TEST_F(TrabajoImpresionTest, AllPagesComeOutOfTheQueueThatWasNamed)
{
    const int antes = s_servidor->trabajos();
    EXPECT_TRUE(imprimeTrabajo(trabajo(3), {.impresora = u"Tickets"_s}, {}));
    const TrabajoSalido salido = s_servidor->trabajo(antes + 1);
    EXPECT_EQ(salido.cola, u"Tickets"_s);
    EXPECT_EQ(salido.titulo, u"Servicios de la peluquería"_s);
    EXPECT_EQ(paginasDe(salido), (QStringList{u"página 1 señalada"_s, u"página 2 señalada"_s, u"página 3 señalada"_s}));
}

TEST_F(TrabajoImpresionTest, TheRangeAloneIsPrinted)
{
    const int antes = s_servidor->trabajos();
    EXPECT_TRUE(imprimeTrabajo(trabajo(9), {.impresora = u"Laser"_s, .desde = 4, .hasta = 5}, {}));
    EXPECT_EQ(paginasDe(s_servidor->trabajo(antes + 1)), (QStringList{u"página 4 señalada"_s, u"página 5 señalada"_s}));
    EXPECT_TRUE(imprimeTrabajo(trabajo(3), {.impresora = u"Laser"_s, .desde = 3, .hasta = 99}, {}));
    EXPECT_EQ(paginasDe(s_servidor->trabajo(antes + 2)), QStringList{u"página 3 señalada"_s});
}

TEST_F(TrabajoImpresionTest, EveryCopyComesOut)
{
    const int antes = s_servidor->trabajos();
    EXPECT_TRUE(imprimeTrabajo(trabajo(2), {.impresora = u"Laser"_s, .copias = 3}, {}));
    const TrabajoSalido salido = s_servidor->trabajo(antes + 1);
    EXPECT_EQ(paginasDe(salido).size() * salido.copias, 2 * 3);
}

TEST_F(TrabajoImpresionTest, WithoutANameTheSystemsOwnPrinterTakesIt)
{
    const int antes = s_servidor->trabajos();
    s_servidor->eligePredeterminada(u"Tickets"_s);
    EXPECT_TRUE(imprimeTrabajo(trabajo(1), {}, {}));
    EXPECT_EQ(s_servidor->trabajo(antes + 1).cola, u"Tickets"_s);
}

TEST_F(TrabajoImpresionTest, PaperIsAsLargeAsThePage)
{
    EXPECT_THAT(papelDe({210, 297}), testing::Pair(testing::DoubleNear(595.3, 1), testing::DoubleNear(841.9, 1)));
    EXPECT_THAT(papelDe({297, 210}), testing::Pair(testing::DoubleNear(841.9, 1), testing::DoubleNear(595.3, 1)));
    EXPECT_THAT(papelDe({80, 200}), testing::Pair(testing::DoubleNear(226.8, 1), testing::DoubleNear(566.9, 1)));
}

TEST_F(TrabajoImpresionTest, WhatIsPaintedStandsWhereThePageSays)
{
    const int antes = s_servidor->trabajos();
    EXPECT_TRUE(imprimeTrabajo(trabajo(1), {.impresora = u"Laser"_s}, {}));
    const QString cajas = salidaDe(u"pdftotext"_s, {u"-bbox"_s, s_servidor->trabajo(antes + 1).fichero, u"-"_s});
    const auto palabra = QRegularExpression{u"xMin=\"([0-9.]+)\".*yMax=\"([0-9.]+)\">página<"_s}.match(cajas);
    ASSERT_TRUE(palabra.hasMatch()) << cajas.toStdString();
    EXPECT_NEAR(palabra.captured(1).toDouble(), 20 / 25.4 * 72, 2);
    EXPECT_NEAR(palabra.captured(2).toDouble(), 30 / 25.4 * 72, 5) << "its foot lies below the base line";
}

} // namespace
} // namespace kestrane::printing
