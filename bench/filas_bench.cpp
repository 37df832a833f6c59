// Rows added to the staging table, against a bare prepared INSERT inside one transaction.

#include "bench/base_de_banco.h"
#include "platform/database/recordset.h"

#include <benchmark/benchmark.h>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr int Filas = 20'000;

void ligaTexto(sqlite3_stmt* sentencia, int marca, QStringView texto)
{
    sqlite3_bind_text16(sentencia, marca, texto.utf16(), static_cast<int>(texto.size() * 2), SQLITE_STATIC);
}

void altasDesnudas(benchmark::State& estado)
{
    sqlite3* const base = baseDeBanco().listadosDesnuda();
    ejecutaDesnuda(base, "PRAGMA synchronous=OFF");
    const auto alta =
        preparaDesnuda(base, "INSERT INTO informes (texto35,texto34,fecha1,fecha2,fecha3,numerico1,texto10,texto2,texto30,texto3,"
                             "texto7,texto4,numerico2,numerico3,texto22,texto21) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
    for (auto _ : estado) {
        estado.PauseTiming();
        ejecutaDesnuda(base, "DELETE FROM informes");
        estado.ResumeTiming();
        ejecutaDesnuda(base, "BEGIN");
        for (int fila = 0; fila < Filas; ++fila) {
            const QString numero = QString::number(fila);
            ligaTexto(alta.get(), 1, u"Peluquería Núñez");
            ligaTexto(alta.get(), 2, u"Calle Mayor 1");
            sqlite3_bind_text(alta.get(), 3, "2024-03-01", 10, SQLITE_STATIC);
            sqlite3_bind_text(alta.get(), 4, "2024-03-31", 10, SQLITE_STATIC);
            sqlite3_bind_text(alta.get(), 5, "2024-03-15", 10, SQLITE_STATIC);
            sqlite3_bind_double(alta.get(), 6, fila);
            ligaTexto(alta.get(), 7, numero);
            ligaTexto(alta.get(), 8, u"María García");
            ligaTexto(alta.get(), 9, u"");
            ligaTexto(alta.get(), 10, u"1 X Corte y peinado");
            ligaTexto(alta.get(), 11, u"Ana Ruiz");
            ligaTexto(alta.get(), 12, u"Contado");
            sqlite3_bind_double(alta.get(), 13, 16.5);
            sqlite3_bind_double(alta.get(), 14, 3.5);
            ligaTexto(alta.get(), 15, u"2");
            ligaTexto(alta.get(), 16, u"Ventas Generales");
            sqlite3_step(alta.get());
            sqlite3_reset(alta.get());
        }
        ejecutaDesnuda(base, "COMMIT");
    }
    estado.SetItemsProcessed(estado.iterations() * Filas);
}

void altasNuestras(benchmark::State& estado)
{
    Conexion& listados = baseDeBanco().listados();
    const Fecha desde = *Fecha::deCalendario(2024, 3, 1);
    const Fecha hasta = *Fecha::deCalendario(2024, 3, 31);
    const Fecha dia = *Fecha::deCalendario(2024, 3, 15);
    for (auto _ : estado) {
        estado.PauseTiming();
        listados.Execute(u"Delete * from informes"_s);
        estado.ResumeTiming();
        Recordset rs;
        rs.Open(u"Select * from informes"_s, listados, CursorType::Keyset);
        for (int fila = 0; fila < Filas; ++fila) {
            rs.AddNew();
            rs.Fields(u"TEXTO35") = u"Peluquería Núñez"_s;
            rs.Fields(u"TEXTO34") = u"Calle Mayor 1"_s;
            rs.Fields(u"Fecha1") = desde;
            rs.Fields(u"fecha2") = hasta;
            rs.Fields(u"fecha3") = dia;
            rs.Fields(u"numerico1") = fila;
            rs.Fields(u"texto10") = QString::number(fila);
            rs.Fields(u"texto2") = u"María García"_s;
            rs.Fields(u"texto30") = u""_s;
            rs.Fields(u"texto3") = u"1 X Corte y peinado"_s;
            rs.Fields(u"texto7") = u"Ana Ruiz"_s;
            rs.Fields(u"texto4") = u"Contado"_s;
            rs.Fields(u"numerico2") = 16.5;
            rs.Fields(u"numerico3") = 3.5;
            rs.Fields(u"texto22") = u"2"_s;
            rs.Fields(u"texto21") = u"Ventas Generales"_s;
            rs.Update();
        }
        rs.Close();
        listados.entorno().enviaPendientes();
    }
    estado.SetItemsProcessed(estado.iterations() * Filas);
    estado.SetLabel("at most 2");
}

BENCHMARK(altasDesnudas)->Name("sqlite/20000 filas de informe/desnuda")->Unit(benchmark::kMillisecond);
BENCHMARK(altasNuestras)->Name("sqlite/20000 filas de informe/nuestra")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kestrane::bench
