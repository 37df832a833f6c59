#include "platform/database/odbc/odbc_errores.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

using Categoria = ErrorMotor::Categoria;

enum class Frase { SinControlador, SinOrigen, Credenciales, SinBase, Lleno, SinServidor };

/// A row fits when all that it names fits; the first that fits counts.
struct CasoApertura
{
    const char16_t* estado;    ///< beginning of the state, nullptr for any
    qint32 nativo;             ///< the server's number, 0 for any
    const char16_t* fragmento; ///< of the text, nullptr for any
    Frase frase;
};

// The PostgreSQL driver gives every refusal of the server state 08001 and tells it in words, in the language of the server.
constexpr CasoApertura CasosApertura[] = {
    {u"IM003", 0, nullptr, Frase::SinControlador},
    {u"01000", 0, u"Can't open lib", Frase::SinControlador},
    {u"IM002", 0, nullptr, Frase::SinOrigen},
    {u"28", 0, nullptr, Frase::Credenciales},
    {nullptr, 1045, nullptr, Frase::Credenciales},
    {nullptr, 1044, nullptr, Frase::Credenciales},
    {nullptr, 1698, nullptr, Frase::Credenciales},
    {nullptr, 0, u"password authentication failed", Frase::Credenciales},
    {nullptr, 0, u"la autentificación password falló", Frase::Credenciales},
    {nullptr, 0, u"no password supplied", Frase::Credenciales},
    {nullptr, 0, u"no pg_hba.conf entry", Frase::Credenciales},
    {nullptr, 0, u"role \"", Frase::Credenciales},
    {nullptr, 0, u"no existe el rol", Frase::Credenciales},
    {u"3D000", 0, nullptr, Frase::SinBase},
    {nullptr, 1049, nullptr, Frase::SinBase},
    {nullptr, 0, u"database \"", Frase::SinBase},
    {nullptr, 0, u"no existe la base de datos", Frase::SinBase},
    {u"53300", 0, nullptr, Frase::Lleno},
    {nullptr, 1040, nullptr, Frase::Lleno},
    {nullptr, 1203, nullptr, Frase::Lleno},
    {nullptr, 0, u"too many clients", Frase::Lleno},
    {nullptr, 0, nullptr, Frase::SinServidor},
};

/// %1 the data source, %2 the user.
const char16_t* textoDe(Frase frase)
{
    switch (frase) {
    case Frase::SinControlador:
        return u"No se encuentra el controlador ODBC del origen de datos \"%1\": instale el controlador de su servidor "
               u"(odbc-postgresql u odbc-mariadb) o corrija el origen de datos";
    case Frase::SinOrigen:
        return u"El origen de datos ODBC \"%1\" no existe o nombra un controlador que no está instalado: defínalo o instale el "
               u"controlador de su servidor (odbc-postgresql u odbc-mariadb)";
    case Frase::Credenciales:
        return u"El servidor del origen de datos \"%1\" rechaza al usuario%2: corrija el usuario o la clave";
    case Frase::SinBase:
        return u"El servidor del origen de datos \"%1\" no tiene la base de datos que se le pide: corrija el origen de datos o "
               u"cree "
               u"la base de datos";
    case Frase::Lleno:
        return u"El servidor del origen de datos \"%1\" no admite más conexiones: cierre otros programas o aumente su límite";
    case Frase::SinServidor:
        break;
    }
    return u"No se puede conectar con el servidor del origen de datos \"%1\": compruebe que está en marcha, su dirección y su "
           u"puerto";
}

bool encaja(const CasoApertura& caso, const Diagnostico& diagnostico)
{
    return (!caso.estado || diagnostico.estado.startsWith(QStringView{caso.estado})) &&
           (caso.nativo == 0 || caso.nativo == diagnostico.nativo) &&
           (!caso.fragmento || diagnostico.texto.contains(QStringView{caso.fragmento}));
}

struct CasoEjecucion
{
    const char16_t* estado; ///< beginning of the state
    Categoria categoria;
};

