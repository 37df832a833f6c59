#include "platform/suite/windows/fichero_ts.h"

#include "platform/runtime/fichero_destino.h"
#include "platform/runtime/motivo_sistema.h"

#include <QFile>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace kestrane::ts {

using namespace Qt::StringLiterals;

namespace {

Mensaje leeMensaje(QXmlStreamReader& xml)
{
    Mensaje mensaje{.fuente = {}, .traduccion = {}, .estado = {}};
    while (xml.readNextStartElement()) {
        if (xml.name() == "source"_L1) {
            mensaje.fuente = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            mensaje.estado = xml.attributes().value("type"_L1).toString();
            mensaje.traduccion = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return mensaje;
}

Contexto leeContexto(QXmlStreamReader& xml)
{
    Contexto contexto;
    while (xml.readNextStartElement()) {
        if (xml.name() == "name"_L1)
            contexto.nombre = xml.readElementText();
        else if (xml.name() == "message"_L1)
            contexto.mensajes << leeMensaje(xml);
        else
            xml.skipCurrentElement();
    }
    return contexto;
}

Fichero leeTodo(QXmlStreamReader& xml)
{
    Fichero fichero;
    if (!xml.readNextStartElement() || xml.name() != "TS"_L1) {
        xml.raiseError(u"no es un fichero de traducciones"_s);
        return fichero;
    }
    fichero.idioma = xml.attributes().value("language"_L1).toString();
    while (xml.readNextStartElement()) {
        if (xml.name() == "context"_L1)
            fichero.contextos << leeContexto(xml);
        else
            xml.skipCurrentElement();
    }
    return fichero;
}

void escribeMensaje(QXmlStreamWriter& xml, const Mensaje& mensaje)
{
    xml.writeStartElement(u"message"_s);
    xml.writeTextElement(u"source"_s, mensaje.fuente);
    xml.writeStartElement(u"translation"_s);
    if (!mensaje.estado.isEmpty())
        xml.writeAttribute(u"type"_s, mensaje.estado);
    xml.writeCharacters(mensaje.traduccion);
    xml.writeEndElement();
    xml.writeEndElement();
}

void escribeTodo(QXmlStreamWriter& xml, const Fichero& fichero)
{
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeDTD(u"<!DOCTYPE TS>"_s);
    xml.writeStartElement(u"TS"_s);
    xml.writeAttribute(u"version"_s, u"2.1"_s);
    xml.writeAttribute(u"sourcelanguage"_s, u"es"_s);
    if (!fichero.idioma.isEmpty())
        xml.writeAttribute(u"language"_s, fichero.idioma);
    for (const Contexto& contexto : fichero.contextos) {
        xml.writeStartElement(u"context"_s);
        xml.writeTextElement(u"name"_s, contexto.nombre);
        for (const Mensaje& mensaje : contexto.mensajes)
            escribeMensaje(xml, mensaje);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
}

Contexto& contextoDe(Fichero& fichero, const QString& nombre)
{
    const auto sitio = std::ranges::find(fichero.contextos, nombre, &Contexto::nombre);
    if (sitio != fichero.contextos.end())
        return *sitio;
    fichero.contextos.append({nombre, {}});
    return fichero.contextos.last();
}

} // namespace

void Fichero::anade(const QString& contexto, const QStringList& fuentes)
{
    QList<Mensaje>& mensajes = contextoDe(*this, contexto).mensajes;
    for (const QString& fuente : fuentes) {
        if (std::ranges::find(mensajes, fuente, &Mensaje::fuente) == mensajes.end())
            mensajes.append({.fuente = fuente, .traduccion = {}});
    }
}

Resultado<Fichero, QString> lee(const QString& nombre)
{
    QFile entrada{nombre};
    if (!entrada.exists())
        return Fichero{};
    if (!entrada.open(QIODevice::ReadOnly))
        return u"No se puede leer \"%1\": %2."_s.arg(nombre, motivoDe(entrada));
    QXmlStreamReader xml{&entrada};
    Fichero fichero = leeTodo(xml);
    if (xml.hasError())
        return u"\"%1\", línea %2: %3."_s.arg(nombre).arg(xml.lineNumber()).arg(xml.errorString());
    return fichero;
}

QString escribe(const Fichero& fichero, const QString& nombre)
{
    if (const QString estorbo = estorboEn(nombre); !estorbo.isEmpty())
        return u"No se puede escribir \"%1\": %2."_s.arg(nombre, estorbo);
    QSaveFile salida{sigueEnlaces(nombre)};
    if (salida.open(QIODevice::WriteOnly)) {
        QXmlStreamWriter xml{&salida};
        escribeTodo(xml, fichero);
        if (!xml.hasError() && salida.commit())
            return {};
    }
    return u"No se puede escribir \"%1\": %2."_s.arg(nombre, motivoDe(salida));
}

} // namespace kestrane::ts
