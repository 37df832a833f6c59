#include "platform/report/clave_fila.h"

#include "platform/database/clave_espanol.h"

#include <QtEndian>

#include <bit>

namespace kestrane::report {

namespace {

/// In this order values of different kinds stand behind one another.
enum Especie : char { EsNulo, EsNumero, EsFecha, EsTexto };

template<class Entero>
void anadeEntero(QByteArray& destino, Entero valor)
{
    const Entero grande = qToBigEndian(valor);
    destino.append(reinterpret_cast<const char*>(&grande), sizeof grande);
}

/// The bits of a double sort as integers do once the sign is turned, and all bits of negative ones.
void anadeNumero(QByteArray& destino, double numero)
{
    constexpr quint64 Signo = quint64{1} << 63;
    const auto bits = std::bit_cast<quint64>(numero == 0 ? 0.0 : numero);
    destino.append(EsNumero);
    anadeEntero(destino, (bits & Signo) != 0 ? ~bits : bits | Signo);
}

void anadeFecha(QByteArray& destino, Fecha fecha)
{
    constexpr quint32 Signo = quint32{1} << 31;
    destino.append(EsFecha);
    anadeEntero(destino, static_cast<quint32>(fecha.diaDeSerie()) ^ Signo);
    anadeEntero(destino, static_cast<quint32>(fecha.segundoDelDia()));
}

void anadeAscendente(QByteArray& destino, const Valor& valor)
{
    switch (valor.clase()) {
    case Valor::Clase::Nulo:
        destino.append(EsNulo);
        return;
    case Valor::Clase::Fecha:
        return anadeFecha(destino, valor.fecha());
    case Valor::Clase::Texto:
        destino.append(EsTexto);
        return database::espanol::anadeClave(destino, valor.texto());
    default:
        return anadeNumero(destino, valor.doble());
    }
}

} // namespace

void anadeClave(QByteArray& destino, const Valor& valor, Sentido sentido)
{
    const qsizetype inicio = destino.size();
    anadeAscendente(destino, valor);
    if (sentido == Sentido::Ascendente)
        return;
    for (qsizetype i = inicio; i < destino.size(); ++i)
        destino[i] = static_cast<char>(~destino[i]);
}

void ClavesFila::pon(const Expresion& por, bool descendente, const QStringList& columnas)
{
    m_claves.push_back({ExpresionEnlazada{por, columnas}, descendente ? Sentido::Descendente : Sentido::Ascendente});
}

ClavesFila ClavesFila::deOrden(const Layout& layout, const QStringList& columnas)
{
    ClavesFila claves;
    for (const Grupo& grupo : layout.grupos) {
        if (grupo.ordena)
            claves.pon(grupo.por, grupo.descendente, columnas);
    }
    for (const ClaveOrden& clave : layout.orden)
        claves.pon(clave.por, clave.descendente, columnas);
    return claves;
}

ClavesFila ClavesFila::deGrupos(const Layout& layout, const QStringList& columnas)
{
    ClavesFila claves;
    for (const Grupo& grupo : layout.grupos)
        claves.pon(grupo.por, false, columnas);
    return claves;
}

void ClavesFila::anade(QByteArray& destino, size_t clave, const AmbitoExpresion& fila, const ConfiguracionRegional& regional) const
{
    anadeClave(destino, m_claves[clave].por.valor(fila, regional), m_claves[clave].sentido);
}

void ClavesFila::anadeTodas(QByteArray& destino, const AmbitoExpresion& fila, const ConfiguracionRegional& regional) const
{
    for (size_t i = 0; i < m_claves.size(); ++i)
        anade(destino, i, fila, regional);
}

} // namespace kestrane::report
