#include "platform/report/layout/lectura_atributos.h"

#include <QStringList>

namespace kestrane::report {

QString textoDe(const ElementoXml& elemento, QStringView cual, const QString& siFalta)
{
    const QString* escrito = elemento.atributo(cual);
    return escrito == nullptr ? siFalta : *escrito;
}

bool siNoDe(const ElementoXml& elemento, QStringView cual, bool siFalta)
{
    const QString* escrito = elemento.atributo(cual);
    return escrito == nullptr ? siFalta : *escrito == u"si";
}

double medidaDe(const ElementoXml& elemento, QStringView cual, double siFalta)
{
    const QString* escrito = elemento.atributo(cual);
    return escrito == nullptr || *escrito == u"*" ? siFalta : escrito->toDouble();
}

QColor colorDe(const ElementoXml& elemento, QStringView cual, const QColor& siFalta)
{
    const QString* escrito = elemento.atributo(cual);
    if (escrito == nullptr)
        return siFalta;
    return *escrito == u"ninguno" ? QColor{} : QColor{*escrito};
}

Horizontal horizontalDe(const ElementoXml& elemento, QStringView cual, Horizontal siFalta)
{
    const QString* escrito = elemento.atributo(cual);
    if (escrito == nullptr)
        return siFalta;
    if (*escrito == u"izquierda")
        return Horizontal::Izquierda;
    return *escrito == u"centro" ? Horizontal::Centro : Horizontal::Derecha;
}

Vertical verticalDe(const ElementoXml& elemento, QStringView cual, Vertical siFalta)
{
    const QString* escrito = elemento.atributo(cual);
    if (escrito == nullptr)
        return siFalta;
    if (*escrito == u"arriba")
        return Vertical::Arriba;
    return *escrito == u"centro" ? Vertical::Centro : Vertical::Abajo;
}

bool esDescendente(const ElementoXml& elemento)
{
    return textoDe(elemento, u"sentido") == u"descendente";
}

FormatoValor formatoDe(const ElementoXml& elemento)
{
    FormatoValor formato;
    formato.formato = formatoDeNombre(textoDe(elemento, u"formato")).value_or(Formato::General);
    if (const QString* decimales = elemento.atributo(u"decimales"))
        formato.decimales = decimales->toInt();
    formato.ceroEnBlanco = textoDe(elemento, u"cero") == u"blanco";
    return formato;
}

QMarginsF margenesDe(const ElementoXml& elemento, const QMarginsF& siFaltan)
{
    const QString* escrito = elemento.atributo(u"margenes");
    if (escrito == nullptr)
        return siFaltan;
    const QStringList cuatro = escrito->split(u' ');
    return {cuatro[0].toDouble(), cuatro[1].toDouble(), cuatro[2].toDouble(), cuatro[3].toDouble()};
}

} // namespace kestrane::report
