#pragma once

#include "platform/database/campo.h"
#include "platform/database/enlace.h"
#include "platform/database/recuento.h"
#include "platform/jet/traductor.h"

#include <QString>

#include <memory>
#include <optional>
#include <span>

namespace kestrane::database {

class Conexion;
class Cursor;
class Edicion;
class PlanSentencia;
class Sesion;
struct EtiquetaRecordset;

/// Static: the rows as they are when opened. Keyset: for appending, reads nothing until a row is asked for.
enum class CursorType { Keyset = 1, Static = 3 };
enum class LockType { Optimistic = 3 };

/// The rows of a query, walked forward, and the way to add, change and delete rows of one table.
///
/// After Open the first row is the current one. A row added stays current until the next step. Every failure is an ErrorEjecucion.
class Recordset : private Enlace<EtiquetaRecordset>
{
public:
    Recordset();
    /// Closes. Rows that were added are gathered already and go out with the next statement at the latest.
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    /// Opens the query `texto`, or all of a table when it is one name. An open recordset is closed first. Error -2147217900 when
    /// the statement or the database refuses it.
    void Open(const QString& texto, Conexion& conexion, CursorType tipo = CursorType::Static,
              LockType bloqueo = LockType::Optimistic);
    /// Harmless on a closed recordset. A row that was begun and not updated is dropped.
    void Close();
    [[nodiscard]] bool abierto() const { return m_plan != nullptr; }

    /// The number of rows, counted as far as the comparison needs it.
    [[nodiscard]] Recuento RecordCount() { return Recuento{*this}; }
    /// True past the last row.
    [[nodiscard]] bool Eof();
    /// The next row becomes the current one; changes to the current one are written first. Error 3021 past the last.
    void MoveNext();

    /// A field of the current row, by name (case ignored; of two columns of one name the one named explicitly before one from `*`,
    /// and of several the first) or by position from 0. Error 3265 when there is none.
    [[nodiscard]] Campo Fields(QStringView nombre) { return Campo{*this, columna(nombre)}; }
    [[nodiscard]] Campo Fields(int indice) { return Campo{*this, columna(indice)}; }
    [[nodiscard]] std::span<const jet::ColumnaResultado> columnas() const;

    /// Begins a new row, all Null. One that was begun and not updated is written first.
    void AddNew();
    /// Writes the row begun with AddNew, or what was assigned to the current row. Nothing to write is no error.
    void Update();
    /// Deletes the current row; until the next step there is no current row.
    void Delete();

    /// During a report's scope: for each row from here on, `cabeza` + the text of `campo` + `cola` will be opened on the connection
    /// of this recordset. Only speed changes. Nothing happens outside a scope.
    void Anticipa(const QString& cabeza, const QString& campo, const QString& cola);

    /// Range-for over the rows from the current one on: `for (Recordset& fila : rs)`.
    class Iterador
    {
    public:
        explicit Iterador(Recordset& filas) : m_filas{filas} {}
        Recordset& operator*() const { return m_filas; }
        Iterador& operator++()
        {
            m_filas.MoveNext();
            return *this;
        }
        friend bool operator==(const Iterador& iterador, std::default_sentinel_t) { return iterador.m_filas.Eof(); }

    private:
        Recordset& m_filas;
    };
    [[nodiscard]] Iterador begin() { return Iterador{*this}; }
    [[nodiscard]] std::default_sentinel_t end() const { return {}; }

private:
    friend class Campo;
    friend class Recuento;
    friend class Sesion;

    /// What the current row is. PorLeer: the first one, not asked for yet.
    enum class Fila { PorLeer, Leida, Nueva, Anadida, Borrada, Ninguna };

    static void cierraTodos(Enlace<EtiquetaRecordset>& abiertos) noexcept;

    [[nodiscard]] int columna(QStringView nombre) const;
    [[nodiscard]] int columna(int indice) const;
    [[nodiscard]] int columnaDeTabla(int columna) const;
    [[nodiscard]] Valor lee(int columna);
    void escribe(int columna, const Valor& valor);
    [[nodiscard]] bool hay(qsizetype filas);
    [[nodiscard]] qint32 cuenta();

    void exigeAbierto() const;
    [[nodiscard]] Cursor& leido();
    void situa();
    void exigeFila();
    [[nodiscard]] Edicion& edicion();
    void anadeNueva();
    void modificaActual();
    void avanza();
    [[nodiscard]] Valor identidad() const;
    void suelta() noexcept;

    Sesion* m_sesion = nullptr;
    PlanSentencia* m_plan = nullptr;
    Cursor* m_cursor = nullptr; ///< of the plan's pool; none until a row is asked for
    Fila m_fila = Fila::PorLeer;
    qsizetype m_anadidas = 0; ///< since the rows were read
    qsizetype m_borradas = 0;
    bool m_porEnviar = false;
    QString m_texto; ///< of a query that has not been run yet
    std::unique_ptr<Edicion> m_edicion;
};

} // namespace kestrane::database

namespace kestrane {
using database::CursorType;
using database::LockType;
using database::Recordset;
} // namespace kestrane
