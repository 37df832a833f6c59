// The start of the program: both databases opened and the run context filled, against a bare program that opens the files and asks
// for the same rows.

#include "bench/base_de_banco.h"
#include "platform/suite/conector_tienda.h"
#include "platform/suite/preferencias_en_tabla.h"
#include "run_context/principal.h"

#include <benchmark/benchmark.h>

#include <array>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array Consultas = {
    "SELECT * FROM preferencias_terminal WHERE terminal = 'CAJA'",
    "SELECT bandera FROM configuracionregional",
    "SELECT nombre FROM configuracionregional",
    "SELECT * FROM migraciontablas WHERE tabla = 'Ventas' AND estado = -1",
    "SELECT * FROM opciones_terminal WHERE identificador = 'CAJA'",
    "SELECT impresora FROM impresoras WHERE tipo = 'T' AND terminal = ''",
    "SELECT impresora FROM impresoras WHERE tipo = 'L' AND terminal = ''",
    "SELECT impresora FROM impresoras WHERE tipo = 'E' AND terminal = ''",
    "SELECT * FROM opciones",
    "SELECT identificacion_fiscal FROM configuracionregional",
    "SELECT multitienda, nombretienda FROM opciones",
    "SELECT datoa FROM relaciones_fijas WHERE indice = 'PermiteListadoVariosDias'",
    "SELECT modulofacturas FROM opciones",
};

void lee(sqlite3* base, const char* consulta)
{
    const auto sentencia = preparaDesnuda(base, consulta);
    benchmark::DoNotOptimize(sqlite3_step(sentencia.get()));
}

void arranqueDesnudo(benchmark::State& estado)
{
    const QString carpeta = baseDeBanco().carpeta();
    for (auto _ : estado) {
        const BaseDesnuda tienda = abreDesnuda(carpeta + u"/TiendaKestrane.db"_s);
        const BaseDesnuda listados = abreDesnuda(carpeta + u"/ListKestrane.db"_s);
        lee(listados.get(), "SELECT list1 FROM listadostemporal");
        for (const char* const consulta : Consultas)
            lee(tienda.get(), consulta);
    }
}

void arranqueNuestro(benchmark::State& estado)
{
    const RelojSistema reloj;
    database::OpcionesDatos opciones;
    opciones.carpeta = baseDeBanco().carpeta();
    for (auto _ : estado) {
        EntornoDatos entorno{opciones};
        ContextoEjecucion contexto{entorno};
        contexto.CarpetaPrograma = opciones.carpeta;
        ConectorTiendaDsn conector;
        PreferenciasEnTabla preferencias{u"CAJA"_s};
        Principal principal{contexto, conector, preferencias, reloj};
        principal.AbreConexiones();
        principal.Inicializa();
        benchmark::DoNotOptimize(contexto.NombreEmpresa);
    }
    estado.SetLabel("under 50 ms");
}

BENCHMARK(arranqueDesnudo)->Name("arranque/contexto lleno/desnuda")->Unit(benchmark::kMicrosecond);
BENCHMARK(arranqueNuestro)->Name("arranque/contexto lleno/nuestra")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace kestrane::bench
