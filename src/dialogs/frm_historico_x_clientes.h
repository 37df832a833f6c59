#pragma once

#include "dialogs/forma_historico.h"
#include "pipeline/filtros/decision_historico_clientes.h"

#include <QRadioButton>

namespace kestrane {

/// frmHistoricoXClientes: for the history of one client the period, the sections, and whether products, services or both count.
class FrmHistoricoXClientes final : public FormaHistorico
{
    Q_OBJECT

public:
    explicit FrmHistoricoXClientes(const ServiciosDialogo& servicios);

    void carga();

private:
    void monta();
    [[nodiscard]] QFrame* secciones();
    [[nodiscard]] QFrame* ventas();
    [[nodiscard]] QRadioButton* opcion(const QString& objeto, const QString& leyenda, QWidget* padre);
    void cargarTablaSecciones();
    void acepta();

    DecisionHistoricoClientes m_decision;
    ArrayPanel m_secciones;
    QFrame* m_frame2 = nullptr; ///< with the sections
    QFrame* m_frame3 = nullptr; ///< with the three options
    QFrame* m_frame4 = nullptr;
    TilePanel* m_panel = nullptr;
    QCheckBox* m_todas = nullptr;
    QRadioButton* m_productos = nullptr;
    QRadioButton* m_servicios = nullptr;
    QRadioButton* m_ambos = nullptr;
};

} // namespace kestrane
