#pragma once

#include "pipeline/filtros/decision_fechas.h"
#include "pipeline/filtros/ordenes.h"
#include "pipeline/filtros/paneles.h"
#include "pipeline/pantalla.h"
#include "platform/runtime/reloj.h"
#include "platform/suite/windows/aspecto_ventanas.h"
#include "run_context/contexto_ejecucion.h"

#include <QCheckBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace kestrane {

/// What the dialogs work with; all outlive them.
struct ServiciosDialogo
{
    ContextoEjecucion& contexto;
    AspectoVentanas& aspecto;
    const Reloj& reloj;
    Mensajes& mensajes;
    QWidget* principal = nullptr; ///< the main form, over which they stand
};

/// What all filter dialogs share. Each is made anew for each use, loaded, shown modally and gone when it is left.
class FormaFiltro : public QDialog
{
    Q_OBJECT

public:
    FormaFiltro(const QString& objeto, const QString& titulo, const ServiciosDialogo& servicios);

    /// Escape and the window's frame leave the dialog as its button for that does.
    void reject() override;

protected:
    [[nodiscard]] ContextoEjecucion& contexto() const { return m_servicios.contexto; }
    [[nodiscard]] AspectoVentanas& aspecto() const { return m_servicios.aspecto; }
    [[nodiscard]] const Reloj& reloj() const { return m_servicios.reloj; }
    [[nodiscard]] const ServiciosDialogo& servicios() const { return m_servicios; }

    /// What leaving does: nothing was accepted.
    virtual void sale() { contexto().FiltroAceptado = false; }
    /// Once it is scaled: as large as that part of the main form's size, or as its controls need, and no larger than the screen.
    void ocupa(double parte);
    /// EscalarForm from the design's size to the window's.
    void escala();
    /// The four colours of the theme for panels.
    [[nodiscard]] ColoresPredefinidos cargarColoresPredefinidos() const;
    /// Closes when the decision was to accept, and else says why it was not.
    void terminaSi(const Aceptacion& aceptacion);
    /// In the box "Listados", with the information icon.
    void di(const QString& texto) { m_servicios.mensajes.Informa(texto, QStringLiteral("Listados")); }

    // The controls that a dialog is put together from: under their names, high enough for a finger.
    [[nodiscard]] QPushButton* boton(const QString& objeto, const QString& leyenda, QWidget* padre);
    [[nodiscard]] QFrame* marco(const QString& objeto, QWidget* padre);
    [[nodiscard]] QLabel* rotulo(const QString& objeto, const QString& texto, QWidget* padre);
    /// A label that stands over what it names, in letters a little larger.
    [[nodiscard]] QLabel* encabezado(const QString& objeto, const QString& texto, QWidget* padre);
    [[nodiscard]] QCheckBox* casilla(const QString& objeto, const QString& leyenda, QWidget* padre);
    /// The button "Salir", which Escape stands for.
    [[nodiscard]] QPushButton* botonSalir(QWidget* padre);
    /// The button "Aceptar", which Enter stands for.
    [[nodiscard]] QPushButton* botonAceptar(QWidget* padre);
    /// Under "Ordenado x" a button for each order, which sets it and accepts.
    [[nodiscard]] QVBoxLayout* columnaDeOrdenes(std::span<const Orden> ordenes, QWidget* padre);
    /// Room at the left, then the buttons.
    [[nodiscard]] static QHBoxLayout* pie(std::initializer_list<QWidget*> botones);

private:
    ServiciosDialogo m_servicios;
};

/// Gives `quien` the back colour of `contenedor`.
void copiaFondo(QWidget& quien, const QWidget& contenedor);
/// The back colour of a control.
[[nodiscard]] QColor fondoDe(const QWidget& quien);

/// Loads a dialog, shows it modally and comes back when it is left.
template<class Forma, class... Otros>
void muestraModal(const ServiciosDialogo& servicios, Otros&&... otros)
{
    Forma forma{servicios, std::forward<Otros>(otros)...};
    forma.carga();
    forma.exec();
}

} // namespace kestrane
