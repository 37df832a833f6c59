#pragma once

#include "platform/report/compositor.h"
#include "platform/report/documento.h"
#include "platform/report/reserva_de_sitio.h"

namespace kestrane::report {

/// Where a page begins: all that is needed to compose it anew.
struct InicioPagina
{
    Paso paso;
    double desde = 0; ///< of a band that was cut, what this page begins with, from the band's top
    double hecho = 0; ///< and what ends above stands on the pages before

    [[nodiscard]] bool deBandaEntera() const { return hecho == 0; }
};

/// What comes of a page besides its end. Without a compositor nothing is painted.
struct SalidaHoja
{
    Compositor* compositor = nullptr;
    PaginaCompuesta* pagina = nullptr;
    std::vector<EntradaIndice>* indice = nullptr;
};

/// Fills one page with bands, from a place in the report as far as they fit. The same whether they are painted or not, so that a
/// page painted later is the one that was laid out.
class Hoja
{
public:
    /// `numeros` has the page's number and how many there are.
    Hoja(const InformeEnlazado& informe, const MedidorBandas& medidor, const InicioPagina& inicio, const Contexto& numeros,
         const SalidaHoja& salida);

    /// Fills it and returns where the next page begins; at Parte::Fin there is none. Each page takes in something, so that all of
    /// them come to an end however small the paper is.
    [[nodiscard]] InicioPagina llena();

private:
    /// Sums of heights are not exact: labels that fill a sheet to the last hundredth must not run over.
    static constexpr double Holgura = 0.001;

    void empieza();
    void termina();
    /// One step on; false when the page is full.
    [[nodiscard]] bool sigue();
    [[nodiscard]] bool encabeza();
    [[nodiscard]] bool abreGrupos();
    void apuntaGrupos(int primero);
    [[nodiscard]] bool empiezaFila();
    [[nodiscard]] bool colocaBanda();
    [[nodiscard]] bool colocaAlPie(const BandaMedida& banda);
    [[nodiscard]] bool coloca(const BandaMedida& banda);
    [[nodiscard]] bool parte(const BandaMedida& banda);
    void aLaSiguiente()
    {
        m_lugar.desde = m_lugar.hecho = 0;
        m_recorrido.avanza(m_lugar.paso);
    }
    [[nodiscard]] bool colocaCaja();
    void cierraCajas();

    void ponEncabezados();
    void ponSeccion(const SeccionEnlazada& seccion, qsizetype fila);
    void pon(const BandaMedida& banda, qsizetype fila, const TramoBanda& tramo);
    [[nodiscard]] Contexto contexto(qsizetype fila) const { return {fila, m_numeros.pagina, m_numeros.paginas}; }
    [[nodiscard]] bool cabe(double alto) const { return m_y + alto <= m_limite + Holgura; }
    /// The room for bands of a page.
    [[nodiscard]] double altoDeCuerpo() const { return m_limite - m_inicioCuerpo; }

    const InformeEnlazado& m_informe;
    const Pagina& m_formato;
    const MedidorBandas& m_medidor;
    Recorrido m_recorrido;
    ReservaDeSitio m_reserva;
    InicioPagina m_lugar;
    Contexto m_numeros;
    SalidaHoja m_salida;
    double m_y = 0;
    double m_limite = 0;       ///< of the bands; below it stands the page footer
    double m_inicioCuerpo = 0; ///< below the headings
    double m_altoPie = 0;
    qsizetype m_ultimaFila = 0;
    bool m_vacia = true;         ///< no band but headings yet
    bool m_soloCabeceras = true; ///< nor any but headers of groups
    bool m_faltanEncabezados = false;
    int m_columna = 0; ///< of the next box across
    double m_altoCajas = 0;
};

} // namespace kestrane::report
