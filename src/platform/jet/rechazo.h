#pragma once

#include "platform/jet/error_sql.h"
#include "platform/runtime/resultado.h"

namespace kestrane::jet {

/// Ends a step of the front end from whatever depth it has reached. It never leaves the step: `conRechazo` turns it into a value.
struct Rechazo
{
    ErrorSql error;
};

/// What `paso` returns, or why it refused.
template<class Paso>
auto conRechazo(Paso paso) -> Resultado<decltype(paso()), ErrorSql>
{
    try {
        return paso();
    } catch (Rechazo& rechazo) {
        return std::move(rechazo.error);
    }
}

} // namespace kestrane::jet
