#pragma once

#include "platform/report/preview/buscador.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>

namespace kestrane::report {

/// The bar for searching: text, number of hits, to the next and back. Typing searches after a breath.
class BarraBusqueda final : public QWidget
{
    Q_OBJECT

public:
    /// `buscador` outlives it.
    explicit BarraBusqueda(Buscador& buscador, QWidget* padre = nullptr);

    /// Shows the bar with the keyboard in its field, all of it selected.
    void abre();
    /// Hides it; nothing is marked any more.
    void cierra();
    /// Searches anew for what stands there.
    void repite();

signals:
    void busquedaPedida(const QString& texto);
    void cerrada();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void busca();
    void alSiguiente();
    void alAnterior();
    void cuenta();
    [[nodiscard]] QString textoCuenta() const;

    Buscador& m_buscador;
    QLineEdit* m_texto;
    QLabel* m_cuenta;
    QTimer m_respiro;
    QString m_buscado;
};

} // namespace kestrane::report
