#pragma once

#include "platform/database/conexion.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace kestrane::lote {

/// A report that would have gone to the preview.
struct InformeMostrado
{
    QString control;
    QString tienda; ///< the store that it was built for, "" for all
    QString layout; ///< "" when it was built and shown nowhere
    QString impresora;
    bool datos = false; ///< whether there are rows to show
};

/// Writes reports in one format. A document is `principio`, the bodies with `separador` between them, `final`.
class EscritorInformes
{
public:
    virtual ~EscritorInformes() = default;

    /// Writes the body of one report, its rows read from the staging tables in stored order. ErrorDeSalida when `cuerpo` does not
    /// take it.
    virtual void escribe(const InformeMostrado& informe, Conexion& listados, QIODevice& cuerpo) = 0;
    [[nodiscard]] virtual QByteArray principio() const = 0;
    [[nodiscard]] virtual QByteArray separador() const = 0;
    [[nodiscard]] virtual QByteArray final() const = 0;
};

/// Bytes that are held before they go out.
inline constexpr qsizetype TrozoDeSalida = qsizetype{64} * 1024;

/// Writes all of `bytes` and empties it. ErrorDeSalida.
void vuelca(QByteArray& bytes, QIODevice& destino);
/// The same once there are enough of them.
void vuelcaSiEsMucho(QByteArray& bytes, QIODevice& destino);

} // namespace kestrane::lote