constexpr CasoEjecucion CasosPostgreSql[] = {
    {u"08", Categoria::ConexionPerdida}, {u"57P", Categoria::ConexionPerdida}, {u"55P03", Categoria::Ocupada},
    {u"55006", Categoria::Ocupada},      {u"57014", Categoria::Ocupada},       {u"40", Categoria::Ocupada},
    {u"23", Categoria::Restriccion},     {u"22001", Categoria::Restriccion},   {u"22003", Categoria::Restriccion},
    {u"42501", Categoria::SoloLectura},  {u"25006", Categoria::SoloLectura},   {u"53", Categoria::SinSitio},
    {u"58", Categoria::Danada},          {u"XX001", Categoria::Danada},        {u"XX002", Categoria::Danada},
};

struct CasoNativo
{
    qint32 nativo;
    Categoria categoria;
};

constexpr CasoNativo CasosMariaDb[] = {
    {2006, Categoria::ConexionPerdida}, // server has gone away
    {2013, Categoria::ConexionPerdida}, // lost during query
    {2055, Categoria::ConexionPerdida}, // lost, with the system's reason
    {1053, Categoria::ConexionPerdida}, // shutting down
    {1927, Categoria::ConexionPerdida}, // killed
    {1205, Categoria::Ocupada},         // lock wait timeout
    {1213, Categoria::Ocupada},         // deadlock
    {1020, Categoria::Ocupada},         // changed meanwhile
    {1317, Categoria::Ocupada},         // interrupted
    {1969, Categoria::Ocupada},         // took longer than the server lets it
    {1062, Categoria::Restriccion},     // unique key
    {1048, Categoria::Restriccion},     // Null
    {1364, Categoria::Restriccion},     // no default
    {1406, Categoria::Restriccion},     // too long
    {1264, Categoria::Restriccion},     // out of range
    {1292, Categoria::Restriccion},     // no such date
    {1366, Categoria::Restriccion},     // no such number
    {1451, Categoria::Restriccion},     // foreign keys
    {1452, Categoria::Restriccion},     //
    {4025, Categoria::Restriccion},     // check
    {1142, Categoria::SoloLectura},     // rights on the table
    {1143, Categoria::SoloLectura},     // on a column
    {1044, Categoria::SoloLectura},     // on the database
    {1290, Categoria::SoloLectura},     // server is read only
    {1792, Categoria::SoloLectura},     // transaction is read only
    {1021, Categoria::SinSitio},        // disk full
    {1114, Categoria::SinSitio},        // table full
    {1037, Categoria::SinSitio},        // memory
    {1034, Categoria::Danada},          // broken index
    {1194, Categoria::Danada},          // broken table
};

/// One line, without the mark at its end: it stands inside a sentence.
QString enLinea(QString texto)
{
    texto = texto.simplified();
    while (texto.endsWith(u'.') || texto.endsWith(u';'))
        texto.chop(1);
    return texto.isEmpty() ? u"sin más explicación"_s : texto;
}

/// Refusals that all engines tell alike: the state or a fragment of the engine's text, and what is said in its place.
struct CasoDicho
{
    const char16_t* estado;    ///< beginning of the state, nullptr for any
    const char16_t* fragmento; ///< of the text, nullptr for any
    const char16_t* frase;
};

constexpr CasoDicho CasosDichos[] = {
    {u"22012", nullptr, u"División por cero"},
    {nullptr, u"'pow(0,-1)'", u"División por cero"}, // what MariaDB's text for a division writes
    {nullptr, u"integer out of range", u"Desbordamiento"},
    {nullptr, u"BIGINT value is out of range", u"Desbordamiento"},
};

/// What the engine says of a statement.
QString dicho(const Diagnostico& diagnostico)
{
    for (const CasoDicho& caso : CasosDichos) {
        const bool deEstado = !caso.estado || diagnostico.estado.startsWith(QStringView{caso.estado});
        if (deEstado && (!caso.fragmento || diagnostico.texto.contains(QStringView{caso.fragmento})))
            return QString::fromUtf16(caso.frase);
    }
    return enLinea(diagnostico.texto);
}

