#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/jet/tipos.h"
#include "platform/jet/traductor.h"
#include "platform/runtime/fecha.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <span>
#include <variant>
#include <vector>

/// What an engine must offer: one open database and its prepared statements. The engines know no Jet SQL, no cache and no
/// recordset; what stands above knows no driver. Every failure is an ErrorEjecucion: ConexionImposible when opening,
/// SentenciaRechazada else, with the engine's own text and, where the project can say more (locked, read only, no driver, server
/// gone, wrong password), a Spanish sentence that tells how to mend it.
namespace kestrane::database {

/// A value bound to a parameter mark. Texts are borrowed: they must hold until the statement is executed.
using Ligado = std::variant<Nulo, qint32, double, Fecha, QStringView>;

/// A prepared statement. Executed again only after `reinicia`.
class SentenciaMotor
{
public:
    virtual ~SentenciaMotor() = default;

    /// Binds and runs. For a query the rows then come by `siguiente`.
    virtual void ejecuta(std::span<const Ligado> parametros) = 0;
    /// Writes the next row into `destino`, one field per result column in the types given at preparation; false when there is none.
    [[nodiscard]] virtual bool siguiente(AlmacenFilas& destino) = 0;
    /// Rows inserted, changed or deleted by the last `ejecuta`.
    [[nodiscard]] virtual qint64 afectadas() const = 0;
    /// Ends the cursor and lets go of locks. Harmless when there is none. Never throws.
    virtual void reinicia() noexcept = 0;
};

/// One open database of one engine.
class MotorBase
{
public:
    virtual ~MotorBase() = default;

    [[nodiscard]] virtual jet::Motor clase() const = 0;
    /// The catalogue, read table by table when first asked for.
    [[nodiscard]] virtual jet::Catalogo& catalogo() = 0;

    /// Prepares `sql` (UTF-8, marks `?`). `resultado` gives the type of each result column that `siguiente` delivers, hidden ones
    /// included; `parametros` the type of each mark.
    [[nodiscard]] virtual std::unique_ptr<SentenciaMotor>
    prepara(const QByteArray& sql, std::span<const jet::TipoColumna> parametros, std::span<const jet::TipoColumna> resultado) = 0;

    /// Inserts all rows of `filas` (one field for each of `columnas`, indices into tabla.columnas) in order, as one transaction.
    /// Nothing is inserted when it throws.
    virtual void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) = 0;

    /// From now on waits that long for another program's lock. An engine that never waits has nothing to do.
    virtual void ponEspera(std::chrono::milliseconds) {}

    /// True after an error that means that the connection is gone: the next use must open anew.
    [[nodiscard]] virtual bool perdida() const = 0;
};

} // namespace kestrane::database
