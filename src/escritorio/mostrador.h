#pragma once

#include "dialogs/forma_filtro.h"
#include "pipeline/catalogue/ejecutor.h"
#include "pipeline/forms/control_report_vista.h"
#include "pipeline/forms/dialogos_en_ventana.h"
#include "pipeline/forms/frm_esperar.h"
#include "pipeline/forms/frm_listados.h"
#include "pipeline/forms/frm_parar.h"
#include "pipeline/forms/impresoras_del_sistema.h"
#include "pipeline/forms/mensajes_en_ventana.h"
#include "platform/report/preview/impresion_del_sistema.h"

namespace kestrane::escritorio {

/// What the windows of the program work with; all outlive them.
struct PiezasMostrador
{
    ContextoEjecucion& contexto;
    AspectoVentanas& aspecto;
    PreferenciasTerminal& preferencias;
    const Reloj& reloj;
    FuenteDeTics& tics;
    std::function<QString()> ObtenerList1;
    std::function<void()> termina; ///< ends the program at once
};

/// The menu with all that its buttons set to work: dialogs, progress, reports and their previews.
class Mostrador
{
public:
    explicit Mostrador(const PiezasMostrador& piezas);

    [[nodiscard]] FrmListados& menu() { return m_menu; }
    [[nodiscard]] Mensajes& mensajes() { return m_mensajes; }
    [[nodiscard]] DialogosEnVentana& dialogos() { return m_dialogos; }
    [[nodiscard]] report::VentanasVista& vistas() { return m_vistas; }

private:
    void ofreceDialogos(const ServiciosDialogo& servicios);

    FrmListados m_menu;
    MensajesEnVentana m_mensajes{&m_menu};
    ProgresoEnVentana m_progreso;
    EsperaEnVentana m_espera;
    DialogosEnVentana m_dialogos;
    report::ImpresionDelSistema m_impresion;
    report::VentanasVista m_vistas;
    ControlReportVista m_report;
    ImpresorasDelSistema m_impresoras;
    ColaEventosDeQt m_eventos;
    SalidaDeReport m_salida;
    catalogue::Ejecutor m_ejecutor;
};

} // namespace kestrane::escritorio
