#pragma once

#include "platform/report/preview/busqueda_pagina.h"
#include "platform/report/preview/paginas_vista.h"

#include <QObject>
#include <QTimer>

#include <span>

namespace kestrane::report {

/// A stretch of a page's text that was looked for, as TrechoPagina tells it.
struct Acierto
{
    int pagina = 0;
    int tramo = 0;
    Trecho trecho;

    friend bool operator==(const Acierto&, const Acierto&) = default;
};

/// Looks for a text on all pages, without minding case and accents, in slices between the window's events. Pages that are laid out
/// later are searched as they come. Pages that were searched before their total was known are searched once more when it is, since
/// it may stand on them; until then the hits of the first time are shown.
class Buscador final : public QObject
{
    Q_OBJECT

public:
    static constexpr int MaximoAciertos = 100000; ///< it stops there

    explicit Buscador(PaginasVista& paginas, QObject* padre = nullptr);

    /// Begins anew; blank or empty text finds nothing. The first hit on or behind `desdePagina` becomes the current one as soon as
    /// it is met.
    void busca(const QString& texto, int desdePagina);
    /// Pages have come, or the report was laid out anew (then `busca` first).
    void sigue();
    /// For as long as the pages are in other hands.
    void detiene() { m_turno.stop(); }

    [[nodiscard]] bool activo() const { return !m_buscado.isEmpty(); }
    /// Whether all pages that are laid out have been searched.
    [[nodiscard]] bool terminado() const;
    /// Whether no hit will come or go any more.
    [[nodiscard]] bool definitivo() const;
    /// The report's later pages cannot be laid out: what is there is all there will be. Holds until it is said otherwise.
    void ponIncompleto(bool incompleto);
    [[nodiscard]] int cuenta() const { return int(m_aciertos.size()); }
    [[nodiscard]] std::span<const Acierto> enPagina(int pagina) const;
    /// Its number from 0; -1 when there is none.
    [[nodiscard]] int actual() const { return m_actual; }
    [[nodiscard]] const Acierto& acierto(int numero) const { return m_aciertos[numero]; }
    /// To the next hit or the one before, round the ends.
    void siguiente() { mueve(1); }
    void anterior() { mueve(-1); }

signals:
    void haCambiado();               ///< hits were added or taken away
    void actualCambiado(int numero); ///< another hit is the current one

private:
    void avanza();
    void buscaEnPagina(int pagina);
    void repasa();
    void acabaRepaso();
    void mueve(int pasos);
    void hazActual(int numero);
    void eligePrimero();

    PaginasVista& m_paginas;
    QTimer m_turno;
    QString m_buscado; ///< folded
    std::vector<Acierto> m_aciertos;
    std::vector<Acierto> m_repasados; ///< of the second time, as long as m_enRepaso
    bool m_enRepaso = false;
    bool m_sinTotal = false; ///< a page was searched while the total was not known
    bool m_incompleto = false;
    int m_siguientePagina = 0;
    int m_desdePagina = 0;
    int m_actual = -1;
};

} // namespace kestrane::report
