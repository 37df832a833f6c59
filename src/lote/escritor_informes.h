#pragma once

#include "platform/database/conexion.h"

#include <QByteArray>
#include <QIODevice>
#include <QStringList>

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

/// Whether the reports of a run may stand in one document.
enum class Juntos { Si, No };

/// Writes reports in one format. A document is `principio`, the bodies with `separador` between them, `final`.
class EscritorInformes
{
public:
    virtual ~EscritorInformes() = default;

    /// Writes the body of one report to a file whose name is `base` and an ending, or to several where a file holds a page alone;
    /// returns them in order, none when there is nothing to write. ErrorDeSalida.
    [[nodiscard]] virtual QStringList escribe(const InformeMostrado& informe, Conexion& listados, const QString& base) = 0;
    [[nodiscard]] virtual Juntos juntos() const { return Juntos::No; }
    [[nodiscard]] virtual QByteArray principio() const { return {}; }
    [[nodiscard]] virtual QByteArray separador() const { return {}; }
    [[nodiscard]] virtual QByteArray final() const { return {}; }
};

/// Bytes that are held before they go out.
inline constexpr qsizetype TrozoDeSalida = qsizetype{64} * 1024;

/// Writes all of `bytes` and empties it. ErrorDeSalida.
void vuelca(QByteArray& bytes, QIODevice& destino);
/// The same once there are enough of them.
void vuelcaSiEsMucho(QByteArray& bytes, QIODevice& destino);

} // namespace kestrane::lote
