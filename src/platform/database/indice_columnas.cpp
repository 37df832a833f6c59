#include "platform/database/indice_columnas.h"

#include "platform/jet/nombres.h"

#include <bit>

namespace kestrane::database {

IndiceColumnas::IndiceColumnas(const std::vector<jet::ColumnaResultado>& columnas)
    : m_columnas{&columnas}
    , m_huecos(std::bit_ceil(columnas.size() * 2 + 1))
{
    for (const bool deAsterisco : {false, true}) {
        for (size_t i = 0; i < columnas.size(); ++i) {
            if (columnas[i].deAsterisco == deAsterisco && busca(columnas[i].nombre) < 0)
                anade(static_cast<int>(i));
        }
    }
}

void IndiceColumnas::anade(int columna)
{
    const size_t hash = jet::hashDeNombre((*m_columnas)[static_cast<size_t>(columna)].nombre);
    size_t lugar = hash & (m_huecos.size() - 1);
    while (m_huecos[lugar].columna >= 0)
        lugar = (lugar + 1) & (m_huecos.size() - 1);
    m_huecos[lugar] = {hash, columna};
}

int IndiceColumnas::busca(QStringView nombre) const
{
    if (m_huecos.empty())
        return -1;
    const size_t hash = jet::hashDeNombre(nombre);
    for (size_t lugar = hash & (m_huecos.size() - 1); m_huecos[lugar].columna >= 0; lugar = (lugar + 1) & (m_huecos.size() - 1)) {
        const Hueco& hueco = m_huecos[lugar];
        if (hueco.hash == hash && jet::mismoNombre((*m_columnas)[static_cast<size_t>(hueco.columna)].nombre, nombre))
            return hueco.columna;
    }
    return -1;
}

} // namespace kestrane::database
