#pragma once

#include "platform/report/preview/fuente_vista.h"
#include "platform/report/preview/texto_pagina.h"

#include <QCache>

#include <functional>

namespace kestrane::report {

/// A page that is looked at.
struct PaginaVista
{
    PaginaCompuesta compuesta;
    TextoPagina texto;
};

/// The pages that were looked at last, composed; an error of the report does not leave it, so that painting may ask for pages.
class PaginasVista
{
public:
    using AlFallar = std::function<void(const QString& motivo)>;

    /// `fuente` outlives it; `alFallar` hears of a page that cannot be composed, which then is empty.
    PaginasVista(FuenteVista& fuente, AlFallar alFallar) : m_fuente{fuente}, m_alFallar{std::move(alFallar)} {}

    [[nodiscard]] FuenteVista& fuente() { return m_fuente; }
    /// `pagina` is laid out. Holds until the next call.
    [[nodiscard]] const PaginaVista& vista(int pagina);
    /// Millimetres of a page that is laid out; those of the page asked for before when it fails.
    [[nodiscard]] QSizeF tamano(int pagina);
    /// A page for passing use, which is not kept.
    [[nodiscard]] PaginaCompuesta compuesta(int pagina);
    /// Pages have changed: all are composed anew when they are asked for.
    void olvida() { m_cache.clear(); }

private:
    static constexpr int Guardadas = 24;

    FuenteVista& m_fuente;
    AlFallar m_alFallar;
    QSizeF m_tamano{210, 297}; ///< of the page whose size was asked for last
    QCache<int, PaginaVista> m_cache{Guardadas};
};

/// What an operation of the report threw, for the operator; rethrows what is no exception of a library either.
[[nodiscard]] QString motivoDeFallo();

/// Runs `operacion`; "" when it went well, else why not.
template<typename Operacion>
QString fallo(Operacion operacion)
{
    try {
        operacion();
        return {};
    } catch (...) {
        return motivoDeFallo();
    }
}

} // namespace kestrane::report
