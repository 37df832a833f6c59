// A whole listing, from the button's builder to rows that another connection sees, against one bare statement that copies the same
// columns inside the engine's own interface, row by row.

#include "bench/base_de_banco.h"
#include "listings/listados_maestros.h"

#include <benchmark/benchmark.h>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr int Proveedores = 20'000;
constexpr int Columnas = 8;

class SinProgreso final : public Progreso
{
public:
    void Muestra() override {}
    void IncrementaBarra() override {}
    void cerrar() override {}
};

/// Fills the table once per run of the program.
void preparaProveedores()
{
    static const bool hecho = [] {
        ejecutaDesnuda(baseDeBanco().tiendaDesnuda(),
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
                       "INSERT INTO proveedores (codigo,codigocliente,nombre,direccion,cp,telefono,fax,contacto,nif,borrar) "
                       "SELECT i, 'P' || i, 'Distribuciones Núñez ' || i, 'Calle Mayor ' || i, '46001', '963000000', '963000001', "
                       "'Begoña Ruiz', 'B46000000', 0 FROM n");
        return true;
    }();
    benchmark::DoNotOptimize(hecho);
}

void listadoDesnudo(benchmark::State& estado)
{
    preparaProveedores();
    sqlite3* const listados = baseDeBanco().listadosDesnuda();
    ejecutaDesnuda(listados, "PRAGMA synchronous=OFF");
    const auto consulta = preparaDesnuda(baseDeBanco().tiendaDesnuda(),
                                         "SELECT codigocliente,nombre,direccion,cp,telefono,fax,contacto,nif FROM proveedores "
                                         "WHERE borrar = 0");
    const auto alta = preparaDesnuda(
        listados, "INSERT INTO informes (texto1,texto2,texto3,texto4,texto5,texto6,texto7,texto8) VALUES (?,?,?,?,?,?,?,?)");
    for (auto _ : estado) {
        ejecutaDesnuda(listados, "BEGIN");
        ejecutaDesnuda(listados, "DELETE FROM informes");
        while (sqlite3_step(consulta.get()) == SQLITE_ROW) {
            for (int columna = 0; columna < Columnas; ++columna)
                sqlite3_bind_value(alta.get(), columna + 1, sqlite3_column_value(consulta.get(), columna));
            sqlite3_step(alta.get());
            sqlite3_reset(alta.get());
        }
        sqlite3_reset(consulta.get());
        ejecutaDesnuda(listados, "COMMIT");
    }
    estado.SetItemsProcessed(estado.iterations() * Proveedores);
}

void listadoNuestro(benchmark::State& estado)
{
    preparaProveedores();
    const RelojSistema reloj;
    database::OpcionesDatos opciones;
    opciones.carpeta = baseDeBanco().carpeta();
    EntornoDatos entorno{opciones};
    ContextoEjecucion contexto{entorno};
    contexto.ConexionTienda.Open(u"dsn=TiendaKestrane"_s);
    contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
    SinProgreso progreso;
    Listados listados{contexto, progreso, reloj};
    for (auto _ : estado) {
        ListadoProveedores(listados);
        entorno.enviaPendientes();
    }
    estado.SetItemsProcessed(estado.iterations() * Proveedores);
    estado.SetLabel("under 300 ms");
}

BENCHMARK(listadoDesnudo)->Name("listado/20000 proveedores/desnuda")->Unit(benchmark::kMillisecond);
BENCHMARK(listadoNuestro)->Name("listado/20000 proveedores/nuestra")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kestrane::bench
