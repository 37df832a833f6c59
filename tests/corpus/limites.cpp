#include "corpus/limites.h"

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

namespace {

QString cuenta(const QString& condicion)
{
    return u"select count(*) as n from cabecera_factura where "_s + condicion;
}

QString anidada(int veces, const QString& antes, const QString& dentro, const QString& despues, const QString& final = {})
{
    return cuenta(antes.repeated(veces) + dentro + despues.repeated(veces) + final);
}

QString enComas(int cuantos, const QString& uno)
{
    return uno + (u',' + uno).repeated(cuantos - 1);
}

/// ", seccion t1, seccion t2 ..." or joins of them.
QString tablas(int cuantas, const QString& antes, const QString& despues)
{
    QString todas = u"seccion t0"_s;
    for (int i = 1; i < cuantas; ++i)
        todas += antes + u"seccion t%1"_s.arg(i) + (despues.isEmpty() ? QString{} : despues.arg(i - 1).arg(i));
    return u"select count(*) as n from "_s + todas;
}

QString unionesALaDerecha(int cuantas)
{
    QString texto = u"select count(*) as n from seccion t0"_s;
    for (int i = 1; i <= cuantas; ++i)
        texto += u" left join (seccion t%1"_s.arg(i);
    texto += u" inner join seccion t%1 on t%2.codigo = t%1.codigo"_s.arg(cuantas + 1).arg(cuantas);
    for (int i = cuantas; i > 0; --i)
        texto += u") on t%1.codigo = t%2.codigo"_s.arg(i - 1).arg(i);
    return texto;
}

} // namespace

std::vector<FormaDeSentencia> formasDeSentencia()
{
    return {
        {"parentheses", [](int n) { return anidada(n, u"("_s, u"1 = 1"_s, u")"_s); }, 100, 101},
        {"operators before parentheses", [](int n) { return anidada(n, u"1 + ("_s, u"numero"_s, u")"_s, u" > 0"_s); }, 25, 100},
        {"operators behind parentheses", [](int n) { return anidada(n, u"("_s, u"numero"_s, u" + 1)"_s, u" > 0"_s); }, 100, 101},
        {"signs", [](int n) { return cuenta(u"numero > "_s + u"-("_s.repeated(n) + u"numero"_s + QString(n, u')')); }, 40, 101},
        {"negations", [](int n) { return anidada(n, u"not "_s, u"numero = 1"_s, {}); }, 40, 101},
        {"divisors", [](int n) { return anidada(n, u"1 / ("_s, u"numero"_s, u")"_s, u" > 0"_s); }, 10, 20},
        {"remainders", [](int n) { return anidada(n, u"(99 mod "_s, u"7"_s, u" + 8)"_s, u" >= 0"_s); }, 10, 20},
        {"dividends", [](int n) { return cuenta(u"numero"_s + u" / 1"_s.repeated(n) + u" > 0"_s); }, 25, 100},
        {"conditions as texts", [](int n) { return cuenta(u"tienda"_s + u" like 'a'"_s.repeated(n)); }, 15, 100},
        {"conditions as patterns", [](int n) { return anidada(n, u"tienda like ("_s, u"'a'"_s, u")"_s); }, 10, 100},
        {"comparisons of comparisons", [](int n) { return cuenta(u"numero"_s + u" = 1"_s.repeated(n)); }, 40, 100},
        {"joined texts", [](int n) { return cuenta(u"tienda"_s + u" & 'a'"_s.repeated(n) + u" <> ''"_s); }, 400, 500},
        {"numbers joined", [](int n) { return anidada(n, u"1 & ("_s, u"numero"_s, u")"_s, u" <> ''"_s); }, 12, 100},
        {"lists in lists", [](int n) { return anidada(n, u"numero in (1, "_s, u"1"_s, u")"_s); }, 10, 100},
        {"bounds in bounds", [](int n) { return anidada(n, u"numero between 1 and ("_s, u"9"_s, u")"_s); }, 10, 100},
        {"functions", [](int n) { return anidada(n, u"year(fechaventa) in (1, "_s, u"1"_s, u")"_s); }, 10, 100},
        {"sub-queries",
         [](int n) { return anidada(n, u"numero in (select numero from cabecera_factura where "_s, u"1 = 1"_s, u")"_s); }, 8, 100},
        {"sub-queries of groups",
         [](int n) {
             return anidada(n, u"numero in (select numero from cabecera_factura group by numero having "_s, u"1 = 1"_s, u")"_s);
         },
         6, 100},
        {"alternatives in conjunctions", [](int n) { return anidada(n, u"(numero = 1 or numero = 2 and "_s, u"1 = 1"_s, u")"_s); },
         15, 100},
        {"chains of OR", [](int n) { return cuenta(u"numero = 1"_s + u" or numero = 1"_s.repeated(n)); }, 498, 499},
        {"chains of sums", [](int n) { return cuenta(u"numero"_s + u" + pago"_s.repeated(n) + u" > 0"_s); }, 498, 499},
        {"literals", [](int n) { return cuenta(u"numero in (%1)"_s.arg(enComas(n, u"1"_s))); }, 5000, 5001},
        {"literals and operators", [](int n) { return cuenta(u"0 in (%1)"_s.arg(enComas(n, u"pago + 1"_s))); }, 4500, 5001},
        {"texts", [](int n) { return cuenta(u"tienda in (%1)"_s.arg(enComas(n, u"'Peñíscola, la de la costa'"_s))); }, 5000, 5001},
        {"columns in a list", [](int n) { return cuenta(u"0 in (%1)"_s.arg(enComas(n, u"pago"_s))); }, 5000, 5001},
        {"result columns", [](int n) { return u"select %1 from cabecera_factura"_s.arg(enComas(n, u"numero"_s)); }, 1000, 1001},
        {"result and sort columns",
         [](int n) {
             return u"select %1 from cabecera_factura order by %2"_s.arg(enComas(1000, u"pago"_s), enComas(n, u"numero"_s));
         },
         250, 251},
        {"groups", [](int n) { return u"select count(*) as n from cabecera_factura group by "_s + enComas(n, u"tienda"_s); }, 250,
         251},
        {"tables", [](int n) { return tablas(n, u", "_s, {}) + u" where t0.codigo = 99"_s; }, 32, 33},
        {"left joins", [](int n) { return tablas(n, u" left join "_s, u" on t%1.codigo = t%2.codigo"_s); }, 32, 33},
        {"joins in parentheses", unionesALaDerecha, 10, 31},
    };
}

} // namespace kestrane::prueba
