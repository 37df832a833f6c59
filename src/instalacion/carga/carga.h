#pragma once

#include "instalacion/demo/destino.h"
#include "platform/database/almacen_filas.h"
#include "platform/database/motor.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace kestrane::instalacion {

/// Rows for the tables of one open database: one by one on SQLite, inside whatever transaction is open there; gathered per table
/// and sent by the thousand to a server, where each sending is a transaction of its own.
class Carga
{
public:
    explicit Carga(database::MotorBase& motor) : m_motor{motor} {}

    /// True when this database has that table.
    [[nodiscard]] bool tiene(const demo::TablaDemo& tabla);
    void fila(const demo::TablaDemo& tabla, std::span<const Valor> valores);
    /// Sends what still waits.
    void envia();

private:
    /// How rows go into one table.
    struct Entrada
    {
        const jet::Tabla* tabla = nullptr;
        std::vector<int> columnas;
        std::unique_ptr<database::SentenciaMotor> insercion; // on SQLite
        std::unique_ptr<database::AlmacenFilas> pendientes;  // on a server
    };

    [[nodiscard]] Entrada& entrada(const demo::TablaDemo& tabla);
    void prepara(Entrada& suya);
    void inserta(Entrada& suya, std::span<const Valor> valores);
    void envia(Entrada& suya);

    database::MotorBase& m_motor;
    std::unordered_map<const demo::TablaDemo*, Entrada> m_entradas;
    std::vector<database::Ligado> m_ligados;
};

/// Sends each row of a demo shop to the database that has its table.
class Reparto : public demo::Destino
{
public:
    Reparto(Carga& tienda, Carga& listados) : m_tienda{tienda}, m_listados{listados} {}

    void fila(const demo::TablaDemo& tabla, std::span<const Valor> valores) override;

private:
    Carga& m_tienda;
    Carga& m_listados;
    std::unordered_map<const demo::TablaDemo*, Carga*> m_suyas;
};

} // namespace kestrane::instalacion
