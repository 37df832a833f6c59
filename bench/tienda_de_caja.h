#pragma once

#include "bench/motor_contado.h"
#include "bench/periodo_de_caja.h"
#include "bench/sqlite_desnudo.h"
#include "pipeline/listados.h"

#include <QTemporaryDir>

namespace kestrane::bench {

/// A demo shop on which the builders of the till's reports run, all stores and annulled sales included. The staging tables are an
/// embedded file, wherever the shop is.
class TiendaDeCaja
{
public:
    /// `tamano` as `crear-tienda` takes it. The shop goes to the server behind `dsn`; embedded when that is empty.
    explicit TiendaDeCaja(const QString& tamano, const QString& dsn = {});

    /// Runs a builder as the menu does and sends its rows.
    void construye(Constructor constructor, const PeriodoDeCaja& periodo);
    /// Whether its 16-bit counters bear the period.
    [[nodiscard]] bool cabe(Constructor constructor, const PeriodoDeCaja& periodo);

    [[nodiscard]] const QString& dsn() const { return m_dsn; }
    [[nodiscard]] QString ficheroTienda() const { return m_carpeta.filePath(QStringLiteral("TiendaKestrane.db")); }
    /// Statements sent to the shop up to now.
    [[nodiscard]] qint64 sentencias() const { return m_cuentas.at(m_dsn); }
    /// The reports file that the builders fill, and one that the bare programs fill.
    [[nodiscard]] sqlite3* listados() const { return m_listados.get(); }
    [[nodiscard]] sqlite3* listadosDesnudos() const { return m_desnudos.get(); }

private:
    class SinProgreso final : public Progreso
    {
    public:
        void Muestra() override {}
        void IncrementaBarra() override {}
        void cerrar() override {}
    };

    QTemporaryDir m_carpeta;
    QString m_dsn;
    Cuentas m_cuentas;
    std::unique_ptr<EntornoDatos> m_entorno;
    std::unique_ptr<ContextoEjecucion> m_contexto;
    SinProgreso m_progreso;
    RelojFijo m_reloj{PeriodoDeCaja::dia(Hoy)};
    BaseDesnuda m_listados;
    BaseDesnuda m_desnudos;
};

/// Throws, with the first difference, unless both reports files hold the same rows in the same order in `informes` and
/// `subinformes`: texts alike, numbers to 1E-9 of their size.
void exigeIguales(sqlite3* uno, sqlite3* otro);

} // namespace kestrane::bench
