#pragma once

#include "platform/runtime/error_ejecucion.h"

namespace kestrane::database {

/// An engine's refusal with the kind of trouble that it tells, for the layers that must act on it; programs see an ErrorEjecucion.
class ErrorMotor : public ErrorEjecucion
{
public:
    enum class Categoria {
        Sentencia,       ///< the engine does not understand or cannot run it
        Restriccion,     ///< the row breaks a rule of the database: unique key, Null, width
        Ocupada,         ///< another program has it locked
        SoloLectura,     ///< file or rights do not allow writing
        SinSitio,        ///< disk or memory full
        Danada,          ///< no database, or a broken one
        ConexionPerdida, ///< the server or the file is gone: open anew
    };

    ErrorMotor(Categoria categoria, Numero numero, QString descripcion)
        : ErrorEjecucion(numero, std::move(descripcion))
        , m_categoria{categoria}
    {
    }

    [[nodiscard]] Categoria categoria() const { return m_categoria; }

private:
    Categoria m_categoria;
};

} // namespace kestrane::database
