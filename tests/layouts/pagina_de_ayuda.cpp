#include "layouts/pagina_de_ayuda.h"

#include <QFile>
#include <QXmlStreamReader>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

class Lector
{
public:
    explicit Lector(const QString& fichero)
    {
        QFile entrada{fichero};
        if (!entrada.open(QIODevice::ReadOnly)) {
            m_pagina.fallo = entrada.errorString();
            return;
        }
        m_pagina.html = QString::fromUtf8(entrada.readAll());
        m_xml.addData(m_pagina.html);
    }

    PaginaDeAyuda lee()
    {
        while (m_pagina.fallo.isEmpty() && !m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isStartElement())
                abre(m_xml.name().toString());
            else if (m_xml.isEndElement())
                cierra(m_xml.name().toString());
            else if (m_xml.isCharacters())
                escribe(m_xml.text().toString());
        }
        if (m_xml.hasError())
            m_pagina.fallo = u"%1: %2"_s.arg(m_xml.lineNumber()).arg(m_xml.errorString());
        return std::move(m_pagina);
    }

private:
    /// The level of the heading of that name; 0 for every other element.
    [[nodiscard]] static int nivelDe(const QString& elemento)
    {
        return elemento.size() == 2 && elemento.front() == u'h' ? elemento.back().digitValue() : 0;
    }

    void abre(const QString& elemento)
    {
        m_pagina.elementos.insert(elemento);
        for (const QXmlStreamAttribute& atributo : m_xml.attributes())
            m_pagina.atributos.insert(atributo.name().toString());
        m_enEstilos = elemento == u"style";
        if (const int nivel = nivelDe(elemento); nivel > 0) {
            m_enTitulo = true;
            m_pagina.apartados.push_back({.nivel = nivel, .capitulo = m_capitulo});
        }
        if (elemento == u"a")
            anota(m_xml.attributes());
    }

    void anota(const QXmlStreamAttributes& atributos)
    {
        if (atributos.hasAttribute(u"href"_s))
            m_pagina.enlaces << atributos.value(u"href"_s).toString();
        if (!atributos.hasAttribute(u"name"_s))
            return;
        const QString nombre = atributos.value(u"name"_s).toString();
        m_pagina.anclas << nombre;
        if (!m_enTitulo)
            return;
        Apartado& apartado = m_pagina.apartados.back();
        apartado.ancla = nombre;
        if (apartado.nivel == 2)
            m_capitulo = apartado.capitulo = nombre;
    }

    void cierra(const QString& elemento)
    {
        m_enTitulo = m_enTitulo && nivelDe(elemento) == 0;
        m_enEstilos = false;
    }

    void escribe(const QString& texto)
    {
        if (m_enEstilos)
            m_pagina.estilos += texto;
        else if (!m_pagina.apartados.empty())
            (m_enTitulo ? m_pagina.apartados.back().titulo : m_pagina.apartados.back().texto) += texto;
    }

    QXmlStreamReader m_xml;
    PaginaDeAyuda m_pagina;
    QString m_capitulo;
    bool m_enTitulo = false;
    bool m_enEstilos = false;
};

} // namespace

PaginaDeAyuda leeAyuda(const QString& fichero)
{
    return Lector{fichero}.lee();
}

} // namespace kestrane::prueba
