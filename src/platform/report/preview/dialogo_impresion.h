#pragma once

#include "platform/report/preview/impresion_vista.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace kestrane::report {

/// Asks for printer, pages and copies.
class DialogoImpresion final : public QDialog
{
    Q_OBJECT

public:
    /// `preferida` is chosen when there is such a printer, else the default one. `paginas` is 0 as long as the number is not known;
    /// `actual` counts from 1.
    DialogoImpresion(const ImpresionVista& impresion, const QString& preferida, int paginas, int actual, QWidget* padre);

    /// What was chosen, once it was accepted.
    [[nodiscard]] PeticionImpresion peticion() const;

private:
    void ponImpresoras(const ImpresionVista& impresion, const QString& preferida);
    [[nodiscard]] QWidget* filaDePaginas(int paginas);
    [[nodiscard]] QWidget* filaDeBotones();
    void ajusta();

    int m_actual;
    QComboBox* m_impresora;
    QRadioButton* m_todas;
    QRadioButton* m_soloActual;
    QRadioButton* m_algunas;
    QButtonGroup m_cuales; ///< these three, which have different parents
    QSpinBox* m_desde;
    QSpinBox* m_hasta;
    QSpinBox* m_copias;
    QLabel* m_sinImpresora;
    QPushButton* m_imprime = nullptr;
};

} // namespace kestrane::report
