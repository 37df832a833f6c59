#include "lote/ficheros_salida.h"

#include "lote/error_de_salida.h"

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

void anade(QIODevice& salida, QByteArray bytes)
{
    vuelca(bytes, salida);
}

void copia(QTemporaryFile& origen, QIODevice& salida)
{
    constexpr qint64 Trozo = 64 * 1024;
    if (!origen.seek(0))
        throw ErrorDeSalida{origen.errorString()};
    while (!origen.atEnd())
        anade(salida, origen.read(Trozo));
    if (origen.error() != QFileDevice::NoError)
        throw ErrorDeSalida{origen.errorString()};
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
        noSePuedeEscribir(nombre, fichero->errorString());
    return fichero;
}

} // namespace

void escribeEn(QIODevice& salida, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    anade(salida, escritor.principio());
    for (const CuerpoInforme& informe : informes) {
        if (&informe != informes.data())
            anade(salida, escritor.separador());
        copia(*informe.fichero, salida);
    }
    anade(salida, escritor.final());
}

void escribeFicheros(const QString& nombre, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes)
{
    std::vector<std::unique_ptr<QSaveFile>> ficheros;
    QSet<QString> dados;
    for (size_t i = 0; i < informes.size(); ++i) {
        ficheros.push_back(abre(informes.size() == 1 ? nombre : conTiendaNueva(nombre, informes[i].tienda, dados)));
        escribeEn(*ficheros.back(), escritor, informes.subspan(i, 1));
    }
    for (const auto& fichero : ficheros) {
        if (!fichero->commit())
            noSePuedeEscribir(fichero->fileName(), fichero->errorString());
    }
}

void compruebaQueSePuedeEscribir(const QString& nombre)
{
    abre(nombre)->cancelWriting();
}

} // namespace kestrane::lote
