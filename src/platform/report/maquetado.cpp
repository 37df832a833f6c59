#include "platform/report/maquetado.h"

#include "platform/report/layout/cuerpo_de_pagina.h"
#include "platform/runtime/error_ejecucion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::report {

namespace {

/// Texts, lines and cells of a dense page: room for them is made once.
constexpr size_t PrimitivasPorPagina = 1024;

} // namespace

CopiaFilas CopiasDeInforme::de(const Layout& layout, database::EntornoDatos* entorno)
{
    const auto conocida = std::find_if(m_copias.begin(), m_copias.end(), [&](const Copia& copia) {
        return copia.dsn == layout.dsn && copia.sentencia == layout.sentencia;
    });
    if (conocida != m_copias.end())
        return conocida->filas;
    if (!entorno)
        throw ErrorEjecucion(ErrorEjecucion::LayoutIncorrecto,
                             u"%1, línea %2: la consulta del subinforme es nueva. Vuelva a sacar el informe."_s.arg(layout.fichero)
                                 .arg(layout.lineaSentencia));
    m_copias.push_back({layout.dsn, layout.sentencia, copiaFilas(layout, *entorno)});
    return m_copias.back().filas;
}

Maquetado::Maquetado(Layout layout, const FilasDeLayout& filas, const ConfiguracionRegional& regional)
    : m_layout{std::move(layout)}
    , m_regional{regional}
    , m_informe{m_layout, filas, m_estilos}
    , m_medidor{m_estilos, regional, altoDeCuerpo(m_layout)}
    , m_compositor{m_estilos, m_medidor, regional, m_layout.carpeta}
    , m_siguiente{Recorrido{m_informe}.primero()}
{
}

double Maquetado::avance() const
{
    if (completo() || filas().filas() == 0)
        return completo() ? 1 : 0;
    return static_cast<double>(m_siguiente.paso.fila) / static_cast<double>(filas().filas());
}

void Maquetado::avanza()
{
    if (completo())
        return;
    const InicioPagina inicio = m_siguiente;
    const Contexto numeros{0, paginas() + 1, 0};
    const auto entradas = static_cast<std::ptrdiff_t>(m_indice.size());
    try {
        m_siguiente = Hoja{m_informe, m_medidor, inicio, numeros, {nullptr, nullptr, &m_indice}}.llena();
    } catch (...) {
        m_indice.erase(m_indice.begin() + entradas, m_indice.end()); // of a page that is not there
        throw;
    }
    m_inicios.push_back(inicio);
}

PaginaCompuesta Maquetado::pagina(int indice)
{
    PaginaCompuesta pagina;
    pagina.estilos = m_estilos.estilos();
    pagina.primitivas.reserve(PrimitivasPorPagina);
    const Contexto numeros{0, indice + 1, completo() ? paginas() : 0};
    const InicioPagina& inicio = m_inicios[static_cast<size_t>(indice)];
    static_cast<void>(Hoja{m_informe, m_medidor, inicio, numeros, {&m_compositor, &pagina, nullptr}}.llena());
    return pagina;
}

} // namespace kestrane::report
