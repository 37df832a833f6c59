#include "pipeline/salida_de_report.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <new>
#include <stdexcept>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

/// All pieces of the road at once: writes down each call in order, and fails where a test says so.
class PiezasAnotadas final : public ControlReport, public Impresoras, public Espera, public Mensajes, public ColaEventos
{
public:
    void ReportFileName(const QString& ruta) override { anota(u"ReportFileName "_s + ruta); }
    void WindowTitle(const QString& titulo) override { anota(u"WindowTitle "_s + titulo); }
    void OpcionA(bool valor) override { anota(u"A %1"_s.arg(int{valor})); }
    void OpcionB(int valor) override { anota(u"B %1"_s.arg(valor)); }
    void OpcionC(int valor) override { anota(u"C %1"_s.arg(valor)); }
    void Destination(DestinoReport destino) override { anota(u"Destination %1"_s.arg(int(destino))); }
    void OpcionD(int valor) override { anota(u"D %1"_s.arg(valor)); }
    void Prepara() override { anota(u"Prepara"_s); }
    void Action(AccionReport accion) override
    {
        anota(u"Action %1"_s.arg(int(accion)));
        if (alActuar)
            alActuar();
    }
    void ReiniciaImpresora() override { anota(u"reinicia impresora"_s); }
    void PrinterName(const QString& nombre) override { anota(u"PrinterName "_s + nombre); }
    void PrinterDriver(const QString& nombre) override { anota(u"PrinterDriver "_s + nombre); }
    void PrinterPort(const QString& nombre) override { anota(u"PrinterPort "_s + nombre); }

    [[nodiscard]] std::vector<ImpresoraInstalada> lista() const override { return instaladas; }
    void Muestra() override { anota(u"espera"_s); }
    void Informa(const QString& texto, const QString& titulo) override { anota(u"informa "_s + titulo + u": "_s + texto); }
    void Critico(const QString& texto, const QString& titulo) override { anota(u"critico "_s + titulo + u": "_s + texto); }
    void drena() override
    {
        anota(u"drena"_s);
        if (alDrenar)
            alDrenar();
    }

    QStringList pasos;
    std::vector<ImpresoraInstalada> instaladas;
    QString fallaEn; ///< the step that raises an error
    std::function<void()> alActuar;
    std::function<void()> alDrenar;

private:
    void anota(const QString& paso)
    {
        pasos += paso;
        if (!fallaEn.isEmpty() && paso.startsWith(fallaEn))
            throw ErrorEjecucion{ErrorEjecucion::LayoutIncorrecto, u"falla "_s + fallaEn};
    }
};

class SalidaDeReportTest : public testing::Test
{
protected:
    SalidaDeReportTest()
    {
        contexto.CarpetaPrograma = u"programa"_s;
        contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
    }
    void conFila(const QString& tabla = u"informes"_s)
    {
        tienda.ejecutaListados(u"insert into "_s + tabla + u" (texto1) values ('a')"_s);
    }

    TiendaDePrueba tienda;
    ContextoEjecucion contexto{tienda.entorno()};
    PiezasAnotadas piezas;
    SalidaDeReport salida{contexto, {piezas, piezas, piezas, piezas, piezas}};
};

const QStringList EntradaYEspera{u"drena"_s, u"drena"_s, u"drena"_s, u"espera"_s};
const QStringList Configuracion{u"ReportFileName programa\\K_secciones.rpt"_s,
                                u"WindowTitle INFORMES:"_s,
                                u"A 1"_s,
                                u"B 2"_s,
                                u"C 2"_s,
                                u"Destination 0"_s,
                                u"D 1"_s};
const QStringList Intento{u"Prepara"_s, u"Action 1"_s};
const QStringList Final{u"drena"_s, u"drena"_s};

TEST_F(SalidaDeReportTest, AReportWithRowsTakesAllStepsInTheirOrder)
{
    conFila();
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos, EntradaYEspera + Configuracion + Intento + Final);
}

