#pragma once

#include <QString>

namespace kestrane::jet {

/// Why a text is not a statement that can run: a Spanish sentence and the place in the text.
struct ErrorSql // NOLINT(clang-analyzer-core.uninitialized.Assign): out of a Resultado, whose std::variant it loses sight of
{
    enum class Clase {
        TextoVacio,
        DemasiadoLargo,
        DemasiadoProfundo,
        CaracterInesperado,
        LiteralSinCerrar,
        FechaInvalida,
        NumeroInvalido,
        SintaxisIncorrecta,
        SentenciaNoAdmitida,
        TablaDesconocida,
        ColumnaDesconocida,
        NombreAmbiguo,
        TiposIncompatibles,
        ClaveDeOrdenFueraDelResultado,
        AgrupacionIncorrecta,
        SinOrdenPosible,
    };

    Clase clase = Clase::SintaxisIncorrecta;
    QString mensaje;  ///< "No existe la tabla \"clientez\"."
    int posicion = 0; ///< index of the first character meant, in the statement's text
    int longitud = 0; ///< 0 when the place is a point (the end of the text)

    friend bool operator==(const ErrorSql&, const ErrorSql&) = default;
};

/// What the operator reads: the message, the position counted from 1 and the stretch of the statement with a mark under the place.
[[nodiscard]] QString describe(const ErrorSql& error, QStringView sentencia);

} // namespace kestrane::jet
