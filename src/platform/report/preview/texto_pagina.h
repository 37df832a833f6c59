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
    /// The box around the characters `desde` to before `hasta` of a stretch.
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
        int linea = 0;
    };

    static Tramo tramoDe(const TextoCompuesto& texto, const Estilo& estilo);
    void ordena();
    [[nodiscard]] int tramoCercaDe(QPointF punto) const;
    [[nodiscard]] static double avanceHasta(const Tramo& tramo, int caracter);

    std::vector<Tramo> m_tramos;
};

} // namespace kestrane::report
