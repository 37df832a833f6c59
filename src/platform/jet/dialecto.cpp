#include "platform/jet/dialecto.h"

namespace kestrane::jet {

namespace {

constexpr std::array<Envoltura, 5> AgregadosLlanos = {
    {{"SUM(", ")"}, {"COUNT(", ")"}, {"MAX(", ")"}, {"MIN(", ")"}, {"AVG(", ")"}}};

constexpr Dialecto Sqlite = {
    .comilla = '"',
    .cotejo = "ESPANOL",
    .cotejoEscrito = Cotejo::Siempre,
    .parametro = {},
    .nulosPrimero = "",
    .nulosUltimo = "",
    .parte = {{{"anio(", ")"}, {"mes(", ")"}, {"dia(", ")"}, {"hora(", ")"}}},
    .agregado = AgregadosLlanos,
    .condicionComoValor = {"-(", ")"},
    .textosUnidos = {"", " || ", ""},
    .textoNoNulo = {"ifnull(", ", '')"},
    .claveConCeros = {"printf('%020d', ", ")"},
    .limite = {" LIMIT ", ""},
    .unionOcultaFilas = true,
};

constexpr Dialecto PostgreSql = {
    .comilla = '"',
    .cotejo = "\"espanol\"",
    .cotejoEscrito = Cotejo::SinColumna,
    .parametro = {{{"CAST(", " AS text)"},
                   {"CAST(", " AS text)"},
                   {"CAST(", " AS integer)"},
                   {"CAST(", " AS smallint)"},
                   {"CAST(", " AS double precision)"},
                   {"CAST(", " AS timestamp)"},
                   {"CAST(", " AS smallint)"}}},
    .nulosPrimero = " NULLS FIRST",
    .nulosUltimo = " NULLS LAST",
    .parte = {{{"CAST(EXTRACT(YEAR FROM ", ") AS integer)"},
               {"CAST(EXTRACT(MONTH FROM ", ") AS integer)"},
               {"CAST(EXTRACT(DAY FROM ", ") AS integer)"},
               {"CAST(EXTRACT(HOUR FROM ", ") AS integer)"}}},
    .agregado = {{{"CAST(SUM(", ") AS double precision)"},
                  {"COUNT(", ")"},
                  {"MAX(", ")"},
                  {"MIN(", ")"},
                  {"CAST(AVG(", ") AS double precision)"}}},
    .condicionComoValor = {"-CAST((", ") AS integer)"},
    .verdadComoNumero = {"(-CAST(", " AS integer))"},
    .textosUnidos = {"", " || ", ""},
    .textoNoNulo = {"COALESCE(", ", '')"},
    .claveConCeros = {"LPAD(CAST(", " AS text), 20, '0')"},
    .limite = {" LIMIT ", ""},
};

constexpr Dialecto MariaDb = {
    .comilla = '`',
    .cotejo = "utf8mb4_uca1400_spanish_nopad_as_ci",
    .cotejoEscrito = Cotejo::SinColumna,
    .parametro = {},
    .nulosPrimero = "",
    .nulosUltimo = "",
    .parte = {{{"YEAR(", ")"}, {"MONTH(", ")"}, {"DAY(", ")"}, {"HOUR(", ")"}}},
    .agregado = {{{"SUM(CAST(", " AS DOUBLE))"}, {"COUNT(", ")"}, {"MAX(", ")"}, {"MIN(", ")"}, {"AVG(CAST(", " AS DOUBLE))"}}},
    .condicionComoValor = {"-(", ")"},
    .verdadComoNumero = {"(-CAST(", " AS SIGNED))"},
    .textosUnidos = {"CONCAT(", ", ", ")"},
    .textoNoNulo = {"IFNULL(", ", '')"},
    .claveConCeros = {"LPAD(", ", 20, '0')"},
    .limite = {" LIMIT ", ""},
    .consultaReal = {"CAST(", " AS DOUBLE)"}, // an index of whole numbers would be asked for the rounded double
};

} // namespace

const Dialecto& dialectoDe(Motor motor)
{
    switch (motor) {
    case Motor::Sqlite:
        return Sqlite;
    case Motor::PostgreSql:
        return PostgreSql;
    case Motor::MariaDb:
        return MariaDb;
    }
    Q_UNREACHABLE();
}

} // namespace kestrane::jet
