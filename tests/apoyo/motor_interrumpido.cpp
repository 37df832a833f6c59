#include "apoyo/motor_interrumpido.h"

#include "platform/database/motor.h"
#include "platform/runtime/error_ejecucion.h"

namespace kestrane::prueba {

namespace {

using database::AlmacenFilas;

class SentenciaInterrumpida final : public database::SentenciaMotor
{
public:
    SentenciaInterrumpida(std::unique_ptr<SentenciaMotor> sentencia, int filas) : m_sentencia{std::move(sentencia)}, m_maximo{filas}
    {
    }

    void ejecuta(std::span<const database::Ligado> parametros) override
    {
        m_dadas = 0;
        m_sentencia->ejecuta(parametros);
    }
    [[nodiscard]] bool siguiente(AlmacenFilas& destino) override
    {
        if (m_dadas++ == m_maximo)
            throw ErrorEjecucion{ErrorEjecucion::SentenciaRechazada};
        return m_sentencia->siguiente(destino);
    }
    [[nodiscard]] qint64 afectadas() const override { return m_sentencia->afectadas(); }
    void reinicia() noexcept override { m_sentencia->reinicia(); }

private:
    std::unique_ptr<SentenciaMotor> m_sentencia;
    int m_maximo;
    int m_dadas = 0;
};

class MotorInterrumpido final : public database::MotorBase
{
public:
    MotorInterrumpido(std::unique_ptr<MotorBase> motor, int filas) : m_motor{std::move(motor)}, m_filas{filas} {}

    [[nodiscard]] jet::Motor clase() const override { return m_motor->clase(); }
    [[nodiscard]] jet::Catalogo& catalogo() override { return m_motor->catalogo(); }
    [[nodiscard]] std::unique_ptr<database::SentenciaMotor> prepara(const QByteArray& sql,
                                                                    std::span<const jet::TipoColumna> parametros,
                                                                    std::span<const jet::TipoColumna> resultado) override
    {
        return std::make_unique<SentenciaInterrumpida>(m_motor->prepara(sql, parametros, resultado), m_filas);
    }
    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) override
    {
        m_motor->insertaFilas(tabla, columnas, filas);
    }
    [[nodiscard]] bool perdida() const override { return m_motor->perdida(); }

private:
    std::unique_ptr<MotorBase> m_motor;
    int m_filas;
};

} // namespace

Envoltura interrumpeTras(int filas, const QString& dsn)
{
    return [filas, dsn](std::unique_ptr<database::MotorBase> motor, const QString& suyo) -> std::unique_ptr<database::MotorBase> {
        if (suyo != dsn)
            return motor;
        return std::make_unique<MotorInterrumpido>(std::move(motor), filas);
    };
}

} // namespace kestrane::prueba
