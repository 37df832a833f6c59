// The same on PostgreSQL: the shop on the server, the staging tables in an embedded file on both sides.
// The data sources come from tests/servidores/con_servidores.sh; bench/retardo.py puts a slower network before them.

#include "bench/caja_casos.h"
#include "bench/filas_odbc.h"

namespace kestrane::bench {
namespace {

using Banco = BancoDeCaja<TiendaPostgreSql>;

Banco& tienda()
{
    static Banco banco{enHumo() ? QStringLiteral("dia") : QStringLiteral("anio"), QStringLiteral("KestranePgTienda")};
    return banco;
}

/// What one round trip costs, by the shortest statement.
void idaYVuelta(benchmark::State& estado)
{
    const ConexionDesnuda conexion{"KestranePgTienda"};
    const SentenciaOdbc sentencia{conexion, {}};
    for (auto _ : estado)
        conexion.ejecuta(QStringLiteral("select 1"));
}

void registra()
{
    benchmark::RegisterBenchmark("caja postgresql/ida y vuelta", idaYVuelta)->Unit(benchmark::kMicrosecond)->UseRealTime();
    const char* const meta = "at most 4, aim for 2";
    registraPar<TiendaPostgreSql, CajaDiariaDesnuda>(
        "caja postgresql/cmd_Caja1, lo mas largo de un anio", tienda,
        [](Banco& banco, Constructor constructor) { return banco.masLargo(constructor); }, ListadoCajaDiaria, meta);
    registraPar<TiendaPostgreSql, CajaTicketsDesnuda>(
        "caja postgresql/cmd_Caja4, un anio", tienda, [](Banco& banco, Constructor) { return banco.todo(); }, ListadoCajaTickets,
        meta);
    registraConstructores<TiendaPostgreSql>("caja postgresql/", tienda, "below 0.1 statements per ticket");
}

} // namespace
} // namespace kestrane::bench

int main(int argc, char** argv)
{
    kestrane::bench::registra();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
