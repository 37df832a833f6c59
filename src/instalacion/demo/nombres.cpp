#include "instalacion/demo/nombres.h"

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView LetrasNif = u"TRWAGMYFPDXBNJZSQVHLCKE";

QString digitos(int cuantos, Azar& azar)
{
    QString texto;
    for (int i = 0; i < cuantos; ++i)
        texto += QChar(u'0' + azar.hasta(10));
    return texto;
}

QChar sinTilde(QChar letra)
{
    constexpr QStringView con = u"áéíóúüñÁÉÍÓÚÜÑ";
    constexpr QStringView sin = u"aeiouunAEIOUUN";
    const qsizetype lugar = con.indexOf(letra);
    return lugar < 0 ? letra : sin[lugar];
}

QString parteDeCorreo(QStringView nombre)
{
    QString texto;
    for (const QChar letra : nombre) {
        if (!letra.isSpace())
            texto += sinTilde(letra).toLower();
    }
    return texto;
}

} // namespace

QString juntos(QStringView primero, QStringView segundo)
{
    return primero.toString() + u' ' + segundo.toString();
}

QString direccion(Azar& azar)
{
    const QStringView via = azar.elige(calles());
    QString texto = via.toString() + u", "_s + QString::number(azar.entre(1, 98));
    if (azar.porCien(60))
        texto += u", "_s + QString::number(azar.entre(1, 7)) + u"º "_s + QChar(u'A' + azar.hasta(4));
    return texto;
}

QString nif(Azar& azar)
{
    const int numero = azar.entre(10000000, 78999999);
    return QString::number(numero) + LetrasNif[(numero + 1) % LetrasNif.size()];
}

QString cif(Azar& azar)
{
    QString cuerpo = u"46"_s + digitos(5, azar);
    int suma = 0;
    for (int i = 0; i < 7; ++i) {
        const int cifra = cuerpo[i].digitValue() * (i % 2 == 0 ? 2 : 1);
        suma += cifra / 10 + cifra % 10;
    }
    const int control = (10 - suma % 10) % 10;
    return u"B"_s + cuerpo + QString::number((control + 1) % 10);
}

QString telefonoFijo(QStringView prefijo, Azar& azar)
{
    return prefijo.toString() + digitos(6, azar);
}

QString telefonoMovil(Azar& azar)
{
    return u"6"_s + digitos(8, azar);
}

QString correo(QStringView nombre, QStringView apellido)
{
    return parteDeCorreo(nombre) + u"."_s + parteDeCorreo(apellido) + u"@correo.example"_s;
}

QString codigoDeBarras(int numero)
{
    const QString cuerpo = u"20"_s + QString::number(numero).rightJustified(10, u'0');
    int suma = 0;
    for (int i = 0; i < 12; ++i)
        suma += cuerpo[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return cuerpo + QString::number((10 - suma % 10) % 10);
}

} // namespace kestrane::demo
