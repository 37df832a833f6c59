#pragma once

#include "pipeline/catalogue/fila_catalogo.h"
#include "pipeline/forms/ayuda_deslizante.h"
#include "pipeline/forms/panel_aviso.h"
#include "pipeline/pantalla.h"
#include "platform/controls/panel_tarjetas.h"
#include "platform/suite/preferencias_terminal.h"
#include "platform/suite/windows/aspecto_ventanas.h"
#include "run_context/contexto_ejecucion.h"

#include <QToolButton>

#include <functional>

namespace kestrane {

/// What the menu works with; all outlive it.
struct ServiciosMenu
{
    ContextoEjecucion& contexto;
    AspectoVentanas& aspecto;
    PreferenciasTerminal& preferencias;
    const Reloj& reloj;
    Mensajes& mensajes;
    std::function<QString()> ObtenerList1;                     ///< a fresh reading of the list that this copy was started with
    std::function<void(const catalogue::FilaCatalogo&)> pulsa; ///< does what a button does
    std::function<void()> termina;                             ///< ends the program at once, whatever runs
};

/// frmListados, the one main window: every report is one of its buttons.
class FrmListados final : public QWidget, public Menu
{
    Q_OBJECT

public:
    /// Builds the form as it is designed, before anything is read.
    explicit FrmListados(ServiciosMenu servicios);

    /// The load of the form: captions, flag, colours, size, fonts, help, rights, flavour and hand-off, in this order. Reads
    /// `permisos_listados` and `pasardatos`, of which it may delete a row. ErrorEjecucion when the shop refuses a statement.
    void carga();

    /// Paints the form in the run's theme, and what takes its colour from something else.
    void ColorearMe();
    void ColocarAyuda() { m_ayuda->ColocarAyuda(); }
    /// Shows and hides what is particular to the shop's flavour. It has the last word on what is visible.
    void OcultarListadosOtrosProgramas();
    /// Takes the first hand-off row of this copy, if a sibling program left one. Always false.
    bool ListadoDirecto();
    /// Marks the group that `codigo` (no matter which case) names, and deletes the first hand-off row of this copy. `indice` is not
    /// used.
    void Listar(const QString& indice, const QString& codigo);

    // Menu
    [[nodiscard]] QString Leyenda(QStringView cual) const override;
    void Haz(AccionMenu accion) override;
    void Repinta() override { repaint(); }
    void MuestraInfo() override;
    void OcultaInfo() override { m_info->hide(); }

    /// Reads the panel of client labels and closes it.
    void tomaEtiquetas();

    /// The two frames around the buttons, from the outside: windows that belong over the menu are placed by them.
    [[nodiscard]] QWidget* marcoExterior() const { return m_cuerpo; }
    [[nodiscard]] QWidget* marcoInterior() const { return m_grupos; }

protected:
    void closeEvent(QCloseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    /// Passes over what the panel of client labels or the help covers.
    bool focusNextPrevChild(bool siguiente) override;

private:
    // The form as it is designed.
    void monta();
    [[nodiscard]] QFrame* cabecera();
    [[nodiscard]] QToolButton* zona(const QString& objeto, const QString& nombre, void (FrmListados::*accion)());
    [[nodiscard]] QToolButton* ayuda();
    void montaGrupos();
    void montaInfo();
    void montaSinGrupo();
    [[nodiscard]] BotonMenu* boton(const catalogue::FilaCatalogo& fila, QWidget* padre);
    void atajos();
    void enfocaGrupo(int cual);
    void ordenDeTeclado();

    // The steps of the load and of what is pressed.
    void ponBandera();
    void ponEmpresa();
    void colocaAviso();
    void cierraAviso();
    void colocaInfo();
    void acomodaTitulo();
    void cabeEnPantalla();
    void EscalarMe();
    void cambiaTamano();
    void cambiaLetra();
    void cambiaTema();
    void marca(const QString& codigo);
    /// Of this copy of the program, with a fresh reading of its list.
    [[nodiscard]] QString clave() const;

    ServiciosMenu m_servicios;
    QString m_colorResalte; ///< decimal text
    QWidget* m_cuerpo = nullptr;
    PanelTarjetas* m_grupos = nullptr;
    QLabel* m_bandera = nullptr;
    QLabel* m_empresa = nullptr;
    QLabel* m_info = nullptr;
    PanelAviso* m_aviso = nullptr;
    AyudaDeslizante* m_ayuda = nullptr;
};

} // namespace kestrane
