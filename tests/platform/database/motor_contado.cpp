#include "platform/database/motor_contado.h"

#include "platform/database/error_motor.h"

namespace kestrane::database {

namespace {

class SentenciaContada final : public SentenciaMotor
{
public:
    SentenciaContada(std::unique_ptr<SentenciaMotor> propia, Pasos& pasos) : m_propia{std::move(propia)}, m_pasos{pasos} {}

    void ejecuta(std::span<const Ligado> parametros) override
    {
        ++m_pasos.ejecutadas;
        m_propia->ejecuta(parametros);
    }
    bool siguiente(AlmacenFilas& destino) override
    {
        ++m_pasos.filas;
        return m_propia->siguiente(destino);
    }
    qint64 afectadas() const override { return m_propia->afectadas(); }
    void reinicia() noexcept override
    {
        ++m_pasos.reinicios;
        m_propia->reinicia();
    }

private:
    std::unique_ptr<SentenciaMotor> m_propia;
    Pasos& m_pasos;
};

class MotorContado final : public MotorBase
{
public:
    MotorContado(std::unique_ptr<MotorBase> propio, Pasos& pasos)
        : m_propio{std::move(propio)}
        , m_pasos{pasos}
        , m_numero{++pasos.abiertos}
    {
    }

    jet::Motor clase() const override { return m_propio->clase(); }
    jet::Catalogo& catalogo() override { return m_propio->catalogo(); }
    std::unique_ptr<SentenciaMotor> prepara(const QByteArray& sql, std::span<const jet::TipoColumna> parametros,
                                            std::span<const jet::TipoColumna> resultado) override
    {
        ++m_pasos.preparadas;
        return std::make_unique<SentenciaContada>(m_propio->prepara(sql, parametros, resultado), m_pasos);
    }
    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) override
    {
        if (perdida())
            throw ErrorMotor(ErrorMotor::Categoria::ConexionPerdida, ErrorEjecucion::SentenciaRechazada,
                             QStringLiteral("Perdida."));
        fallaSiToca();
        ++m_pasos.envios;
        m_pasos.filasEnviadas += static_cast<int>(filas.filas());
        m_propio->insertaFilas(tabla, columnas, filas);
    }
    void ponEspera(std::chrono::milliseconds espera) override
    {
        m_espera = espera;
        m_propio->ponEspera(espera);
    }
    bool perdida() const override { return m_numero <= m_pasos.cortados || m_propio->perdida(); }

private:
    void fallaSiToca()
    {
        using enum ErrorMotor::Categoria;
        switch (m_pasos.losEnvios) {
        case Pasos::Envios::Bien:
            return;
        case Pasos::Envios::DiscoLleno:
            throw ErrorMotor(SinSitio, ErrorEjecucion::SentenciaRechazada, QStringLiteral("No queda sitio."));
        case Pasos::Envios::Bloqueados:
            m_pasos.esperado += m_espera;
            throw ErrorMotor(Ocupada, ErrorEjecucion::SentenciaRechazada, QStringLiteral("Bloqueada."));
        case Pasos::Envios::FilasRechazadas:
            throw ErrorMotor(Restriccion, ErrorEjecucion::SentenciaRechazada, QStringLiteral("Fila mala."));
        }
    }

    std::unique_ptr<MotorBase> m_propio;
    Pasos& m_pasos;
    int m_numero;
    std::chrono::milliseconds m_espera{5000};
};

} // namespace

std::unique_ptr<MotorBase> motorContado(std::unique_ptr<MotorBase> propio, Pasos& pasos)
{
    return std::make_unique<MotorContado>(std::move(propio), pasos);
}

OpcionesDatos contando(const OpcionesDatos& propias, Pasos& pasos)
{
    OpcionesDatos opciones = propias;
    opciones.abreMotor = [propias, &pasos](const DestinoConexion& destino) {
        return motorContado(EntornoDatos{propias}.abre(destino), pasos);
    };
    return opciones;
}

OpcionesDatos opcionesContadas(const QString& carpeta, Pasos& pasos)
{
    OpcionesDatos opciones;
    opciones.carpeta = carpeta;
    opciones.origenes = Origenes::SoloEmbebidos;
    return contando(opciones, pasos);
}

} // namespace kestrane::database
