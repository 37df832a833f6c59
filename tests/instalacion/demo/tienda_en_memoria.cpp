#include "instalacion/demo/tienda_en_memoria.h"

#include <stdexcept>

namespace kestrane::demo::pruebas {

const Valor& Fila::valor(const char* columna) const
{
    const QLatin1StringView buscada{columna};
    for (std::size_t i = 0; i < m_tabla->columnas.size(); ++i) {
        if (m_tabla->columnas[i].compare(buscada, Qt::CaseInsensitive) == 0)
            return (*m_valores)[i];
    }
    throw std::logic_error{std::string{"no column "} + columna};
}

std::vector<Fila> TiendaEnMemoria::filas(const TablaDemo& tabla) const
{
    std::vector<Fila> todas;
    for (const std::vector<Valor>& valores : crudas(tabla))
        todas.emplace_back(tabla, valores);
    return todas;
}

const std::vector<std::vector<Valor>>& TiendaEnMemoria::crudas(const TablaDemo& tabla) const
{
    static const std::vector<std::vector<Valor>> ninguna;
    const auto lugar = m_filas.find(&tabla);
    return lugar == m_filas.end() ? ninguna : lugar->second;
}

std::string nombreDeCaso(TipoTienda tipo)
{
    return sabor(tipo).tipoPrograma.toString().toStdString();
}

} // namespace kestrane::demo::pruebas
