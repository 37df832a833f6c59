#include "platform/report/export/png.h"
#include "platform/report/preview/dialogo_impresion.h"
#include "platform/report/preview/ventana_vista.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStandardPaths>

#include <array>
#include <chrono>
#include <limits>

namespace kestrane::report {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto TurnoLargo = 30ms;
constexpr auto EsperaPagina = 500ms;
constexpr int PaginasSinAvance = 40;    ///< their text is copied before anybody notices
constexpr double ParteDeComponer = 0.5; ///< of the bar, when pages are laid out before they are printed

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
    QFileDialog dialogo{padre, u"Exportar el informe"_s, QFileInfo{propuesto}.absolutePath(), filtro};
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    // The dialog asks about overwriting the name that is written in the end.
    dialogo.setDefaultSuffix(tipo(formato).terminacion.toString());
    dialogo.selectFile(QFileInfo{propuesto}.fileName());
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString{};
}

bool confirmaReemplazoConDialogo(QWidget* padre, const QString& cuales)
{
    return QMessageBox::question(padre, u"Exportar el informe"_s, u"Ya existe %1. ¿Quiere reemplazarlo?"_s.arg(cuales),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
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
    trabaja(
        u"Imprimiendo"_s, [&] { return u"El informe se ha enviado a la impresora %1."_s.arg(peticion.impresora); },
        [this, &peticion](const AvanceExportacion& avance) {
            const double desde = m_fuente->completa() ? 0 : ParteDeComponer;
            return completa(avance) && m_servicios.impresion->imprime(*m_fuente, peticion, [&avance, desde](double parte) {
                return avance(desde + parte * (1 - desde));
            });
        });
}

void VentanaVista::exporta(FormatoExportacion formato)
{
    if (m_enObra)
        return;
    const QString fichero = pideFichero(formato);
    if (fichero.isEmpty())
        return;
    m_recuerdo.carpeta = QFileInfo{fichero}.absolutePath();
    trabaja(
        u"Exportando"_s, [&] { return dondeSeHaGuardado(formato, fichero); },
        [&](const AvanceExportacion& avance) { return m_fuente->exporta(formato, fichero, avance); });
}

QString VentanaVista::pideFichero(FormatoExportacion formato)
{
    const QString terminacion = u'.' + tipo(formato).terminacion.toString();
    const QString carpeta =
        m_recuerdo.carpeta.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : m_recuerdo.carpeta;
    QString fichero =
        m_servicios.eligeFichero(this, formato, QDir{carpeta}.filePath(nombreDeFichero(m_fuente->titulo()) + terminacion));
    if (fichero.isEmpty())
        return {};
    const bool otroNombre = !fichero.endsWith(terminacion, Qt::CaseInsensitive);
    if (otroNombre)
        fichero += terminacion;
    // About the name that was chosen the dialog has asked.
    QString cuales = ficherosQueHay(formato, fichero);
    if (cuales.isEmpty() && otroNombre && QFileInfo::exists(fichero))
        cuales = QFileInfo{fichero}.fileName();
    return cuales.isEmpty() || m_servicios.confirmaReemplazo(this, cuales) ? fichero : QString{};
}

QString VentanaVista::ficherosQueHay(FormatoExportacion formato, const QString& fichero) const
{
    if (formato != FormatoExportacion::Png || (m_fuente->completa() && m_fuente->paginas() <= 1))
        return {};
    // Pictures of several pages have numbers in their names, of which the dialog knows nothing; as long as pages come any number.
    const QFileInfo destino{fichero};
    const int paginas = m_fuente->completa() ? m_fuente->paginas() : std::numeric_limits<int>::max();
    const QRegularExpression numerado{u"^%1_(\\d{3,})\\.%2$"_s.arg(QRegularExpression::escape(destino.completeBaseName()),
                                                                   QRegularExpression::escape(destino.suffix()))};
    QStringList hay;
    for (const QString& nombre : destino.absoluteDir().entryList(QDir::Files, QDir::Name)) {
        const auto encaje = numerado.match(nombre);
        if (encaje.hasMatch() && encaje.captured(1).toInt() >= 1 && encaje.captured(1).toInt() <= paginas)
            hay += nombre;
    }
    return hay.size() < 2 ? hay.join(QString{}) : u"%1 y %2 más"_s.arg(hay.first(), QString::number(hay.size() - 1));
}

QString VentanaVista::dondeSeHaGuardado(FormatoExportacion formato, const QString& fichero) const
{
    const int paginas = m_fuente->paginas();
    if (formato != FormatoExportacion::Png || paginas <= 1)
        return u"El informe se ha guardado en %1."_s.arg(QDir::toNativeSeparators(fichero));
    return u"El informe se ha guardado en %1 imágenes, de %2 a %3."_s.arg(paginas).arg(
        QDir::toNativeSeparators(ficheroDePagina(fichero, 0, paginas)),
        QFileInfo{ficheroDePagina(fichero, paginas - 1, paginas)}.fileName());
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
