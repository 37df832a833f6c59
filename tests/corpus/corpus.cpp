#include "corpus/corpus.h"

#include "lote/consola_sql.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

namespace {

QDir carpeta()
{
    return QDir{QStringLiteral(KESTRANE_CORPUS)};
}

QStringList lineasDe(const QString& nombre)
{
    QFile fichero{carpeta().filePath(nombre)};
    if (!fichero.open(QIODevice::ReadOnly))
        throw std::runtime_error{"corpus: " + nombre.toStdString()};
    return QString::fromUtf8(fichero.readAll()).split(u'\n');
}

bool esComentario(const QString& linea)
{
    return linea.isEmpty() || linea.startsWith("# "_L1) || linea == "#"_L1;
}

SentenciaCorpus leeCabeza(const QString& linea)
{
    const QStringList palabras = linea.split(u' ');
    if (palabras.size() < 4 || palabras[0] != "@"_L1)
        throw std::runtime_error{"corpus: " + linea.toStdString()};
    SentenciaCorpus sentencia;
    sentencia.base = palabras[1] == "listados"_L1 ? SentenciaCorpus::Base::Listados : SentenciaCorpus::Base::Tienda;
    sentencia.veredicto = palabras[2] == "rehusada"_L1 ? SentenciaCorpus::Veredicto::Rehusada : SentenciaCorpus::Veredicto::Corre;
    sentencia.nombre = palabras.mid(3).join(u' ');
    return sentencia;
}

} // namespace

bool SentenciaCorpus::escribe() const
{
    const QString principio = texto.trimmed().toLower();
    return principio.startsWith("insert"_L1) || principio.startsWith("update"_L1) || principio.startsWith("delete"_L1);
}

std::vector<std::string> areasDelCorpus()
{
    std::vector<std::string> areas;
    for (const QString& fichero : carpeta().entryList({u"*.corpus"_s}, QDir::Files, QDir::Name))
        areas.push_back(fichero.chopped(7).toStdString());
    return areas;
}

std::vector<SentenciaCorpus> sentenciasDe(const std::string& area)
{
    std::vector<SentenciaCorpus> sentencias;
    const QStringList lineas = lineasDe(QString::fromStdString(area) + u".corpus"_s);
    for (qsizetype i = 0; i < lineas.size(); ++i) {
        if (esComentario(lineas[i]))
            continue;
        sentencias.push_back(leeCabeza(lineas[i]));
        sentencias.back().area = QString::fromStdString(area);
        if (++i == lineas.size())
            throw std::runtime_error{"corpus: " + area + " ends behind a head"};
        sentencias.back().texto = lote::sinEscapes(lineas[i]);
    }
    return sentencias;
}

std::vector<SentenciaCorpus> todasLasSentencias()
{
    std::vector<SentenciaCorpus> todas;
    for (const std::string& area : areasDelCorpus()) {
        auto suyas = sentenciasDe(area);
        std::ranges::move(suyas, std::back_inserter(todas));
    }
    return todas;
}

std::vector<QString> altasDe(SentenciaCorpus::Base base)
{
    std::vector<QString> altas;
    for (const QString& linea :
         lineasDe(base == SentenciaCorpus::Base::Tienda ? u"tienda_pequena.sql"_s : u"listados_pequena.sql"_s)) {
        if (!esComentario(linea))
            altas.push_back(lote::sinEscapes(linea));
    }
    return altas;
}

} // namespace kestrane::prueba
