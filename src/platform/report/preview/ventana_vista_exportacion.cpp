#include "platform/report/export/png.h"
#include "platform/report/preview/ventana_vista.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStandardPaths>

#include <array>
#include <limits>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

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

} // namespace kestrane::report
