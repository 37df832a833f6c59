#pragma once

#include "platform/database/motor.h"
#include "platform/jet/forma.h"
#include "platform/jet/traductor.h"
#include "platform/runtime/configuracion_regional.h"

#include <span>
#include <vector>

namespace kestrane::database {

/// Turns the literals of a statement into the values of its parameter marks: by the type that each mark asks for, texts read and
/// numbers written by the regional settings.
class Ligador
{
public:
    /// `regional` must outlive it.
    explicit Ligador(const ConfiguracionRegional& regional) : m_regional{regional} {}

    /// One value for each mark. They hold until the next call, and as long as the literals. Error -2147217900 for a literal that
    /// cannot become what its mark asks for or does not fit the column that it is written to.
    [[nodiscard]] std::span<const Ligado> liga(std::span<const jet::Parametro> marcas, std::span<const jet::Literal> literales);

private:
    [[nodiscard]] Ligado convierte(const jet::Parametro& marca, const jet::Literal& literal);
    [[nodiscard]] Ligado comoTexto(const jet::Parametro& marca, const jet::Literal& literal);
    [[nodiscard]] Ligado comoNumero(const jet::Parametro& marca, const jet::Literal& literal) const;
    [[nodiscard]] Ligado comoEntero(const jet::Parametro& marca, double numero) const;
    [[nodiscard]] Ligado comoFecha(const jet::Parametro& marca, const jet::Literal& literal) const;
    [[nodiscard]] double numeroDe(const jet::Parametro& marca, const jet::Literal& literal) const;
    [[nodiscard]] QStringView guarda(QString texto);

    const ConfiguracionRegional& m_regional;
    std::vector<Ligado> m_ligados;
    std::vector<QString> m_textos; ///< those that had to be made
};

} // namespace kestrane::database
