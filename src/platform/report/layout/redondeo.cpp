#include "platform/report/layout/redondeo.h"

#include <algorithm>
#include <cmath>

namespace kestrane::report {

namespace {

/// Digits d1 d2 .. that stand for 0.d1d2.. times 10 to `exponente`.
struct Cifras
{
    QString cifras;
    int exponente = 0;
};

Cifras cifrasDe(double numero)
{
    const QString cientifico = QString::number(std::abs(numero), 'e', 14); // "d.dddddddddddddde+XX"
    return {cientifico.left(1) + cientifico.mid(2, 14), cientifico.mid(17).toInt() + 1};
}

/// Cuts behind `cuantas` digits and carries a half upwards.
void corta(Cifras& numero, int cuantas)
{
    if (cuantas >= numero.cifras.size())
        return;
    const bool sube = numero.cifras[cuantas] >= u'5';
    numero.cifras.truncate(cuantas);
    if (!sube)
        return;
    qsizetype lugar = cuantas;
    while (lugar > 0 && numero.cifras[lugar - 1] == u'9')
        numero.cifras[--lugar] = u'0';
    if (lugar > 0) {
        numero.cifras[lugar - 1] = QChar(numero.cifras[lugar - 1].unicode() + 1);
    } else {
        numero.cifras.prepend(u'1');
        ++numero.exponente;
    }
}

} // namespace

QString conDecimales(double numero, int decimales)
{
    Cifras valor = cifrasDe(numero);
    const int cuantas = valor.exponente + decimales;
    if (cuantas < 0)
        valor = {};
    else
        corta(valor, cuantas);
    if (valor.exponente < 0)
        valor = {QString(-valor.exponente, u'0') + valor.cifras, 0};
    valor.cifras = valor.cifras.leftJustified(valor.exponente + decimales, u'0');
    QString escrito = valor.exponente > 0 ? valor.cifras.left(valor.exponente) : QStringLiteral("0");
    if (decimales > 0)
        escrito += u'.' + valor.cifras.mid(valor.exponente, decimales);
    const bool esCero = std::ranges::none_of(escrito, [](QChar c) { return c >= u'1' && c <= u'9'; });
    return numero < 0 && !esCero ? u'-' + escrito : escrito;
}

double redondeado(double numero, int decimales)
{
    return conDecimales(numero, decimales).toDouble();
}

} // namespace kestrane::report
