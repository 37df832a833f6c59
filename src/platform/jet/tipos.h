#pragma once

#include <QString>

#include <vector>

namespace kestrane::jet {

/// The types of the dialect, of columns and of expressions.
enum class TipoColumna { Texto, Memo, Entero32, Entero16, Doble, FechaHora, SiNo };

/// "TEXT", "MEMO", "LONG", "INTEGER", "DOUBLE", "DATETIME", "YESNO".
[[nodiscard]] QLatin1StringView nombreDeTipo(TipoColumna tipo);

/// A column as the connection's catalogue describes it.
struct Columna
{
    QString nombre; ///< in the engine's spelling
    TipoColumna tipo = TipoColumna::Texto;
    int ancho = 0; ///< characters (code points) of a Texto, 0 when unlimited
    bool admiteNulo = true;
    bool esVerdadDelMotor = false; ///< a SiNo of the engine's own type of truths, which are no numbers: read as -1 and 0

    friend bool operator==(const Columna&, const Columna&) = default;
};

/// A table of the database. Columns that only give rows their order or identity are not among `columnas`.
struct Tabla
{
    QString nombre; ///< in the engine's spelling
    std::vector<Columna> columnas;
    /// What rows without an order are sorted by, engine's spelling: the row number, the hidden identity column, or the columns of
    /// the primary key. Empty when the table has none of them: a statement that needs an order is then refused.
    std::vector<QString> orden;
    /// One column that names a row among all others (row number or hidden identity), "" when there is none: without it the current
    /// row of a recordset can be neither changed nor deleted.
    QString identidad;
    /// True when the database itself may refuse a well-typed row (unique keys and the like beyond NOT NULL), or puts something else
    /// than Null where a row says nothing.
    bool tieneClavesUnicas = false;

    friend bool operator==(const Tabla&, const Tabla&) = default;
};

/// The tables of one database.
class Catalogo
{
public:
    virtual ~Catalogo() = default;
    /// The table of that name, case ignored, or nullptr. The pointer holds as long as the catalogue.
    [[nodiscard]] virtual const Tabla* tabla(QStringView nombre) = 0;
};

} // namespace kestrane::jet
