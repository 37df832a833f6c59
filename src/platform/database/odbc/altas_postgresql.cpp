#include "platform/database/odbc/altas_postgresql.h"

#include "platform/database/odbc/celdas.h"
#include "platform/jet/sql_identifier.h"

#include <sqlucode.h>

#include <array>
#include <charconv>
#include <optional>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

using jet::TipoColumna;

QLatin1StringView tipoDeLista(TipoColumna tipo)
{
    switch (tipo) {
    case TipoColumna::Entero32:
        return "int4[]"_L1;
    case TipoColumna::Entero16:
    case TipoColumna::SiNo:
        return "int2[]"_L1;
    case TipoColumna::Doble:
        return "float8[]"_L1;
    case TipoColumna::FechaHora:
        return "timestamp[]"_L1;
    case TipoColumna::Memo:
    case TipoColumna::Texto:
        break;
    }
    return "text[]"_L1;
}

QString entreComillas(const QString& nombre)
{
    return QString::fromUtf8(jet::SqlIdentifier{nombre}.entre('"'));
}

/// The numbering keeps the rows in their order, whatever the server does with the arrays.
QString sqlDe(const QString& tabla, const std::vector<jet::Columna>& columnas)
{
    QStringList nombres;
    QStringList elementos;
    QStringList valores;
    QStringList listas;
    for (const jet::Columna& columna : columnas) {
        nombres += entreComillas(columna.nombre);
        elementos += u"c%1"_s.arg(elementos.size());
        valores += columna.esVerdadDelMotor ? elementos.last() + u" <> 0"_s : elementos.last();
        listas += u"?::"_s + tipoDeLista(columna.tipo);
    }
    return u"INSERT INTO %1 (%2) SELECT %3 FROM unnest(%4) WITH ORDINALITY AS filas (%5, n) ORDER BY n"_s.arg(
        entreComillas(tabla), nombres.join(u", "_s), valores.join(u", "_s), listas.join(u", "_s), elementos.join(u", "_s));
}

void anade(BloqueBytes& texto, std::string_view trozo)
{
    texto.copia(trozo.data(), static_cast<qsizetype>(trozo.size()));
}

template<class Numero>
void anadeNumero(BloqueBytes& texto, Numero numero)
{
    std::array<char, 32> cifras{};
    const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), numero).ptr;
    anade(texto, {cifras.data(), static_cast<size_t>(fin - cifras.data())});
}

void anadeFecha(BloqueBytes& texto, Fecha fecha)
{
    const auto [anio, mes, dia] = fecha.calendario();
    const auto cifras = [&](int numero, int cuantas) {
        std::array<char, 4> letras{};
        for (int i = cuantas; i-- > 0; numero /= 10)
            letras[static_cast<size_t>(i)] = static_cast<char>('0' + numero % 10);
        anade(texto, {letras.data(), static_cast<size_t>(cuantas)});
    };
    anade(texto, "\"");
    cifras(anio, 4);
    anade(texto, "-");
    cifras(mes, 2);
    anade(texto, "-");
    cifras(dia, 2);
    anade(texto, " ");
    cifras(fecha.hora(), 2);
    anade(texto, ":");
    cifras(fecha.minuto(), 2);
    anade(texto, ":");
    cifras(fecha.segundo(), 2);
    anade(texto, "\"");
}

void anadeTexto(BloqueBytes& texto, const Celda& celda)
{
    anade(texto, "\"");
    const qsizetype inicio = texto.tamano();
    char* const destino = texto.anade(maximoUtf8De(celda));
    const std::string_view escrito{destino, static_cast<size_t>(escribeUtf8(celda, destino))};
    if (escrito.find_first_of("\"\\") == std::string_view::npos) {
        texto.recorta(inicio + static_cast<qsizetype>(escrito.size()));
    } else {
        const std::string copia{escrito};
        texto.recorta(inicio);
        for (const char& c : copia) {
            if (c == '"' || c == '\\')
                anade(texto, "\\");
            texto.copia(&c, 1);
        }
    }
    anade(texto, "\"");
}

} // namespace

