#pragma once

#include "platform/jet/traductor.h"

#include <QStringView>

#include <vector>

namespace kestrane::database {

/// Finds the columns of a result by name, case ignored; of several of one name the one named explicitly before one from `*`, then
/// the first.
class IndiceColumnas
{
public:
    IndiceColumnas() = default;
    /// `columnas` must outlive the index and stay where they are.
    explicit IndiceColumnas(const std::vector<jet::ColumnaResultado>& columnas);

    /// Position of the column, -1 when there is none.
    [[nodiscard]] int busca(QStringView nombre) const;

private:
    struct Hueco
    {
        size_t hash = 0;
        int columna = -1;
    };

    void anade(int columna);

    const std::vector<jet::ColumnaResultado>* m_columnas = nullptr;
    std::vector<Hueco> m_huecos; ///< open addressing; a power of two, at most half full
};

} // namespace kestrane::database
