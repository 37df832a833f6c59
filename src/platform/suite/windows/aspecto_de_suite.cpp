#include "platform/suite/windows/aspecto_de_suite.h"

#include "platform/suite/windows/permisos_en_ventana.h"

namespace kestrane {

AspectoDeSuite::AspectoDeSuite(ContextoEjecucion& contexto, PermisosEmpleado& permisos, const TraductorCaptions& traductor)
    : m_contexto{contexto}
    , m_permisos{permisos}
    , m_traductor{traductor}
{
}

void AspectoDeSuite::ponPrincipal(QWidget* principal, QWidget* exterior, QWidget* interior)
{
    m_formas = {principal, exterior, interior};
}

QPoint AspectoDeSuite::esquinaPrincipal() const
{
    QPoint esquina;
    for (const QPointer<QWidget>& forma : m_formas) {
        if (forma)
            esquina += forma->pos(); // of a window, its frame's
    }
    return esquina;
}

void AspectoDeSuite::TraducirForm(QWidget& ventana)
{
    m_traductor.TraducirForm(ventana);
}

void AspectoDeSuite::PintarForm(QWidget& ventana)
{
    m_paleta.PintarForm(ventana, m_contexto.Tema);
}

QString AspectoDeSuite::DarColorFondo()
{
    return m_paleta.DarColorFondo(m_contexto.Tema);
}

QString AspectoDeSuite::DarColorResalte()
{
    return m_paleta.DarColorResalte(m_contexto.Tema);
}

QString AspectoDeSuite::DarColorBoton()
{
    return m_paleta.DarColorBoton(m_contexto.Tema);
}

QString AspectoDeSuite::DarColorPredefinido1()
{
    return m_paleta.DarColorPredefinido1(m_contexto.Tema);
}

QString AspectoDeSuite::DarColorPredefinido2()
{
    return m_paleta.DarColorPredefinido2(m_contexto.Tema);
}

QString AspectoDeSuite::DarColorPredefinido3()
{
    return m_paleta.DarColorPredefinido3(m_contexto.Tema);
}

QString AspectoDeSuite::DarColorPredefinido4()
{
    return m_paleta.DarColorPredefinido4(m_contexto.Tema);
}

void AspectoDeSuite::AplicarLetra(QWidget& ventana)
{
    m_letra.AplicarLetra(ventana, m_contexto.TamanoLetra);
}

void AspectoDeSuite::EscalarForm(QWidget& ventana, TamanoVentana destino, TamanoVentana origen)
{
    m_escalador.EscalarForm(ventana, destino, origen);
}

void AspectoDeSuite::AplicarPermisos(QWidget& ventana)
{
    kestrane::AplicarPermisos(ventana, m_permisos.leePermisos(m_contexto.ConexionTienda, m_contexto.EmpleadoTerminal));
}

} // namespace kestrane
