#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// How the bare programs of the cash reports make texts, in UTF-8.
namespace kestrane::bench {

/// "2", "1,5".
inline QByteArray numeroEnTexto(double numero)
{
    return QByteArray::number(numero, 'g', 15).replace('.', ',');
}

/// The first character.
inline QByteArrayView inicial(QByteArrayView texto)
{
    qsizetype largo = texto.isEmpty() ? 0 : 1;
    while (largo < texto.size() && (static_cast<unsigned char>(texto[largo]) & 0xC0U) == 0x80U)
        ++largo;
    return texto.first(largo);
}

/// The first two words; a single one as it stands.
inline QByteArrayView dosPalabras(QByteArrayView nombre)
{
    const qsizetype primero = nombre.indexOf(' ');
    const qsizetype segundo = primero < 0 ? -1 : nombre.indexOf(' ', primero + 1);
    return segundo < 0 ? nombre : nombre.first(segundo);
}

template<class... Trozos>
QByteArray junta(const Trozos&... trozos)
{
    QByteArray texto;
    (texto.append(trozos), ...);
    return texto;
}

} // namespace kestrane::bench
