#pragma once

#include "platform/jet/renderer.h"
#include "platform/runtime/configuracion_regional.h"

namespace kestrane::jet {

/// MariaDB: a division by zero is no error of its own, "/" of whole numbers is a decimal, IN takes no limited sub-query.
class RendererMariadb final : public Renderer
{
public:
    RendererMariadb(const enlazado::Sentencia& sentencia, const ConfiguracionRegional& regional)
        : Renderer{dialectoDe(Motor::MariaDb), sentencia}
        , m_regional{regional}
    {
    }

protected:
    void comoTexto(const Expresion& valor) override;
    void parecido(const enlazado::Parecido& parecido) override;
    void aritmetica(const enlazado::Aritmetica& cuenta) override;
    void subconsulta(const enlazado::Consulta& una) override;

private:
    void fechaComoTexto(const Expresion& valor);
    void divisionQueFalla(const enlazado::Aritmetica& cuenta, const char* operador, const Envoltura& clase);
    void operando(const Expresion& valor, const Envoltura& clase);

    const ConfiguracionRegional& m_regional;
};

} // namespace kestrane::jet
