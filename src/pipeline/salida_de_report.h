#pragma once

#include "pipeline/control_report.h"
#include "pipeline/pantalla.h"
#include "run_context/contexto_ejecucion.h"

#include <vector>

namespace kestrane {

/// A printer as the operating system tells of it.
struct ImpresoraInstalada
{
    QString dispositivo;
    QString controlador;
    QString puerto;

    friend bool operator==(const ImpresoraInstalada&, const ImpresoraInstalada&) = default;
};

/// The printers of this machine.
class Impresoras
{
public:
    virtual ~Impresoras() = default;
    /// In the system's order; empty when there is none.
    [[nodiscard]] virtual std::vector<ImpresoraInstalada> lista() const = 0;
};

/// The timed window between a builder and the report control.
class Espera
{
public:
    virtual ~Espera() = default;
    /// Shows the window, modal, and comes back when it has closed by itself.
    virtual void Muestra() = 0;
};

/// The platform's event queue.
class ColaEventos
{
public:
    virtual ~ColaEventos() = default;
    /// Serves what waits there now.
    virtual void drena() = 0;
};

/// The queue of the running application.
class ColaEventosDeQt final : public ColaEventos
{
public:
    void drena() override;
};

/// What the output road works with.
struct PiezasSalida
{
    ControlReport& control;
    const Impresoras& impresoras;
    Espera& espera;
    Mensajes& mensajes;
    ColaEventos& eventos;
};

/// From filled staging tables to an open preview. Each window that prints reports has one of its own, on its own report control.
class SalidaDeReport final : public Salida
{
public:
    /// The layouts lie in the run context's program folder, the rows behind its ConexionListados. All outlive the object.
    SalidaDeReport(ContextoEjecucion& contexto, PiezasSalida piezas) : m_contexto{contexto}, m_piezas{piezas} {}

    void DrenaEventos() override { m_piezas.eventos.drena(); }
    /// Names are compared exactly, case and all.
    void DarImpresora(const QString& nombre) override;
    /// An error of the report is shown, then tried once more in silence. What fails before that (reading the staging tables) is an
    /// ErrorEjecucion.
    void ImprimirReport(const QString& nombre) override;
    /// Says that the chart is not there yet.
    void MostrarGrafico(const QString& nombre, const DatosDeGrafico& datos) override;

private:
    void drena(int veces);
    void ejecutaReport(const QString& ruta);

    ContextoEjecucion& m_contexto;
    PiezasSalida m_piezas;
};

} // namespace kestrane
