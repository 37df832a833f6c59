#include "platform/report/letra_renombrada.h"

#include <QtEndian>

namespace kestrane::prueba {

namespace {

constexpr qsizetype Cabecera = 12; ///< bytes in front of the directory of tables
constexpr qsizetype Entrada = 16;  ///< of a table: tag, checksum, place, length

void anade16(QByteArray& bytes, quint16 valor)
{
    bytes.append(static_cast<char>(valor >> 8)).append(static_cast<char>(valor & 0xFF));
}

QByteArray enUtf16(const QString& texto)
{
    QByteArray bytes;
    for (const QChar c : texto)
        anade16(bytes, c.unicode());
    return bytes;
}

/// Family, style, full name and PostScript's, for Windows in English.
QByteArray tablaDeNombres(const QString& familia)
{
    const std::pair<quint16, QString> nombres[] = {{1, familia}, {2, QStringLiteral("Regular")}, {4, familia}, {6, familia}};
    QByteArray tabla;
    QByteArray textos;
    anade16(tabla, 0);
    anade16(tabla, std::size(nombres));
    anade16(tabla, 6 + 12 * std::size(nombres));
    for (const auto& [cual, nombre] : nombres) {
        const QByteArray texto = enUtf16(nombre);
        for (const quint16 campo : {quint16{3}, quint16{1}, quint16{0x409}, cual})
            anade16(tabla, campo);
        anade16(tabla, static_cast<quint16>(texto.size()));
        anade16(tabla, static_cast<quint16>(textos.size()));
        textos += texto;
    }
    return tabla + textos;
}

} // namespace

QByteArray letraRenombrada(const QByteArray& fichero, const QString& familia)
{
    QByteArray nueva = fichero;
    nueva.append(QByteArray((4 - nueva.size() % 4) % 4, '\0'));
    const auto lugar = static_cast<quint32>(nueva.size());
    const QByteArray nombres = tablaDeNombres(familia);
    const auto tablas = qFromBigEndian<quint16>(nueva.constData() + 4);
    for (qsizetype i = 0; i < tablas; ++i) {
        char* const entrada = nueva.data() + Cabecera + i * Entrada;
        if (QByteArray::fromRawData(entrada, 4) != "name")
            continue;
        qToBigEndian(lugar, entrada + 8);
        qToBigEndian(static_cast<quint32>(nombres.size()), entrada + 12);
    }
    return nueva + nombres;
}

} // namespace kestrane::prueba
