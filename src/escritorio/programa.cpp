#include "escritorio/programa.h"

#include "escritorio/mostrador.h"
#include "platform/suite/preferencias_en_tabla.h"
#include "platform/suite/windows/aspecto_de_suite.h"
#include "run_context/principal.h"

#include <cstdlib>
#include <optional>

namespace kestrane::escritorio {

using namespace Qt::StringLiterals;

namespace {

database::OpcionesDatos datosDe(const QString& carpetaPrograma)
{
    database::OpcionesDatos datos;
    datos.carpeta = carpetaPrograma + u"/datos"_s;
    datos.regional = ConfiguracionRegional::delSistema();
    return datos;
}

class Programa
{
public:
    Programa(Aplicacion& aplicacion, const QString& carpetaPrograma, const QString& nombreCopia)
        : m_aplicacion{aplicacion}
        , m_entorno{datosDe(carpetaPrograma)}
        , m_traductor{carpetaPrograma + u"/traducciones"_s, QLocale::system().uiLanguages()}
        , m_copia{creaCopiaUnica(nombreCopia)}
    {
        m_contexto.CarpetaPrograma = carpetaPrograma;
        m_aplicacion.alFallar([this](const ErrorEjecucion& error) { falla(error); });
    }

    int corre()
    {
        auto inicio = Principal::Inicio::EnMarcha;
        m_aplicacion.intenta([&] { inicio = m_principal.Main(*m_copia, [this] { muestraMenu(); }); });
        return inicio == Principal::Inicio::OtraCopia ? EXIT_SUCCESS : Aplicacion::exec();
    }

private:
    void muestraMenu()
    {
        m_mostrador.emplace(PiezasMostrador{.contexto = m_contexto,
                                            .aspecto = m_aspecto,
                                            .preferencias = m_preferencias,
                                            .reloj = m_reloj,
                                            .tics = m_tics,
                                            .ObtenerList1 = [this] { return m_principal.ObtenerList1(); },
                                            .termina = [this] { termina(EXIT_SUCCESS); }});
        FrmListados& menu = m_mostrador->menu();
        m_aspecto.ponPrincipal(&menu, menu.marcoExterior(), menu.marcoInterior());
        menu.carga();
        menu.show();
    }

    void falla(const ErrorEjecucion& error)
    {
        const auto di = [&error](Mensajes& mensajes) { mensajes.Critico(error.descripcion(), QString::number(error.numero())); };
        MensajesEnVentana sinMenu;
        di(m_mostrador ? m_mostrador->mensajes() : sinMenu);
        termina(EXIT_FAILURE);
    }

    /// At once, whatever runs: a builder may be at work above this call, and nothing of it is to be finished. Rows that wait are
    /// sent.
    [[noreturn]] void termina(int estado)
    {
        const bool enviadas = m_entorno.enviaPendientes();
        std::_Exit(enviadas ? estado : EXIT_FAILURE);
    }

    Aplicacion& m_aplicacion;
    EntornoDatos m_entorno;
    ContextoEjecucion m_contexto{m_entorno};
    RelojSistema m_reloj;
    ConectorTiendaDsn m_conector;
    PreferenciasEnTabla m_preferencias;
    PermisosEnTabla m_permisos;
    TraductorCaptions m_traductor;
    AspectoDeSuite m_aspecto{m_contexto, m_permisos, m_traductor};
    TicsDeReloj m_tics;
    std::unique_ptr<CopiaUnica> m_copia;
    Principal m_principal{m_contexto, m_conector, m_preferencias, m_reloj};
    std::optional<Mostrador> m_mostrador;
};

} // namespace

int ejecutaPrograma(Aplicacion& aplicacion, const QString& carpetaPrograma, const QString& nombreCopia)
{
    return Programa{aplicacion, carpetaPrograma, nombreCopia}.corre();
}

} // namespace kestrane::escritorio
