#include "pipeline/salida_de_report.h"

#include "pipeline/hay_datos.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <QCoreApplication>

#include <algorithm>
#include <new>
#include <optional>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// The number under which a disk that does not take the report's rows is shown: beside the report engine's own.
constexpr qint32 DiscoNoAdmiteInforme = 20002;

/// A stretch in which errors of the report do not rise: each step is tried, whatever became of the one before, and the last error
/// stands.
class TramoGuardado
{
public:
    template<typename Paso>
    TramoGuardado& intenta(Paso paso)
    {
        try {
            paso();
        } catch (const ErrorEjecucion& error) {
            m_error = error;
        } catch (const ErrorDeSalida& error) {
            m_error = ErrorEjecucion{static_cast<ErrorEjecucion::Numero>(DiscoNoAdmiteInforme), error.motivo()};
        } catch (const std::bad_alloc&) {
            m_error = ErrorEjecucion{ErrorEjecucion::LayoutIncorrecto, u"No hay memoria suficiente para mostrar el informe."_s};
        } catch (const std::exception& error) {
            m_error = ErrorEjecucion{ErrorEjecucion::LayoutIncorrecto,
                                     u"El informe no se puede mostrar: %1."_s.arg(QString::fromLocal8Bit(error.what()))};
        }
        return *this;
    }
    [[nodiscard]] const std::optional<ErrorEjecucion>& error() const { return m_error; }

private:
    std::optional<ErrorEjecucion> m_error;
};

void configura(TramoGuardado& tramo, ControlReport& control, const QString& ruta)
{
    tramo.intenta([&] { control.ReportFileName(ruta); })
        .intenta([&] { control.WindowTitle(u"INFORMES:"_s); })
        .intenta([&] { control.OpcionA(true); })
        .intenta([&] { control.OpcionB(2); })
        .intenta([&] { control.OpcionC(2); })
        .intenta([&] { control.Destination(DestinoReport::Ventana); })
        .intenta([&] { control.OpcionD(1); });
}

void preparaYEjecuta(TramoGuardado& tramo, ControlReport& control)
{
    tramo.intenta([&] { control.Prepara(); }).intenta([&] { control.Action(AccionReport::Ejecuta); });
}

} // namespace

void ColaEventosDeQt::drena()
{
    QCoreApplication::processEvents();
}

void SalidaDeReport::DarImpresora(const QString& nombre)
{
    const auto impresoras = m_piezas.impresoras.lista();
    const auto elegida = std::find_if(impresoras.begin(), impresoras.end(),
                                      [&nombre](const ImpresoraInstalada& impresora) { return impresora.dispositivo == nombre; });
    m_piezas.control.ReiniciaImpresora();
    DrenaEventos();
    if (elegida == impresoras.end())
        return;
    m_piezas.control.PrinterName(elegida->dispositivo);
    m_piezas.control.PrinterDriver(elegida->controlador);
    m_piezas.control.PrinterPort(elegida->puerto);
}

void SalidaDeReport::ImprimirReport(const QString& nombre)
{
    drena(3);
    if (HayDatos(m_contexto.ConexionListados)) {
        m_piezas.espera.Muestra();
        ejecutaReport(m_contexto.CarpetaPrograma + u'\\' + nombre);
    } else {
        m_piezas.mensajes.Informa(u"No hay datos para ser mostrados."_s, u"Listados"_s);
    }
    drena(2);
}

void SalidaDeReport::ejecutaReport(const QString& ruta)
{
    TramoGuardado primero;
    configura(primero, m_piezas.control, ruta);
    preparaYEjecuta(primero, m_piezas.control);
    const auto& error = primero.error();
    if (!error)
        return;
    m_piezas.mensajes.Critico(error->descripcion(), QString::number(error->numero()));
    TramoGuardado segundo;
    preparaYEjecuta(segundo, m_piezas.control);
}

void SalidaDeReport::MostrarGrafico(const QString&, const DatosDeGrafico&)
{
    m_piezas.mensajes.Informa(AvisoNoDisponible.toString(), u"Listados"_s);
}

void SalidaDeReport::drena(int veces)
{
    for (int i = 0; i < veces; ++i)
        DrenaEventos();
}

} // namespace kestrane
