#include "platform/report/layout/arbol_xml.h"

#include "platform/report/layout/clases_de_valor.h"
#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/limites.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Espacio = u"urn:kestrane:informe";
constexpr QStringView EspacioInstancia = u"http://www.w3.org/2001/XMLSchema-instance";

/// Letters of a wrong value that an error quotes.
constexpr qsizetype Cita = 60;

template<class Tabla>
QString nombresDe(const Tabla& tabla)
{
    QStringList nombres;
    for (const auto& entrada : tabla)
        nombres << entrada.nombre.toString();
    return nombres.isEmpty() ? u"ninguno"_s : nombres.join(u", "_s);
}

class LectorArbol
{
public:
    LectorArbol(const QByteArray& xml, QString fichero) : m_xml{xml}, m_fichero{std::move(fichero)} {}

    ElementoXml lee(QStringView raiz)
    {
        while (siguiente() != QXmlStreamReader::StartElement)
            continue;
        if (m_xml.name() != raiz)
            falla(u"se esperaba <"_s + raiz.toString() + u"> y hay <"_s + m_xml.name().toString() + u">."_s);
        ElementoXml todo = elemento(tipoDeElemento(raiz), 1);
        while (siguiente() != QXmlStreamReader::EndDocument)
            continue;
        return todo;
    }

private:
    [[nodiscard]] LugarLayout aqui() const { return {m_fichero, static_cast<int>(m_xml.lineNumber())}; }
    [[noreturn]] void falla(const QString& que) const { fallaLayout(aqui(), que); }

    QXmlStreamReader::TokenType siguiente()
    {
        const auto token = m_xml.readNext();
        if (m_xml.hasError())
            falla(u"no es XML correcto: "_s + m_xml.errorString());
        if (token == QXmlStreamReader::DTD || token == QXmlStreamReader::EntityReference)
            falla(u"aquí no se admiten ni DOCTYPE ni entidades propias."_s);
        return token;
    }

    ElementoXml elemento(const TipoElemento& tipo, int profundidad)
    {
        if (m_xml.namespaceUri() != Espacio)
            falla(u"<%1> no es del espacio de nombres «%2»."_s.arg(m_xml.name(), Espacio));
        if (profundidad > limites::ProfundidadXml || ++m_elementos > limites::Elementos)
            falla(u"hay demasiados elementos, o demasiados unos dentro de otros."_s);
        ElementoXml nuevo{m_xml.name().toString(), &tipo, aqui()};
        leeAtributos(nuevo);
        leeContenido(nuevo, profundidad);
        return nuevo;
    }

    void leeAtributos(ElementoXml& nuevo) const
    {
        for (const QXmlStreamAttribute& escrito : m_xml.attributes()) {
            if (escrito.namespaceUri() == EspacioInstancia)
                continue;
            nuevo.atributos.push_back({escrito.qualifiedName().toString(), escrito.value().toString()});
            compruebaAtributo(nuevo, nuevo.atributos.back());
        }
        for (const AtributoVocabulario& atributo : nuevo.tipo->atributos)
            if (atributo.presencia == Presencia::Obligatorio && nuevo.atributo(atributo.nombre) == nullptr)
                falla(u"a <%1> le falta %2."_s.arg(nuevo.nombre, atributo.nombre));
    }

    void compruebaAtributo(const ElementoXml& de, const AtributoXml& escrito) const
    {
        const auto& admitidos = de.tipo->atributos;
        const auto atributo = std::ranges::find_if(admitidos, [&](const auto& a) { return a.nombre == escrito.nombre; });
        if (atributo == admitidos.end())
            falla(u"<%1> no tiene ningún «%2»; los suyos son: %3."_s.arg(de.nombre, escrito.nombre, nombresDe(admitidos)));
        if (!vale(*atributo->clase, escrito.valor))
            falla(u"<%1>, %2: se esperaba %3 y hay «%4»."_s.arg(de.nombre, escrito.nombre, atributo->clase->ayuda,
                                                                trozo(escrito.valor, 0, Cita)));
    }

    void leeContenido(ElementoXml& de, int profundidad)
    {
        for (auto token = siguiente(); token != QXmlStreamReader::EndElement; token = siguiente()) {
            if (token == QXmlStreamReader::StartElement)
                de.hijos.push_back(hijo(de, profundidad));
            else if (token == QXmlStreamReader::Characters)
                de.texto += m_xml.text();
        }
        de.texto = de.texto.trimmed();
        if (de.tipo->texto == TextoPropio::No && !de.texto.isEmpty())
            fallaLayout(de.lugar, u"dentro de <%1> sobra el texto «%2»."_s.arg(de.nombre, trozo(de.texto, 0, Cita)));
    }

    ElementoXml hijo(const ElementoXml& padre, int profundidad)
    {
        const auto& admitidos = padre.tipo->hijos;
        const auto este = std::ranges::find_if(admitidos, [&](const HijoVocabulario& h) { return h.nombre == m_xml.name(); });
        if (este == admitidos.end())
            falla(u"<%1> no puede estar dentro de <%2>; lo que puede: %3."_s.arg(m_xml.name(), padre.nombre, nombresDe(admitidos)));
        return elemento(tipoDeElemento(este->tipo), profundidad + 1);
    }

    QXmlStreamReader m_xml;
    QString m_fichero;
    int m_elementos = 0;
};

} // namespace

const QString* ElementoXml::atributo(QStringView cual) const
{
    const auto hallado = std::ranges::find_if(atributos, [&](const AtributoXml& a) { return a.nombre == cual; });
    return hallado == atributos.end() ? nullptr : &hallado->valor;
}

const ElementoXml* ElementoXml::unico(QStringView cual) const
{
    const ElementoXml* hallado = nullptr;
    for (const ElementoXml& hijo : hijos) {
        if (hijo.nombre != cual)
            continue;
        if (hallado != nullptr)
            fallaLayout(hijo.lugar, u"ya hay un <%1> en la línea %2: solo puede haber uno."_s.arg(cual).arg(hallado->lugar.linea));
        hallado = &hijo;
    }
    return hallado;
}

ElementoXml leeArbol(const QByteArray& xml, const QString& fichero, QStringView raiz)
{
    if (xml.size() > limites::BytesFichero)
        fallaLayout({fichero, 0}, u"el fichero es demasiado grande: se admite un megabyte."_s);
    return LectorArbol{xml, fichero}.lee(raiz);
}

} // namespace kestrane::report
