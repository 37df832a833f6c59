#pragma once

#include "platform/report/acumulador.h"
#include "platform/report/clave_fila.h"
#include "platform/report/cortes_de_grupos.h"
#include "platform/report/filas_por_sitio.h"

#include <optional>

namespace kestrane::report {

/// Only the columns of the row that a reader stands on: what keys and aggregates are reckoned from.
class AmbitoColumnas : public AmbitoExpresion
{
public:
    explicit AmbitoColumnas(const database::LectorFilas& lector) : m_lector{lector} {}

    [[nodiscard]] Valor columna(int indice) const override { return m_lector.valor(indice); }
    [[nodiscard]] Valor agregado(int) const override { return {}; }
    [[nodiscard]] int pagina() const override { return 0; }
    [[nodiscard]] int paginas() const override { return 0; }
    [[nodiscard]] qsizetype fila() const override { return m_lector.fila(); }

private:
    const database::LectorFilas& m_lector;
};

/// Where the value of one of Layout::agregados is kept.
struct LugarAgregado
{
    static constexpr int PorFila = -1;

    int nivel = 0; ///< 0 the report, n a group, PorFila a value for each row
    int columna = 0;
};

/// One walk over sorted rows that finds where groups begin and reckons all aggregates of a layout.
class PasadaAgregados
{
public:
    PasadaAgregados(const Layout& layout, const QStringList& columnas, const ConfiguracionRegional& regional);

    void recorre(const database::AlmacenFilas& filas);

    [[nodiscard]] CortesDeGrupos tomaCortes() { return std::move(m_cortes); }
    /// Of the report, then of each level of groups.
    [[nodiscard]] std::vector<std::optional<FilasPorSitio>> tomaSumas();
    /// Running values, a row for each row; none when there is no such aggregate.
    [[nodiscard]] std::optional<FilasPorSitio> tomaCorrientes();
    [[nodiscard]] const std::vector<LugarAgregado>& lugares() const { return m_lugares; }

private:
    struct Cuenta
    {
        Acumulador acumulador;
        ExpresionEnlazada de;
        LugarLayout lugar;
        int nivel = 0;
        bool corriente = false;
    };
    using Almacen = std::shared_ptr<database::AlmacenFilas>;

    void pon(const Agregado& agregado, const QStringList& columnas);
    [[nodiscard]] int gruposNuevos(const AmbitoExpresion& fila);
    void cierraDesde(int nivel);
    void suma(Cuenta& cuenta, const AmbitoExpresion& fila) const;
    void anotaCorrientes();

    const ConfiguracionRegional& m_regional;
    int m_niveles;
    ClavesFila m_claves;
    std::vector<QByteArray> m_clavesAnteriores;
    CortesDeGrupos m_cortes;
    std::vector<Cuenta> m_cuentas;
    std::vector<LugarAgregado> m_lugares;
    std::vector<Almacen> m_sumas; ///< by level
    Almacen m_corrientes;
};

} // namespace kestrane::report
