#include "pipeline/catalogue/ejecutor.h"

#include "pipeline/catalogue/catalogo.h"
#include "pipeline/catalogue/condiciones.h"

namespace kestrane::catalogue {

using namespace Qt::StringLiterals;

Ejecutor::Ejecutor(ContextoEjecucion& contexto, const Pantalla& pantalla, const Reloj& reloj)
    : m_contexto{contexto}
    , m_pantalla{pantalla}
    , m_reloj{reloj}
{
}

void Ejecutor::ejecuta(const FilaCatalogo& fila)
{
    switch (fila.clase) {
    case Clase::Informe:
    case Clase::Grafico:
        return ejecutaInforme(fila);
    case Clase::Accion:
        return haz(fila);
    case Clase::SinAccion:
        return;
    }
}

void Ejecutor::haz(const FilaCatalogo& fila)
{
    if (const OpcionAccion* const opcion = primera(fila.acciones, m_contexto))
        m_pantalla.menu.Haz(opcion->accion);
}

void Ejecutor::ejecutaInforme(const FilaCatalogo& fila)
{
    if (!estaDisponible(fila))
        return;
    if (fila.marcas.testFlag(Marca::Select) && enServidor(m_contexto))
        m_pantalla.dialogos.Muestra(Dialogo::SelTienda, {});
    if (fila.preparacion)
        fila.preparacion(m_contexto);
    if (pideFiltros(fila))
        trabaja(fila);
}

/// False, and the operator told, when the row cannot run yet.
bool Ejecutor::estaDisponible(const FilaCatalogo& fila)
{
    if (constructorQueFalta(fila).isEmpty())
        return true;
    m_pantalla.mensajes.Informa(u"El listado \"%1\" todavía no está disponible."_s.arg(fila.leyenda), u"Listados"_s);
    return false;
}

/// False when the operator left the dialogs.
bool Ejecutor::pideFiltros(const FilaCatalogo& fila)
{
    if (fila.dialogos.cuantos == 0)
        return true;
    if (fila.marcas.testFlag(Marca::Hoy) && !m_contexto.PermiteListadoVariosDias)
        tomaElDiaDeHoy();
    else if (!muestraDialogos(fila))
        return false;
    return m_contexto.FiltroAceptado || fila.marcas.testFlag(Marca::SinFiltroAceptado);
}

bool Ejecutor::muestraDialogos(const FilaCatalogo& fila)
{
    const QString titulo = (fila.titulo.isEmpty() ? fila.leyenda : fila.titulo).toString();
    const CadenaDialogos& cadena = fila.dialogos;
    m_pantalla.dialogos.Muestra(cadena.dialogos[0], titulo);
    if (cadena.trasElPrimero && !cadena.trasElPrimero(m_contexto))
        return false;
    if (cadena.cuantos > 1)
        m_pantalla.dialogos.Muestra(cadena.dialogos[1], titulo);
    return true;
}

void Ejecutor::tomaElDiaDeHoy()
{
    m_contexto.FechaDesde = m_reloj.hoy();
    m_contexto.FechaHasta = m_contexto.FechaDesde;
    m_contexto.FiltroAceptado = true;
    m_pantalla.menu.Repinta();
}

void Ejecutor::trabaja(const FilaCatalogo& fila)
{
    const bool conAviso = fila.marcas.testFlag(Marca::ConAviso);
    if (conAviso)
        m_pantalla.menu.MuestraInfo();
    m_pantalla.progreso.Muestra();
    if (conAviso)
        m_pantalla.salida.DrenaEventos();
    const bool enBucle = fila.marcas.testFlag(Marca::Bucle) && m_contexto.TiendaSeleccionada.isEmpty() && enServidor(m_contexto);
    enBucle ? porCadaTienda(fila) : unaVez(fila);
    m_pantalla.progreso.cerrar();
    if (conAviso)
        m_pantalla.menu.OcultaInfo();
}

/// Leaves the last store chosen, so that the next report is built for it alone until the operator chooses another.
void Ejecutor::porCadaTienda(const FilaCatalogo& fila)
{
    const int ultima = m_contexto.Tiendas.limiteSuperior() - 1;
    for (int indice = 1; indice <= ultima; ++indice) {
        m_contexto.TiendaSeleccionada = m_contexto.Tiendas[indice].Texto;
        unaVez(fila);
    }
}

void Ejecutor::unaVez(const FilaCatalogo& fila)
{
    if (fila.clase == Clase::Grafico)
        m_pantalla.salida.MostrarGrafico(fila.grafico.toString());
    else
        construyeYMuestra(fila);
}

void Ejecutor::construyeYMuestra(const FilaCatalogo& fila)
{
    const OpcionConstructor* const opcion = primera(fila.constructores, m_contexto);
    if (!opcion)
        return;
    Listados listados{m_contexto, m_pantalla.progreso, m_reloj};
    auto ambito = m_contexto.ConexionTienda.EmpiezaInforme();
    opcion->constructor(listados);
    ambito.TerminaInforme();
    m_pantalla.salida.DrenaEventos();
    m_pantalla.salida.DrenaEventos();
    if (const Diseno* const diseno = primera(fila.disenos, m_contexto))
        muestra(*diseno);
}

void Ejecutor::muestra(const Diseno& diseno)
{
    const bool enTicketera = diseno.impresora == ImpresoraDe::Ticket;
    m_pantalla.salida.DarImpresora(enTicketera ? m_contexto.ImpresoraTicket : m_contexto.ImpresoraListados);
    m_pantalla.salida.ImprimirReport(diseno.fichero.toString());
}

} // namespace kestrane::catalogue
