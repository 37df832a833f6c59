#include "platform/database/almacen_filas.h"

#include "platform/database/fichero_filas.h"
#include "platform/database/utf8.h"

namespace kestrane::database {

namespace {

constexpr qsizetype Cabecera = sizeof(quint32);
constexpr qsizetype MemoriaConservada = qsizetype{64} * 1024;

/// Bytes of the field that begins with its type at `celda`, and where its content lies.
Celda desempaqueta(const char* celda)
{
    const auto tipo = static_cast<TipoCelda>(*celda++);
    switch (tipo) {
    case TipoCelda::Nulo:
    case TipoCelda::Falso:
    case TipoCelda::Verdadero:
        return {tipo, celda, 0};
    case TipoCelda::Entero16:
        return {tipo, celda, sizeof(qint16)};
    case TipoCelda::Entero32:
    case TipoCelda::Dia:
        return {tipo, celda, sizeof(qint32)};
    case TipoCelda::Doble:
    case TipoCelda::DiaHora:
        return {tipo, celda, sizeof(double)};
    case TipoCelda::Utf8:
    case TipoCelda::Utf16:
        break;
    }
    quint32 bytes = 0;
    std::memcpy(&bytes, celda, sizeof bytes);
    return {tipo, celda + sizeof bytes, bytes};
}

} // namespace

Fecha Celda::fecha() const
{
    const auto dia = lee<qint32>();
    if (tipo == TipoCelda::Dia)
        return Fecha::deSerie(dia, 0);
    qint32 segundo = 0;
    std::memcpy(&segundo, datos + sizeof dia, sizeof segundo);
    return Fecha::deSerie(dia, segundo);
}

QString Celda::texto() const
{
    if (tipo == TipoCelda::Utf8)
        return QString::fromUtf8(datos, bytes);
    QString texto(bytes / 2, Qt::Uninitialized);
    std::memcpy(texto.data(), datos, static_cast<size_t>(bytes));
    return texto;
}

Valor Celda::valor() const
{
    switch (tipo) {
    case TipoCelda::Nulo:
        return {};
    case TipoCelda::Falso:
        return false;
    case TipoCelda::Verdadero:
        return true;
    case TipoCelda::Entero16:
        return entero16();
    case TipoCelda::Entero32:
        return entero32();
    case TipoCelda::Doble:
        return doble();
    case TipoCelda::Dia:
    case TipoCelda::DiaHora:
        return fecha();
    case TipoCelda::Utf8:
    case TipoCelda::Utf16:
        break;
    }
    return texto();
}

LectorFilas::LectorFilas() = default;
LectorFilas::~LectorFilas() = default;
LectorFilas::LectorFilas(LectorFilas&&) noexcept = default;
LectorFilas& LectorFilas::operator=(LectorFilas&&) noexcept = default;

LectorFilas::LectorFilas(const AlmacenFilas& almacen)
{
    empieza(almacen);
}

void LectorFilas::empieza(const AlmacenFilas& almacen)
{
    m_almacen = &almacen;
    m_fila = 0;
    m_siguiente = 0;
    m_enFichero = 0;
    m_esDeFichero = false;
    m_posiciones.resize(static_cast<size_t>(almacen.m_columnas) + 1);
    m_posiciones[0] = Cabecera;
    m_conocidas = 0;
}

bool LectorFilas::siguiente()
{
    if (m_fila >= m_almacen->m_filas)
        return false;
    m_conocidas = 0;
    m_esDeFichero = m_fila >= m_almacen->m_filasEnMemoria;
    if (m_esDeFichero) {
        // A row that cannot be read stays the next one: it is not skipped.
        m_enFichero = m_almacen->m_fichero->lee(m_enFichero, m_leida);
        ++m_fila;
        return true;
    }
    ++m_fila;
    m_inicio = m_siguiente;
    quint32 bytes = 0;
    std::memcpy(&bytes, m_almacen->m_memoria.datos() + m_inicio, sizeof bytes);
    m_siguiente += bytes;
    return true;
}

void LectorFilas::vuelve(const Sitio& sitio)
{
    m_fila = sitio.fila;
    m_siguiente = sitio.enMemoria;
    m_enFichero = sitio.enFichero;
    m_conocidas = 0;
}

const char* LectorFilas::empaquetada() const
{
    return m_esDeFichero ? m_leida.datos() : m_almacen->m_memoria.datos() + m_inicio;
}

Celda LectorFilas::celda(int columna) const
{
    const char* const fila = empaquetada();
    auto posicion = [this](int indice) -> quint32& { return m_posiciones[static_cast<size_t>(indice)]; };
    while (m_conocidas < columna) {
        const Celda saltada = desempaqueta(fila + posicion(m_conocidas));
        posicion(++m_conocidas) = static_cast<quint32>(saltada.datos + saltada.bytes - fila);
    }
    return desempaqueta(fila + posicion(columna));
}

AlmacenFilas::AlmacenFilas(int columnas, qsizetype limite) : m_columnas{columnas}, m_limite{limite}
{
    alPrincipio();
}

AlmacenFilas::~AlmacenFilas() = default;

AlmacenFilas::AlmacenFilas(AlmacenFilas&& otro) noexcept
    : m_columnas{otro.m_columnas}
    , m_limite{otro.m_limite}
    , m_filas{otro.m_filas}
    , m_filasEnMemoria{otro.m_filasEnMemoria}
    , m_inicioFila{otro.m_inicioFila}
    , m_memoria{std::move(otro.m_memoria)}
    , m_fichero{std::move(otro.m_fichero)}
{
    alPrincipio();
    otro.m_filas = otro.m_filasEnMemoria = otro.m_inicioFila = 0;
}

AlmacenFilas& AlmacenFilas::operator=(AlmacenFilas&& otro) noexcept
{
    m_columnas = otro.m_columnas;
    m_limite = otro.m_limite;
    m_filas = std::exchange(otro.m_filas, 0);
    m_filasEnMemoria = std::exchange(otro.m_filasEnMemoria, 0);
    m_inicioFila = std::exchange(otro.m_inicioFila, 0);
    m_memoria = std::move(otro.m_memoria);
    m_fichero = std::move(otro.m_fichero);
    alPrincipio();
    return *this;
}

void AlmacenFilas::empiezaFila()
{
    m_inicioFila = m_memoria.tamano();
    static_cast<void>(m_memoria.anade(Cabecera));
}

void AlmacenFilas::ponFecha(Fecha valor)
{
    if (valor.esMedianoche())
        return ponNumero(TipoCelda::Dia, valor.diaDeSerie());
    ponNumero(TipoCelda::DiaHora, valor.diaDeSerie());
    const qint32 segundo = valor.segundoDelDia();
    m_memoria.copia(&segundo, sizeof segundo);
}

void AlmacenFilas::ponTextoUtf8(const char* texto, qsizetype bytes)
{
    ponBytes(TipoCelda::Utf8, texto, bytes);
}

void AlmacenFilas::ponTexto(QStringView texto)
{
    ponBytes(TipoCelda::Utf16, texto.utf16(), texto.size() * 2);
}

void AlmacenFilas::ponTextoComoUtf8(QStringView texto)
{
    const qsizetype inicio = m_memoria.tamano();
    char* const destino = m_memoria.anade(1 + qsizetype{sizeof(quint32)} + maximoUtf8(texto.size()));
    const auto longitud = static_cast<quint32>(aUtf8(texto, destino + 1 + sizeof(quint32)));
    *destino = static_cast<char>(TipoCelda::Utf8);
    std::memcpy(destino + 1, &longitud, sizeof longitud);
    m_memoria.recorta(inicio + 1 + qsizetype{sizeof longitud} + longitud);
}

void AlmacenFilas::ponBytes(TipoCelda tipo, const void* datos, qsizetype bytes)
{
    const auto longitud = static_cast<quint32>(bytes);
    char* const destino = m_memoria.anade(1 + qsizetype{sizeof longitud} + bytes);
    *destino = static_cast<char>(tipo);
    std::memcpy(destino + 1, &longitud, sizeof longitud);
    if (bytes > 0)
        std::memcpy(destino + 1 + sizeof longitud, datos, static_cast<size_t>(bytes));
}

void AlmacenFilas::ponCelda(const Celda& celda)
{
    if (celda.tipo == TipoCelda::Utf8 || celda.tipo == TipoCelda::Utf16)
        return ponBytes(celda.tipo, celda.datos, celda.bytes);
    ponTipo(celda.tipo);
    m_memoria.copia(celda.datos, celda.bytes);
}

void AlmacenFilas::ponValor(const Valor& valor)
{
    switch (valor.clase()) {
    case Valor::Clase::Nulo:
        return ponNulo();
    case Valor::Clase::Logico:
        return ponLogico(std::get<bool>(valor.dato()));
    case Valor::Clase::Entero16:
        return ponEntero16(std::get<qint16>(valor.dato()));
    case Valor::Clase::Entero32:
        return ponEntero32(std::get<qint32>(valor.dato()));
    case Valor::Clase::Doble:
        return ponDoble(std::get<double>(valor.dato()));
    case Valor::Clase::Fecha:
        return ponFecha(std::get<Fecha>(valor.dato()));
    case Valor::Clase::Texto:
        return ponTexto(std::get<QString>(valor.dato()));
    }
}

void AlmacenFilas::terminaFila()
{
    const auto bytes = static_cast<quint32>(m_memoria.tamano() - m_inicioFila);
    std::memcpy(m_memoria.datos() + m_inicioFila, &bytes, sizeof bytes);
    if (m_fichero || m_memoria.tamano() > m_limite)
        pasaAlFichero();
    else
        ++m_filasEnMemoria;
    ++m_filas;
    m_inicioFila = m_memoria.tamano();
}

void AlmacenFilas::copiaFila(const char* empaquetada)
{
    quint32 bytes = 0;
    std::memcpy(&bytes, empaquetada, sizeof bytes);
    m_inicioFila = m_memoria.tamano();
    m_memoria.copia(empaquetada, bytes);
    terminaFila();
}

void AlmacenFilas::abandonaFila()
{
    m_memoria.recorta(m_inicioFila);
}

void AlmacenFilas::pasaAlFichero()
{
    if (!m_fichero)
        m_fichero = std::make_unique<FicheroFilas>();
    m_fichero->escribe(m_memoria.datos() + m_inicioFila, m_memoria.tamano() - m_inicioFila);
    m_memoria.recorta(m_inicioFila);
}

qsizetype AlmacenFilas::bytes() const
{
    return m_memoria.tamano() + (m_fichero ? m_fichero->bytes() : 0);
}

void AlmacenFilas::vacia()
{
    m_filas = m_filasEnMemoria = m_inicioFila = 0;
    m_fichero.reset();
    m_memoria.recorta(0);
    if (m_memoria.capacidad() > MemoriaConservada)
        m_memoria.sueltaMemoria();
    alPrincipio();
}

} // namespace kestrane::database
