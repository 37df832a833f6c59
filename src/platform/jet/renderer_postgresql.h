#pragma once

#include "platform/jet/renderer.h"
#include "platform/runtime/configuracion_regional.h"

namespace kestrane::jet {

/// PostgreSQL: everything has a strict type, whole numbers are counted in 64 bits, LIKE needs a collation that it accepts.
class RendererPostgresql final : public Renderer
{
public:
    RendererPostgresql(const enlazado::Sentencia& sentencia, const ConfiguracionRegional& regional)
        : Renderer{dialectoDe(Motor::PostgreSql), sentencia}
        , m_regional{regional}
    {
    }

protected:
    void comoTexto(const Expresion& valor) override;
    void parecido(const enlazado::Parecido& parecido) override;
    void aritmetica(const enlazado::Aritmetica& cuenta) override;

private:
    void fechaComoTexto(const Expresion& valor);
    void divisionEntera(const enlazado::Aritmetica& cuenta, const char* operador);
    void de32Bits(const Expresion& valor);
    void operando(const Expresion& valor, const char* tipo, PrecedenciaSql minima);
    void cuentaCon(const enlazado::Aritmetica& cuenta, const char* operador, const char* tipo, PrecedenciaSql precedencia);

    const ConfiguracionRegional& m_regional;
};

} // namespace kestrane::jet
