#pragma once

#include "platform/report/filas_informe.h"
#include "platform/report/tabla_estilos.h"

#include <functional>
#include <memory>
#include <vector>

namespace kestrane::report {

class InformeEnlazado;

/// An element with its expressions bound to the columns of the rows.
struct ElementoEnlazado
{
    const Elemento* elemento = nullptr;
    ExpresionEnlazada mostrar;
    ExpresionEnlazada valor;                    ///< of a text, a picture, a bar code
    std::vector<ExpresionEnlazada> condiciones; ///< of a text's other styles
    std::vector<int> estilos;                   ///< its own, then those
    std::unique_ptr<InformeEnlazado> subinforme;
};

struct BandaEnlazada
{
    const Banda* banda = nullptr;
    ExpresionEnlazada mostrar;
    std::vector<ElementoEnlazado> elementos;
    bool deAltoFijo = true; ///< no text that grows and no sub-report: its height needs no row
    int subinformes = 0;
};
using SeccionEnlazada = std::vector<BandaEnlazada>;

struct GrupoEnlazado
{
    const Grupo* grupo = nullptr;
    ExpresionEnlazada titulo;
    SeccionEnlazada cabecera;
    SeccionEnlazada pie;
};

/// The rows of a layout or of a sub-report's.
using FilasDeLayout = std::function<std::unique_ptr<FilasInforme>(const Layout&)>;

/// A layout and its rows, joined: sub-reports included.
class InformeEnlazado
{
public:
    /// `layout` must outlive it. `nivel` 0 is the report itself, more a sub-report. ErrorEjecucion LayoutIncorrecto for a column
    /// that is not there, or for sub-reports within sub-reports without end.
    InformeEnlazado(const Layout& layout, const FilasDeLayout& filas, TablaEstilos& estilos, int nivel = 0);
    ~InformeEnlazado();
    InformeEnlazado(const InformeEnlazado&) = delete;
    InformeEnlazado& operator=(const InformeEnlazado&) = delete;

    [[nodiscard]] const Layout& layout() const { return m_layout; }
    [[nodiscard]] const FilasInforme& filas() const { return *m_filas; }
    [[nodiscard]] bool esSubinforme() const { return m_nivel > 0; }
    [[nodiscard]] int niveles() const { return static_cast<int>(m_grupos.size()); }
    /// From 1, the outermost.
    [[nodiscard]] const GrupoEnlazado& grupo(int nivel) const { return m_grupos[static_cast<size_t>(nivel) - 1]; }

    [[nodiscard]] const SeccionEnlazada& cabeceraInforme() const { return m_cabeceraInforme; }
    [[nodiscard]] const SeccionEnlazada& cabeceraPagina() const { return m_cabeceraPagina; }
    [[nodiscard]] const SeccionEnlazada& detalle() const { return m_detalle; }
    [[nodiscard]] const SeccionEnlazada& piePagina() const { return m_piePagina; }
    [[nodiscard]] const SeccionEnlazada& pieInforme() const { return m_pieInforme; }

private:
    class Enlazador;

    const Layout& m_layout;
    int m_nivel;
    std::unique_ptr<FilasInforme> m_filas;
    std::vector<GrupoEnlazado> m_grupos;
    SeccionEnlazada m_cabeceraInforme;
    SeccionEnlazada m_cabeceraPagina;
    SeccionEnlazada m_detalle;
    SeccionEnlazada m_piePagina;
    SeccionEnlazada m_pieInforme;
};

} // namespace kestrane::report