TEST_F(SalidaDeReportTest, RowsOnlyInSubinformesAreShown)
{
    conFila(u"subinformes"_s);
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos, EntradaYEspera + Configuracion + Intento + Final);
}

TEST_F(SalidaDeReportTest, WithoutDataThereIsTheMessageAndNoWait)
{
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos, (QStringList{u"drena"_s, u"drena"_s, u"drena"_s,
                                         u"informa Listados: No hay datos para ser mostrados."_s, u"drena"_s, u"drena"_s}));
}

TEST_F(SalidaDeReportTest, DataIsAskedForAfterTheEventsAreDrained)
{
    piezas.alDrenar = [this, veces = 0]() mutable {
        if (++veces == 3)
            conFila();
    };
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_TRUE(piezas.pasos.contains(u"Action 1"_s));
}

TEST_F(SalidaDeReportTest, AMissingLayoutIsToldOnceAndTheRetryFailsInSilence)
{
    conFila();
    piezas.fallaEn = u"Action"_s;
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos,
              EntradaYEspera + Configuracion + Intento + QStringList{u"critico 20001: falla Action"_s} + Intento + Final);
}

TEST_F(SalidaDeReportTest, ARetryThatWorksIsSilentToo)
{
    conFila();
    int veces = 0;
    piezas.alActuar = [&veces] {
        if (++veces == 1)
            throw ErrorEjecucion{ErrorEjecucion::TiposNoCoinciden, u"No coinciden los tipos."_s};
    };
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos,
              EntradaYEspera + Configuracion + Intento + QStringList{u"critico 13: No coinciden los tipos."_s} + Intento + Final);
}

TEST_F(SalidaDeReportTest, AFailingPropertyIsLeftUntilActionHasRun)
{
    conFila();
    piezas.fallaEn = u"ReportFileName"_s;
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos,
              EntradaYEspera + Configuracion + Intento + QStringList{u"critico 20001: falla ReportFileName"_s} + Intento + Final);
}

TEST_F(SalidaDeReportTest, AFailingPrepareDoesNotKeepActionFromRunning)
{
    conFila();
    piezas.fallaEn = u"Prepara"_s;
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos,
              EntradaYEspera + Configuracion + Intento + QStringList{u"critico 20001: falla Prepara"_s} + Intento + Final);
}

TEST_F(SalidaDeReportTest, OfTwoErrorsTheLastStands)
{
    conFila();
    piezas.fallaEn = u"Prepara"_s;
    piezas.alActuar = [] { throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero, u"la segunda"_s}; };
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_TRUE(piezas.pasos.contains(u"critico 11: la segunda"_s));
    EXPECT_EQ(piezas.pasos.filter(u"critico"_s).size(), 1);
}

TEST_F(SalidaDeReportTest, ADiskThatDoesNotTakeTheRowsIsAReportsError)
{
    conFila();
    piezas.alActuar = [] { throw ErrorDeSalida{u"no queda espacio en el disco"_s}; };
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos.filter(u"critico"_s), QStringList{u"critico 20002: no queda espacio en el disco"_s});
}

TEST_F(SalidaDeReportTest, AMachineWithoutMemoryIsToldLikeALayoutThatFails)
{
    conFila();
    piezas.alActuar = [] { throw std::bad_alloc{}; };
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos.filter(u"critico"_s),
              QStringList{u"critico 20001: No hay memoria suficiente para mostrar el informe."_s});
    EXPECT_EQ(piezas.pasos.count(u"Action 1"_s), 2);
}

TEST_F(SalidaDeReportTest, WhatALibraryThrowsIsToldLikeALayoutThatFails)
{
    conFila();
    piezas.alActuar = [] { throw std::length_error{"too long"}; };
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos.filter(u"critico"_s), QStringList{u"critico 20001: El informe no se puede mostrar: too long."_s});
}

