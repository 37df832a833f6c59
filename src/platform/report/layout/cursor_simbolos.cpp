#include "platform/report/layout/cursor_simbolos.h"

namespace kestrane::report {

using namespace Qt::StringLiterals;

bool CursorSimbolos::esSigno(QStringView signo) const
{
    return actual().clase == ClaseSimbolo::Signo && actual().texto == signo;
}

bool CursorSimbolos::esOperador() const
{
    return actual().clase == ClaseSimbolo::Signo || actual().clase == ClaseSimbolo::Nombre;
}

bool CursorSimbolos::consumeSi(QStringView signo)
{
    const bool es = esSigno(signo);
    m_aqui += es ? 1 : 0;
    return es;
}

void CursorSimbolos::exige(QStringView signo)
{
    if (!consumeSi(signo))
        esperaba(u"«"_s + signo.toString() + u"»"_s);
}

void CursorSimbolos::fallaEn(const Simbolo& simbolo, const QString& que) const
{
    fallaExpresion(m_lugar, m_texto, simbolo.posicion, que);
}

void CursorSimbolos::esperaba(const QString& que) const
{
    const QString hay = actual().clase == ClaseSimbolo::Fin ? u"se acaba la expresión"_s : u"hay «"_s + actual().texto + u"»"_s;
    falla(u"se esperaba "_s + que + u" y "_s + hay + u'.');
}

} // namespace kestrane::report
