#include "platform/jet/error_sql.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

namespace {

constexpr int Alrededor = 40; ///< characters shown on each side of the place

bool esBlanco(QChar c)
{
    return c.isSpace() || c.category() == QChar::Other_Control;
}

/// The stretch on one line: line ends and other control characters become blanks, so that the mark below stands in its place.
QString enUnaLinea(QStringView texto)
{
    QString linea = texto.toString();
    std::ranges::replace_if(linea, esBlanco, QChar(u' '));
    return linea;
}

} // namespace

QString describe(const ErrorSql& error, QStringView sentencia)
{
    const int largo = static_cast<int>(sentencia.size());
    const int posicion = std::clamp(error.posicion, 0, largo);
    const int longitud = std::clamp(error.longitud, 0, largo - posicion);
    int desde = std::max(0, posicion - Alrededor);
    int hasta = std::min(largo, posicion + longitud + Alrededor);
    // No character beyond the basic plane is cut in two.
    if (desde > 0 && sentencia[desde].isLowSurrogate())
        --desde;
    if (hasta < largo && sentencia[hasta].isLowSurrogate())
        ++hasta;
    const QString antes = desde > 0 ? u"..."_s : QString();
    const QString despues = hasta < largo ? u"..."_s : QString();
    const QString linea = antes + enUnaLinea(sentencia.sliced(desde, hasta - desde)) + despues;
    const qsizetype sangria = antes.size() + posicion - desde;
    const QString marca = QString(sangria, u' ') + QString(std::max(1, longitud), u'^');
    return u"%1 (posición %2)\n%3\n%4"_s.arg(error.mensaje).arg(posicion + 1).arg(linea, marca);
}

} // namespace kestrane::jet
