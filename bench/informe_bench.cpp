// Reports on paper: a dense page against the same texts painted by drawText on a bare QPdfWriter, and the time to the first page
// against the sorted statement alone.

#include "bench/base_de_informes.h"
#include "platform/database/conexion.h"
#include "platform/database/recordset.h"
#include "platform/report/documento.h"
#include "platform/report/filas_agrupadas.h"
#include "platform/report/maquetado.h"
#include "platform/report/pintor.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <array>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;
using namespace report;

constexpr int Filas = 60;
constexpr int Columnas = 8;
constexpr int Paginas = 20;
constexpr int Millon = 1'000'000;
constexpr double AltoFila = 4.5;
constexpr std::array<double, Columnas> Anchos{14, 38, 38, 16, 20, 20, 30, 10};

/// A listing of sixty rows a page: codes, names, addresses, amounts.
Layout listado()
{
    Layout layout;
    layout.fichero = u"banco.rpt"_s;
    layout.pagina.margenes = {12, 12, 12, 12};
    layout.sentencia = u"select texto1, texto2, texto3, texto4, texto5, numerico1, texto6, numerico2 from informes"_s;
    const QStringList columnas{u"texto1"_s, u"texto2"_s,    u"texto3"_s, u"texto4"_s,
                               u"texto5"_s, u"numerico1"_s, u"texto6"_s, u"numerico2"_s};
    std::vector<Agregado> agregados;
    ContextoAnalisis contexto{{}, 0, agregados};
    Banda banda;
    banda.alto = AltoFila;
    double x = 0;
    for (size_t i = 0; i < Columnas; ++i) {
        Texto celda;
        celda.caja = {x, 0, Anchos[i] - 1, AltoFila};
        celda.valor = analizaExpresion(columnas[static_cast<qsizetype>(i)], {layout.fichero, 1}, contexto);
        if (i == 5 || i == 7) {
            celda.formato = {Formato::Moneda, 2, false};
            celda.estilo.horizontal = Horizontal::Derecha;
        }
        banda.elementos.emplace_back(celda);
        x += Anchos[i];
    }
    layout.detalle.push_back(banda);
    return layout;
}

std::vector<Valor> fila(int i)
{
    return {u"%1"_s.arg(i, 5, 10, QLatin1Char('0')),
            u"María Begoña Núñez"_s + QString::number(i % 97),
            u"Calle de la Constitución, %1"_s.arg(i % 300),
            u"Alcañiz"_s,
            u"963 000 %1"_s.arg(i % 1000),
            12.5 * (i % 4000),
            u"Corte y peinado"_s,
            static_cast<double>(i % 7)};
}

CopiaFilas filas(int cuantas)
{
    auto almacen = std::make_shared<database::AlmacenFilas>(Columnas);
    for (int i = 0; i < cuantas; ++i) {
        almacen->empiezaFila();
        for (const Valor& valor : fila(i))
            almacen->ponValor(valor);
        almacen->terminaFila();
    }
    return {{u"texto1"_s, u"texto2"_s, u"texto3"_s, u"texto4"_s, u"texto5"_s, u"numerico1"_s, u"texto6"_s, u"numerico2"_s},
            almacen};
}

Maquetado maquetado(const CopiaFilas& copia, const ConfiguracionRegional& regional)
{
    return {listado(), [&](const Layout& layout) { return std::make_unique<FilasAgrupadas>(layout, copia, regional); }, regional};
}

/// The pages of the listing, composed once.
const std::vector<PaginaCompuesta>& paginasCompuestas()
{
    static const std::vector<PaginaCompuesta> paginas = [] {
        const auto regional = ConfiguracionRegional::espania();
        Maquetado maqueta = maquetado(filas(Filas * Paginas), regional);
        std::vector<PaginaCompuesta> todas;
        while (!maqueta.completo())
            maqueta.avanza();
        for (int i = 0; i < maqueta.paginas(); ++i)
            todas.push_back(maqueta.pagina(i));
        return todas;
    }();
    return paginas;
}

/// Gives each page to `pinta(painter, page, units in a millimetre)`, all in one document that goes nowhere.
template<class Pinta>
void enPdf(int paginas, Pinta pinta)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    QPdfWriter escritor{&destino};
    escritor.setPageSize(QPageSize{QPageSize::A4});
    escritor.setPageMargins({});
    QPainter pintor{&escritor};
    for (int i = 0; i < paginas; ++i) {
        if (i > 0)
            escritor.newPage();
        pinta(pintor, i, escritor.resolution() / 25.4);
    }
    pintor.end();
    benchmark::DoNotOptimize(destino.size());
}

