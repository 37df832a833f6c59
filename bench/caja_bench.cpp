// The reports of the till on embedded shops, from the button's builder to rows that another connection sees.

#include "bench/caja_casos.h"
#include "bench/filas_sqlite.h"

namespace kestrane::bench {
namespace {

using Banco = BancoDeCaja<TiendaSqlite>;

Banco& anio()
{
    static Banco banco{enHumo() ? QStringLiteral("dia") : QStringLiteral("anio")};
    return banco;
}

Banco& cadena()
{
    static Banco banco{enHumo() ? QStringLiteral("dia") : QStringLiteral("cadena")};
    return banco;
}

void registra()
{
    const char* const meta = "at most 2.5, aim for 1.5";
    registraPar<TiendaSqlite, CajaDiariaDesnuda>(
        "caja/cmd_Caja1, lo mas largo de un anio", anio,
        [](Banco& banco, Constructor constructor) { return banco.masLargo(constructor); }, ListadoCajaDiaria, meta);
    registraPar<TiendaSqlite, CajaDiariaDesnuda>(
        "caja/cmd_Caja1, un dia de la cadena", cadena, [](Banco& banco, Constructor) { return banco.diaMayor(); },
        ListadoCajaDiaria, meta);
    registraPar<TiendaSqlite, CajaTicketsDesnuda>(
        "caja/cmd_Caja4, un anio", anio, [](Banco& banco, Constructor) { return banco.todo(); }, ListadoCajaTickets, meta);
    registraConstructores<TiendaSqlite>("caja/", anio, "below 0.1 statements per ticket on servers");
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
