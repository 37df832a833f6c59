#pragma once

#include "lote/respuestas_dadas.h"

namespace kestrane::lote {

/// Answers the dialogs with the options of the command line, and leaves in the run context what each dialog would have left there.
class DialogosDeLote final : public Dialogos
{
public:
    struct Panel;

    /// All three outlive the object.
    DialogosDeLote(ContextoEjecucion& contexto, const PedidoInforme& pedido, const Reloj& reloj);

    [[nodiscard]] bool Existe(Dialogo) const override { return true; }
    /// PeticionImposible when the dialog would not take the answers, or lacks one.
    void Muestra(Dialogo dialogo, const QString& titulo) override;

    /// The options that were given and that no dialog asked for, as "--desde".
    [[nodiscard]] QStringList ignoradas() const { return m_respuestas.ignoradas(); }

private:
    void acepta() { m_contexto.FiltroAceptado = true; }
    void ponPeriodo();
    void ponCompleta();

    void fechas();
    void buscar();
    void historicoXClientes();
    void historicoXEmpleados();
    void filtrosProductos();
    void eligeProductos();
    void eligeBajoMinimos();
    void productosVendidos();
    void ordenClientes();
    void clientesPerdidos();
    void meses();
    void reImprimir();
    void etiquetasClientes();

    /// A press on a panel's button.
    struct Eleccion
    {
        qint32 codigo = -1;
        QString nombre;
    };

    /// The button that the option of `respuesta` names, that for all when it was not given. PeticionImposible when there is none.
    [[nodiscard]] Eleccion elige(Respuesta respuesta, const Panel& panel);
    [[noreturn]] void noOfrece(const QString& codigo) const;

    ContextoEjecucion& m_contexto;
    RespuestasDadas m_respuestas;
    const Reloj& m_reloj;
};

} // namespace kestrane::lote
