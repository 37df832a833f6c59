#pragma once

#include "lote/respuestas_dadas.h"
#include "pipeline/filtros/decision_fechas.h"
#include "pipeline/filtros/decision_filtros_productos.h"
#include "pipeline/filtros/paneles.h"

namespace kestrane::lote {

/// Answers the dialogs with the options of the command line, and leaves in the run context what each dialog would have left there.
class DialogosDeLote final : public Dialogos
{
public:
    /// All three outlive the object.
    DialogosDeLote(ContextoEjecucion& contexto, const PedidoInforme& pedido, const Reloj& reloj);

    [[nodiscard]] bool Existe(Dialogo) const override { return true; }
    /// PeticionImposible when the dialog would not take the answers, or lacks one.
    void Muestra(Dialogo dialogo, const QString& titulo) override;

    /// The options that were given and that no dialog asked for, as "--desde".
    [[nodiscard]] QStringList ignoradas() const { return m_respuestas.ignoradas(); }

private:
    void acepta() { m_contexto.FiltroAceptado = true; }
    void ponCompleta(DecisionDeFiltro& decision);
    /// The day that was given, today when none was.
    [[nodiscard]] Fecha desde() { return m_respuestas.dia(Respuesta::Desde); }
    [[nodiscard]] Fecha hasta() { return m_respuestas.dia(Respuesta::Hasta); }

    void fechas();
    void buscar();
    void historicoXClientes();
    void historicoXEmpleados();
    void filtrosProductos();
    void eligeProductos(DecisionFiltrosProductos& decision);
    void productosVendidos();
    void ordenClientes();
    void clientesPerdidos();
    void meses();
    void reImprimir();
    void etiquetasClientes();

    /// The button of a panel that the option of `respuesta` names, that for all when it was not given. PeticionImposible when there
    /// is none.
    [[nodiscard]] ElementoPanel elige(Respuesta respuesta, PanelDe panel);
    [[nodiscard]] qint32 eligeCodigo(Respuesta respuesta, PanelDe panel) { return codigoDe(elige(respuesta, panel)); }
    [[noreturn]] void noOfrece(const QString& codigo) const;

    ContextoEjecucion& m_contexto;
    RespuestasDadas m_respuestas;
    const Reloj& m_reloj;
};

} // namespace kestrane::lote
