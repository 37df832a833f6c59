#pragma once

#include "instalacion/carga/carga.h"
#include "instalacion/esquema.h"
#include "platform/database/motor.h"

#include <QString>

#include <functional>
#include <memory>

namespace kestrane::instalacion {

/// What puts rows into a database whose tables are there; it may be none.
using Relleno = std::function<void(Carga&)>;

/// A database while it is being made: `construye`, `termina`, `confirma`. Until the last of them the object takes back what it did
/// when it goes.
class Obra
{
public:
    virtual ~Obra() = default;

    /// The name by which the operator knows it: a file or a data source.
    [[nodiscard]] virtual QString nombre() const = 0;
    /// True when there is already something where it is to stand.
    [[nodiscard]] virtual bool ocupada() = 0;
    /// Makes the tables, lets `relleno` fill them, makes the indexes; what was there before goes only with `termina` where the
    /// place allows it.
    virtual void construye(const Relleno& relleno) = 0;
    /// Puts it in its place.
    virtual void termina() = 0;
    /// It stays, and what was there before is gone for good.
    virtual void confirma() noexcept = 0;
};

/// The embedded file `ruta`, built under another name beside it. Given up, it leaves the file that was there and no folder that it
/// made. ErrorEjecucion when the folder cannot be made or written, and in `termina` when another program works with the file that
/// is there; one that only has it open and holds no lock goes unnoticed and keeps the old file until it is closed.
[[nodiscard]] std::unique_ptr<Obra> obraEnFichero(const BaseEsquema& base, const QString& ruta);

/// The tables of `base` on the server behind `dsn`, which must be a `motor`. Given up, it leaves none of them. Empty tables on
/// PostgreSQL are made in one transaction, which `termina` ends: until then those that were there stay. MariaDB knows none for
/// definitions, and rows are sent in transactions of their own: tables which are replaced are then lost when their successors
/// cannot be made.
[[nodiscard]] std::unique_ptr<Obra> obraEnServidor(const BaseEsquema& base, const QString& dsn, jet::Motor motor);

/// True for a statement that makes an index: those come when the rows are there.
[[nodiscard]] bool creaIndice(const QString& sentencia);

/// Runs a statement without parameters and result.
void ejecuta(database::MotorBase& motor, const QString& sql);

} // namespace kestrane::instalacion
