#include "platform/report/layout/lexico_expresion.h"

#include "platform/report/layout/error_layout.h"

#include <array>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

/// The longer ones first.
constexpr std::array<QStringView, 15> Signos = {u"<>", u"<=", u">=", u"<", u">", u"=", u"+", u"-",
                                                u"*",  u"/",  u"&",  u"(", u")", u";", u","};

bool empiezaNombre(QChar c)
{
    return c.isLetter() || c == u'_';
}

bool esDigito(QChar c)
{
    return c >= u'0' && c <= u'9';
}

class Lexico
{
public:
    Lexico(QStringView texto, const LugarLayout& lugar) : m_texto{texto}, m_lugar{lugar} {}

    std::vector<Simbolo> simbolos()
    {
        std::vector<Simbolo> todos;
        do
            todos.push_back(siguiente());
        while (todos.back().clase != ClaseSimbolo::Fin);
        return todos;
    }

private:
    Simbolo siguiente()
    {
        while (m_aqui < m_texto.size() && m_texto[m_aqui].isSpace())
            ++m_aqui;
        if (m_aqui == m_texto.size())
            return {ClaseSimbolo::Fin, {}, 0, m_aqui};
        const QChar c = m_texto[m_aqui];
        if (esDigito(c))
            return numero();
        if (c == u'\'')
            return texto();
        return empiezaNombre(c) ? nombre() : signo();
    }

    template<class Condicion>
    void avanzaMientras(Condicion condicion)
    {
        while (m_aqui < m_texto.size() && condicion(m_texto[m_aqui]))
            ++m_aqui;
    }

    Simbolo numero()
    {
        const qsizetype desde = m_aqui;
        avanzaMientras(esDigito);
        if (m_aqui + 1 < m_texto.size() && m_texto[m_aqui] == u'.' && esDigito(m_texto[m_aqui + 1])) {
            ++m_aqui;
            avanzaMientras(esDigito);
        }
        const QString escrito = m_texto.mid(desde, m_aqui - desde).toString();
        return {ClaseSimbolo::Numero, escrito, escrito.toDouble(), desde};
    }

    Simbolo texto()
    {
        const qsizetype desde = m_aqui++;
        QString dice;
        while (m_aqui < m_texto.size()) {
            const QChar c = m_texto[m_aqui++];
            if (c != u'\'')
                dice += c;
            else if (m_aqui < m_texto.size() && m_texto[m_aqui] == u'\'')
                dice += m_texto[m_aqui++];
            else
                return {ClaseSimbolo::Texto, dice, 0, desde};
        }
        fallaExpresion(m_lugar, m_texto, desde, u"al texto que empieza aquí le falta la comilla (') del final."_s);
    }

    Simbolo nombre()
    {
        const qsizetype desde = m_aqui;
        avanzaMientras([](QChar c) { return empiezaNombre(c) || esDigito(c); });
        return {ClaseSimbolo::Nombre, m_texto.mid(desde, m_aqui - desde).toString(), 0, desde};
    }

    Simbolo signo()
    {
        for (const QStringView signo : Signos) {
            if (!m_texto.mid(m_aqui).startsWith(signo))
                continue;
            m_aqui += signo.size();
            return {ClaseSimbolo::Signo, signo.toString(), 0, m_aqui - signo.size()};
        }
        fallaExpresion(m_lugar, m_texto, m_aqui, u"no se entiende el signo «%1»."_s.arg(trozo(m_texto, m_aqui, 1)));
    }

    QStringView m_texto;
    const LugarLayout& m_lugar;
    qsizetype m_aqui = 0;
};

} // namespace

void fallaExpresion(const LugarLayout& lugar, QStringView expresion, qsizetype posicion, const QString& que)
{
    constexpr qsizetype Cita = 60; // A long expression is quoted around the place.
    const qsizetype desde = std::max<qsizetype>(0, posicion - Cita / 2);
    QString cita = trozo(expresion, desde, Cita).simplified();
    if (desde > 0)
        cita.prepend(u'…');
    if (desde + Cita < expresion.size())
        cita.append(u'…');
    const QString donde = u"en «"_s + cita + u"», carácter "_s + QString::number(posicion + 1);
    fallaLayout(lugar, donde + u": "_s + que);
}

std::vector<Simbolo> simbolosDe(QStringView expresion, const LugarLayout& lugar)
{
    return Lexico{expresion, lugar}.simbolos();
}

} // namespace kestrane::report
