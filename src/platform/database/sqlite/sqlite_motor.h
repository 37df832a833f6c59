#pragma once

#include "platform/database/error_motor.h"
#include "platform/database/motor.h"
#include "platform/database/sqlite/sqlite_catalogo.h"
#include "platform/database/sqlite/sqlite_recursos.h"
#include "platform/runtime/configuracion_regional.h"

#include <QString>

#include <chrono>
#include <functional>

namespace kestrane::database::sqlite {

class Ligaduras;

/// What a file is for. Tienda: the suite's, left as it is found. Listados: scratch space of one program, which reads beside its own
/// writes (WAL) and need not wait for the disk.
enum class Uso { Tienda, Listados };

struct OpcionesSqlite
{
    QString fichero;
    Uso uso = Uso::Tienda;
    std::chrono::milliseconds espera{5000};
    /// For the texts that the engine makes of numbers and dates.
    ConfiguracionRegional regional = ConfiguracionRegional::espania();
};

/// One open embedded file.
class SqliteMotor final : public MotorBase
{
public:
    /// Opens a file that exists. ErrorEjecucion ConexionImposible with the reason.
    explicit SqliteMotor(OpcionesSqlite opciones);
    ~SqliteMotor() override;

    [[nodiscard]] jet::Motor clase() const override { return jet::Motor::Sqlite; }
    [[nodiscard]] jet::Catalogo& catalogo() override { return m_catalogo; }
    [[nodiscard]] std::unique_ptr<SentenciaMotor> prepara(const QByteArray& sql, std::span<const jet::TipoColumna> parametros,
                                                          std::span<const jet::TipoColumna> resultado) override;
    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) override;
    void ponEspera(std::chrono::milliseconds espera) override;
    [[nodiscard]] bool perdida() const override { return m_perdida; }

    [[nodiscard]] sqlite3* base() const { return m_base.get(); }
    /// The error of the call that just failed with `codigo`.
    [[nodiscard]] ErrorMotor error(int codigo);
    /// Runs a query of the engine's own catalogue with at most one text mark, calling `porFila` on each row.
    void consulta(const char* sql, const QString& parametro, const std::function<void(sqlite3_stmt*)>& porFila);
    /// A text column of the current row, "" when Null.
    [[nodiscard]] static QString texto(sqlite3_stmt* fila, int columna);

private:
    struct Insercion;

    void abre();
    void configura();
    void ejecuta(const char* sql);
    void exige(int codigo);
    [[nodiscard]] Preparada preparada(const QByteArray& sql);
    [[nodiscard]] Insercion& insercion(const jet::Tabla& tabla, std::span<const int> columnas);
    void insertaTodas(Insercion& insercion, AlmacenFilas& filas);

    OpcionesSqlite m_opciones;
    Base m_base;
    bool m_abierta = false;
    bool m_perdida = false;
    SqliteCatalogo m_catalogo;
    std::unique_ptr<Insercion> m_insercion; ///< the one used last
};

} // namespace kestrane::database::sqlite
