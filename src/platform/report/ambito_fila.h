#pragma once

#include "platform/report/filas_informe.h"

namespace kestrane::report {

/// Where expressions of a band are evaluated: a row, and the page on which it stands.
struct Contexto
{
    qsizetype fila = 0;
    int pagina = 1;
    int paginas = 0; ///< 0 as long as it is not known
};

/// A row as expressions see it. Of a report without rows all columns are Null.
class AmbitoFila : public AmbitoExpresion
{
public:
    AmbitoFila(const FilasInforme& filas, const Contexto& contexto) : m_filas{filas}, m_contexto{contexto} {}

    [[nodiscard]] Valor columna(int indice) const override
    {
        return m_filas.filas() == 0 ? Valor{} : m_filas.valor(m_contexto.fila, indice);
    }
    [[nodiscard]] Valor agregado(int indice) const override { return m_filas.agregado(m_contexto.fila, indice); }
    [[nodiscard]] int pagina() const override { return m_contexto.pagina; }
    [[nodiscard]] int paginas() const override { return m_contexto.paginas; }
    [[nodiscard]] qsizetype fila() const override { return m_filas.filas() == 0 ? 0 : m_contexto.fila + 1; }

private:
    const FilasInforme& m_filas;
    Contexto m_contexto;
};

} // namespace kestrane::report
