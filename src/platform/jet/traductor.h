#pragma once

#include "platform/jet/error_sql.h"
#include "platform/jet/tipos.h"
#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/resultado.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace kestrane::jet {

/// The databases that a statement can be rendered for.
enum class Motor { Sqlite, PostgreSql, MariaDb };

/// A parameter mark of the rendered text, in the order of the marks.
struct Parametro
{
    int literal = 0; ///< index of the statement's literal that it takes, in the order of the text
    /// What the literal is turned into before it is bound. A text for a number or date is read strictly by the regional settings, a
    /// number for a text is written by them, a double for an integer is rounded half to even.
    TipoColumna tipo = TipoColumna::Texto;
    int ancho = 0;       ///< most characters that fit, 0 when unlimited
    bool negado = false; ///< the sign is turned (signs before a literal add up)
    QString columna;     ///< what it is written to, for messages; "" in conditions

    friend bool operator==(const Parametro&, const Parametro&) = default;
};

/// A column of the result, as `Fields` finds it.
struct ColumnaResultado
{
    QString nombre; ///< alias, else column name in the catalogue's spelling, else "Expr1000" and on
    TipoColumna tipo = TipoColumna::Texto;
    int ancho = 0;
    bool deAsterisco = false; ///< came from `*`: a column named explicitly goes before it when two share a name

    friend bool operator==(const ColumnaResultado&, const ColumnaResultado&) = default;
};

/// A statement ready for one engine.
struct Traduccion
{
    enum class Clase { Consulta, Insercion, Modificacion, Borrado };

    Clase clase = Clase::Consulta;
    QByteArray sql; ///< UTF-8, in the engine's dialect, literals as `?`
    std::vector<Parametro> parametros;
    std::vector<ColumnaResultado> columnas; ///< of a Consulta
    /// A plain query of one table: its name, and the rendered text gives the identity, if the table has one, as one more, last
    /// column. Else "".
    QString tablaEditable;
    /// For `tablaEditable`: for each result column the column of the table that it is, or -1.
    std::vector<int> columnaDeTabla;
    /// With `traduceAnticipada`: the result has the key as one more column, before the identity if there is one.
    bool conClave = false;
    std::vector<QString> tablas; ///< all tables that the statement names, the written one first
};

/// Text -> tokens -> tree -> names and types -> text of one engine.
///
/// Pure: it reads the catalogue and touches no database. Everything that it refuses it refuses with a Spanish message and a place.
class Traductor
{
public:
    /// `catalogo` must outlive the translator. The regional settings give the decimal and date marks that `&` writes.
    Traductor(Catalogo& catalogo, Motor motor, ConfiguracionRegional regional);

    [[nodiscard]] Resultado<Traduccion, ErrorSql> traduce(QStringView sentencia) const;

    /// The same query for several keys at once: the literal of that index, which must stand alone in a top-level condition
    /// `column = literal`, becomes a list of `claves` marks (the last `claves` parameters, all of that literal), and the column is
    /// added to the result. Rows keep the statement's order within each key. Nothing when the statement is no such query (grouped,
    /// distinct, top, aggregate, several uses).
    [[nodiscard]] std::optional<Traduccion> traduceAnticipada(QStringView sentencia, int literal, int claves) const;

private:
    Catalogo& m_catalogo;
    Motor m_motor;
    ConfiguracionRegional m_regional;
};

} // namespace kestrane::jet
