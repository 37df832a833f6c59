#pragma once

#include "platform/report/ambito_fila.h"
#include "platform/report/recorrido.h"
#include "platform/report/renglones.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <unordered_map>

namespace kestrane::report {

/// A text that grows, broken into lines. Millimetres from the band's top.
struct TextoMedido
{
    std::vector<Renglon> renglones;
    int estilo = 0;
    double arriba = 0; ///< of the first line
    double altoRenglon = 0;

    [[nodiscard]] double alto() const { return static_cast<double>(renglones.size()) * altoRenglon; }
};

/// A band for one row: how high it is there. Those of fixed height have no more than that.
struct BandaMedida
{
    const BandaEnlazada* banda = nullptr;
    double alto = 0;
    std::vector<TextoMedido> textos;  ///< of each element, empty where it is no text that grows
    std::vector<bool> visibles;       ///< of each sub-report
    bool seParteEnSubinforme = false; ///< within a sub-report bands stay whole, but for what is higher than a piece may be

    /// True when it may go on on the next page: it holds what can be cut between lines or bands.
    [[nodiscard]] bool esDivisible() const { return !banda->deAltoFijo; }
    /// A sub-report alone flows on wherever the page ends; anything else first tries a page of its own.
    [[nodiscard]] bool fluye() const { return banda->subinformes == 1; }
};

/// Where a band that goes on on the next page is cut. Its lines need not end at the same height.
struct CorteBanda
{
    bool cabeAlgo = false; ///< false: not even the first line fits
    double hasta = 0;      ///< lines that end above it stand on this page
    double siguiente = 0;  ///< the top of the first one that does not
    double primero = 0;    ///< where the first line ends
};

/// The bands of a sub-report one below the other.
struct SubinformeMedido
{
    struct Marca
    {
        Paso paso;
        double arriba = 0;
    };
    double alto = 0;
    std::vector<Marca> marcas; ///< at every n-th band
};

/// Finds how high bands are and where they may be cut.
class MedidorBandas
{
public:
    /// `cuerpo` is the room for bands of a page, in millimetres.
    MedidorBandas(const TablaEstilos& estilos, const ConfiguracionRegional& regional, double cuerpo = AltoDeUnaPieza)
        : m_estilos{estilos}
        , m_regional{regional}
        , m_altoDeUnaPieza{std::min(AltoDeUnaPieza, cuerpo)}
    {
    }

    /// Nothing when the band does not show for this row. The number of pages is not known while pages are cut, and heights never
    /// depend on it: what shows by it takes its room in any case.
    [[nodiscard]] std::optional<BandaMedida> mide(const InformeEnlazado& informe, const BandaEnlazada& banda,
                                                  const Contexto& contexto) const;
    /// A text that grows, with the numbers of the page on which it stands: within the lines that it was measured with.
    [[nodiscard]] TextoMedido conNumeros(const TextoMedido& medido, const ElementoEnlazado& elemento,
                                         const AmbitoExpresion& ambito) const;
    /// All bands of a section that show for this row.
    [[nodiscard]] double alto(const InformeEnlazado& informe, const SeccionEnlazada& seccion, const Contexto& contexto) const;
    /// Cuts a band of which all lines that end above `hecho` are placed, so that none ends below `hasta`.
    [[nodiscard]] CorteBanda corta(const BandaMedida& banda, double hecho, double hasta) const;

    /// A value as text that stands for itself.
    [[nodiscard]] QString texto(const ExpresionEnlazada& expresion, const AmbitoExpresion& ambito) const;

    /// Measured once, for it is the same wherever it stands.
    [[nodiscard]] const SubinformeMedido& subinforme(const InformeEnlazado& informe) const;
    /// Calls `visita(BandaMedida, fila, arriba)` for the bands of a sub-report that touch the stretch, from the top.
    template<class Visita>
    void recorreSubinforme(const InformeEnlazado& informe, double desde, double hasta, Visita visita) const;

private:
    /// Sums of heights are not exact.
    static constexpr double Holgura = 1e-6;
    /// What grows higher within a sub-report is cut between its lines rather than leave so much of a page blank.
    static constexpr double AltoDeUnaPieza = 60;
    using Unidad = std::function<void(double arriba, double abajo)>;

    void recorreUnidades(const BandaMedida& banda, double hecho, double hasta, double origen, const Unidad& visita) const;

    [[nodiscard]] std::vector<Renglon> renglonesDe(const ElementoEnlazado& elemento, int estilo,
                                                   const AmbitoExpresion& ambito) const;
    void mideTexto(const InformeEnlazado& informe, const ElementoEnlazado& elemento, const Contexto& contexto, BandaMedida& medida,
                   TextoMedido& destino) const;
    void mideSubinforme(const ElementoEnlazado& elemento, BandaMedida& medida) const;
    const TablaEstilos& m_estilos;
    const ConfiguracionRegional& m_regional;
    double m_altoDeUnaPieza;
    mutable std::unordered_map<const InformeEnlazado*, SubinformeMedido> m_subinformes;
};

/// The style of a text for a row: that of the first condition that holds, else its own.
[[nodiscard]] int estiloDe(const ElementoEnlazado& elemento, const AmbitoExpresion& ambito, const ConfiguracionRegional& regional);

template<class Visita>
void MedidorBandas::recorreSubinforme(const InformeEnlazado& informe, double desde, double hasta, Visita visita) const
{
    const SubinformeMedido& medido = subinforme(informe);
    auto marca = std::upper_bound(medido.marcas.begin(), medido.marcas.end(), desde,
                                  [](double y, const SubinformeMedido::Marca& otra) { return y < otra.arriba; });
    if (marca == medido.marcas.begin())
        return;
    --marca;
    const Recorrido recorrido{informe};
    double arriba = marca->arriba;
    for (Paso paso = marca->paso; paso.parte != Parte::Fin && arriba < hasta; recorrido.avanza(paso)) {
        if (paso.parte == Parte::AbreGrupos)
            continue;
        const auto medida = mide(informe, recorrido.banda(paso), {paso.fila});
        if (!medida)
            continue;
        if (arriba + medida->alto > desde + Holgura)
            visita(*medida, paso.fila, arriba);
        arriba += medida->alto;
    }
}

} // namespace kestrane::report
