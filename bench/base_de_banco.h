#pragma once

#include "bench/sqlite_desnudo.h"
#include "platform/database/conexion.h"
#include "platform/database/entorno_datos.h"

#include <QTemporaryDir>

namespace kestrane::bench {

/// A shop and a reports database in a folder of their own, the shop filled by the bare interface: clients 1 to Clientes, sales 1 to
/// Ventas with three lines each.
class BaseDeBanco
{
public:
    static constexpr int Clientes = 20'000;
    static constexpr int Ventas = 60'000;

    BaseDeBanco();

    [[nodiscard]] QString carpeta() const { return m_carpeta.path(); }
    /// The bare program's own connections, opened on the same files.
    [[nodiscard]] sqlite3* tiendaDesnuda() const { return m_tienda.get(); }
    [[nodiscard]] sqlite3* listadosDesnuda() const { return m_listados.get(); }
    /// The project's.
    [[nodiscard]] Conexion& tienda() { return m_conexionTienda; }
    [[nodiscard]] Conexion& listados() { return m_conexionListados; }

private:
    QTemporaryDir m_carpeta;
    BaseDesnuda m_tienda;
    BaseDesnuda m_listados;
    EntornoDatos m_entorno;
    Conexion m_conexionTienda{m_entorno};
    Conexion m_conexionListados{m_entorno};
};

/// Made once per run of the program, when first asked for.
BaseDeBanco& baseDeBanco();

/// Codes in an order that is the same in every run and that no cache foresees.
class Codigos
{
public:
    explicit Codigos(int hasta) : m_hasta{static_cast<quint64>(hasta)} {}
    int siguiente()
    {
        m_estado = m_estado * 6364136223846793005u + 1442695040888963407u;
        return static_cast<int>((m_estado >> 33) % m_hasta) + 1;
    }

private:
    quint64 m_hasta;
    quint64 m_estado = 42;
};

} // namespace kestrane::bench
