#include "platform/database/sqlite/sqlite_catalogo.h"

#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/jet/nombres.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::database::sqlite {

using jet::TipoColumna;

namespace {

struct Palabra
{
    const char16_t* texto;
    TipoColumna tipo;
};

/// Whole words first: the engine's affinities know neither LONG nor YESNO.
constexpr Palabra Palabras[] = {
    {u"INTEGER", TipoColumna::Entero32}, {u"INT", TipoColumna::Entero32},        {u"LONG", TipoColumna::Entero32},
    {u"BIGINT", TipoColumna::Entero32},  {u"COUNTER", TipoColumna::Entero32},    {u"SMALLINT", TipoColumna::Entero16},
    {u"SHORT", TipoColumna::Entero16},   {u"TINYINT", TipoColumna::Entero16},    {u"BYTE", TipoColumna::Entero16},
    {u"DOUBLE", TipoColumna::Doble},     {u"REAL", TipoColumna::Doble},          {u"FLOAT", TipoColumna::Doble},
    {u"SINGLE", TipoColumna::Doble},     {u"NUMERIC", TipoColumna::Doble},       {u"DECIMAL", TipoColumna::Doble},
    {u"CURRENCY", TipoColumna::Doble},   {u"MONEY", TipoColumna::Doble},         {u"DATETIME", TipoColumna::FechaHora},
    {u"DATE", TipoColumna::FechaHora},   {u"TIMESTAMP", TipoColumna::FechaHora}, {u"TIME", TipoColumna::FechaHora},
    {u"YESNO", TipoColumna::SiNo},       {u"BOOLEAN", TipoColumna::SiNo},        {u"BOOL", TipoColumna::SiNo},
    {u"BIT", TipoColumna::SiNo},         {u"TEXT", TipoColumna::Texto},          {u"VARCHAR", TipoColumna::Texto},
    {u"CHAR", TipoColumna::Texto},       {u"CHARACTER", TipoColumna::Texto},     {u"NVARCHAR", TipoColumna::Texto},
    {u"NCHAR", TipoColumna::Texto},      {u"STRING", TipoColumna::Texto},        {u"MEMO", TipoColumna::Memo},
    {u"CLOB", TipoColumna::Memo},        {u"LONGTEXT", TipoColumna::Memo},
};

/// Then what the engine itself looks for inside the declaration, in its order.
constexpr Palabra Afinidades[] = {
    {u"INT", TipoColumna::Entero32}, {u"CHAR", TipoColumna::Texto}, {u"CLOB", TipoColumna::Memo},  {u"TEXT", TipoColumna::Texto},
    {u"REAL", TipoColumna::Doble},   {u"FLOA", TipoColumna::Doble}, {u"DOUB", TipoColumna::Doble},
};

TipoColumna tipoDePalabra(QStringView palabra)
{
    for (const Palabra& conocida : Palabras) {
        if (palabra == QStringView{conocida.texto})
            return conocida.tipo;
    }
    for (const Palabra& afinidad : Afinidades) {
        if (palabra.contains(QStringView{afinidad.texto}))
            return afinidad.tipo;
    }
    return palabra.isEmpty() ? TipoColumna::Memo : TipoColumna::Doble;
}

int anchoDeclarado(QStringView declaracion)
{
    const qsizetype abre = declaracion.indexOf(u'(');
    const qsizetype cierra = declaracion.indexOf(u')', abre);
    return abre < 0 || cierra < 0 ? 0 : declaracion.sliced(abre + 1, cierra - abre - 1).trimmed().toInt();
}

const QString NombresDeFila[] = {u"rowid"_s, u"_rowid_"_s, u"oid"_s};

/// The name under which the row number can be asked for: one that no column hides.
QString numeroDeFila(const jet::Tabla& tabla)
{
    for (const QString& nombre : NombresDeFila) {
        const auto lleva = [&](const jet::Columna& columna) { return jet::mismoNombre(columna.nombre, nombre); };
        if (std::none_of(tabla.columnas.begin(), tabla.columnas.end(), lleva))
            return nombre;
    }
    return {};
}

} // namespace

TipoDeclarado tipoDeclarado(QStringView declaracion)
{
    const QString mayusculas = declaracion.trimmed().toString().toUpper();
    const qsizetype fin =
        std::find_if(mayusculas.begin(), mayusculas.end(), [](QChar c) { return !c.isLetterOrNumber(); }) - mayusculas.begin();
    const TipoColumna tipo = tipoDePalabra(QStringView{mayusculas}.first(fin));
    if (tipo != TipoColumna::Texto)
        return {tipo, 0};
    const int ancho = anchoDeclarado(mayusculas);
    return ancho > 0 ? TipoDeclarado{tipo, ancho} : TipoDeclarado{TipoColumna::Memo, 0};
}

