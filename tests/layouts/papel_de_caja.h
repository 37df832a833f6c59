#pragma once

#include "layouts/filas_de_caja.h"
#include "layouts/papel_leido.h"

#include <gtest/gtest.h>

#include <QHash>

namespace kestrane::prueba {

/// A cash report as it comes to paper, read back by another program.
struct PapelDeCaja
{
    std::vector<PaginaLeida> paginas;
    QStringList textos;                ///< of each page, words with a blank between them in the order in which they were painted
    double ancho = 0;                  ///< of the paper, in millimetres
    QHash<QString, qsizetype> filasDe; ///< of each box, by its title; none for one without rows

    [[nodiscard]] QString texto() const { return textos.join(u' '); }
    /// Whether these words stand one behind the other.
    [[nodiscard]] testing::AssertionResult dice(const QString& palabras) const;
    [[nodiscard]] testing::AssertionResult calla(const QString& palabras) const;
    /// Whether they come in that order, whatever stands between them.
    [[nodiscard]] testing::AssertionResult diceEnOrden(const QStringList& trozos) const;
};

/// Lays out the rows of the staging tables by that layout.
[[nodiscard]] PapelDeCaja imprimeCaja(TiendaDePrueba& tienda, const QString& layout);

/// The same as data: the HTML that it exports.
[[nodiscard]] QString datosDeCaja(TiendaDePrueba& tienda, const QString& layout);

/// The layouts of the till, from that place on: the day's cash four times, the general cash three times, the others.
[[nodiscard]] std::vector<std::string> nombresDeCaja(qsizetype desde = 0, qsizetype cuantos = -1);
[[nodiscard]] bool vaEnRollo(const QString& layout);
/// For the names of parametrised tests.
[[nodiscard]] std::string nombreDePrueba(const testing::TestParamInfo<std::string>& caso);

} // namespace kestrane::prueba
