#include "corpus/condiciones.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

namespace {

/// Numbers that look random and are the same everywhere.
class Sorteo
{
public:
    size_t hasta(size_t cuantos)
    {
        m_estado = m_estado * 6364136223846793005U + 1442695040888963407U;
        return static_cast<size_t>(m_estado >> 33) % cuantos;
    }
    template<size_t N>
    QString uno(const std::array<const char16_t*, N>& de)
    {
        return QStringView{de.at(hasta(N))}.toString();
    }

private:
    quint64 m_estado = 2024;
};

constexpr std::array NumerosDeTabla = {u"numero", u"cliente", u"empleado", u"pago", u"total", u"num_albaran", u"descuento"};
constexpr std::array TextosDeTabla = {u"tienda", u"caracteristicaventa"};
constexpr std::array FechasDeTabla = {u"fechaventa", u"fecha"};
constexpr std::array Comparaciones = {u"=", u"<>", u"<", u"<=", u">", u">="};
constexpr std::array Numeros = {u"0",           u"1", u"3", u"-2", u"20.5", u"--4", u"100", u"pago + 1", u"numero - cliente",
                                u"numero mod 3"};
constexpr std::array Textos = {u"'Centro'", u"'CENTRO'", u"'peñíscola'", u"''", u"'DV'", u"'gran centro'", u"'a' & 'b'"};
constexpr std::array Patrones = {u"'%'", u"'%centro'", u"'C%'", u"'%ñ%'", u"'_entro'", u"''"};
constexpr std::array Fechas = {u"#03/15/2024#", u"#03/01/2024#", u"#12/30/1899#", u"#04/02/2024#"};
constexpr std::array Banderas = {u"true", u"false", u"-1", u"0", u"1"};
constexpr std::array Funciones = {u"year", u"month", u"day"};
constexpr std::array Partes = {u"3", u"15", u"2024", u"null", u"pago", u"month(fecha)"};
constexpr std::array Consultas = {u"select codigo from clientes where borrar = 0",
                                  u"select codigo from clientes where tienda like '%o'", u"select num_factura from detalle_factura",
                                  u"select null from clientes",
                                  u"select clientes.codigo from clientes where clientes.tienda = cabecera_factura.tienda"};
constexpr std::array Negaciones = {u"", u"not "};

/// Null as a literal, flags, functions and sub-queries.
QString rara(Sorteo& sorteo)
{
    switch (sorteo.hasta(6)) {
    case 0:
        return sorteo.uno(NumerosDeTabla) + u' ' + sorteo.uno(Comparaciones) + u" null"_s;
    case 1:
        return sorteo.uno(TextosDeTabla) + u" <> null"_s;
    case 2:
        return u"impuestoincluido "_s + sorteo.uno(Comparaciones) + u' ' + sorteo.uno(Banderas);
    case 3:
        return sorteo.uno(Funciones) + u'(' + sorteo.uno(FechasDeTabla) + u") "_s + sorteo.uno(Comparaciones) + u' ' +
               sorteo.uno(Partes);
    case 4:
        return sorteo.uno(NumerosDeTabla) + u' ' + sorteo.uno(Negaciones) + u"in ("_s + sorteo.uno(Consultas) + u')';
    default:
        return sorteo.uno(NumerosDeTabla) + u" \\ 2 "_s + sorteo.uno(Comparaciones) + u' ' + sorteo.uno(Numeros);
    }
}

QString simple(Sorteo& sorteo)
{
    switch (sorteo.hasta(11)) {
    case 0:
        return sorteo.uno(NumerosDeTabla) + u' ' + sorteo.uno(Comparaciones) + u' ' + sorteo.uno(Numeros);
    case 1:
        return sorteo.uno(TextosDeTabla) + u' ' + sorteo.uno(Comparaciones) + u' ' + sorteo.uno(Textos);
    case 2:
        return sorteo.uno(FechasDeTabla) + u' ' + sorteo.uno(Comparaciones) + u' ' + sorteo.uno(Fechas);
    case 3:
        return sorteo.uno(NumerosDeTabla) + u' ' + sorteo.uno(Negaciones) + u"between "_s + sorteo.uno(Numeros) + u" and "_s +
               sorteo.uno(Numeros);
    case 4:
        return sorteo.uno(NumerosDeTabla) + u' ' + sorteo.uno(Negaciones) + u"in ("_s + sorteo.uno(Numeros) + u", "_s +
               sorteo.uno(Numeros) + u')';
    case 5:
        return sorteo.uno(TextosDeTabla) + u' ' + sorteo.uno(Negaciones) + u"like "_s + sorteo.uno(Patrones);
    case 6:
        return sorteo.uno(TextosDeTabla) + u" is "_s + sorteo.uno(Negaciones) + u"null"_s;
    case 7:
    case 8:
    case 9:
        return rara(sorteo);
    default:
        return sorteo.uno(NumerosDeTabla) + u" is "_s + sorteo.uno(Negaciones) + u"null"_s;
    }
}

QString condicion(Sorteo& sorteo, int fondo)
{
    if (fondo == 0)
        return simple(sorteo);
    switch (sorteo.hasta(5)) {
    case 3:
        return u'(' + condicion(sorteo, fondo - 1) + u") "_s + sorteo.uno(Comparaciones) + u" ("_s + condicion(sorteo, fondo - 1) +
               u')';
    case 0:
        return u"not ("_s + condicion(sorteo, fondo - 1) + u')';
    case 1:
        return u'(' + condicion(sorteo, fondo - 1) + u") and "_s + condicion(sorteo, fondo - 1);
    case 2:
        return condicion(sorteo, fondo - 1) + u" or "_s + condicion(sorteo, fondo - 1);
    default:
        return simple(sorteo);
    }
}

} // namespace

std::vector<QString> condicionesGeneradas(int cuantas)
{
    Sorteo sorteo;
    std::vector<QString> condiciones;
    for (int i = 0; i < cuantas; ++i)
        condiciones.push_back(condicion(sorteo, i % 4));
    return condiciones;
}

} // namespace kestrane::prueba
