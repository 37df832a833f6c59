#include "platform/database/sqlite/sqlite_funciones.h"

#include "platform/database/espanol.h"
#include "platform/database/patron_like.h"
#include "platform/database/sqlite/sqlite_errores.h"
#include "platform/database/sqlite/sqlite_fecha.h"
#include "platform/runtime/conversiones.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kestrane::database::sqlite {

namespace {

// No exception may cross the engine: every function that can throw runs through `guardada`.
using Cuerpo = void (*)(sqlite3_context*, sqlite3_value**);

std::string_view textoDe(sqlite3_value* valor)
{
    const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(valor));
    return {texto ? texto : "", static_cast<size_t>(sqlite3_value_bytes(valor))};
}

bool esNulo(sqlite3_value* valor)
{
    return sqlite3_value_type(valor) == SQLITE_NULL;
}

void ponTexto(sqlite3_context* contexto, const QString& texto)
{
    const QByteArray utf8 = texto.toUtf8();
    sqlite3_result_text(contexto, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

void falla(sqlite3_context* contexto, const QString& descripcion)
{
    const QByteArray utf8 = descripcion.toUtf8();
    sqlite3_result_error(contexto, utf8.constData(), static_cast<int>(utf8.size()));
}

template<Cuerpo cuerpo>
void guardada(sqlite3_context* contexto, int argumentos, sqlite3_value** valores)
{
    for (int i = 0; i < argumentos; ++i) {
        if (esNulo(valores[i]))
            return sqlite3_result_null(contexto);
    }
    try {
        cuerpo(contexto, valores);
    } catch (const ErrorEjecucion& error) {
        falla(contexto, error.descripcion());
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(contexto);
    }
}

int comparaTextos(void*, int bytesA, const void* a, int bytesB, const void* b)
{
    return espanol::compara(std::string_view{static_cast<const char*>(a), static_cast<size_t>(bytesA)},
                            std::string_view{static_cast<const char*>(b), static_cast<size_t>(bytesB)});
}

/// like(pattern, text[, escape]): the dialect has no escape, so a third argument changes nothing.
void like(sqlite3_context* contexto, int, sqlite3_value** valores)
{
    if (esNulo(valores[0]) || esNulo(valores[1]))
        return;
    const std::string_view patron = textoDe(valores[0]);
    sqlite3_result_int(contexto, patron == "%" || casaPatron(patron, textoDe(valores[1])) ? 1 : 0);
}

std::optional<Fecha> fechaDe(sqlite3_value* valor)
{
    return sqlite3_value_type(valor) == SQLITE_TEXT ? leeFecha(textoDe(valor)) : leeFecha(sqlite3_value_double(valor));
}

template<int (Fecha::*parte)() const>
void parteDeFecha(sqlite3_context* contexto, sqlite3_value** valores)
{
    if (const auto fecha = fechaDe(valores[0]))
        sqlite3_result_int(contexto, ((*fecha).*parte)());
    else
        falla(contexto, QStringLiteral("\"%1\" no es una fecha").arg(QString::fromUtf8(textoDe(valores[0]).data())));
}

const ConfiguracionRegional& regionalDe(sqlite3_context* contexto)
{
    return *static_cast<const ConfiguracionRegional*>(sqlite3_user_data(contexto));
}

void texto(sqlite3_context* contexto, sqlite3_value** valores)
{
    if (sqlite3_value_type(valores[0]) == SQLITE_TEXT)
        return sqlite3_result_value(contexto, valores[0]);
    ponTexto(contexto, aTexto(sqlite3_value_double(valores[0]), regionalDe(contexto)));
}

void textoFecha(sqlite3_context* contexto, sqlite3_value** valores)
{
    if (const auto fecha = fechaDe(valores[0]))
        ponTexto(contexto, aTexto(*fecha, regionalDe(contexto)));
    else
        sqlite3_result_value(contexto, valores[0]);
}

void division(sqlite3_context* contexto, sqlite3_value** valores)
{
    sqlite3_result_double(contexto, divide(sqlite3_value_double(valores[0]), sqlite3_value_double(valores[1])));
}

qint32 divisorEntero(sqlite3_value* valor)
{
    const qint32 divisor = aEntero32(sqlite3_value_double(valor));
    if (divisor == 0)
        throw ErrorEjecucion(ErrorEjecucion::DivisionPorCero);
    return divisor;
}

void divisionEntera(sqlite3_context* contexto, sqlite3_value** valores)
{
    const qint64 dividendo = aEntero32(sqlite3_value_double(valores[0]));
    sqlite3_result_int64(contexto, dividendo / divisorEntero(valores[1]));
}

void resto(sqlite3_context* contexto, sqlite3_value** valores)
{
    const qint64 dividendo = aEntero32(sqlite3_value_double(valores[0]));
    sqlite3_result_int64(contexto, dividendo % divisorEntero(valores[1]));
}

/// cabe_texto(value, characters, column).
void cabeTexto(sqlite3_context* contexto, sqlite3_value** valores)
{
    const std::string_view texto = textoDe(valores[0]);
    const auto empiezaCaracter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
    const auto caracteres = std::count_if(texto.begin(), texto.end(), empiezaCaracter);
    const int ancho = sqlite3_value_int(valores[1]);
    if (caracteres > ancho)
        throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada,
                             u"el texto calculado tiene %1 caracteres y en la columna \"%2\" caben %3"_s.arg(caracteres)
                                 .arg(QString::fromUtf8(textoDe(valores[2]).data()))
                                 .arg(ancho));
    sqlite3_result_value(contexto, valores[0]);
}

/// cabe_entero(value, bits, column).
void cabeEntero(sqlite3_context* contexto, sqlite3_value** valores)
{
    const double limite = std::ldexp(1.0, sqlite3_value_int(valores[1]) - 1);
    const double numero = sqlite3_value_double(valores[0]);
    if (numero < -limite || numero >= limite)
        throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada,
                             u"el número calculado, %1, no cabe en la columna \"%2\""_s.arg(
                                 aTexto(numero, regionalDe(contexto)), QString::fromUtf8(textoDe(valores[2]).data())));
    sqlite3_result_value(contexto, valores[0]);
}

