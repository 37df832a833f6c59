#pragma once

#include "platform/database/error_motor.h"
#include "platform/database/motor.h"

#include <vector>

namespace kestrane::database {

/// A statement that gives the whole numbers 1 to `filas`, one a row, and counts what it is asked for; an error comes instead of row
/// `errorEn`.
class SentenciaDeFilas final : public SentenciaMotor
{
public:
    struct Vista
    {
        int ejecutadas = 0;
        int pedidas = 0;
        int reinicios = 0;
    };

    SentenciaDeFilas(int filas, Vista& vista, int errorEn = 0) : m_filas{filas}, m_errorEn{errorEn}, m_vista{vista} {}

    void ejecuta(std::span<const Ligado>) override
    {
        ++m_vista.ejecutadas;
        m_dada = 0;
    }
    bool siguiente(AlmacenFilas& destino) override
    {
        ++m_vista.pedidas;
        if (m_dada == m_filas)
            return false;
        ++m_dada;
        destino.empiezaFila();
        if (m_dada == m_errorEn)
            throw ErrorMotor(ErrorMotor::Categoria::Sentencia, ErrorEjecucion::SentenciaRechazada, QStringLiteral("fila mala"));
        destino.ponEntero32(m_dada);
        destino.terminaFila();
        return true;
    }
    qint64 afectadas() const override { return 0; }
    void reinicia() noexcept override { ++m_vista.reinicios; }

private:
    int m_filas;
    int m_errorEn;
    int m_dada = 0;
    Vista& m_vista;
};

} // namespace kestrane::database
