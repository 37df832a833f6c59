#include "platform/database/altas_pendientes.h"

#include "platform/database/error_motor.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::database {

namespace {

/// Whether sending the same row again would meet the same error: kept, it would stop each later sending.
bool esDeLaFila(const ErrorMotor& error)
{
    return error.categoria() == ErrorMotor::Categoria::Restriccion || error.categoria() == ErrorMotor::Categoria::Sentencia;
}

/// The rows of one table behind the other, with the columns that any of them wrote.
constexpr qsizetype SinLimite = std::numeric_limits<qsizetype>::max();

void ponValor(AlmacenFilas& filas, const Valor* valor)
{
    if (!valor)
        return filas.ponNulo();
    if (valor->clase() == Valor::Clase::Texto)
        return filas.ponTextoComoUtf8(valor->texto());
    filas.ponValor(*valor);
}

/// A row of `filas` as it stands, with Null for the columns that it is short of.
void copiaFila(const AlmacenFilas& filas, AlmacenFilas& destino)
{
    destino.empiezaFila();
    for (int i = 0; i < destino.columnas(); ++i) {
        if (i < filas.columnas())
            destino.ponCelda(filas.celda(i));
        else
            destino.ponNulo();
    }
    destino.terminaFila();
}

} // namespace

struct AltasPendientes::Lote
{
    explicit Lote(const jet::Tabla& de) : tabla{de}, origen{&de}, conocida(de.columnas.size()) {}

    jet::Tabla tabla; ///< a copy: rows may outlive the connection that added them
    const jet::Tabla* origen;
    std::vector<int> columnas;
    std::vector<bool> conocida;
    AlmacenFilas filas{0, SinLimite};

    void anadeColumnas(std::span<const int> escritas)
    {
        const size_t antes = columnas.size();
        for (const int columna : escritas) {
            if (conocida[static_cast<size_t>(columna)])
                continue;
            conocida[static_cast<size_t>(columna)] = true;
            columnas.push_back(columna);
        }
        if (columnas.size() != antes)
            ensancha();
    }
    void ensancha()
    {
        AlmacenFilas anchas{static_cast<int>(columnas.size()), SinLimite};
        for (filas.alPrincipio(); filas.siguiente();)
            copiaFila(filas, anchas);
        filas = std::move(anchas);
    }
};

AltasPendientes::AltasPendientes() = default;
AltasPendientes::~AltasPendientes() = default;

AltasPendientes::Lote& AltasPendientes::loteDe(const jet::Tabla& tabla)
{
    for (const auto& lote : m_lotes) {
        if (lote->origen == &tabla)
            return *lote;
    }
    for (const auto& lote : m_lotes) {
        if (lote->tabla == tabla) { // another connection's, or one that was closed
            lote->origen = &tabla;
            return *lote;
        }
    }
    return *m_lotes.emplace_back(std::make_unique<Lote>(tabla));
}

void AltasPendientes::anade(const jet::Tabla& tabla, const Edicion& fila)
{
    Lote& lote = loteDe(tabla);
    lote.anadeColumnas(fila.porEscribir());
    lote.filas.empiezaFila();
    for (const int columna : lote.columnas)
        ponValor(lote.filas, fila.valor(columna));
    lote.filas.terminaFila();
    ++m_filas;
}

void AltasPendientes::envia(MotorBase& motor)
{
    const int antes = m_rechazadas;
    m_primerRechazo.reset();
    try {
        for (const auto& lote : m_lotes) {
            if (lote->filas.filas() > 0)
                enviaLote(*lote, motor);
        }
    } catch (const ErrorEjecucion&) {
        // What was dropped is told before what only waits: that trouble comes again with the next sending.
        avisaDeRechazos(antes);
        throw;
    }
    avisaDeRechazos(antes);
}

void AltasPendientes::enviaLote(Lote& lote, MotorBase& motor)
{
    try {
        motor.insertaFilas(lote.tabla, lote.columnas, lote.filas);
    } catch (const ErrorMotor& error) {
        if (!esDeLaFila(error))
            throw;
        return enviaUnaAUna(lote, motor);
    }
    m_filas -= static_cast<int>(lote.filas.filas());
    lote.filas.vacia();
}

void AltasPendientes::enviaUnaAUna(Lote& lote, MotorBase& motor)
{
    AlmacenFilas quedan{lote.filas.columnas(), SinLimite};
    std::exception_ptr impedimento;
    for (lote.filas.alPrincipio(); lote.filas.siguiente();) {
        AlmacenFilas una{lote.filas.columnas(), SinLimite};
        copiaFila(lote.filas, impedimento ? quedan : una);
        if (impedimento)
            continue;
        impedimento = enviaUna(lote, una, motor);
        if (impedimento)
            copiaFila(lote.filas, quedan);
    }
    m_filas -= static_cast<int>(lote.filas.filas() - quedan.filas());
    lote.filas = std::move(quedan);
    if (impedimento)
        std::rethrow_exception(impedimento);
}

/// Returns what stands in the way of this row and the next ones, if anything does.
std::exception_ptr AltasPendientes::enviaUna(const Lote& lote, AlmacenFilas& una, MotorBase& motor)
{
    try {
        motor.insertaFilas(lote.tabla, lote.columnas, una);
    } catch (const ErrorMotor& error) {
        if (!esDeLaFila(error))
            return std::current_exception();
        rechaza(error, lote.tabla);
    }
    return nullptr;
}

void AltasPendientes::rechaza(const ErrorMotor& error, const jet::Tabla& tabla)
{
    ++m_rechazadas;
    if (!m_primerRechazo)
        m_primerRechazo = error.conContexto(u"La fila no se ha guardado en la tabla \"%1\"."_s.arg(tabla.nombre));
}

void AltasPendientes::avisaDeRechazos(int antes)
{
    const std::optional<ErrorEjecucion> primero = std::exchange(m_primerRechazo, std::nullopt);
    if (!primero)
        return;
    const int otras = m_rechazadas - antes - 1;
    if (otras == 0)
        throw ErrorEjecucion{*primero};
    throw primero->conContexto(u"Otras %1 filas tampoco se han guardado."_s.arg(otras));
}

void AltasPendientes::olvidaTablas()
{
    for (const auto& lote : m_lotes)
        lote->origen = nullptr;
}

void AltasPendientes::olvidaColumnas()
{
    std::erase_if(m_lotes, [](const auto& lote) { return lote->filas.filas() == 0; });
}

} // namespace kestrane::database
