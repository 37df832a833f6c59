#include "platform/database/sqlite/sqlite_sentencia.h"

#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/database/utf8.h"
#include "platform/runtime/conversiones.h"

#include <type_traits>

using namespace Qt::StringLiterals;

namespace kestrane::database::sqlite {

using jet::TipoColumna;

void Ligaduras::reserva(qsizetype unidades, size_t fechas)
{
    // Bound texts are borrowed by the engine: the buffers must not move while the marks are filled.
    m_textos.recorta(0);
    m_textos.reserva(maximoUtf8(unidades) + 1);
    m_fechas.clear();
    m_fechas.reserve(fechas);
}

void Ligaduras::liga(std::span<const Ligado> valores)
{
    qsizetype unidades = 0;
    for (const Ligado& valor : valores) {
        if (const auto* texto = std::get_if<QStringView>(&valor))
            unidades += texto->size();
    }
    reserva(unidades, valores.size());
    int marca = 0;
    for (const Ligado& valor : valores)
        ligaUno(++marca, valor);
}

void Ligaduras::ligaUno(int marca, const Ligado& valor)
{
    switch (valor.index()) {
    case 0:
        sqlite3_bind_null(m_sentencia, marca);
        return;
    case 1:
        sqlite3_bind_int(m_sentencia, marca, std::get<qint32>(valor));
        return;
    case 2:
        sqlite3_bind_double(m_sentencia, marca, std::get<double>(valor));
        return;
    case 3:
        return ligaFecha(marca, std::get<Fecha>(valor));
    default:
        return ligaTexto(marca, std::get<QStringView>(valor));
    }
}

void Ligaduras::liga(const AlmacenFilas& filas)
{
    qsizetype unidades = 0;
    for (int i = 0; i < filas.columnas(); ++i) {
        if (const Celda celda = filas.celda(i); celda.tipo == TipoCelda::Utf16)
            unidades += celda.bytes / 2;
    }
    reserva(unidades, static_cast<size_t>(filas.columnas()));
    for (int i = 0; i < filas.columnas(); ++i)
        ligaCelda(i + 1, filas.celda(i));
}

void Ligaduras::ligaCelda(int marca, const Celda& celda)
{
    switch (celda.tipo) {
    case TipoCelda::Nulo:
        sqlite3_bind_null(m_sentencia, marca);
        return;
    case TipoCelda::Falso:
    case TipoCelda::Verdadero:
        sqlite3_bind_int(m_sentencia, marca, celda.tipo == TipoCelda::Verdadero ? -1 : 0);
        return;
    case TipoCelda::Entero16:
        sqlite3_bind_int(m_sentencia, marca, celda.entero16());
        return;
    case TipoCelda::Entero32:
        sqlite3_bind_int(m_sentencia, marca, celda.entero32());
        return;
    case TipoCelda::Doble:
        sqlite3_bind_double(m_sentencia, marca, celda.doble());
        return;
    case TipoCelda::Dia:
    case TipoCelda::DiaHora:
        return ligaFecha(marca, celda.fecha());
    case TipoCelda::Utf8:
        sqlite3_bind_text(m_sentencia, marca, celda.datos, static_cast<int>(celda.bytes), SQLITE_STATIC);
        return;
    case TipoCelda::Utf16:
        // The packed row aligns nothing: the text is copied out before it is looked at as UTF-16.
        return ligaTexto(marca, celda.texto());
    }
}

void Ligaduras::ligaTexto(int marca, QStringView texto)
{
    char* const destino = m_textos.anade(maximoUtf8(texto.size()));
    const qsizetype bytes = aUtf8(texto, destino);
    m_textos.recorta(destino - m_textos.datos() + bytes);
    sqlite3_bind_text(m_sentencia, marca, destino, static_cast<int>(bytes), SQLITE_STATIC);
}

void Ligaduras::ligaFecha(int marca, Fecha fecha)
{
    char* const destino = m_fechas.emplace_back().data();
    sqlite3_bind_text(m_sentencia, marca, destino, escribeFecha(fecha, destino), SQLITE_STATIC);
}

SqliteSentencia::SqliteSentencia(SqliteMotor& motor, Preparada sentencia, std::span<const TipoColumna> resultado)
    : m_motor{motor}
    , m_sentencia{std::move(sentencia)}
    , m_ligaduras{m_sentencia.get()}
    , m_resultado(resultado.begin(), resultado.end())
{
}

void SqliteSentencia::ejecuta(std::span<const Ligado> parametros)
{
    m_ligaduras.liga(parametros);
    avanza();
    m_afectadas = m_resultado.empty() ? sqlite3_changes64(m_motor.base()) : 0;
}

void SqliteSentencia::avanza()
{
    const int codigo = sqlite3_step(m_sentencia.get());
    if (codigo == SQLITE_ROW) {
        m_estado = Estado::FilaPorLeer;
        return;
    }
    if (codigo == SQLITE_DONE)
        return reinicia();
    const ErrorMotor error = m_motor.error(codigo);
    reinicia();
    throw ErrorMotor{error};
}

bool SqliteSentencia::siguiente(AlmacenFilas& destino)
{
    if (m_estado == Estado::FilaLeida)
        avanza();
    if (m_estado == Estado::Quieta)
        return false;
    copiaFila(destino);
    m_estado = Estado::FilaLeida;
    return true;
}

void SqliteSentencia::reinicia() noexcept
{
    sqlite3_reset(m_sentencia.get());
    m_estado = Estado::Quieta;
}

void SqliteSentencia::copiaFila(AlmacenFilas& destino)
{
    destino.empiezaFila();
    int columna = 0;
    for (const TipoColumna tipo : m_resultado)
        copiaCampo(destino, columna++, tipo);
    destino.terminaFila();
}

void SqliteSentencia::copiaCampo(AlmacenFilas& destino, int columna, TipoColumna tipo)
{
    sqlite3_stmt* const sentencia = m_sentencia.get();
    if (sqlite3_column_type(sentencia, columna) == SQLITE_NULL)
        return destino.ponNulo();
    switch (tipo) {
    case TipoColumna::Texto:
    case TipoColumna::Memo: {
        const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(sentencia, columna));
        return destino.ponTextoUtf8(texto, sqlite3_column_bytes(sentencia, columna));
    }
    case TipoColumna::Entero32:
    case TipoColumna::Entero16:
        return copiaEntero(destino, columna, tipo);
    case TipoColumna::Doble:
        return destino.ponDoble(numero(columna));
    case TipoColumna::FechaHora:
        return copiaFecha(destino, columna);
    case TipoColumna::SiNo:
        return destino.ponLogico(numero(columna) != 0);
    }
}

