// Translating a statement that was never seen, against the engine's own preparation of the text that comes out.

#include "bench/base_de_banco.h"
#include "bench/catalogo_de_esquema.h"
#include "platform/jet/forma.h"
#include "platform/jet/traductor.h"

#include <benchmark/benchmark.h>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;

const QString Busqueda = u"Select Nombre,Apellidos from clientes where codigo = 17 and (tienda like '%Centro' or tienda is null)"_s;
const QString Cabeceras = u"Select * from cabecera_factura where fechaventa between #03/01/2024# and #03/31/2024# and tienda like "
                          "'%Centro' order by numero"_s;
const QString Suma =
    u"Select sum(detalle_factura.precio) as total,detalle_factura.codEmpleado   from cabecera_Factura,detalle_factura  "
    "where cabecera_Factura.fechaventa between #03/01/2024# and #03/31/2024#   and cabecera_Factura.numero= "
    "detalle_factura.num_factura   and (detalle_factura.tipo_venta='P')   and cabecera_Factura.pago <>4  and "
    "cabecera_factura.tienda like '%Centro' and detalle_factura.tienda like '%Centro' group by detalle_factura.codEmpleado"_s;

void preparacion(benchmark::State& estado, const QString& sentencia)
{
    CatalogoDeEsquema catalogo{u"rowid"_s};
    const jet::Traductor traductor{catalogo, jet::Motor::Sqlite, ConfiguracionRegional::espania()};
    const QByteArray sql = traductor.traduce(sentencia).valor().sql;
    // The project's connection knows the collation; a bare one must be told something under that name.
    sqlite3* const base = baseDeBanco().tiendaDesnuda();
    sqlite3_create_collation(base, "ESPANOL", SQLITE_UTF8, nullptr, [](void*, int a, const void* x, int b, const void* y) {
        return QByteArrayView{static_cast<const char*>(x), a}.compare(QByteArrayView{static_cast<const char*>(y), b});
    });
    for (auto _ : estado)
        benchmark::DoNotOptimize(preparaDesnuda(base, sql.constData()));
}

void traduccion(benchmark::State& estado, const QString& sentencia)
{
    CatalogoDeEsquema catalogo{u"rowid"_s};
    const jet::Traductor traductor{catalogo, jet::Motor::Sqlite, ConfiguracionRegional::espania()};
    for (auto _ : estado)
        benchmark::DoNotOptimize(traductor.traduce(sentencia).bien());
    estado.SetLabel("at most 1");
}

void forma(benchmark::State& estado, const QString& sentencia)
{
    jet::ExtractorDeForma extractor;
    for (auto _ : estado)
        benchmark::DoNotOptimize(extractor.extrae(sentencia));
}

BENCHMARK_CAPTURE(preparacion, busqueda, Busqueda)->Name("traducir/busqueda/desnuda");
BENCHMARK_CAPTURE(traduccion, busqueda, Busqueda)->Name("traducir/busqueda/nuestra");
BENCHMARK_CAPTURE(preparacion, cabeceras, Cabeceras)->Name("traducir/cabeceras de un periodo/desnuda");
BENCHMARK_CAPTURE(traduccion, cabeceras, Cabeceras)->Name("traducir/cabeceras de un periodo/nuestra");
BENCHMARK_CAPTURE(preparacion, suma, Suma)->Name("traducir/suma por empleado/desnuda");
BENCHMARK_CAPTURE(traduccion, suma, Suma)->Name("traducir/suma por empleado/nuestra");
BENCHMARK_CAPTURE(forma, busqueda, Busqueda)->Name("forma/busqueda");
BENCHMARK_CAPTURE(forma, suma, Suma)->Name("forma/suma por empleado");

} // namespace
} // namespace kestrane::bench