const jet::Tabla* SqliteCatalogo::tabla(QStringView nombre)
{
    const QString plegado = jet::nombrePlegado(nombre);
    if (const auto leida = m_tablas.constFind(plegado); leida != m_tablas.constEnd())
        return leida->get();
    const QString propio = nombrePropio(nombre);
    if (propio.isEmpty())
        return nullptr;
    return m_tablas.insert(plegado, lee(definicion(propio)))->get();
}

QString SqliteCatalogo::nombrePropio(QStringView pedido)
{
    // Compared here and not by the engine, whose own comparison knows no case beyond ASCII.
    QString hallado;
    m_motor.consulta("select name from sqlite_master where type in ('table', 'view')", {}, [&](sqlite3_stmt* fila) {
        if (const QString nombre = SqliteMotor::texto(fila, 0); jet::mismoNombre(nombre, pedido))
            hallado = nombre;
    });
    return hallado;
}

SqliteCatalogo::Definicion SqliteCatalogo::definicion(const QString& nombre)
{
    Definicion definicion{.nombre = nombre};
    // The list is asked for this table alone: it is slow, and would be made anew for each table of the file.
    m_motor.consulta("select m.type, coalesce((select l.wr from pragma_table_list(m.name) l where l.schema = 'main'), 0), "
                     "m.sql like '%check%' or exists "
                     "(select 1 from sqlite_master d where d.type = 'trigger' and lower(d.tbl_name) = lower(m.name)) "
                     "from sqlite_master m where m.name = ? and m.type in ('table', 'view')",
                     nombre, [&](sqlite3_stmt* fila) {
                         definicion.esTabla = SqliteMotor::texto(fila, 0) == u"table";
                         definicion.sinNumeroDeFila = sqlite3_column_int(fila, 1) != 0;
                         definicion.tieneReglas = sqlite3_column_int(fila, 2) != 0;
                     });
    return definicion;
}

std::unique_ptr<jet::Tabla> SqliteCatalogo::lee(const Definicion& definicion)
{
    auto tabla = std::make_unique<jet::Tabla>();
    tabla->nombre = definicion.nombre;
    tabla->tieneClavesUnicas = definicion.tieneReglas || tieneIndiceUnico(definicion.nombre);
    leeColumnas(definicion, *tabla);
    if (definicion.esTabla && !definicion.sinNumeroDeFila) {
        tabla->identidad = numeroDeFila(*tabla);
        tabla->orden = {tabla->identidad};
    } else if (tabla->orden.size() == 1) {
        tabla->identidad = tabla->orden.front();
    }
    return tabla;
}

void SqliteCatalogo::leeColumnas(const Definicion& definicion, jet::Tabla& tabla)
{
    std::vector<std::pair<int, QString>> clave;
    m_motor.consulta("select name, type, \"notnull\", pk, dflt_value from pragma_table_xinfo(?) where hidden <> 1 order by cid",
                     definicion.nombre, [&](sqlite3_stmt* fila) {
                         const TipoDeclarado declarado = tipoDeclarado(SqliteMotor::texto(fila, 1));
                         const bool admiteNulo = sqlite3_column_int(fila, 2) == 0;
                         tabla.columnas.push_back({SqliteMotor::texto(fila, 0), declarado.tipo, declarado.ancho, admiteNulo});
                         if (const int lugar = sqlite3_column_int(fila, 3); lugar > 0)
                             clave.emplace_back(lugar, tabla.columnas.back().nombre);
                         // Gathered rows are sent with Null where they wrote nothing, so such a default would be lost on them.
                         const QString predeterminado = SqliteMotor::texto(fila, 4);
                         if (admiteNulo && !predeterminado.isEmpty() && predeterminado.compare(u"null", Qt::CaseInsensitive) != 0)
                             tabla.tieneClavesUnicas = true;
                     });
    // The key INTEGER PRIMARY KEY is the row number and has no index of its own.
    tabla.tieneClavesUnicas = tabla.tieneClavesUnicas || !clave.empty();
    std::sort(clave.begin(), clave.end());
    for (const auto& [lugar, nombre] : clave)
        tabla.orden.push_back(nombre);
}

bool SqliteCatalogo::tieneIndiceUnico(const QString& tabla)
{
    bool unico = false;
    m_motor.consulta("select 1 from pragma_index_list(?) where \"unique\" = 1", tabla, [&](sqlite3_stmt*) { unico = true; });
    return unico;
}

} // namespace kestrane::database::sqlite
