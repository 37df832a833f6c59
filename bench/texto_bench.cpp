// The project's own text rules (Spanish, without case) in whole statements, against the rules that SQLite has built in.

#include "bench/base_de_banco.h"
#include "platform/database/recordset.h"

#include <benchmark/benchmark.h>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* Meta = "at most 1.5";

void desnuda(benchmark::State& estado, const char* sql)
{
    const auto sentencia = preparaDesnuda(baseDeBanco().tiendaDesnuda(), sql);
    for (auto _ : estado) {
        qint64 suma = 0;
        while (sqlite3_step(sentencia.get()) == SQLITE_ROW)
            suma += sqlite3_column_int(sentencia.get(), 0);
        sqlite3_reset(sentencia.get());
        benchmark::DoNotOptimize(suma);
    }
}

void nuestra(benchmark::State& estado, const QString& sql)
{
    for (auto _ : estado) {
        qint64 suma = 0;
        Recordset rs;
        rs.Open(sql, baseDeBanco().tienda());
        for (Recordset& fila : rs)
            suma += fila.Fields(0).entero32();
        benchmark::DoNotOptimize(suma);
    }
    estado.SetLabel(Meta);
}

BENCHMARK_CAPTURE(desnuda, igual, "SELECT count(*) FROM clientes WHERE poblacion = 'madrid' COLLATE NOCASE")
    ->Name("sqlite/poblacion igual a un texto, 20000 filas/desnuda")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(nuestra, igual, u"select count(*) from clientes where poblacion = 'madrid'"_s)
    ->Name("sqlite/poblacion igual a un texto, 20000 filas/nuestra")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(desnuda, final, "SELECT count(*) FROM detalle_factura WHERE tienda LIKE '%Centro'")
    ->Name("sqlite/tienda que acaba en, 180000 filas/desnuda")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(nuestra, final, u"select count(*) from detalle_factura where tienda like '%Centro'"_s)
    ->Name("sqlite/tienda que acaba en, 180000 filas/nuestra")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(desnuda, principio, "SELECT count(*) FROM clientes WHERE nombre LIKE 'an%'")
    ->Name("sqlite/nombre que empieza por, 20000 filas/desnuda")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(nuestra, principio, u"select count(*) from clientes where nombre like 'an%'"_s)
    ->Name("sqlite/nombre que empieza por, 20000 filas/nuestra")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(desnuda, orden, "SELECT codigo FROM clientes ORDER BY apellidos COLLATE NOCASE, rowid")
    ->Name("sqlite/ordenar 20000 clientes por apellidos/desnuda")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(nuestra, orden, u"select codigo from clientes order by apellidos"_s)
    ->Name("sqlite/ordenar 20000 clientes por apellidos/nuestra")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(desnuda, grupos, "SELECT count(*) FROM clientes GROUP BY poblacion COLLATE NOCASE")
    ->Name("sqlite/agrupar 20000 clientes por poblacion/desnuda")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(nuestra, grupos, u"select count(codigo) as n from clientes group by poblacion"_s)
    ->Name("sqlite/agrupar 20000 clientes por poblacion/nuestra")
    ->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace kestrane::bench
