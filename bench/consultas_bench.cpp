// Look-ups as the builders make them, a different literal each time, against the same statement prepared once.

#include "bench/base_de_banco.h"
#include "platform/database/recordset.h"

#include <benchmark/benchmark.h>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* Meta = "at most 2, aim for 1.3";

QString nombreDesnudo(sqlite3_stmt* sentencia, int codigo)
{
    QString nombre = u"Cliente Generico"_s;
    sqlite3_bind_int(sentencia, 1, codigo);
    if (sqlite3_step(sentencia) == SQLITE_ROW)
        nombre = textoDesnudo(sentencia, 0) + u' ' + textoDesnudo(sentencia, 1);
    sqlite3_reset(sentencia);
    return nombre;
}

QString nombreNuestro(Conexion& tienda, int codigo)
{
    QString nombre = u"Cliente Generico"_s;
    Recordset rs;
    rs.Open(u"Select Nombre,Apellidos from clientes where codigo = "_s + QString::number(codigo) +
                u" and (tienda like '%' or tienda is null)"_s,
            tienda);
    if (rs.RecordCount() > 0)
        nombre = rs.Fields(u"Nombre").texto() + u' ' + rs.Fields(u"Apellidos").texto();
    return nombre;
}

void clienteDesnudo(benchmark::State& estado)
{
    const auto sentencia =
        preparaDesnuda(baseDeBanco().tiendaDesnuda(),
                       "SELECT nombre, apellidos FROM clientes WHERE codigo = ? AND (tienda LIKE '%' OR tienda IS NULL)");
    Codigos codigos{BaseDeBanco::Clientes};
    for (auto _ : estado)
        benchmark::DoNotOptimize(nombreDesnudo(sentencia.get(), codigos.siguiente()));
}

void clienteNuestro(benchmark::State& estado)
{
    Codigos codigos{BaseDeBanco::Clientes};
    for (auto _ : estado)
        benchmark::DoNotOptimize(nombreNuestro(baseDeBanco().tienda(), codigos.siguiente()));
    estado.SetLabel(Meta);
}

bool existeDesnudo(sqlite3_stmt* sentencia, int numero)
{
    sqlite3_bind_int(sentencia, 1, numero);
    const bool existe = sqlite3_step(sentencia) == SQLITE_ROW;
    sqlite3_reset(sentencia);
    return existe;
}

bool existeNuestro(Conexion& tienda, int numero)
{
    Recordset rs;
    rs.Open(u"Select num_pago from cabecera_pago where num_factura= "_s + QString::number(numero) + u" and tienda like '%'"_s,
            tienda);
    return rs.RecordCount() > 0;
}

void existenciaDesnuda(benchmark::State& estado)
{
    const auto sentencia = preparaDesnuda(baseDeBanco().tiendaDesnuda(),
                                          "SELECT num_pago FROM cabecera_pago WHERE num_factura = ? AND tienda LIKE '%'");
    Codigos codigos{BaseDeBanco::Ventas};
    for (auto _ : estado)
        benchmark::DoNotOptimize(existeDesnudo(sentencia.get(), codigos.siguiente()));
}

void existenciaNuestra(benchmark::State& estado)
{
    Codigos codigos{BaseDeBanco::Ventas};
    for (auto _ : estado)
        benchmark::DoNotOptimize(existeNuestro(baseDeBanco().tienda(), codigos.siguiente()));
    estado.SetLabel(Meta);
}

/// Column numbers of detalle_factura by its names, as the bare program would write them down.
struct ColumnasLinea
{
    explicit ColumnasLinea(sqlite3_stmt* sentencia)
    {
        for (int i = 0; i < sqlite3_column_count(sentencia); ++i) {
            const QLatin1StringView nombre{sqlite3_column_name(sentencia, i)};
            if (nombre == "producto"_L1)
                producto = i;
            else if (nombre == "precio"_L1)
                precio = i;
            else if (nombre == "impuesto"_L1)
                impuesto = i;
            else if (nombre == "impuesto_2"_L1)
                impuesto2 = i;
        }
    }
    int producto = 0;
    int precio = 0;
    int impuesto = 0;
    int impuesto2 = 0;
};

void lineasDesnudas(benchmark::State& estado)
{
    const auto sentencia = preparaDesnuda(baseDeBanco().tiendaDesnuda(),
                                          "SELECT * FROM detalle_factura WHERE num_factura = ? AND tienda LIKE '%' ORDER BY rowid");
    const ColumnasLinea columnas{sentencia.get()};
    Codigos codigos{BaseDeBanco::Ventas};
    for (auto _ : estado) {
        double neto = 0;
        sqlite3_bind_int(sentencia.get(), 1, codigos.siguiente());
        while (sqlite3_step(sentencia.get()) == SQLITE_ROW) {
            benchmark::DoNotOptimize(textoDesnudo(sentencia.get(), columnas.producto));
            neto += sqlite3_column_double(sentencia.get(), columnas.precio) -
                    (sqlite3_column_double(sentencia.get(), columnas.impuesto) +
                     sqlite3_column_double(sentencia.get(), columnas.impuesto2));
        }
        sqlite3_reset(sentencia.get());
        benchmark::DoNotOptimize(neto);
    }
}

void lineasNuestras(benchmark::State& estado)
{
    Codigos codigos{BaseDeBanco::Ventas};
    for (auto _ : estado) {
        double neto = 0;
        Recordset rs;
        rs.Open(u"Select * from detalle_factura where num_factura = "_s + QString::number(codigos.siguiente()) +
                    u"  and tienda like '%'"_s,
                baseDeBanco().tienda());
        if (rs.RecordCount() > 0) {
            for (Recordset& linea : rs) {
                benchmark::DoNotOptimize(linea.Fields(u"producto").texto());
                neto += linea.Fields(u"precio").doble() - (linea.Fields(u"impuesto").doble() + linea.Fields(u"impuesto_2").doble());
            }
        }
        benchmark::DoNotOptimize(neto);
    }
    estado.SetLabel(Meta);
}

BENCHMARK(clienteDesnudo)->Name("sqlite/nombre de un cliente/desnuda");
BENCHMARK(clienteNuestro)->Name("sqlite/nombre de un cliente/nuestra");
BENCHMARK(existenciaDesnuda)->Name("sqlite/hay pago pendiente/desnuda");
BENCHMARK(existenciaNuestra)->Name("sqlite/hay pago pendiente/nuestra");
BENCHMARK(lineasDesnudas)->Name("sqlite/lineas de una venta/desnuda");
BENCHMARK(lineasNuestras)->Name("sqlite/lineas de una venta/nuestra");

} // namespace
} // namespace kestrane::bench
