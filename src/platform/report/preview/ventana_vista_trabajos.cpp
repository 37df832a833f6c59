#include "platform/report/preview/dialogo_impresion.h"
#include "platform/report/preview/ventana_vista.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <array>
#include <chrono>

namespace kestrane::report {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto TurnoLargo = 30ms;
constexpr auto EsperaPagina = 500ms;

struct TipoFichero
{
    QStringView terminacion;
    QStringView nombre;
};

/// In the order of FormatoExportacion.
constexpr std::array<TipoFichero, 5> Tipos{{{u"pdf", u"Documento PDF"},
                                            {u"xlsx", u"Hoja de cálculo"},
                                            {u"csv", u"Datos separados"},
                                            {u"html", u"Página web"},
                                            {u"png", u"Imagen"}}};

const TipoFichero& tipo(FormatoExportacion formato)
{
    return Tipos.at(int(formato));
}

/// A report's title as the name of a file, whatever stands in it.
QString nombreDeFichero(const QString& titulo)
{
    QString nombre;
    for (const QChar letra : titulo.trimmed().left(80))
        nombre += letra.isLetterOrNumber() || letra == u' ' || letra == u'-' ? letra : u'_';
    return nombre.isEmpty() ? u"Informe"_s : nombre;
}

} // namespace

QString eligeFicheroConDialogo(QWidget* padre, FormatoExportacion formato, const QString& propuesto)
{
    const QString filtro = u"%1 (*.%2)"_s.arg(tipo(formato).nombre, tipo(formato).terminacion);
    return QFileDialog::getSaveFileName(padre, u"Exportar el informe"_s, propuesto, filtro);
}

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
    const int pagina = m_lienzo->paginaActual();
    const QDeadlineTimer plazo{EsperaPagina};
    // Back to the page that was looked at, if that is soon.
    const QString motivo = fallo([&] {
        while (m_fuente->paginas() <= pagina && !m_fuente->completa() && !plazo.hasExpired())
            m_fuente->avanza(QDeadlineTimer{TurnoLargo});
    });
    m_incompleta = false;
    m_buscador.ponIncompleto(false);
    if (!motivo.isEmpty())
        quedaIncompleta(motivo);
    m_banda->hide();
    m_buscador.busca({}, 0);
    m_arbol->vacia();
    m_miniaturas->olvida();
    m_lienzo->recomienza();
    sigueComponiendo();
    refresca();
    irAPagina(pagina);
    m_barraBusqueda->repite();
}

void VentanaVista::imprime()
{
    if (m_enObra || !m_servicios.impresion)
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
    trabaja(u"Imprimiendo"_s, u"El informe se ha enviado a la impresora %1."_s.arg(peticion.impresora),
            [this, &peticion](const AvanceExportacion& avance) {
                return completa(avance) && m_servicios.impresion->imprime(*m_fuente, peticion, avance);
            });
}

void VentanaVista::exporta(FormatoExportacion formato)
{
    if (m_enObra)
        return;
    const QString terminacion = u'.' + tipo(formato).terminacion.toString();
    const QString carpeta =
        m_recuerdo.carpeta.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : m_recuerdo.carpeta;
    QString fichero =
        m_servicios.eligeFichero(this, formato, QDir{carpeta}.filePath(nombreDeFichero(m_fuente->titulo()) + terminacion));
    if (fichero.isEmpty())
        return;
    if (!fichero.endsWith(terminacion, Qt::CaseInsensitive))
        fichero += terminacion;
    m_recuerdo.carpeta = QFileInfo{fichero}.absolutePath();
    trabaja(u"Exportando"_s, u"El informe se ha guardado en %1."_s.arg(QDir::toNativeSeparators(fichero)),
            [&](const AvanceExportacion& avance) { return m_fuente->exporta(formato, fichero, avance); });
}

void VentanaVista::trabaja(const QString& que, const QString& hecho, const DialogoAvance::Trabajo& trabajo)
{
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
        m_banda->di(BandaAviso::Clase::Fallo, u"%1: no se ha podido. %2"_s.arg(que, motivo));
    else
        m_banda->di(BandaAviso::Clase::Noticia, acabado ? hecho : u"%1: cancelado."_s.arg(que));
    m_paginas.olvida();
    m_lienzo->viewport()->update();
    sigueComponiendo();
    refresca();
}

bool VentanaVista::completa(const AvanceExportacion& avance)
{
    while (!m_fuente->completa()) {
        m_fuente->avanza(QDeadlineTimer{TurnoLargo});
        if (!avance(m_fuente->avance() / 2))
            return false;
    }
    return true;
}

} // namespace kestrane::report
