#pragma once

#include "platform/report/preview/arbol_grupos.h"
#include "platform/report/preview/banda_aviso.h"
#include "platform/report/preview/barra_busqueda.h"
#include "platform/report/preview/barra_vista.h"
#include "platform/report/preview/dialogo_avance.h"
#include "platform/report/preview/impresion_vista.h"
#include "platform/report/preview/lienzo.h"
#include "platform/report/preview/miniaturas.h"

#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QTabWidget>

#include <functional>
#include <memory>

namespace kestrane::report {

/// What previews remember of each other while the program runs.
struct RecuerdoVista
{
    QSize tamano{1180, 860};
    bool maximizada = false;
    Zoom zoom;
    bool panel = true;
    QString carpeta;   ///< where something was exported to last
    QString impresora; ///< that the operator chose last
};

/// Asks where to export to, `propuesto` being a name with its ending; "" when the operator would rather not.
using EligeFichero = std::function<QString(QWidget* padre, FormatoExportacion formato, const QString& propuesto)>;

/// With the file dialog.
[[nodiscard]] QString eligeFicheroConDialogo(QWidget* padre, FormatoExportacion formato, const QString& propuesto);

/// Whether files that are there already may be replaced; `cuales` names them.
using ConfirmaReemplazo = std::function<bool(QWidget* padre, const QString& cuales)>;

/// With a message box.
[[nodiscard]] bool confirmaReemplazoConDialogo(QWidget* padre, const QString& cuales);

/// What a preview needs from outside; the pointers outlive it.
struct ServiciosVista
{
    ImpresionVista* impresion = nullptr; ///< null: it cannot print
    EligeFichero eligeFichero = eligeFicheroConDialogo;
    ConfirmaReemplazo confirmaReemplazo = confirmaReemplazoConDialogo;
};

/// The preview of one report: it shows the pages that there are and lays out the rest beside its events.
class VentanaVista final : public QMainWindow
{
    Q_OBJECT

public:
    /// `recuerdo` outlives it. `impresora` is offered first when printing.
    VentanaVista(std::unique_ptr<FuenteVista> fuente, const QString& titulo, QString impresora, ServiciosVista servicios,
                 RecuerdoVista& recuerdo);
    ~VentanaVista() override;

    [[nodiscard]] FuenteVista& fuente() { return *m_fuente; }

protected:
    void closeEvent(QCloseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    static constexpr int PestanaGrupos = 1;

    void monta();
    [[nodiscard]] QWidget* panelLateral();
    void montaEstado();
    void conectaBarra();
    void conectaPaginas();
    void conectaBusqueda();
    void atajos();
    void atajo(const QKeySequence& teclas, const std::function<void()>& orden);
    void atajoDePaginas(const QKeySequence& teclas, const std::function<void()>& orden);

    void componeMas();
    void refresca();
    void refrescaEstado();
    void paginaCambiada();
    void zoomCambiado();
    void ponPanel(bool visible);
    void irAPagina(int pagina);
    void busca(const QString& texto);
    void escapa();

    void actualiza();
    void vuelveAMostrar();
    void imprime();
    void imprime(const PeticionImpresion& peticion);
    void exporta(FormatoExportacion formato);
    [[nodiscard]] QString pideFichero(FormatoExportacion formato);
    [[nodiscard]] QString ficherosQueHay(FormatoExportacion formato, const QString& fichero) const;
    [[nodiscard]] QString dondeSeHaGuardado(FormatoExportacion formato, const QString& fichero) const;
    void trabaja(const QString& que, const std::function<QString()>& hecho, const DialogoAvance::Trabajo& trabajo);
    [[nodiscard]] bool completa(const AvanceExportacion& avance);
    void fallaPagina(const QString& motivo);
    void quedaIncompleta(const QString& motivo);
    void sigueComponiendo();
    void totalSabido();
    void copia();

    std::unique_ptr<FuenteVista> m_fuente;
    PaginasVista m_paginas;
    Buscador m_buscador;
    ServiciosVista m_servicios;
    RecuerdoVista& m_recuerdo;
    QString m_impresora;
    QTimer m_turno;
    bool m_totalSabido = false;       ///< what is composed knows how many pages there are
    bool m_incompleta = false;        ///< later pages cannot be laid out
    QPointer<DialogoAvance> m_enObra; ///< a long work goes on; the pages are in its hands

    BarraVista* m_barra;
    BarraBusqueda* m_barraBusqueda;
    BandaAviso* m_banda;
    Lienzo* m_lienzo;
    Miniaturas* m_miniaturas;
    ArbolGrupos* m_arbol;
    QTabWidget* m_panel = nullptr;
    QLabel* m_estado = nullptr;
    QProgressBar* m_avance = nullptr;
};

} // namespace kestrane::report
