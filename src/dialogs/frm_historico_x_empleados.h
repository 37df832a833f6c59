#pragma once

#include "dialogs/boton_dibujado.h"
#include "dialogs/dibujos_eleccion.h"
#include "dialogs/forma_historico.h"
#include "pipeline/filtros/decision_historico_empleados.h"

namespace kestrane {

/// frmHistoricoXEmpleados: a period, then one employee or all, then totals or detail; only then there is a button to accept.
class FrmHistoricoXEmpleados final : public FormaHistorico
{
    Q_OBJECT

public:
    explicit FrmHistoricoXEmpleados(const ServiciosDialogo& servicios);

    void carga();

private:
    void monta();
    [[nodiscard]] QLayout* cabecera();
    void montaEtapas();
    [[nodiscard]] QFrame* quien();
    [[nodiscard]] QFrame* como();
    [[nodiscard]] QFrame* empleados();
    [[nodiscard]] QLayout* pieConElegido();
    /// Two picture buttons side by side under a title.
    [[nodiscard]] QFrame* pareja(const QString& objeto, const QString& leyenda, BotonDibujado* una, BotonDibujado* otra);
    [[nodiscard]] BotonDibujado* dibujado(const QString& boton, const QString& rotulo, const QString& leyenda, DibujoDe dibujo);

    void cargarEmpleados();
    void mostrarEmpleados();
    void eligeTodos();
    void eligeEmpleado(const ElementoPanel& empleado);
    void preguntaComo();
    void responde(bool totalizado);
    void vuelve();

    DecisionHistoricoEmpleados m_decision;
    ArrayPanel m_empleados;
    QFrame* m_etapas = nullptr;
    QFrame* m_quien = nullptr;        ///< fremp
    QFrame* m_como = nullptr;         ///< frSeleccion2, in the same place
    QFrame* m_conEmpleados = nullptr; ///< frempleados
    BotonDibujado* m_uno = nullptr;
    BotonDibujado* m_detallado = nullptr;
    TilePanel* m_panel = nullptr;
    QLabel* m_elegido = nullptr;
    QPushButton* m_aceptar = nullptr;
    QPushButton* m_salir = nullptr;
};

} // namespace kestrane
