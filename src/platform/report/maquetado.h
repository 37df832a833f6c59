#pragma once

#include "platform/report/copia_filas.h"
#include "platform/report/hoja.h"
#include "platform/report/subinformes_visibles.h"

namespace kestrane::report {

/// The copies of rows that a document has, by their statement.
class CopiasDeInforme
{
public:
    /// The rows of a layout's statement, copied when they are not there yet. Without an `entorno` only what is there:
    /// ErrorEjecucion LayoutIncorrecto for a statement that has not been run.
    [[nodiscard]] CopiaFilas de(const Layout& layout, database::EntornoDatos* entorno);

private:
    struct Copia
    {
        QString dsn;
        QString sentencia;
        CopiaFilas filas;
    };
    std::vector<Copia> m_copias;
};

/// A layout joined with its rows, and its pages as far as they are laid out.
class Maquetado
{
public:
    Maquetado(Layout layout, const FilasDeLayout& filas, const ConfiguracionRegional& regional);

    [[nodiscard]] const Layout& layout() const { return m_layout; }
    [[nodiscard]] const FilasInforme& filas() const { return m_informe.filas(); }
    [[nodiscard]] std::vector<DatosSubinforme> subinformes() const { return subinformesVisibles(m_informe, m_regional); }
    [[nodiscard]] const std::vector<EntradaIndice>& indice() const { return m_indice; }
    [[nodiscard]] int paginas() const { return static_cast<int>(m_inicios.size()); }
    [[nodiscard]] bool completo() const { return m_siguiente.paso.parte == Parte::Fin && paginas() > 0; }
    [[nodiscard]] double avance() const;
    /// Lays out the next page.
    void avanza();
    /// A page that is laid out.
    [[nodiscard]] PaginaCompuesta pagina(int indice);

private:
    Layout m_layout;
    const ConfiguracionRegional& m_regional;
    TablaEstilos m_estilos;
    InformeEnlazado m_informe;
    MedidorBandas m_medidor;
    Compositor m_compositor;
    InicioPagina m_siguiente;
    std::vector<InicioPagina> m_inicios;
    std::vector<EntradaIndice> m_indice;
};

} // namespace kestrane::report
