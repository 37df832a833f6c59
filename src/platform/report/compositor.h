#pragma once

#include "platform/report/imagenes.h"
#include "platform/report/medidor_bandas.h"
#include "platform/report/pagina_compuesta.h"

namespace kestrane::report {

/// The stretch of a band that stands on a page: all of it, or what was not placed on the pages before and ends above a cut.
struct TramoBanda
{
    static constexpr double SinFin = 1e9;
    static constexpr double Holgura = 1e-6;

    QPointF lugar;         ///< on the page, of the band's left edge at `desde`
    double desde = 0;      ///< from the band's top, what stands at `lugar`
    double hecho = 0;      ///< what ends above it stands on the pages before
    double hasta = SinFin; ///< what ends below it stands on the pages behind

    [[nodiscard]] bool empiezaAqui(double arriba) const { return arriba >= hecho && arriba < hasta; }
    [[nodiscard]] bool terminaAqui(double abajo) const { return abajo > hecho + Holgura && abajo <= hasta + Holgura; }
    [[nodiscard]] double enPagina(double y) const { return lugar.y() + y - desde; }
    /// The same stretch as what stands within the band, that much to the right and below, sees it.
    [[nodiscard]] TramoBanda dentro(double x, double y) const
    {
        return {{lugar.x() + x, lugar.y()}, desde - y, hecho - y, hasta - y};
    }
};

/// Turns bands with their rows into what is painted.
class Compositor
{
public:
    /// Pictures are found from `carpeta`.
    Compositor(const TablaEstilos& estilos, const MedidorBandas& medidor, const ConfiguracionRegional& regional, QString carpeta)
        : m_estilos{estilos}
        , m_medidor{medidor}
        , m_regional{regional}
        , m_imagenes{std::move(carpeta)}
    {
    }

    void compone(const InformeEnlazado& informe, const BandaMedida& banda, const Contexto& contexto, const TramoBanda& tramo,
                 PaginaCompuesta& pagina);

private:
    /// What all elements of a band have in common while it is composed.
    struct Obra
    {
        const InformeEnlazado& informe;
        const BandaMedida& banda;
        const Contexto& contexto;
        const AmbitoFila& ambito;
        const TramoBanda& tramo;
        PaginaCompuesta& pagina;
    };

    void pon(const Obra& obra, const ElementoEnlazado& elemento, size_t indice);
    void pon(const Obra& obra, const Texto& texto, const ElementoEnlazado& elemento, size_t indice);
    void pon(const Obra& obra, const Linea& linea, const ElementoEnlazado& elemento, size_t indice);
    void pon(const Obra& obra, const Marco& marco, const ElementoEnlazado& elemento, size_t indice);
    void pon(const Obra& obra, const Imagen& imagen, const ElementoEnlazado& elemento, size_t indice);
    void pon(const Obra& obra, const Codigo39& codigo, const ElementoEnlazado& elemento, size_t indice);
    void pon(const Obra& obra, const Subinforme& subinforme, const ElementoEnlazado& elemento, size_t indice);

    static void ponFondo(const Obra& obra, const Texto& texto, const QColor& fondo);
    void ponCrecido(const Obra& obra, const Texto& texto, const TextoMedido& medido) const;
    /// A line within a box that stands on the page.
    void ponRenglon(PaginaCompuesta& pagina, Renglon renglon, const QRectF& caja, double arriba, Horizontal horizontal,
                    int estilo) const;
    void ponCentrado(PaginaCompuesta& pagina, const QString& texto, const QRectF& caja, int estilo) const;
    [[nodiscard]] static QRectF enPagina(const Obra& obra, const QRectF& caja);
    /// A box that may reach the band's bottom, cut to the stretch; nothing when it lies outside.
    [[nodiscard]] static QRectF recortada(const Obra& obra, const QRectF& caja, bool hastaElFondo);
    [[nodiscard]] QString textoDe(const Obra& obra, const ElementoEnlazado& elemento) const;
    [[nodiscard]] bool ponConLetra(const Obra& obra, const QString& valor, const QRectF& caja,
                                   const ElementoEnlazado& elemento) const;

    const TablaEstilos& m_estilos;
    const MedidorBandas& m_medidor;
    const ConfiguracionRegional& m_regional;
    Imagenes m_imagenes;
};

} // namespace kestrane::report