TEST_F(SalidaDeReportTest, StagingTablesThatCannotBeReadEndTheRun)
{
    contexto.ConexionListados.Close();
    tienda.quitaTablaListados(u"informes"_s);
    contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
    EXPECT_THROW(salida.ImprimirReport(u"K_secciones.rpt"_s), ErrorEjecucion);
    EXPECT_EQ(piezas.pasos, (QStringList{u"drena"_s, u"drena"_s, u"drena"_s}));
}

TEST_F(SalidaDeReportTest, AnErrorOfTheWaitIsNotGuarded)
{
    conFila();
    piezas.fallaEn = u"espera"_s;
    EXPECT_THROW(salida.ImprimirReport(u"K_secciones.rpt"_s), ErrorEjecucion);
}

TEST_F(SalidaDeReportTest, ThePrintersNameDriverAndPortAreSetAfterTheReset)
{
    piezas.instaladas = {{u"OKI"_s, u"oki.drv"_s, u"LPT1"_s}, {u"HP"_s, u"hp.drv"_s, u"USB1"_s}};
    salida.DarImpresora(u"HP"_s);
    EXPECT_EQ(piezas.pasos, (QStringList{u"reinicia impresora"_s, u"drena"_s, u"PrinterName HP"_s, u"PrinterDriver hp.drv"_s,
                                         u"PrinterPort USB1"_s}));
}

TEST_F(SalidaDeReportTest, OfTwoPrintersOfOneNameTheFirstIsTaken)
{
    piezas.instaladas = {{u"HP"_s, u"uno"_s, u"USB1"_s}, {u"HP"_s, u"dos"_s, u"USB2"_s}};
    salida.DarImpresora(u"HP"_s);
    EXPECT_EQ(piezas.pasos.filter(u"Printer"_s), (QStringList{u"PrinterName HP"_s, u"PrinterDriver uno"_s, u"PrinterPort USB1"_s}));
}

/// No printer of the list ("HP" alone) goes by `nombre`: the default one stays, and nobody is told.
void esperaNinguna(PiezasAnotadas& piezas, SalidaDeReport& salida, const QString& nombre)
{
    piezas.pasos.clear();
    salida.DarImpresora(nombre);
    EXPECT_EQ(piezas.pasos, (QStringList{u"reinicia impresora"_s, u"drena"_s})) << nombre.toStdString();
}

TEST_F(SalidaDeReportTest, APrinterThatIsNotInTheListSetsNothing)
{
    piezas.instaladas = {{u"HP"_s, u"hp.drv"_s, u"USB1"_s}};
    esperaNinguna(piezas, salida, u"OKI"_s);
    esperaNinguna(piezas, salida, u"hp"_s);
    esperaNinguna(piezas, salida, u"HP "_s);
    esperaNinguna(piezas, salida, {});
}

TEST_F(SalidaDeReportTest, WithoutAnyPrinterTheReportStillOpens)
{
    conFila();
    salida.DarImpresora({});
    piezas.pasos.clear();
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos, EntradaYEspera + Configuracion + Intento + Final);
}

TEST_F(SalidaDeReportTest, TheNextReportMayBeginAsSoonAsItHasReturned)
{
    conFila();
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    const QStringList primero = piezas.pasos;
    piezas.pasos.clear();
    salida.ImprimirReport(u"K_secciones.rpt"_s);
    EXPECT_EQ(piezas.pasos, primero);
}

TEST_F(SalidaDeReportTest, AChartSaysThatItIsNotThereYet)
{
    salida.MostrarGrafico(u"ventas"_s, {});
    EXPECT_EQ(piezas.pasos, QStringList{u"informa Listados: Este listado todavía no está disponible."_s});
}

TEST(ColaEventosDeQt, ServesWhatWaits)
{
    int argumentos = 0;
    const QCoreApplication aplicacion{argumentos, nullptr};
    bool servido = false;
    QMetaObject::invokeMethod(
        qApp, [&servido] { servido = true; }, Qt::QueuedConnection);
    ColaEventosDeQt{}.drena();
    EXPECT_TRUE(servido);
}

} // namespace
} // namespace kestrane
