#pragma once

#include "platform/database/adelanto.h"
#include "platform/database/base_compartida.h"
#include "platform/database/cache_formas.h"
#include "platform/database/edicion.h"
#include "platform/database/entorno_datos.h"
#include "platform/database/ligador.h"
#include "platform/jet/forma.h"
#include "platform/jet/traductor.h"

#include <QString>

#include <memory>

namespace kestrane::database {

class Anticipacion;
class EstadoInforme;
struct EtiquetaRecordset;

/// One open database as a connection uses it: from a statement's text to the engine and back. Everything that a Conexion and its
/// recordsets do goes through here.
class Sesion
{
public:
    using AnilloRecordsets = Enlace<EtiquetaRecordset>;

    Sesion(EntornoDatos& entorno, std::shared_ptr<BaseCompartida> base, std::unique_ptr<MotorBase> motor,
           std::shared_ptr<EstadoInforme> informe);
    /// Ends the recordsets that are open; sends what waits if it can.
    ~Sesion();
    Sesion(const Sesion&) = delete;
    Sesion& operator=(const Sesion&) = delete;

    /// The plan of a statement. Its literals are kept for the next `consulta` or `ejecuta`. Error -2147217900 with the front end's
    /// description when the text is no statement.
    [[nodiscard]] PlanSentencia& prepara(const QString& sentencia);
    /// Runs the query prepared last.
    [[nodiscard]] Cursor& consulta(PlanSentencia& plan, const QString& sentencia);

    struct Abierta
    {
        PlanSentencia* plan = nullptr;
        Cursor* cursor = nullptr;
    };
    /// Opens a query as a snapshot; during a report's scope perhaps without asking the database. Error -2147217900 for a statement
    /// that gives no rows.
    [[nodiscard]] Abierta abre(const QString& sentencia);
    /// The plan of a query that is run when a row is asked for, by `consulta`; no cursor. Errors as for `abre`.
    [[nodiscard]] Abierta preparada(const QString& sentencia);
    /// A cursor of `consulta` or `abre` goes back. With its `sentencia` its answer may be remembered.
    void cierra(PlanSentencia& plan, Cursor& cursor, const QString& sentencia = {}) noexcept;
    /// True while texts are worth keeping for `cierra`.
    [[nodiscard]] bool recuerda() const;
    /// See Recordset::Anticipa; the rows of `cabeceras` from the current one on are those to come.
    void anticipa(const void* duenio, Cursor& cabeceras, int columna, const QString& cabeza, const QString& cola);
    void retiraAnuncios(const void* duenio) noexcept;

    /// Runs any statement; returns the rows that it wrote.
    qint64 ejecuta(const QString& sentencia);
    /// Adds a row: gathered when the database has no say in it, else at once.
    void anade(const jet::Tabla& tabla, const Edicion& fila);
    /// Sends the gathered rows when there are many of them.
    void enviaSiHayMuchas();
    /// Writes the assigned columns of the row with that identity.
    void modifica(const jet::Tabla& tabla, const Edicion& fila, const Valor& identidad);
    void borra(const jet::Tabla& tabla, const Valor& identidad);

    [[nodiscard]] MotorBase& motor() { return *m_motor; }
    [[nodiscard]] BaseCompartida& base() { return *m_base; }
    [[nodiscard]] const ConfiguracionRegional& regional() const { return m_entorno.regional(); }
    [[nodiscard]] AnilloRecordsets& recordsets() { return m_recordsets; }

private:
    [[nodiscard]] PlanSentencia& planNuevo(const QString& sentencia);
    [[noreturn]] void rechaza(const jet::ErrorSql& error, const QString& sentencia) const;
    [[noreturn]] void sinForma(const QString& sentencia) const;
    [[noreturn]] static void sinFilas();
    [[nodiscard]] Abierta recordada(const QString& sentencia);
    [[nodiscard]] Abierta adelantada(const QString& sentencia, PlanSentencia& plan);
    [[nodiscard]] std::shared_ptr<const AlmacenFilas> leeAdelantado(Anticipacion& anticipacion, QStringView clave,
                                                                    PlanSentencia& plan);
    [[nodiscard]] Abierta deMemoria(PlanSentencia& plan, std::shared_ptr<const AlmacenFilas> filas);
    void anadeYa(const jet::Tabla& tabla, const Edicion& fila);
    void ejecutaUna(const QByteArray& sql, std::span<const jet::TipoColumna> tipos, std::span<const Ligado> valores);

    EntornoDatos& m_entorno;
    std::shared_ptr<BaseCompartida> m_base;
    std::unique_ptr<MotorBase> m_motor;
    std::shared_ptr<EstadoInforme> m_informe;
    jet::Traductor m_traductor;
    jet::ExtractorDeForma m_extractor;
    Ligador m_ligador;
    CacheFormas m_formas;
    Adelanto m_adelanto;
    AnilloRecordsets m_recordsets;
    QByteArray m_sqlFila; ///< of the row-wise change used last
    std::unique_ptr<SentenciaMotor> m_sentenciaFila;
};

} // namespace kestrane::database