struct Funcion
{
    const char* nombre;
    int argumentos;
    void (*cuerpo)(sqlite3_context*, int, sqlite3_value**);
};

constexpr Funcion Funciones[] = {
    {"like", 2, like},
    {"like", 3, like},
    {"mes", 1, guardada<parteDeFecha<&Fecha::mes>>},
    {"anio", 1, guardada<parteDeFecha<&Fecha::anio>>},
    {"dia", 1, guardada<parteDeFecha<&Fecha::dia>>},
    {"hora", 1, guardada<parteDeFecha<&Fecha::hora>>},
    {"texto", 1, guardada<texto>},
    {"texto_fecha", 1, guardada<textoFecha>},
    {"division", 2, guardada<division>},
    {"division_entera", 2, guardada<divisionEntera>},
    {"resto", 2, guardada<resto>},
    {"cabe_texto", 3, guardada<cabeTexto>},
    {"cabe_entero", 3, guardada<cabeEntero>},
};

void exige(sqlite3* base, int codigo)
{
    if (codigo != SQLITE_OK)
        throw errorDe(base, codigo, QString::fromUtf8(sqlite3_db_filename(base, "main")), ErrorEjecucion::ConexionImposible);
}

} // namespace

void registraFunciones(sqlite3* base, const ConfiguracionRegional& regional)
{
    exige(base, sqlite3_create_collation_v2(base, "ESPANOL", SQLITE_UTF8, nullptr, comparaTextos, nullptr));
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): the interface hands it on as it is
    void* const datos = const_cast<ConfiguracionRegional*>(&regional);
    for (const Funcion& funcion : Funciones) {
        const int codigo = sqlite3_create_function_v2(base, funcion.nombre, funcion.argumentos,
                                                      SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, datos, funcion.cuerpo,
                                                      nullptr, nullptr, nullptr);
        exige(base, codigo);
    }
}

} // namespace kestrane::database::sqlite
