#pragma once

#include "platform/jet/renderer.h"

namespace kestrane::jet {

/// SQLite: conversions, divisions, LIKE and the widths of columns are functions that the connection registers.
class RendererSqlite final : public Renderer
{
public:
    explicit RendererSqlite(const enlazado::Sentencia& sentencia) : Renderer{dialectoDe(Motor::Sqlite), sentencia} {}

protected:
    void comoTexto(const Expresion& valor) override;
    void parecido(const enlazado::Parecido& parecido) override;
    void aritmetica(const enlazado::Aritmetica& cuenta) override;
    void cabe(const enlazado::Cabe& dato, TipoColumna tipo) override;
};

} // namespace kestrane::jet
