#pragma once

#include "lote/pedido_informe.h"
#include "platform/runtime/reloj.h"

#include <QStringList>

#include <set>
#include <span>

namespace kestrane::lote {

/// The answers of a command line as dialogs ask for them; it knows which ones were never asked for.
class RespuestasDadas
{
public:
    /// Both outlive the object.
    RespuestasDadas(const PedidoInforme& pedido, const Reloj& reloj) : m_pedido{pedido}, m_reloj{reloj} {}

    [[nodiscard]] QStringView control() const { return m_pedido.fila->control; }
    [[nodiscard]] std::optional<Valor> toma(Respuesta respuesta);
    [[nodiscard]] bool tiene(Respuesta respuesta) { return toma(respuesta).has_value(); }
    [[nodiscard]] qint32 numero(Respuesta respuesta, qint32 porDefecto);
    /// Today when it was not given.
    [[nodiscard]] Fecha dia(Respuesta respuesta);
    /// "" when it was not given.
    [[nodiscard]] QString texto(Respuesta respuesta);
    /// The text of a number without which a dialog has nothing to go on: PeticionImposible when it was not given.
    [[nodiscard]] QString exigeNumero(Respuesta respuesta);
    /// The order column in the list's spelling, its first when none was given; PeticionImposible when it is none of them.
    [[nodiscard]] QString columnaDeOrden(std::span<const QStringView> admitidas);

    /// The options that were given and not asked for, as "--desde".
    [[nodiscard]] QStringList ignoradas() const;

private:
    const PedidoInforme& m_pedido;
    const Reloj& m_reloj;
    std::set<Respuesta> m_tomadas;
};

} // namespace kestrane::lote
