#include "pipeline/catalogue/ejecutor.h"

#include "pipeline/catalogue/catalogo.h"
#include "pipeline/catalogue/condiciones.h"

#include <algorithm>

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
    if (!puedeEmpezar(fila)) {
        m_pantalla.mensajes.Informa(AvisoNoDisponible.toString(), u"Listados"_s);
        return;
    }
    if (pideTienda(fila))
        m_pantalla.dialogos.Muestra(Dialogo::SelTienda, {});
    if (fila.preparacion)
        fila.preparacion(m_contexto);
    if (pideFiltros(fila))
        trabaja(fila);
}

/// False as long as a builder, chart or dialog of the row is missing.
bool Ejecutor::puedeEmpezar(const FilaCatalogo& fila) const
{
    const Dialogos& dialogos = m_pantalla.dialogos;
    if (!estaDisponible(fila) || (pideTienda(fila) && !dialogos.Existe(Dialogo::SelTienda)))
        return false;
    if (seSaltaElDialogo(fila))
        return true;
    const std::span<const Dialogo> suyos = fila.dialogos.lista();
    return std::all_of(suyos.begin(), suyos.end(), [&dialogos](Dialogo dialogo) { return dialogos.Existe(dialogo); });
}

bool Ejecutor::seSaltaElDialogo(const FilaCatalogo& fila) const
{
    return fila.marcas.testFlag(Marca::Hoy) && !m_contexto.PermiteListadoVariosDias;
}

bool Ejecutor::pideTienda(const FilaCatalogo& fila) const
{
    return fila.marcas.testFlag(Marca::Select) && enServidor(m_contexto);
}

/// False when the operator left the dialogs.
bool Ejecutor::pideFiltros(const FilaCatalogo& fila)
{
    if (fila.dialogos.cuantos == 0)
        return true;
    if (seSaltaElDialogo(fila))
        tomaElDiaDeHoy();
    else if (!muestraDialogos(fila))
        return false;
    return m_contexto.FiltroAceptado || fila.marcas.testFlag(Marca::SinFiltroAceptado);
}

bool Ejecutor::muestraDialogos(const FilaCatalogo& fila)
{
    const QString titulo = tituloDe(fila);
    const CadenaDialogos& cadena = fila.dialogos;
    m_pantalla.dialogos.Muestra(cadena.dialogos[0], titulo);
    if (cadena.trasElPrimero && !cadena.trasElPrimero(m_contexto))
        return false;
    if (cadena.cuantos > 1)
        m_pantalla.dialogos.Muestra(cadena.dialogos[1], titulo);
    return true;
}

QString Ejecutor::tituloDe(const FilaCatalogo& fila) const
{
    if (!fila.titulo.isEmpty())
        return fila.titulo.toString();
    return m_pantalla.menu.Leyenda(fila.tituloDe.isEmpty() ? fila.control : fila.tituloDe);
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
        muestraGrafico(fila.grafico);
    else
        construyeYMuestra(fila);
}

void Ejecutor::construyeYMuestra(const FilaCatalogo& fila)
{
    const OpcionConstructor* const opcion = primera(fila.constructores, m_contexto);
    if (!opcion)
        return;
    construye(opcion->constructor);
    m_pantalla.salida.DrenaEventos();
    m_pantalla.salida.DrenaEventos();
    if (const Diseno* const diseno = primera(fila.disenos, m_contexto))
        muestra(*diseno);
}

/// While the builder runs the shop connection may remember its answers. Nothing else is in that scope: no drained event, no window.
void Ejecutor::construye(Constructor constructor)
{
    Listados listados{m_contexto, m_pantalla.progreso, m_reloj};
    const auto ambito = m_contexto.ConexionTienda.EmpiezaInforme();
    constructor(listados);
}

/// The same for a chart.
MatrizGrafico Ejecutor::recoge(Recolector recolector)
{
    Listados listados{m_contexto, m_pantalla.progreso, m_reloj};
    const auto ambito = m_contexto.ConexionTienda.EmpiezaInforme();
    return recolector(listados);
}

void Ejecutor::muestraGrafico(const OpcionGrafico& grafico)
{
    m_pantalla.salida.MostrarGrafico(grafico.nombre.toString(), [this, &grafico] { return recoge(grafico.recolector); });
}

void Ejecutor::muestra(const Diseno& diseno)
{
    const bool enTicketera = diseno.impresora == ImpresoraDe::Ticket;
    m_pantalla.salida.DarImpresora(enTicketera ? m_contexto.ImpresoraTicket : m_contexto.ImpresoraListados);
    m_pantalla.salida.ImprimirReport(diseno.fichero.toString());
}

} // namespace kestrane::catalogue
