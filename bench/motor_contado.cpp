#include "bench/motor_contado.h"

namespace kestrane::bench {

namespace {

using namespace database;

class SentenciaContada final : public SentenciaMotor
{
public:
    SentenciaContada(std::unique_ptr<SentenciaMotor> sentencia, qint64& cuenta)
        : m_sentencia{std::move(sentencia)}
        , m_cuenta{cuenta}
    {
    }

    void ejecuta(std::span<const Ligado> parametros) override
    {
        ++m_cuenta;
        m_sentencia->ejecuta(parametros);
    }
    [[nodiscard]] bool siguiente(AlmacenFilas& destino) override { return m_sentencia->siguiente(destino); }
    [[nodiscard]] qint64 afectadas() const override { return m_sentencia->afectadas(); }
    void reinicia() noexcept override { m_sentencia->reinicia(); }

private:
    std::unique_ptr<SentenciaMotor> m_sentencia;
    qint64& m_cuenta;
};

class MotorContado final : public MotorBase
{
public:
    MotorContado(std::unique_ptr<MotorBase> motor, qint64& cuenta) : m_motor{std::move(motor)}, m_cuenta{cuenta} {}

    [[nodiscard]] jet::Motor clase() const override { return m_motor->clase(); }
    [[nodiscard]] jet::Catalogo& catalogo() override { return m_motor->catalogo(); }
    [[nodiscard]] std::unique_ptr<SentenciaMotor> prepara(const QByteArray& sql, std::span<const jet::TipoColumna> parametros,
                                                          std::span<const jet::TipoColumna> resultado) override
    {
        return std::make_unique<SentenciaContada>(m_motor->prepara(sql, parametros, resultado), m_cuenta);
    }
    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) override
    {
        ++m_cuenta;
        m_motor->insertaFilas(tabla, columnas, filas);
    }
    void ponEspera(std::chrono::milliseconds espera) override { m_motor->ponEspera(espera); }
    [[nodiscard]] bool perdida() const override { return m_motor->perdida(); }

private:
    std::unique_ptr<MotorBase> m_motor;
    qint64& m_cuenta;
};

} // namespace

OpcionesDatos conCuenta(const OpcionesDatos& opciones, Cuentas& cuentas)
{
    OpcionesDatos contadas = opciones;
    contadas.abreMotor = [de = std::make_shared<EntornoDatos>(opciones), &cuentas](const DestinoConexion& destino) {
        auto motor = de->abre(destino);
        return std::make_unique<MotorContado>(std::move(motor), cuentas[destino.dsn]);
    };
    return contadas;
}

} // namespace kestrane::bench