void pintaDesnuda(benchmark::State& estado)
{
    const auto& paginas = paginasCompuestas();
    for (auto _ : estado) {
        enPdf(Paginas, [&](QPainter& pintor, int indice, double escala) {
            QFont letra{u"DejaVu Sans"_s};
            letra.setPointSizeF(8.5);
            pintor.setFont(letra);
            for (const Primitiva& primitiva : paginas[static_cast<size_t>(indice)].primitivas) {
                const auto& texto = std::get<TextoCompuesto>(primitiva);
                pintor.drawText(texto.base * escala, texto.texto);
            }
        });
    }
    estado.SetItemsProcessed(estado.iterations() * Paginas);
}

void pintaNuestra(benchmark::State& estado)
{
    const auto& paginas = paginasCompuestas();
    for (auto _ : estado) {
        PintorPaginas pintorPaginas;
        enPdf(Paginas, [&](QPainter& pintor, int indice, double escala) {
            pintorPaginas.pinta(pintor, paginas[static_cast<size_t>(indice)], escala);
        });
    }
    estado.SetItemsProcessed(estado.iterations() * Paginas);
    estado.SetLabel("at most 1.43, aim for 1");
}

void componeYPintaNuestra(benchmark::State& estado)
{
    const auto regional = ConfiguracionRegional::espania();
    const CopiaFilas copia = filas(Filas * Paginas);
    for (auto _ : estado) {
        Maquetado maqueta = maquetado(copia, regional);
        while (!maqueta.completo())
            maqueta.avanza();
        PintorPaginas pintorPaginas;
        enPdf(maqueta.paginas(),
              [&](QPainter& pintor, int indice, double escala) { pintorPaginas.pinta(pintor, maqueta.pagina(indice), escala); });
    }
    estado.SetItemsProcessed(estado.iterations() * Paginas);
    estado.SetLabel("at most 1.67");
}

Layout listadoOrdenado()
{
    Layout layout = listado();
    ContextoAnalisis contexto{{}, 0, layout.agregados};
    layout.orden.push_back({analizaExpresion(u"texto1"_s, {layout.fichero, 1}, contexto), false});
    return layout;
}

template<int Cuantas>
void primeraDesnuda(benchmark::State& estado)
{
    BaseDeInformes& base = BaseDeInformes::de<Cuantas>();
    const QString sentencia = listado().sentencia + u" order by texto1"_s;
    for (auto _ : estado) {
        Conexion conexion{base.entorno()};
        conexion.Open(u"dsn=ListKestrane"_s);
        Recordset filas;
        filas.Open(sentencia, conexion);
        while (!filas.Eof())
            filas.MoveNext();
    }
}

double picoEnMegas()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return static_cast<double>(uso.ru_maxrss) / 1024;
}

template<int Cuantas>
void primeraNuestra(benchmark::State& estado)
{
    BaseDeInformes& base = BaseDeInformes::de<Cuantas>();
    for (auto _ : estado) {
        Documento documento{listadoOrdenado(), base.entorno()};
        benchmark::DoNotOptimize(documento.pagina(0));
    }
    estado.counters["pico MB"] = picoEnMegas();
}

/// All pages laid out and the last one composed: what memory a report of a million rows takes.
void millonEntero(benchmark::State& estado)
{
    BaseDeInformes& base = BaseDeInformes::de<Millon>();
    for (auto _ : estado) {
        Documento documento{listadoOrdenado(), base.entorno()};
        documento.completa();
        benchmark::DoNotOptimize(documento.pagina(documento.paginas() - 1));
        estado.counters["filas"] = static_cast<double>(documento.filas().filas());
        estado.counters["paginas"] = documento.paginas();
    }
    estado.counters["pico MB"] = picoEnMegas();
    estado.SetLabel("under 300 MB");
}

BENCHMARK(pintaDesnuda)->Name("informe/pintar 20 paginas densas/desnuda")->Unit(benchmark::kMillisecond);
BENCHMARK(pintaNuestra)->Name("informe/pintar 20 paginas densas/nuestra")->Unit(benchmark::kMillisecond);
BENCHMARK(pintaDesnuda)->Name("informe/componer y pintar 20 paginas/desnuda")->Unit(benchmark::kMillisecond);
BENCHMARK(componeYPintaNuestra)->Name("informe/componer y pintar 20 paginas/nuestra")->Unit(benchmark::kMillisecond);
BENCHMARK(primeraDesnuda<1000>)->Name("informe/primera pagina, 1000 filas/desnuda")->Unit(benchmark::kMillisecond);
BENCHMARK(primeraNuestra<1000>)->Name("informe/primera pagina, 1000 filas/nuestra")->Unit(benchmark::kMillisecond);
BENCHMARK(primeraDesnuda<Millon>)->Name("informe/primera pagina, 1000000 filas/desnuda")->Unit(benchmark::kMillisecond);
BENCHMARK(primeraNuestra<Millon>)->Name("informe/primera pagina, 1000000 filas/nuestra")->Unit(benchmark::kMillisecond);
BENCHMARK(millonEntero)->Name("informe/1000000 filas enteras")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kestrane::bench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicacion{argc, argv};
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
