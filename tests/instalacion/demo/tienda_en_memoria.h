#pragma once

#include "instalacion/demo/generador.h"

#include <QString>

#include <map>
#include <vector>

namespace kestrane::demo::pruebas {

/// One row of a table, read by column names without regard to case.
class Fila
{
public:
    Fila(const TablaDemo& tabla, const std::vector<Valor>& valores) : m_tabla{&tabla}, m_valores{&valores} {}

    [[nodiscard]] const Valor& valor(const char* columna) const;
    [[nodiscard]] bool nulo(const char* columna) const { return valor(columna).esNulo(); }
    [[nodiscard]] int entero(const char* columna) const { return valor(columna).entero32(); }
    [[nodiscard]] double doble(const char* columna) const { return valor(columna).doble(); }
    /// Null reads as the null text.
    [[nodiscard]] QString texto(const char* columna) const { return nulo(columna) ? QString{} : valor(columna).texto(); }
    [[nodiscard]] Fecha fecha(const char* columna) const { return valor(columna).fecha(); }
    [[nodiscard]] bool si(const char* columna) const { return valor(columna).logico(); }

private:
    const TablaDemo* m_tabla;
    const std::vector<Valor>* m_valores;
};

/// A whole demo shop, kept row by row.
class TiendaEnMemoria : public Destino
{
public:
    explicit TiendaEnMemoria(const Parametros& parametros) { generaTienda(parametros, *this); }

    void fila(const TablaDemo& tabla, std::span<const Valor> valores) override
    {
        m_filas[&tabla].emplace_back(valores.begin(), valores.end());
    }

    [[nodiscard]] std::vector<Fila> filas(const TablaDemo& tabla) const;
    [[nodiscard]] const std::vector<std::vector<Valor>>& crudas(const TablaDemo& tabla) const;

private:
    std::map<const TablaDemo*, std::vector<std::vector<Valor>>> m_filas;
};

/// "PELUQUERIA": the name of a case in a list of flavours.
[[nodiscard]] std::string nombreDeCaso(TipoTienda tipo);

} // namespace kestrane::demo::pruebas
