#include "lote/ficheros_salida.h"

#include "lote/peticion_imposible.h"
#include "platform/report/export/entrega_conjunta.h"
#include "platform/report/export/png.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/fichero_destino.h"
#include "platform/runtime/motivo_sistema.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <vector>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

void copia(const QString& parte, QIODevice& salida)
{
    QFile origen{parte};
    if (!origen.open(QIODevice::ReadOnly))
        throw ErrorDeSalida{motivoDe(origen)};
    while (!origen.atEnd())
        escribeTodo(salida, origen.read(TrozoDeSalida));
    if (origen.error() != QFileDevice::NoError)
        throw ErrorDeSalida{motivoDe(origen)};
}

/// The store's name as a part of a file's name.
QString paraFichero(QString tienda)
{
    for (QChar& signo : tienda) {
        if (!signo.isLetterOrNumber() && signo != u' ' && signo != u'-' && signo != u'_' && signo != u'.')
            signo = u'_';
    }
    return tienda;
}

QString conTienda(const QString& nombre, const QString& tienda)
{
    const QFileInfo fichero{nombre};
    const QString ending = fichero.suffix().isEmpty() ? QString{} : u'.' + fichero.suffix();
    return nombre.chopped(ending.size()) + u'-' + paraFichero(tienda) + ending;
}

QString conTiendaNueva(const QString& nombre, const QString& tienda, QSet<QString>& dados)
{
    QString elegido = conTienda(nombre, tienda);
    for (int vez = 2; dados.contains(elegido.toCaseFolded()); ++vez)
        elegido = conTienda(nombre, tienda + u'-' + QString::number(vez));
    dados.insert(elegido.toCaseFolded());
    return elegido;
}

/// A pipe or a device: it stays what it is, and what is written goes through it.
bool esEspecial(const QString& nombre)
{
    const QFileInfo fichero{nombre};
    return fichero.exists() && !fichero.isFile() && !fichero.isDir();
}

void escribePorEl(const QString& nombre, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    QFile fichero{nombre};
    if (!fichero.open(QIODevice::WriteOnly))
        report::noSePuedeEscribir(nombre, motivoDe(fichero));
    escribeEn(fichero, escritor, informes);
    if (!fichero.flush())
        report::noSePuedeEscribir(nombre, motivoDe(fichero));
}

/// A part of a report and the file that it becomes.
struct Entrega
{
    QString destino;
    QString parte;
};

/// One file for each part of each report. ErrorDeSalida when something is in the way of one of them.
std::vector<Entrega> entregasDe(const QString& nombre, std::span<const CuerpoInforme> informes)
{
    std::vector<Entrega> entregas;
    QSet<QString> dados;
    for (const CuerpoInforme& informe : informes) {
        const QString suyo = informes.size() == 1 ? nombre : conTiendaNueva(nombre, informe.tienda, dados);
        const int partes = static_cast<int>(informe.partes.size());
        for (int parte = 0; parte < partes; ++parte)
            entregas.push_back({destinoDeEscritura(report::ficheroDePagina(suyo, parte, partes)), informe.partes[parte]});
    }
    return entregas;
}

/// Each file is closed before the next one is opened: a report may have more pages than a process may have files.
void escribeFicherosNuevos(const QString& nombre, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    const std::vector<Entrega> entregas = entregasDe(nombre, informes);
    if (entregas.empty())
        return;
    const report::CarpetaProvisional carpeta{entregas.front().destino};
    const auto provisional = [](size_t entrega) { return QString::number(entrega); };
    for (size_t entrega = 0; entrega < entregas.size(); ++entrega) {
        carpeta.escribe(provisional(entrega), entregas[entrega].destino, [&](QFile& fichero) {
            escribeTodo(fichero, escritor.principio());
            copia(entregas[entrega].parte, fichero);
            escribeTodo(fichero, escritor.final());
        });
    }
    report::EntregaConjunta juntas{carpeta};
    for (size_t entrega = 0; entrega < entregas.size(); ++entrega)
        juntas.entrega(provisional(entrega), entregas[entrega].destino);
    juntas.confirma();
}

/// The files of all reports, which are to stand in one document.
QStringList partesJuntas(const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    QStringList partes;
    for (const CuerpoInforme& informe : informes)
        partes += informe.partes;
    if (partes.size() > 1 && escritor.juntos() == Juntos::No)
        throw PeticionImposible{u"Son %1 ficheros: indique dónde con --salida FICHERO."_s.arg(partes.size())};
    return partes;
}

} // namespace

void escribeEn(QIODevice& salida, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    const QStringList partes = partesJuntas(escritor, informes);
    escribeTodo(salida, escritor.principio());
    for (qsizetype parte = 0; parte < partes.size(); ++parte) {
        if (parte > 0)
            escribeTodo(salida, escritor.separador());
        copia(partes[parte], salida);
    }
    escribeTodo(salida, escritor.final());
}

void escribeFicheros(const QString& nombre, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    esEspecial(nombre) ? escribePorEl(nombre, escritor, informes) : escribeFicherosNuevos(nombre, escritor, informes);
}

void compruebaQueSePuedeEscribir(const QString& nombre)
{
    if (!esEspecial(nombre))
        return static_cast<void>(report::CarpetaProvisional{destinoDeEscritura(nombre)});
    if (!QFileInfo{nombre}.isWritable())
        report::noSePuedeEscribir(nombre, u"sin permiso"_s);
}

} // namespace kestrane::lote