void anadeElemento(BloqueBytes& texto, const Celda& celda, TipoColumna tipo)
{
    anade(texto, texto.tamano() == 0 ? "{" : ",");
    if (celda.tipo == TipoCelda::Nulo)
        return anade(texto, "NULL");
    switch (tipo) {
    case TipoColumna::Entero32:
    case TipoColumna::Entero16:
    case TipoColumna::SiNo:
        return anadeNumero(texto, static_cast<qint32>(numeroDe(celda)));
    case TipoColumna::Doble:
        return anadeNumero(texto, numeroDe(celda));
    case TipoColumna::FechaHora:
        return anadeFecha(texto, celda.fecha());
    case TipoColumna::Memo:
    case TipoColumna::Texto:
        break;
    }
    anadeTexto(texto, celda);
}

AltasPostgreSql::AltasPostgreSql(std::shared_ptr<OdbcConexion> conexion, const QString& tabla, std::vector<jet::Columna> columnas)
    : m_conexion{std::move(conexion)}
    , m_sentencia{m_conexion->nuevaSentencia()}
    , m_listas(columnas.size())
{
    for (size_t i = 0; i < columnas.size(); ++i)
        m_listas[i].tipo = columnas[i].tipo;
    const QString sql = sqlDe(tabla, columnas);
    m_conexion->exige(SQLPrepareW(m_sentencia.get(), textoAncho(sql), static_cast<SQLINTEGER>(sql.size())), m_sentencia.get());
}

void AltasPostgreSql::inserta(AlmacenFilas& filas)
{
    std::optional<Transaccion> transaccion; // one statement needs none
    vacia();
    filas.alPrincipio();
    while (filas.siguiente()) {
        anade(filas);
        if (bytesReunidos() < m_conexion->opciones().bytesPorEnvio)
            continue;
        if (!transaccion)
            transaccion.emplace(*m_conexion);
        envia();
    }
    if (bytesReunidos() > 0)
        envia();
    if (transaccion)
        transaccion->confirma();
}

void AltasPostgreSql::anade(const AlmacenFilas& filas)
{
    for (size_t i = 0; i < m_listas.size(); ++i)
        anadeElemento(m_listas[i].texto, filas.celda(static_cast<int>(i)), m_listas[i].tipo);
}

qsizetype AltasPostgreSql::bytesReunidos() const
{
    qsizetype bytes = 0;
    for (const Lista& lista : m_listas)
        bytes += lista.texto.tamano();
    return bytes;
}

void AltasPostgreSql::envia()
{
    for (size_t i = 0; i < m_listas.size(); ++i)
        liga(i);
    const SQLRETURN resultado = SQLExecute(m_sentencia.get());
    m_conexion->exige(resultado, m_sentencia.get());
    SQLFreeStmt(m_sentencia.get(), SQL_CLOSE);
    vacia();
}

void AltasPostgreSql::liga(size_t indice)
{
    Lista& lista = m_listas[indice];
    lista.texto.copia("}", 1);
    SQLPOINTER datos = lista.texto.datos();
    lista.bytes = lista.texto.tamano();
    if (!m_conexion->enUtf8()) {
        lista.ancho = QString::fromUtf8(lista.texto.datos(), lista.texto.tamano());
        datos = textoAncho(lista.ancho);
        lista.bytes = lista.ancho.size() * SQLLEN{sizeof(char16_t)};
    }
    const SQLSMALLINT tipoSql = m_conexion->enUtf8() ? SQL_LONGVARCHAR : SQL_WLONGVARCHAR;
    m_conexion->exige(SQLBindParameter(m_sentencia.get(), static_cast<SQLUSMALLINT>(indice + 1), SQL_PARAM_INPUT,
                                       m_conexion->tipoTexto(), tipoSql, static_cast<SQLULEN>(lista.bytes), 0, datos, lista.bytes,
                                       &lista.bytes),
                      m_sentencia.get());
}

void AltasPostgreSql::vacia()
{
    for (Lista& lista : m_listas)
        lista.texto.recorta(0);
}

} // namespace kestrane::database::odbc
