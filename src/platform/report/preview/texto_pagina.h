#pragma once

#include "platform/report/pagina_compuesta.h"

#include <QFont>
#include <QString>

#include <vector>

namespace kestrane::report {

/// A place in the text of a page: before the character `caracter` of its stretch number `tramo`.
struct LugarTexto
{
    int tramo = 0;
    int caracter = 0;

    friend auto operator<=>(const LugarTexto&, const LugarTexto&) = default;
};

/// The texts of a page in the order in which they are read: line by line, from left to right. Lengths are millimetres.
class TextoPagina
{
public:
    TextoPagina() = default;
    explicit TextoPagina(const PaginaCompuesta& pagina);

    [[nodiscard]] int tramos() const { return int(m_tramos.size()); }
    [[nodiscard]] const QString& texto(int tramo) const { return m_tramos[tramo].texto; }
    /// Whether a stretch is the first line of its cell.
    [[nodiscard]] bool empieza(int tramo) const { return !m_tramos[tramo].sigue; }
    /// The stretch with the next line of the same cell; -1 when there is none.
    [[nodiscard]] int siguiente(int tramo) const { return m_tramos[tramo].siguiente; }
    /// The boxes around the characters from `desde` of a stretch to before `hasta`, which past its end are those of the next lines
    /// of its cell. A line in which the reading turns may have several.
    [[nodiscard]] std::vector<QRectF> cajas(int tramo, int desde, int hasta) const;
    /// The box around all these.
    [[nodiscard]] QRectF caja(int tramo, int desde, int hasta) const;
    /// The place nearest to a point.
    [[nodiscard]] LugarTexto lugarEn(QPointF punto) const;
    /// Whether there is text under a point.
    [[nodiscard]] bool hayTextoEn(QPointF punto) const;
    [[nodiscard]] LugarTexto final() const;
    /// What stands between two places: stretches of one line parted by tabs, lines by line ends.
    [[nodiscard]] QString entre(LugarTexto desde, LugarTexto hasta) const;

private:
    struct Tramo
    {
        QString texto;
        QRectF caja;
        QFont letra; ///< 100 points of the screen high
        double base = 0;
        bool sigue = false; ///< a cell that was begun goes on
        int pintado = 0;    ///< its place in the order of painting
        int linea = 0;
        int siguiente = -1;
    };

    static Tramo tramoDe(const TextoCompuesto& texto, const Estilo& estilo);
    void ordena();
    void enlaza();
    [[nodiscard]] int tramoCercaDe(QPointF punto) const;
    static void anadeCajas(const Tramo& tramo, int desde, int hasta, std::vector<QRectF>& destino);

    std::vector<Tramo> m_tramos;
};

} // namespace kestrane::report
