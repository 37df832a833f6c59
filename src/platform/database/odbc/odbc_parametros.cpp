#include "platform/database/odbc/odbc_parametros.h"

#include "platform/database/odbc/odbc_fecha.h"
#include "platform/database/utf8.h"

#include <cstring>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

using jet::TipoColumna;

constexpr qsizetype PrimeraCapacidad = 128;

/// How a type passes the interface. `precision` counts for the driver manager alone.
struct Paso
{
    SQLSMALLINT tipoC;
    SQLSMALLINT tipoSql;
    SQLULEN precision;
};

Paso pasoDe(TipoColumna tipo, bool enUtf8)
{
    const SQLSMALLINT tipoC = enUtf8 ? SQL_C_CHAR : SQL_C_WCHAR;
    switch (tipo) {
    case TipoColumna::Entero32:
        return {SQL_C_SLONG, SQL_INTEGER, 10};
    case TipoColumna::Entero16:
    case TipoColumna::SiNo:
        return {SQL_C_SSHORT, SQL_SMALLINT, 5};
    case TipoColumna::Doble:
        return {SQL_C_DOUBLE, SQL_DOUBLE, 15};
    case TipoColumna::FechaHora:
        return {SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, 19};
    case TipoColumna::Memo:
        return {tipoC, static_cast<SQLSMALLINT>(enUtf8 ? SQL_LONGVARCHAR : SQL_WLONGVARCHAR), 65536};
    case TipoColumna::Texto:
        break;
    }
    return {tipoC, static_cast<SQLSMALLINT>(enUtf8 ? SQL_VARCHAR : SQL_WVARCHAR), 255};
}

bool esTexto(TipoColumna tipo)
{
    return tipo == TipoColumna::Texto || tipo == TipoColumna::Memo;
}

template<class... Casos>
struct Segun : Casos...
{
    using Casos::operator()...;
};
template<class... Casos>
Segun(Casos...) -> Segun<Casos...>;

} // namespace

OdbcParametros::OdbcParametros(OdbcConexion& conexion, SQLHSTMT sentencia, std::span<const TipoColumna> tipos)
    : m_conexion{conexion}
    , m_sentencia{sentencia}
    , m_marcas{std::make_unique<Marca[]>(tipos.size())}
    , m_cuantas{tipos.size()}
{
    for (size_t i = 0; i < m_cuantas; ++i) {
        m_marcas[i].tipo = tipos[i];
        if (esTexto(tipos[i])) {
            m_marcas[i].capacidad = PrimeraCapacidad;
            m_marcas[i].texto = std::make_unique_for_overwrite<char[]>(PrimeraCapacidad);
        }
        liga(i);
    }
}

void OdbcParametros::liga(size_t indice)
{
    Marca& marca = m_marcas[indice];
    const Paso paso = pasoDe(marca.tipo, m_conexion.enUtf8());
    const bool texto = esTexto(marca.tipo);
    void* const donde = texto ? static_cast<void*>(marca.texto.get()) : static_cast<void*>(&marca.fecha);
    m_conexion.exige(SQLBindParameter(m_sentencia, static_cast<SQLUSMALLINT>(indice + 1), SQL_PARAM_INPUT, paso.tipoC, paso.tipoSql,
                                      paso.precision, 0, donde, texto ? marca.capacidad : 0, &marca.indicador),
                     m_sentencia);
}

void OdbcParametros::pon(std::span<const Ligado> valores)
{
    if (valores.size() != m_cuantas)
        throw ErrorMotor{ErrorMotor::Categoria::Sentencia, ErrorEjecucion::SentenciaRechazada,
                         u"La sentencia tiene %1 parámetros y recibe %2."_s.arg(m_cuantas).arg(valores.size())};
    for (size_t i = 0; i < m_cuantas; ++i) {
        Marca& marca = m_marcas[i];
        std::visit(Segun{[&](Nulo) { marca.indicador = SQL_NULL_DATA; },
                         [&](qint32 valor) { esTexto(marca.tipo) ? tiposDistintos(i) : ponNumero(marca, valor); },
                         [&](double valor) { esTexto(marca.tipo) ? tiposDistintos(i) : ponNumero(marca, valor); },
                         [&](Fecha valor) { marca.tipo == TipoColumna::FechaHora ? ponFecha(marca, valor) : tiposDistintos(i); },
                         [&](QStringView valor) { esTexto(marca.tipo) ? ponTexto(i, valor) : tiposDistintos(i); }},
                   valores[i]);
    }
}

void OdbcParametros::ponNumero(Marca& marca, double valor)
{
    switch (marca.tipo) {
    case TipoColumna::Entero32:
        marca.entero32 = Valor{valor}.entero32();
        break;
    case TipoColumna::Entero16:
    case TipoColumna::SiNo:
        marca.entero16 = Valor{valor}.entero16();
        break;
    default:
        marca.doble = valor;
    }
    marca.indicador = 0;
}

void OdbcParametros::ponFecha(Marca& marca, Fecha valor)
{
    marca.fecha = marcaDeTiempo(valor);
    marca.indicador = 0;
}

void OdbcParametros::ponTexto(size_t indice, QStringView valor)
{
    Marca& marca = m_marcas[indice];
    const qsizetype necesarios = m_conexion.enUtf8() ? maximoUtf8(valor.size()) : valor.size() * qsizetype{sizeof(char16_t)};
    if (necesarios > marca.capacidad) {
        marca.capacidad = std::max(necesarios, 2 * marca.capacidad);
        marca.texto = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(marca.capacidad));
        liga(indice);
    }
    if (m_conexion.enUtf8()) {
        marca.indicador = aUtf8(valor, marca.texto.get());
        return;
    }
    if (!valor.isEmpty())
        std::memcpy(marca.texto.get(), valor.utf16(), static_cast<size_t>(necesarios));
    marca.indicador = necesarios;
}

void OdbcParametros::tiposDistintos(size_t indice)
{
    throw ErrorMotor{ErrorMotor::Categoria::Sentencia, ErrorEjecucion::SentenciaRechazada,
                     u"El valor del parámetro %1 no es del tipo que la sentencia pide."_s.arg(indice + 1)};
}

} // namespace kestrane::database::odbc
