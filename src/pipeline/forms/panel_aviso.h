#pragma once

#include "platform/runtime/reloj.h"
#include "run_context/etiquetas_clientes.h"

#include <QDateEdit>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace kestrane {

class BotonMenu;

/// The panel frAviso: for which clients labels are wanted.
class PanelAviso final : public QFrame
{
    Q_OBJECT

public:
    /// `continuar` is the button that runs the report; its parent becomes the panel.
    PanelAviso(BotonMenu* continuar, QWidget* padre);

    /// For all clients in general, both birthdays today, what was typed before as it stands; and shows the panel.
    void abre(const Reloj& reloj);
    /// What the controls hold now.
    [[nodiscard]] EtiquetasClientes lee() const;

signals:
    /// The operator would rather not.
    void dejado();

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void monta(BotonMenu* continuar);
    void montaElecciones();
    void montaPie(BotonMenu* continuar);
    void ordenDeTeclado(QWidget* continuar);
    [[nodiscard]] QRadioButton* opcion(const QString& objeto, const QString& leyenda, QWidget* padre);
    [[nodiscard]] QFrame* marco(const QString& objeto, QWidget* padre);
    [[nodiscard]] QFrame* cifra(const QString& objeto, QLineEdit*& texto, const QString& nombreTexto, QRadioButton*& mayor,
                                const QString& nombreMayor, const QString& nombreMenor, const QString& que);
    [[nodiscard]] QFrame* fechas();
    [[nodiscard]] QFrame* fila(const QString& objeto, QWidget* eleccion, QWidget* detalle);

    QFrame* m_frame12 = nullptr;
    QFrame* m_frame13 = nullptr;
    QRadioButton* m_general = nullptr;
    QRadioButton* m_todos = nullptr;
    QRadioButton* m_cPostal = nullptr;
    QRadioButton* m_consumo = nullptr;
    QRadioButton* m_cumple = nullptr;
    QRadioButton* m_visitas = nullptr;
    QRadioButton* m_mayorConsumo = nullptr;
    QRadioButton* m_mayorVisitas = nullptr;
    QLineEdit* m_textoCPostal = nullptr;
    QLineEdit* m_textoConsumo = nullptr;
    QLineEdit* m_textoVisitas = nullptr;
    QDateEdit* m_desde = nullptr;
    QDateEdit* m_hasta = nullptr;
};

} // namespace kestrane
