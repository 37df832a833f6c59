#pragma once

#include "lote/escritor_informes.h"
#include "pipeline/pantalla.h"
#include "run_context/contexto_ejecucion.h"

#include <QStringList>

#include <vector>

namespace kestrane::lote {

/// A report that is written and waits for the end of the run.
struct CuerpoInforme
{
    QString tienda;
    bool datos = false;
    QStringList partes; ///< files, in order: none without data, several where each holds a page
};

/// In place of the preview: each report that would be shown is written to temporary files at once, since the next one clears its
/// rows.
class SalidaDeLote final : public Salida
{
public:
    /// All outlive the object; `carpeta` takes those files, `mensajes` hears of a report that has nothing to show.
    SalidaDeLote(ContextoEjecucion& contexto, QStringView control, EscritorInformes& escritor, Mensajes& mensajes, QString carpeta);

    void DrenaEventos() override {}
    void DarImpresora(const QString& nombre) override { m_impresora = nombre; }
    void ImprimirReport(const QString& nombre) override;
    /// Charts have no data yet: error -2147217900 says so.
    void MostrarGrafico(const QString& nombre, const DatosDeGrafico& datos) override;

    /// The end of the run: what was built and shown nowhere is written too, with an empty layout.
    void termina();
    [[nodiscard]] const std::vector<CuerpoInforme>& informes() const { return m_informes; }
    /// True when there was nothing to show in any report.
    [[nodiscard]] bool sinDatos() const;

private:
    void escribe(const QString& layout);

    ContextoEjecucion& m_contexto;
    QString m_control;
    EscritorInformes& m_escritor;
    Mensajes& m_mensajes;
    QString m_carpeta;
    QString m_impresora;
    std::vector<CuerpoInforme> m_informes;
};

} // namespace kestrane::lote
