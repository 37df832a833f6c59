#include "lote/escritor_json.h"

#include <QString>

#include <array>
#include <charconv>
#include <cmath>

namespace kestrane::lote {

namespace {

template<class Numero>
void anadeNumero(QByteArray& destino, Numero numero)
{
    std::array<char, 32> memoria{};
    const auto fin = std::to_chars(memoria.data(), memoria.data() + memoria.size(), numero).ptr;
    destino.append(memoria.data(), fin - memoria.data());
}

void anadeDosCifras(QByteArray& destino, int numero)
{
    destino.append(static_cast<char>('0' + numero / 10)).append(static_cast<char>('0' + numero % 10));
}

void anadeFecha(QByteArray& destino, Fecha fecha)
{
    destino.append('"');
    anadeDosCifras(destino, fecha.anio() / 100);
    anadeDosCifras(destino, fecha.anio() % 100);
    destino.append('-');
    anadeDosCifras(destino, fecha.mes());
    destino.append('-');
    anadeDosCifras(destino, fecha.dia());
    destino.append('T');
    anadeDosCifras(destino, fecha.hora());
    destino.append(':');
    anadeDosCifras(destino, fecha.minuto());
    destino.append(':');
    anadeDosCifras(destino, fecha.segundo());
    destino.append('"');
}

void anadeControl(QByteArray& destino, char control)
{
    constexpr std::string_view cifras = "0123456789abcdef";
    switch (control) {
    case '\n':
        destino.append("\\n");
        return;
    case '\r':
        destino.append("\\r");
        return;
    case '\t':
        destino.append("\\t");
        return;
    default:
        destino.append("\\u00").append(cifras[static_cast<size_t>(control >> 4)]).append(cifras[static_cast<size_t>(control & 15)]);
    }
}

struct AJson
{
    QByteArray& destino;

    void operator()(Nulo) const { destino.append("null"); }
    void operator()(bool logico) const { destino.append(logico ? "true" : "false"); }
    void operator()(qint16 entero) const { anadeNumero(destino, entero); }
    void operator()(qint32 entero) const { anadeNumero(destino, entero); }
    // JSON has no text for what is no number.
    void operator()(double doble) const { std::isfinite(doble) ? anadeNumero(destino, doble) : void(destino.append("null")); }
    void operator()(Fecha fecha) const { anadeFecha(destino, fecha); }
    void operator()(const QString& texto) const { anadeTextoJson(destino, texto); }
};

} // namespace

void anadeTextoJson(QByteArray& destino, QStringView texto)
{
    destino.append('"');
    for (const char caracter : texto.toUtf8()) {
        if (caracter == '"' || caracter == '\\')
            destino.append('\\').append(caracter);
        else if (static_cast<unsigned char>(caracter) < 0x20)
            anadeControl(destino, caracter);
        else
            destino.append(caracter);
    }
    destino.append('"');
}

void anadeValorJson(QByteArray& destino, const Valor& valor)
{
    std::visit(AJson{destino}, valor.dato());
}

} // namespace kestrane::lote
