#include "lote/pedido_informe.h"

#include "pipeline/catalogue/catalogo.h"
#include "platform/runtime/lector_dia.h"

#include <QStringList>

#include <limits>

namespace kestrane::lote {

using namespace Qt::StringLiterals;
using catalogue::Clase;

namespace {

constexpr qint32 SinMaximo = std::numeric_limits<qint32>::max();

enum class Tipo { Dia, Numero, Texto, SinValor };

struct OpcionRespuesta
{
    Respuesta respuesta;
    QStringView nombre;
    Tipo tipo = Tipo::Texto;
    QStringView valores{}; ///< what a text may be, separated by "|"; empty for any
    qint32 minimo = std::numeric_limits<qint32>::min();
    qint32 maximo = SinMaximo;
};

constexpr qint32 Todos = -1; // the code of "all" in the panels

constexpr OpcionRespuesta Respuestas[] = {
    {Respuesta::Desde, u"desde", Tipo::Dia},
    {Respuesta::Hasta, u"hasta", Tipo::Dia},
    {Respuesta::Completa, u"completa", Tipo::SinValor},
    {Respuesta::Ticket, u"ticket", Tipo::SinValor},
    {Respuesta::Cliente, u"cliente", Tipo::Numero, {}, 0},
    {Respuesta::Empleado, u"empleado", Tipo::Numero, {}, Todos},
    {Respuesta::Proveedor, u"proveedor", Tipo::Numero, {}, Todos},
    {Respuesta::Seccion, u"seccion", Tipo::Numero, {}, Todos},
    {Respuesta::Solo, u"solo", Tipo::Texto, u"productos|servicios"},
    {Respuesta::Clase, u"clase", Tipo::Texto, u"V|CI|A"},
    {Respuesta::BajoMinimos, u"bajo-minimos", Tipo::SinValor},
    {Respuesta::Orden, u"orden", Tipo::Texto},
    {Respuesta::SoloEmail, u"solo-email", Tipo::SinValor},
    {Respuesta::Totalizado, u"totalizado", Tipo::SinValor},
    {Respuesta::Mes, u"mes", Tipo::Numero, {}, 1, 12},
    {Respuesta::Anio, u"anio", Tipo::Numero, {}, 100, 9999},
    {Respuesta::Factura, u"factura", Tipo::Numero, {}, 0},
};

const QString Tienda = u"tienda"_s;
const QString OpcionFormato = u"formato"_s;
const QString OpcionSalida = u"salida"_s;
const QString CarpetaListados = u"listados"_s;

struct NombreFormato
{
    QStringView nombre;
    Formato formato;
};

constexpr NombreFormato Formatos[] = {{u"json", Formato::Json}, {u"csv", Formato::Csv}, {u"pdf", Formato::Pdf},
                                      {u"xlsx", Formato::Xlsx}, {u"png", Formato::Png}, {u"html", Formato::Html}};

Resultado<Valor, ErrorDeUso> leeNumero(const OpcionRespuesta& opcion, const QString& texto)
{
    bool bien = false;
    const qint32 numero = texto.toInt(&bien);
    if (!bien)
        return ErrorDeUso{u"--%1 lleva un número entero, no \"%2\"."_s.arg(opcion.nombre, texto)};
    if (numero < opcion.minimo && opcion.maximo == SinMaximo)
        return ErrorDeUso{u"--%1 lleva un número desde %2, no \"%3\"."_s.arg(opcion.nombre).arg(opcion.minimo).arg(texto)};
    if (numero < opcion.minimo || numero > opcion.maximo)
        return ErrorDeUso{
            u"--%1 va de %2 a %3, no es \"%4\"."_s.arg(opcion.nombre).arg(opcion.minimo).arg(opcion.maximo).arg(texto)};
    return Valor{numero};
}

Resultado<Valor, ErrorDeUso> leeTexto(const OpcionRespuesta& opcion, const QString& texto)
{
    const QStringList valores = opcion.valores.toString().split(u'|', Qt::SkipEmptyParts);
    if (valores.isEmpty())
        return Valor{texto};
    for (const QString& valor : valores) {
        if (valor.compare(texto, Qt::CaseInsensitive) == 0)
            return Valor{valor};
    }
    return ErrorDeUso{u"--%1 admite %2, no \"%3\"."_s.arg(opcion.nombre, valores.join(u" o "_s), texto)};
}

Resultado<Valor, ErrorDeUso> leeValor(const OpcionRespuesta& opcion, const QString& texto)
{
    switch (opcion.tipo) {
    case Tipo::SinValor:
        return Valor{true};
    case Tipo::Numero:
        return leeNumero(opcion, texto);
    case Tipo::Texto:
        return leeTexto(opcion, texto);
    case Tipo::Dia:
        break;
    }
    if (const auto dia = leeDia(texto))
        return Valor{*dia};
    return ErrorDeUso{u"--%1 lleva una fecha AAAA-MM-DD, no \"%2\"."_s.arg(opcion.nombre, texto)};
}

std::optional<ErrorDeUso> leeRespuestas(const QCommandLineParser& lector, PedidoInforme& pedido)
{
    for (const OpcionRespuesta& opcion : Respuestas) {
        const QString nombre = opcion.nombre.toString();
        if (!lector.isSet(nombre))
            continue;
        auto valor = leeValor(opcion, lector.value(nombre));
        if (!valor)
            return valor.error();
        pedido.respuestas.emplace(opcion.respuesta, std::move(valor).valor());
    }
    return {};
}

std::optional<ErrorDeUso> leeFormato(const QString& escrito, PedidoInforme& pedido)
{
    if (escrito.isEmpty())
        return {};
    QStringList nombres;
    for (const NombreFormato& uno : Formatos) {
        nombres += uno.nombre.toString();
        if (uno.nombre.compare(escrito, Qt::CaseInsensitive) != 0)
            continue;
        pedido.formato = uno.formato;
        return {};
    }
    return ErrorDeUso{u"--formato admite %1, no \"%2\"."_s.arg(nombres.join(u", "_s), escrito)};
}

std::optional<ErrorDeUso> eligeFila(const QString& control, PedidoInforme& pedido)
{
    pedido.fila = catalogue::busca(control);
    if (!pedido.fila)
        return ErrorDeUso{u"No existe el listado \"%1\"; con --lista se ven todos."_s.arg(control)};
    const QStringView nombre = pedido.fila->control;
    if (pedido.fila->clase == Clase::Accion)
        return ErrorDeUso{u"%1 no es un listado: en el programa abre una ventana o termina."_s.arg(nombre)};
    if (pedido.fila->clase == Clase::SinAccion)
        return ErrorDeUso{u"%1 no es un listado: no hace nada."_s.arg(nombre)};
    return {};
}

} // namespace

bool pinta(Formato formato)
{
    return formato == Formato::Pdf || formato == Formato::Png;
}

bool esBinario(Formato formato)
{
    return pinta(formato) || formato == Formato::Xlsx;
}

QString opcionDe(Respuesta respuesta)
{
    for (const OpcionRespuesta& opcion : Respuestas) {
        if (opcion.respuesta == respuesta)
            return u"--"_s + opcion.nombre.toString();
    }
    return {};
}

QList<QCommandLineOption> opcionesDeInforme()
{
    QList<QCommandLineOption> opciones;
    for (const OpcionRespuesta& opcion : Respuestas)
        opciones += QCommandLineOption{opcion.nombre.toString(), {}, opcion.tipo == Tipo::SinValor ? QString{} : u"valor"_s};
    for (const QString& nombre : {Tienda, OpcionFormato, OpcionSalida, CarpetaListados})
        opciones += QCommandLineOption{nombre, {}, u"valor"_s};
    return opciones;
}

QStringList opcionesQueAdmitenVacio()
{
    return {Tienda};
}

std::optional<QString> primeraOpcionDeInforme(const QCommandLineParser& lector)
{
    for (const QCommandLineOption& opcion : opcionesDeInforme()) {
        if (lector.isSet(opcion))
            return u"--"_s + opcion.names().constFirst();
    }
    return {};
}

Resultado<PedidoInforme, ErrorDeUso> leePedido(const QString& control, const QCommandLineParser& lector)
{
    PedidoInforme pedido;
    if (auto error = eligeFila(control, pedido))
        return *std::move(error);
    if (auto error = leeRespuestas(lector, pedido))
        return *std::move(error);
    if (auto error = leeFormato(lector.value(OpcionFormato), pedido))
        return *std::move(error);
    if (lector.isSet(Tienda))
        pedido.tienda = lector.value(Tienda);
    pedido.salida = lector.value(OpcionSalida);
    pedido.carpetaListados = lector.value(CarpetaListados);
    return pedido;
}

} // namespace kestrane::lote
