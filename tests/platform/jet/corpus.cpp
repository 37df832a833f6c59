#include "platform/jet/corpus.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

namespace {

QString sinEscapes(const QString& linea)
{
    QString texto;
    for (qsizetype i = 0; i < linea.size(); ++i) {
        const bool escape = linea[i] == u'\\' && i + 1 < linea.size();
        if (!escape) {
            texto += linea[i];
            continue;
        }
        const QChar c = linea[++i];
        texto += c == u'r' ? QChar(u'\r') : c == u'n' ? QChar(u'\n') : c;
    }
    return texto;
}

SentenciaDelCorpus cabecera(const QString& linea, const QString& fichero)
{
    SentenciaDelCorpus sentencia;
    sentencia.fichero = fichero;
    sentencia.base = linea.section(u' ', 1, 1);
    sentencia.destino =
        linea.section(u' ', 2, 2) == u"corre" ? SentenciaDelCorpus::Destino::Corre : SentenciaDelCorpus::Destino::Rehusada;
    sentencia.nombre = linea.section(u' ', 3);
    return sentencia;
}

void leeFichero(const QString& ruta, const QString& nombre, std::vector<SentenciaDelCorpus>& corpus)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        return;
    const QStringList lineas = QString::fromUtf8(fichero.readAll()).split(u'\n');
    for (qsizetype i = 0; i + 1 < lineas.size(); ++i) {
        if (!lineas[i].startsWith(u"@ "_s))
            continue;
        corpus.push_back(cabecera(lineas[i], nombre));
        corpus.back().texto = sinEscapes(lineas[++i]);
    }
}

} // namespace

std::vector<SentenciaDelCorpus> leeCorpus(const QString& carpeta)
{
    std::vector<SentenciaDelCorpus> corpus;
    const QDir dir(carpeta);
    for (const QString& nombre : dir.entryList({u"*.corpus"_s}, QDir::Files, QDir::Name))
        leeFichero(dir.filePath(nombre), nombre, corpus);
    return corpus;
}

} // namespace kestrane::jet
