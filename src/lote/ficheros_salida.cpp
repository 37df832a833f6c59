#include "lote/ficheros_salida.h"

#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/motivo_sistema.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void noSePuedeEscribir(const QString& nombre, const QString& motivo)
{
    throw ErrorDeSalida{u"\"%1\": %2"_s.arg(nombre, motivo)};
}

void copia(QTemporaryFile& origen, QIODevice& salida)
{
    if (!origen.seek(0))
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

std::unique_ptr<QSaveFile> abre(const QString& nombre)
{
    auto fichero = std::make_unique<QSaveFile>(nombre);
    if (!fichero->open(QIODevice::WriteOnly))
        noSePuedeEscribir(nombre, motivoDe(*fichero));
    return fichero;
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
        noSePuedeEscribir(nombre, motivoDe(fichero));
    escribeEn(fichero, escritor, informes);
    if (!fichero.flush())
        noSePuedeEscribir(nombre, motivoDe(fichero));
}

void escribeFicherosNuevos(const QString& nombre, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    std::vector<std::unique_ptr<QSaveFile>> ficheros;
    QSet<QString> dados;
    for (size_t i = 0; i < informes.size(); ++i) {
        ficheros.push_back(abre(informes.size() == 1 ? nombre : conTiendaNueva(nombre, informes[i].tienda, dados)));
        escribeEn(*ficheros.back(), escritor, informes.subspan(i, 1));
    }
    for (const auto& fichero : ficheros) {
        if (!fichero->commit())
            noSePuedeEscribir(fichero->fileName(), motivoDe(*fichero));
    }
}

} // namespace

void escribeEn(QIODevice& salida, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    escribeTodo(salida, escritor.principio());
    for (const CuerpoInforme& informe : informes) {
        if (&informe != informes.data())
            escribeTodo(salida, escritor.separador());
        copia(*informe.fichero, salida);
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
        return abre(nombre)->cancelWriting();
    if (!QFileInfo{nombre}.isWritable())
        noSePuedeEscribir(nombre, u"sin permiso"_s);
}

} // namespace kestrane::lote
