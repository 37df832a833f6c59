#include "corpus/esperadas.h"

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

std::vector<Esperada> respuestasEsperadas()
{
    return {
        // Null is neither equal nor different; the empty text is.
        {u"select codigo from clientes where etiquetas <> 'NO'"_s, {"4", "8", "1", "3", "10", "5", "12", "7", "9"}},
        // A flag that holds is -1, and a stored 1 is another number.
        {u"select codigo from empleados where baja = -1"_s, {"1"}},
        {u"select codigo from servicios where mostrarencaja = -1"_s, {"3", "5", "4", "7"}},
        {u"select codigo from servicios where mostrarencaja = true"_s, {"3", "5", "4", "7"}},
        // Means: of doubles, and of whole numbers with the Nulls left out.
        {u"select avg(valorvolumen) as m from sueldos where codempleado = 7"_s, {"25.0625"}},
        {u"select avg(num_albaran) as m from cabecera_factura where numero in (105, 106, 108)"_s, {"0.5"}},
        // Whole division: operands rounded half to even (760.75, 528.25, -12.5), the quotient cut, the rest with the dividend's
        // sign.
        {u"select numero \\ 10 as n, total \\ 10 as d, total mod 10 as r from cabecera_factura where numero in (105, 106, 110)"_s,
         {"10,76,1", "11,52,8", "10,-1,-2"}},
        // Signs that other dialects of LIKE know are plain characters.
        {u"select codigo from clientes where nombre like '#1%'"_s, {"13"}},
        {u"select codigo from clientes where nombre like '?%'"_s, {"11"}},
        {u"select codigo from clientes where nombre like '[a]%'"_s, {"20"}},
        {u"select codigo from clientes where nombre like '*'"_s, {}},
        {u"select codigo from clientes where nombre like 'Ana*'"_s, {}},
        {u"select codigo from clientes where nombre like '?na'"_s, {}},
        {u"select codigo from clientes where codigocliente like '#'"_s, {}},
        // A join in parentheses on the right: sections without such services stay, rows in the order of the tables.
        {u"select s.codigo, p.codigo as servicio from seccion s left join (detalle_familia f inner join servicios p on f.servicio "
         u"= "
         "p.codigo) on s.codigo = p.seccion"_s,
         {"3,3", "3,1", "3,6", "1,5", "5,null", "2,null", "4,null"}},
        // Sorted by an expression of an alias.
        {u"select numero, total * 2 as d from cabecera_factura where numero in (105, 106, 110) order by d + 1"_s,
         {"106,-25", "110,1056.5", "105,1521.5"}},
        {u"select sum(null) as s, avg(null) as m, count(null) as n from cabecera_factura"_s, {"null,null,0"}},
        // A double is not rounded to be found among whole numbers: there are lines of invoices 121 and 103, totals of 121 and
        // 103.25.
        {u"select numero from cabecera_factura where total in (select num_factura from detalle_factura)"_s, {"101"}},
        // Conditions as texts.
        {u"select numero, (num_albaran = 1) & '.' as x from cabecera_factura where numero in (105, 106, 108)"_s,
         {"105,\".\"", "106,\"Falso.\"", "108,\"Verdadero.\""}},
    };
}

std::vector<Fallida> sentenciasQueFallan()
{
    const std::string porCero = "División por cero.";
    const std::string desborda = "Desbordamiento.";
    return {
        {u"select numero / (pago - pago) as x from cabecera_factura"_s, porCero},
        {u"select numero \\ 0 as x from cabecera_factura"_s, porCero},
        {u"select numero mod (pago - pago) as x from cabecera_factura"_s, porCero},
        // The divisor is rounded before it divides.
        {u"select numero \\ 0.4 as x from cabecera_factura"_s, porCero},
        {u"select numero mod 0.5 as x from cabecera_factura"_s, porCero},
        {u"select numero from cabecera_factura where 1 / (1 / (1 / (total - total))) > 0"_s, porCero},
        // 32 bits on either side.
        {u"select 2147483647.5 \\ 2 as x from cabecera_factura"_s, desborda},
        {u"select 30000000000 mod 7 as x from cabecera_factura"_s, desborda},
        {u"select numero * 100000000 \\ 7 as x from cabecera_factura"_s, desborda},
        {u"select 7 mod (numero * -100000000) as x from cabecera_factura"_s, desborda},
    };
}

} // namespace kestrane::prueba
