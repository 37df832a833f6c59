// The preview of a million rows: when its first page is seen, how long the window lets its operator wait while the rest is laid
// out, and what memory all of it takes. A program of its own, so that the peak is the preview's.

#include "bench/base_de_informes.h"
#include "platform/report/preview/documento_vista.h"
#include "platform/report/preview/ventanas_vista.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <utility>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;
using namespace report;

constexpr int Millon = 1'000'000;

constexpr auto Listado = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Clientes">
  <pagina papel="A4" orientacion="vertical" margenes="12 12 12 12"/>
  <consulta>select texto1, texto2, texto3, numerico1 from informes</consulta>
  <orden por="texto1"/>%1
  <tabla alto="4.5">
    <columna titulo="Código" valor="texto1" ancho="20"/>
    <columna titulo="Nombre" valor="texto2" ancho="60"/>
    <columna titulo="Domicilio" valor="texto3" ancho="*"/>
    <columna titulo="Importe" valor="numerico1" ancho="25" formato="moneda"/>
  </tabla>
  <pie-pagina><banda alto="6"><texto x="0" y="0" ancho="80" alto="5" valor="'Página ' &amp; pagina &amp; ' de ' &amp; paginas"/></banda></pie-pagina>
</informe>
)";
constexpr auto CadaFilaUnGrupo = R"(<grupo nombre="codigo" por="texto1" titulo="texto1"/>)";

/// Notes when a page is painted for the first time, and how many there were by then.
class PrimeraPintada final : public QObject
{
public:
    PrimeraPintada(const QElapsedTimer& reloj, VentanaVista& ventana) : m_reloj{reloj}, m_fuente{ventana.fuente()}
    {
        ventana.findChild<Lienzo*>()->viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* evento) override
    {
        if (evento->type() == QEvent::Paint && std::exchange(m_espera, false))
            QMetaObject::invokeMethod(
                this, [this] { anota(); }, Qt::QueuedConnection); // when it has been painted
        return false;
    }

    double milisegundos = -1;
    int paginas = 0;

private:
    void anota()
    {
        milisegundos = double(m_reloj.elapsed());
        paginas = m_fuente.paginas();
    }

    const QElapsedTimer& m_reloj;
    FuenteVista& m_fuente;
    bool m_espera = true;
};

/// The longest time in which the event loop served nobody else.
class MayorEspera
{
public:
    MayorEspera()
    {
        m_reloj.start();
        QObject::connect(&m_late, &QTimer::timeout, &m_late, [this] { m_mayor = std::max(m_mayor, m_reloj.restart()); });
        m_late.start(0);
    }
    [[nodiscard]] double milisegundos() const { return double(m_mayor); }

private:
    QTimer m_late;
    QElapsedTimer m_reloj;
    qint64 m_mayor = 0;
};

double picoEnMegas()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return double(uso.ru_maxrss) / 1024;
}

void abreYCompone(benchmark::State& estado, const char* grupo)
{
    BaseDeInformes& base = BaseDeInformes::de<Millon>();
    const QTemporaryDir carpeta;
    QFile layout{carpeta.filePath(u"banco.rpt"_s)};
    if (!layout.open(QIODevice::WriteOnly) || layout.write(QString::fromUtf8(Listado).arg(QLatin1StringView{grupo}).toUtf8()) < 0)
        return estado.SkipWithError("the layout cannot be written");
    layout.close();
    for (auto _ : estado) {
        QElapsedTimer reloj;
        reloj.start();
        VentanasVista ventanas{{}};
        auto documento = std::make_unique<Documento>(layout.fileName(), base.entorno());
        VentanaVista& ventana =
            ventanas.abre(std::make_unique<DocumentoVista>(std::move(documento), ExportaDocumento{}), u"INFORMES:"_s, {});
        const PrimeraPintada primera{reloj, ventana};
        const MayorEspera espera;
        while (!ventana.fuente().completa())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
        estado.counters["primera ms"] = primera.milisegundos;
        estado.counters["entonces paginas"] = primera.paginas;
        estado.counters["espera ms"] = espera.milisegundos();
        estado.counters["paginas"] = ventana.fuente().paginas();
        estado.counters["grupos"] = double(ventana.fuente().indice().size());
    }
    estado.counters["pico MB"] = picoEnMegas(); // of all that ran so far
    estado.SetLabel("under 300 MB");
}

void millon(benchmark::State& estado)
{
    abreYCompone(estado, "");
}

void millonDeGrupos(benchmark::State& estado)
{
    abreYCompone(estado, CadaFilaUnGrupo);
}

BENCHMARK(millon)->Name("vista/1000000 filas")->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(1);
BENCHMARK(millonDeGrupos)
    ->Name("vista/1000000 filas, cada una un grupo")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(1);

} // namespace
} // namespace kestrane::bench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion{argc, argv};
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