/// The engine takes the beginning of a text for its number ("12,5" for 12): a text must be one from end to end.
double SqliteSentencia::numero(int columna) const
{
    sqlite3_stmt* const sentencia = m_sentencia.get();
    const int clase = sqlite3_column_type(sentencia, columna);
    if (clase == SQLITE_INTEGER || clase == SQLITE_FLOAT)
        return sqlite3_column_double(sentencia, columna);
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_blob(sentencia, columna));
    bool entero = false;
    const double leido = QByteArrayView{texto, sqlite3_column_bytes(sentencia, columna)}.toDouble(&entero);
    if (!entero || clase == SQLITE_BLOB)
        ilegible(columna, "de números contiene \"%2\", que no es un número");
    return leido;
}

void SqliteSentencia::ilegible(int columna, const char* esperado) const
{
    sqlite3_stmt* const sentencia = m_sentencia.get();
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(sentencia, columna));
    throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada,
                         (u"La columna \"%1\" "_s + QString::fromUtf8(esperado) + u". Corrija esa fila."_s)
                             .arg(QString::fromUtf8(sqlite3_column_name(sentencia, columna)),
                                  QString::fromUtf8(texto, sqlite3_column_bytes(sentencia, columna))));
}

void SqliteSentencia::copiaEntero(AlmacenFilas& destino, int columna, TipoColumna tipo)
{
    sqlite3_stmt* const sentencia = m_sentencia.get();
    const qint64 entero = sqlite3_column_int64(sentencia, columna);
    // Nothing keeps other programs from storing fractions or larger numbers in a column of whole ones.
    const bool exacto = sqlite3_column_type(sentencia, columna) == SQLITE_INTEGER && entero == static_cast<qint32>(entero);
    const qint32 leido = exacto ? static_cast<qint32>(entero) : aEntero32(this->numero(columna));
    if (tipo == TipoColumna::Entero32)
        return destino.ponEntero32(leido);
    destino.ponEntero16(aEntero16(static_cast<double>(leido)));
}

void SqliteSentencia::copiaFecha(AlmacenFilas& destino, int columna)
{
    sqlite3_stmt* const sentencia = m_sentencia.get();
    if (sqlite3_column_type(sentencia, columna) != SQLITE_TEXT) {
        if (const auto fecha = leeFecha(sqlite3_column_double(sentencia, columna)))
            return destino.ponFecha(*fecha);
    }
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(sentencia, columna));
    const std::string_view vista{texto, static_cast<size_t>(sqlite3_column_bytes(sentencia, columna))};
    if (const auto fecha = leeFecha(vista))
        return destino.ponFecha(*fecha);
    ilegible(columna, "de fechas contiene \"%2\", que no es una fecha");
}

} // namespace kestrane::database::sqlite