/// %1 the data source, %2 the engine's own text.
const char16_t* textoDe(Categoria categoria)
{
    switch (categoria) {
    case Categoria::ConexionPerdida:
        return u"Se ha perdido la conexión con el servidor del origen de datos \"%1\" (%2): compruebe que está en marcha y repita "
               u"la "
               u"operación.";
    case Categoria::Ocupada:
        return u"Otro programa tiene bloqueada la base de datos \"%1\" (%2): espere a que termine y repita la operación.";
    case Categoria::SoloLectura:
        return u"El usuario del origen de datos \"%1\" no puede hacer esto (%2): déle permiso en el servidor.";
    case Categoria::SinSitio:
        return u"El servidor del origen de datos \"%1\" no tiene sitio (%2): libere espacio y repita la operación.";
    case Categoria::Danada:
        return u"La base de datos \"%1\" está dañada (%2): restáurela desde una copia de seguridad.";
    case Categoria::Restriccion:
        return u"La base de datos no admite la fila: %2.";
    case Categoria::Sentencia:
        break;
    }
    return u"La base de datos rechaza la sentencia: %2.";
}

Categoria categoriaPostgreSql(const Diagnostico& diagnostico)
{
    for (const CasoEjecucion& caso : CasosPostgreSql) {
        if (diagnostico.estado.startsWith(QStringView{caso.estado}))
            return caso.categoria;
    }
    return Categoria::Sentencia;
}

Categoria categoriaMariaDb(const Diagnostico& diagnostico)
{
    const auto* const caso = std::ranges::find(CasosMariaDb, diagnostico.nativo, &CasoNativo::nativo);
    if (caso != std::end(CasosMariaDb))
        return caso->categoria;
    return diagnostico.estado.startsWith("08"_L1) ? Categoria::ConexionPerdida : Categoria::Sentencia;
}

/// The warnings that a driver puts before or behind an error say nothing about it.
const Diagnostico& elDeMasPeso(std::span<const Diagnostico> diagnosticos, const Diagnostico& ninguno)
{
    const auto grave = std::ranges::find_if(diagnosticos, [](const Diagnostico& d) { return !d.estado.startsWith("01"_L1); });
    if (grave != diagnosticos.end())
        return *grave;
    return diagnosticos.empty() ? ninguno : diagnosticos.front();
}

} // namespace

ErrorMotor errorAlAbrir(std::span<const Diagnostico> diagnosticos, const OrigenDatos& origen)
{
    const Diagnostico ninguno;
    const Diagnostico& diagnostico = elDeMasPeso(diagnosticos, ninguno);
    const auto* const caso = std::ranges::find_if(CasosApertura, [&](const CasoApertura& uno) { return encaja(uno, diagnostico); });
    const QString usuario = origen.usuario.isEmpty() ? QString{} : u" \"%1\""_s.arg(origen.usuario);
    const QString frase = QString::fromUtf16(textoDe(caso->frase)).replace(u"%1"_s, origen.dsn).replace(u"%2"_s, usuario);
    const Categoria categoria = caso->frase == Frase::SinServidor ? Categoria::ConexionPerdida : Categoria::Sentencia;
    return {categoria, ErrorEjecucion::ConexionImposible, frase + u" ("_s + enLinea(diagnostico.texto) + u")."_s};
}

ErrorMotor errorAlEjecutar(jet::Motor motor, std::span<const Diagnostico> diagnosticos, const OrigenDatos& origen, Enlace enlace)
{
    const Diagnostico ninguno;
    const Diagnostico& diagnostico = elDeMasPeso(diagnosticos, ninguno);
    Categoria categoria = motor == jet::Motor::MariaDb ? categoriaMariaDb(diagnostico) : categoriaPostgreSql(diagnostico);
    if (enlace == Enlace::Muerto)
        categoria = Categoria::ConexionPerdida;
    return {categoria, ErrorEjecucion::SentenciaRechazada,
            QString::fromUtf16(textoDe(categoria)).replace(u"%1"_s, origen.dsn).replace(u"%2"_s, dicho(diagnostico))};
}

} // namespace kestrane::database::odbc
