#include "platform/report/layout/partes_comunes.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lectura_atributos.h"
#include "platform/report/layout/limites.h"

#include <QFile>
#include <QFileInfo>

namespace kestrane::report {

using namespace Qt::StringLiterals;

PartesComunes::PartesComunes(const ElementoXml& raiz, const QString& carpeta, HojaEstilos& estilos)
{
    for (const ElementoXml& hijo : raiz.hijos)
        if (hijo.nombre == u"usa")
            lee(hijo, carpeta, estilos);
}

void PartesComunes::lee(const ElementoXml& usa, const QString& carpeta, HojaEstilos& estilos)
{
    const QString fichero = textoDe(usa, u"fichero");
    if (carpeta.isEmpty())
        fallaLayout(usa.lugar, u"no hay ninguna carpeta de la que leer «"_s + fichero + u"»."_s);
    if (m_ficheros.size() >= limites::Partes)
        fallaLayout(usa.lugar, u"el informe usa demasiados ficheros: se admiten %1."_s.arg(limites::Partes));
    const QByteArray bytes = bytesDeFichero(carpeta + u'/' + fichero, usa.lugar);
    m_ficheros.push_back(leeArbol(bytes, QFileInfo{fichero}.fileName(), u"partes"));
    estilos.anade(m_ficheros.back());
    for (const ElementoXml& hijo : m_ficheros.back().hijos) {
        if (hijo.nombre == u"bandas" && !m_bandas.emplace(textoDe(hijo, u"nombre"), &hijo).second)
            fallaLayout(hijo.lugar, u"ya hay unas bandas «"_s + textoDe(hijo, u"nombre") + u"»."_s);
    }
}

const ElementoXml& PartesComunes::bandas(const ElementoXml& pedido) const
{
    const auto halladas = m_bandas.find(textoDe(pedido, u"de"));
    if (halladas == m_bandas.end()) {
        QStringList hay;
        for (const auto& entrada : m_bandas)
            hay << entrada.first;
        const QString nombres = hay.isEmpty() ? u"ninguna"_s : hay.join(u", "_s);
        fallaLayout(pedido.lugar, u"no hay ningunas bandas «%1»; las que hay: %2."_s.arg(textoDe(pedido, u"de"), nombres));
    }
    return *halladas->second;
}

QByteArray bytesDeFichero(const QString& ruta, const LugarLayout& pedido)
{
    QFile fichero{ruta};
    if (QFileInfo{ruta}.isDir() || !fichero.open(QIODevice::ReadOnly))
        fallaLayout(pedido, u"no se puede leer «%1»: %2."_s.arg(ruta, fichero.exists() ? fichero.errorString() : u"no existe"_s));
    return fichero.read(limites::BytesFichero + 1);
}

} // namespace kestrane::report
