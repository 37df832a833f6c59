#pragma once

#include "dialogs/boton_dibujado.h"
#include "dialogs/eleccion_de_periodo.h"
#include "dialogs/eleccion_de_tienda.h"
#include "dialogs/forma_filtro.h"
#include "pipeline/filtros/decision_fechas.h"

namespace kestrane {

/// What the menu sets before the dialog is shown.
struct PreparacionFechas
{
    bool ConFormatos = false; ///< shows the panel of formats
    QString Titulo;           ///< for its labels
};

/// frmFechas: a period, on the server a store, and for some reports the format.
class FrmFechas final : public FormaFiltro
{
    Q_OBJECT

public:
    FrmFechas(const ServiciosDialogo& servicios, PreparacionFechas preparacion);

    void carga();
    /// The filters in sight, the panel of formats out of it with its labels.
    void pantallaInicial();

protected:
    void sale() override { m_decision.sale(); }

private:
    void monta();
    [[nodiscard]] QFrame* formatos();
    [[nodiscard]] BotonDibujado* formato(const QString& boton, const QString& rotulo, bool ticket, QWidget* padre);
    void acepta();
    void aceptaEnFormato(bool ticket);
    void ensenaFormatos();

    PreparacionFechas m_preparacion;
    DecisionFechas m_decision;
    QFrame* m_frame1 = nullptr;
    QFrame* m_frame4 = nullptr;
    QFrame* m_frFiltros = nullptr;
    QFrame* m_frFormatos = nullptr;
    EleccionDePeriodo* m_periodo = nullptr;
    QCheckBox* m_completo = nullptr;
    EleccionDeTienda* m_tienda = nullptr;
    BotonDibujado* m_folio = nullptr;
    BotonDibujado* m_ticket = nullptr;
};

} // namespace kestrane
