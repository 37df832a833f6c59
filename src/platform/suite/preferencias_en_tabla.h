#pragma once

#include "platform/suite/apariencia.h"
#include "platform/suite/preferencias_terminal.h"

namespace kestrane {

/// Keeps the appearance in the shop's table `preferencias_terminal`, one row per terminal, by the first 50 characters of its
/// identifier. A terminal without a row has the defaults, and so has every column that is null or holds what is no choice. In a
/// shop without the table changes last as long as this object.
class PreferenciasEnTabla final : public PreferenciasTerminal
{
public:
    /// Of the terminal that the machine's host name identifies.
    PreferenciasEnTabla();
    /// Of the terminal `identificador`, of any length.
    explicit PreferenciasEnTabla(QString identificador) : m_identificador{std::move(identificador)} {}

    [[nodiscard]] QString DarIdentificador() override { return m_identificador; }
    [[nodiscard]] qint32 DarTema(Conexion& conexion) override;
    qint32 SiguienteTema(Conexion& conexion) override;
    [[nodiscard]] qint32 DarLetra(Conexion& conexion) override;
    qint32 SiguienteLetra(Conexion& conexion) override;
    [[nodiscard]] double DarAncho(Conexion& conexion) override;
    /// Always true: the cycle has no size that follows itself.
    bool SiguienteTamano(Conexion& conexion, double& ancho, double& alto) override;
    [[nodiscard]] double DarAlto(Conexion& conexion) override;

private:
    [[nodiscard]] Apariencia lee(Conexion& conexion) const;
    void guarda(Conexion& conexion, const Apariencia& apariencia);
    [[nodiscard]] bool tieneFila(Conexion& conexion) const;
    [[nodiscard]] QString condicion() const;

    QString m_identificador;
    Apariencia m_sinTabla; ///< what holds where the table is absent
};

} // namespace kestrane
