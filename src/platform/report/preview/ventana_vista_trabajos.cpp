#include "platform/report/preview/dialogo_impresion.h"
#include "platform/report/preview/ventana_vista.h"

#include <chrono>

namespace kestrane::report {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto TurnoLargo = 30ms;
constexpr auto EsperaPagina = 500ms;
constexpr int PaginasSinAvance = 40;    ///< their text is copied before anybody notices
constexpr double ParteDeComponer = 0.5; ///< of the bar, when pages are laid out before they are printed

QString seHaEnviado(const QString& impresora)
{
    return u"El informe se ha enviado a la impresora %1."_s.arg(impresora);
}

/// When the first pages were out before the rest was broken off.
QString seHaCancelado(const QString& impresora, int enviadas)
{
    const QString cuantas = enviadas == 1 ? u"1 página"_s : u"%1 páginas"_s.arg(enviadas);
    return u"Impresión cancelada: la impresora %1 recibe solo %2."_s.arg(impresora, cuantas);
}

} // namespace

void VentanaVista::actualiza()
{
    if (m_enObra)
        return;
    const QString motivo = fallo([this] { m_fuente->actualiza(); });
    if (motivo.isEmpty())
        vuelveAMostrar();
    else
        m_banda->di(BandaAviso::Clase::Fallo, u"No se ha podido actualizar el informe. "_s + motivo);
}

void VentanaVista::vuelveAMostrar()
{
    m_arbol->vacia(); // whose index is gone
    const int pagina = m_lienzo->paginaActual();
    const QDeadlineTimer plazo{EsperaPagina};
    // Back to the page that was looked at, if that is soon.
    const QString motivo = fallo([&] {
        while (m_fuente->paginas() <= pagina && !m_fuente->completa() && !plazo.hasExpired())
            m_fuente->avanza(QDeadlineTimer{TurnoLargo});
    });
    m_totalSabido = m_fuente->completa();
    m_incompleta = false;
    m_buscador.ponIncompleto(false);
    if (!motivo.isEmpty())
        quedaIncompleta(motivo);
    m_banda->hide();
    m_buscador.busca({}, 0);
    m_miniaturas->olvida();
    m_lienzo->recomienza();
    sigueComponiendo();
    refresca();
    irAPagina(pagina);
    m_barraBusqueda->repite();
}

void VentanaVista::imprime()
{
    if (m_enObra || !m_servicios.impresion || m_fuente->paginas() == 0)
        return;
    const QString preferida = m_impresora.isEmpty() ? m_recuerdo.impresora : m_impresora;
    auto* dialogo = new DialogoImpresion{*m_servicios.impresion, preferida, m_fuente->completa() ? m_fuente->paginas() : 0,
                                         m_lienzo->paginaActual() + 1, this};
    dialogo->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialogo, &QDialog::accepted, this, [this, dialogo] {
        // Printing serves events, and the dialog must be gone before.
        QMetaObject::invokeMethod(
            this, [this, peticion = dialogo->peticion()] { imprime(peticion); }, Qt::QueuedConnection);
    });
    dialogo->open();
}

void VentanaVista::imprime(const PeticionImpresion& peticion)
{
    if (peticion.impresora != m_impresora) // what the program chose for this report is nothing to offer for the next
        m_recuerdo.impresora = peticion.impresora;
    int enviadas = 0;
    bool sigue = true;
    trabaja(
        u"Imprimiendo"_s, [&] { return sigue ? seHaEnviado(peticion.impresora) : seHaCancelado(peticion.impresora, enviadas); },
        [&](const AvanceExportacion& avance) {
            const double desde = m_fuente->completa() ? 0 : ParteDeComponer;
            if (!completa(avance))
                return false;
            enviadas = m_servicios.impresion->imprime(*m_fuente, peticion,
                                                      [&](double parte) { return sigue = avance(desde + parte * (1 - desde)); });
            return enviadas > 0;
        });
}

void VentanaVista::trabaja(const QString& que, const std::function<QString()>& hecho, const DialogoAvance::Trabajo& trabajo)
{
    // While the operator chose a file or a printer another work may have begun.
    if (m_enObra)
        return;
    m_turno.stop();
    m_buscador.detiene();
    m_banda->hide();
    bool acabado = false;
    DialogoAvance dialogo{que, this};
    m_enObra = &dialogo;
    const QString motivo = fallo([&] { acabado = dialogo.haz(trabajo); });
    m_enObra.clear();
    dialogo.hide();
    if (!motivo.isEmpty())
        m_banda->di(BandaAviso::Clase::Fallo, u"%1, algo ha fallado: %2"_s.arg(que, motivo));
    else
        m_banda->di(BandaAviso::Clase::Noticia, acabado ? hecho() : u"%1: cancelado."_s.arg(que));
    m_paginas.olvida();
    m_lienzo->viewport()->update();
    sigueComponiendo();
    refresca();
}

void VentanaVista::copia()
{
    if (m_enObra)
        return;
    if (m_lienzo->paginasElegidas() <= PaginasSinAvance)
        return m_lienzo->copia();
    trabaja(
        u"Copiando"_s, [] { return u"El texto elegido se ha copiado."_s; },
        [this](const AvanceExportacion& avance) { return m_lienzo->copia(avance); });
}

bool VentanaVista::completa(const AvanceExportacion& avance)
{
    while (!m_fuente->completa()) {
        m_fuente->avanza(QDeadlineTimer{TurnoLargo});
        if (!avance(m_fuente->avance() * ParteDeComponer))
            return false;
    }
    return true;
}

} // namespace kestrane::report
