#include "lote/respuestas_dadas.h"

#include "lote/peticion_imposible.h"

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

QString juntas(std::span<const QStringView> palabras)
{
    QStringList lista;
    for (const QStringView palabra : palabras)
        lista += palabra.toString();
    return lista.join(u", "_s);
}

} // namespace

std::optional<Valor> RespuestasDadas::toma(Respuesta respuesta)
{
    const auto lugar = m_pedido.respuestas.find(respuesta);
    if (lugar == m_pedido.respuestas.end())
        return {};
    m_tomadas.insert(respuesta);
    return lugar->second;
}

qint32 RespuestasDadas::numero(Respuesta respuesta, qint32 porDefecto)
{
    const auto valor = toma(respuesta);
    return valor ? valor->entero32() : porDefecto;
}

Fecha RespuestasDadas::dia(Respuesta respuesta)
{
    const auto valor = toma(respuesta);
    return valor ? valor->fecha() : m_reloj.hoy();
}

QString RespuestasDadas::texto(Respuesta respuesta)
{
    const auto valor = toma(respuesta);
    return valor ? valor->texto() : QString{};
}

QString RespuestasDadas::exigeNumero(Respuesta respuesta)
{
    const auto valor = toma(respuesta);
    if (!valor)
        throw PeticionImposible{u"%1 necesita %2 N."_s.arg(control(), opcionDe(respuesta))};
    return QString::number(valor->entero32());
}

QString RespuestasDadas::columnaDeOrden(std::span<const QStringView> admitidas)
{
    const auto pedida = toma(Respuesta::Orden);
    if (!pedida)
        return admitidas.front().toString();
    for (const QStringView columna : admitidas) {
        if (columna.compare(pedida->texto(), Qt::CaseInsensitive) == 0)
            return columna.toString();
    }
    throw PeticionImposible{u"%1 no se ordena por \"%2\"; puede ser %3."_s.arg(control(), pedida->texto(), juntas(admitidas))};
}

QStringList RespuestasDadas::ignoradas() const
{
    QStringList opciones;
    for (const auto& [respuesta, valor] : m_pedido.respuestas) {
        if (!m_tomadas.contains(respuesta))
            opciones += opcionDe(respuesta);
    }
    return opciones;
}

} // namespace kestrane::lote
