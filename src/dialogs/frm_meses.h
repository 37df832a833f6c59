#pragma once

#include "dialogs/eleccion_de_tienda.h"
#include "dialogs/forma_filtro.h"
#include "pipeline/filtros/decision_meses.h"

#include <QLineEdit>

namespace kestrane {

/// frmMeses: the month and the year of a chart, and on the server a store.
class FrmMeses final : public FormaFiltro
{
    Q_OBJECT

public:
    explicit FrmMeses(const ServiciosDialogo& servicios);

    void carga();

private:
    using Paso = void (DecisionMeses::*)();

    void monta();
    [[nodiscard]] QLineEdit* ensenado(const QString& objeto, const QString& nombre, QWidget* padre);
    [[nodiscard]] QPushButton* flecha(const QString& objeto, const QString& nombre, Paso paso, QWidget* padre);
    void ensena();
    void dibujaFlechas();
    void acepta();

    DecisionMeses m_decision;
    QFrame* m_marco = nullptr;
    QLineEdit* m_numeroMes = nullptr;
    QLineEdit* m_mes = nullptr;
    QLineEdit* m_anio = nullptr;
    QPushButton* m_mesSiguiente = nullptr;
    QPushButton* m_anioSiguiente = nullptr;
    EleccionDeTienda* m_tienda = nullptr;
};

} // namespace kestrane
