#pragma once

#include <QString>

#include <vector>

namespace kestrane::jet {

/// A statement of tests/corpus: the database it is for, whether it must run, and its text with `\\`, `\r` and `\n` undone.
struct SentenciaDelCorpus
{
    enum class Destino { Corre, Rehusada };

    QString fichero;
    QString base; ///< "tienda" or "listados"
    Destino destino = Destino::Corre;
    QString nombre;
    QString texto;

    /// "caja_diaria.corpus: ListadoCajaDiaria.ventas", for messages.
    [[nodiscard]] QString rotulo() const { return fichero + QStringLiteral(": ") + nombre; }
};

/// All statements of the folder's `.corpus` files. A head line `@ base destino nombre`, the statement on the next line; other empty
/// lines and lines that begin with `#` say nothing.
[[nodiscard]] std::vector<SentenciaDelCorpus> leeCorpus(const QString& carpeta);

} // namespace kestrane::jet
