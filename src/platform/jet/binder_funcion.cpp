#include "platform/jet/binder_interno.h"
#include "platform/jet/rechazo.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;
using Contexto = ContextoDeExpresion;

namespace {

struct FilaDeParte
{
    QStringView nombre;
    ParteDeFecha parte = ParteDeFecha::Mes;
};

constexpr std::array Partes = {
    FilaDeParte{u"year", ParteDeFecha::Anio},
    FilaDeParte{u"month", ParteDeFecha::Mes},
    FilaDeParte{u"day", ParteDeFecha::Dia},
    FilaDeParte{u"hour", ParteDeFecha::Hora},
};

struct FilaDeAgregado
{
    QStringView nombre;
    FuncionAgregada funcion = FuncionAgregada::Cuenta;
};

constexpr std::array Agregados = {
    FilaDeAgregado{u"sum", FuncionAgregada::Suma},   FilaDeAgregado{u"count", FuncionAgregada::Cuenta},
    FilaDeAgregado{u"max", FuncionAgregada::Maximo}, FilaDeAgregado{u"min", FuncionAgregada::Minimo},
    FilaDeAgregado{u"avg", FuncionAgregada::Media},
};

template<class Fila, size_t N>
const Fila* filaDe(const std::array<Fila, N>& filas, const QString& nombre)
{
    for (const Fila& fila : filas)
        if (fila.nombre.compare(nombre, Qt::CaseInsensitive) == 0)
            return &fila;
    return nullptr;
}

void exigeUnArgumento(const ast::Llamada& llamada, ast::Lugar lugar)
{
    if (llamada.argumentos.size() == 1)
        return;
    throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta,
                   u"La función %1 lleva un valor entre los paréntesis y aquí hay %2."_s.arg(
                       llamada.funcion, llamada.asterisco ? u"un asterisco"_s : QString::number(llamada.argumentos.size())),
                   lugar.posicion, lugar.longitud}};
}

ExpresionPtr parte(ParteDeFecha cual, ExpresionPtr fecha, ast::Lugar lugar)
{
    if (fecha->esNulo())
        return nodo(Nulo{}, TipoColumna::Entero32, lugar);
    const Familia familia = familiaDe(fecha->tipo);
    if (familia != Familia::Fecha)
        tiposIncompatibles(u"Aquí hay %1 y se esperaba una fecha."_s.arg(nombreDeFamilia(familia)), fecha->lugar);
    return nodo(Parte{cual, std::move(fecha)}, TipoColumna::Entero32, lugar);
}

TipoColumna tipoDeAgregado(FuncionAgregada funcion, const Expresion* operando)
{
    switch (funcion) {
    case FuncionAgregada::Cuenta:
        return TipoColumna::Entero32;
    case FuncionAgregada::Maximo:
    case FuncionAgregada::Minimo:
        return operando->tipo;
    default:
        return TipoColumna::Doble;
    }
}

} // namespace

ExpresionPtr Binder::enlazaDato(const ast::Llamada& dato, ast::Lugar lugar, const Contexto& contexto)
{
    if (const FilaDeAgregado* fila = filaDe(Agregados, dato.funcion))
        return agregado(fila->funcion, dato, lugar, contexto);
    if (const FilaDeParte* fila = filaDe(Partes, dato.funcion)) {
        exigeUnArgumento(dato, lugar);
        return parte(fila->parte, valor(*dato.argumentos.front(), contexto), lugar);
    }
    throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta,
                   u"No existe la función \"%1\": las hay month, year, day, hour, sum, count, max, min y avg."_s.arg(dato.funcion),
                   lugar.posicion, lugar.longitud}};
}

ExpresionPtr Binder::agregado(FuncionAgregada funcion, const ast::Llamada& llamada, ast::Lugar lugar, const Contexto& contexto)
{
    if (!contexto.hayAgregados)
        throw Rechazo{{ErrorSql::Clase::AgrupacionIncorrecta, u"No se admite %1 %2."_s.arg(llamada.funcion, contexto.sinAgregados),
                       lugar.posicion, lugar.longitud}};
    *contexto.hayAgregados = true;
    if (funcion == FuncionAgregada::Cuenta && llamada.asterisco)
        return nodo(Agregado{funcion, nullptr}, TipoColumna::Entero32, lugar);
    exigeUnArgumento(llamada, lugar);
    Contexto dentro = contexto;
    dentro.hayAgregados = nullptr;
    dentro.sinAgregados = u"dentro de otra función de grupo"_s;
    dentro.grupos = nullptr;
    ExpresionPtr operando = valor(*llamada.argumentos.front(), dentro);
    if (funcion == FuncionAgregada::Suma || funcion == FuncionAgregada::Media)
        exigeNumero(*operando);
    const TipoColumna tipo = tipoDeAgregado(funcion, operando.get());
    return nodo(Agregado{funcion, std::move(operando)}, tipo, lugar);
}

} // namespace kestrane::jet
