#pragma once

#include "bench/caja_diaria_desnuda.h"
#include "bench/caja_tickets_desnuda.h"
#include "bench/tienda_de_caja.h"
#include "cash/listado_albaranes.h"
#include "cash/listado_caja_diaria.h"
#include "cash/listado_caja_general.h"
#include "cash/listado_caja_tickets.h"
#include "cash/listado_formas_pago_ventas.h"
#include "cash/listado_por_servicios.h"

#include <benchmark/benchmark.h>

#include <array>
#include <iostream>
#include <vector>

namespace kestrane::bench {

/// A builder and the buttons that run it.
struct ConstructorDeCaja
{
    const char* botones;
    Constructor constructor;
};

inline constexpr std::array ConstructoresDeCaja{
    ConstructorDeCaja{"cmd_Caja1 y cmdCajaDiariaResumido", ListadoCajaDiaria},
    ConstructorDeCaja{"cmd_Caja3", ListadoCajaGeneral},
    ConstructorDeCaja{"cmd_Caja4", ListadoCajaTickets},
    ConstructorDeCaja{"cmd_Ventas1", ListadoPorServicios},
    ConstructorDeCaja{"cmd_Ventas2", ListadoFormasPagoVentas},
    ConstructorDeCaja{"cmdAlbaranes", ListadoAlbaranes},
};

/// One shop, seen by the builders and by the bare programs.
template<class Tienda>
class BancoDeCaja
{
public:
    explicit BancoDeCaja(const QString& tamano, const QString& dsn = {})
        : m_tienda{tamano, dsn}
        , m_desnuda{Tienda::abre(m_tienda.ficheroTienda(), m_tienda.dsn())}
    {
        leeDias();
    }

    [[nodiscard]] TiendaDeCaja& tienda() { return m_tienda; }
    [[nodiscard]] PeriodoDeCaja todo() const { return {m_dias.front().dia, m_dias.back().dia}; }
    [[nodiscard]] PeriodoDeCaja ultimoMes() const
    {
        return {m_dias[m_dias.size() - std::min<size_t>(m_dias.size(), DiasDeMes)].dia, m_dias.back().dia};
    }
    /// The day with the most tickets.
    [[nodiscard]] PeriodoDeCaja diaMayor() const
    {
        const auto mayor = std::ranges::max_element(m_dias, {}, &Cuenta::tickets);
        return {mayor->dia, mayor->dia};
    }
    /// The longest period whose tickets and units the builder's counters bear.
    [[nodiscard]] PeriodoDeCaja masLargo(Constructor constructor);
    [[nodiscard]] qint64 tickets(const PeriodoDeCaja& periodo) const
    {
        qint64 tickets = 0;
        for (const Cuenta& cuenta : m_dias)
            tickets += cuenta.dia >= periodo.desde && cuenta.dia <= periodo.hasta ? cuenta.tickets : 0;
        return tickets;
    }

    /// Runs the bare program that answers to a builder.
    template<template<class> class Programa>
    void desnudo(const PeriodoDeCaja& periodo)
    {
        Programa<Tienda>{m_desnuda, m_tienda.listadosDesnudos(), periodo}.construye();
    }

private:
    static constexpr size_t DiasDeMes = 25; ///< with sales
    static constexpr int Maximo = 32'767;

    struct Cuenta
    {
        QString dia;
        int tickets = 0;
        int unidades = 0;
    };

    void leeDias();

    TiendaDeCaja m_tienda;
    Tienda m_desnuda;
    std::vector<Cuenta> m_dias;
};

template<class Tienda>
void BancoDeCaja<Tienda>::leeDias()
{
    auto fila = m_desnuda.lee(
        QStringLiteral(
            "SELECT %1, count(distinct c.numero), sum(CASE WHEN l.tipo_venta IN ('S','B','CB') THEN l.unidades ELSE 0 END) "
            "FROM cabecera_factura c JOIN detalle_factura l ON l.num_factura = c.numero GROUP BY 1 ORDER BY 1")
            .arg(Tienda::dia(QStringLiteral("c.fechaventa"))));
    while (fila.siguiente())
        m_dias.push_back({QString::fromUtf8(fila.texto(0)), fila.entero(1), fila.entero(2)});
}

/// By what was sold first; what else counts (annulled sales, say) then costs some last days.
template<class Tienda>
PeriodoDeCaja BancoDeCaja<Tienda>::masLargo(Constructor constructor)
{
    if (m_tienda.cabe(constructor, todo()))
        return todo();
    size_t desde = 0;
    size_t mejor = 0;
    size_t dias = 0;
    int tickets = 0;
    int unidades = 0;
    for (size_t hasta = 0; hasta < m_dias.size(); ++hasta) {
        tickets += m_dias[hasta].tickets;
        unidades += m_dias[hasta].unidades;
        for (; tickets > Maximo || unidades > Maximo; ++desde) {
            tickets -= m_dias[desde].tickets;
            unidades -= m_dias[desde].unidades;
        }
        if (hasta + 1 - desde > dias) {
            dias = hasta + 1 - desde;
            mejor = desde;
        }
    }
    while (dias > 1 && !m_tienda.cabe(constructor, {m_dias[mejor].dia, m_dias[mejor + dias - 1].dia}))
        --dias;
    return {m_dias[mejor].dia, m_dias[mejor + dias - 1].dia};
}

/// Small shops alone: to see that all of it runs.
inline bool enHumo()
{
    return qEnvironmentVariableIsSet("KESTRANE_BENCH_HUMO");
}

template<class Tienda>
using DaBanco = BancoDeCaja<Tienda>& (*)();

template<class Tienda>
using DaPeriodo = PeriodoDeCaja (*)(BancoDeCaja<Tienda>&, Constructor);

inline void cuentaPeriodo(benchmark::State& estado, const PeriodoDeCaja& periodo, qint64 tickets, const char* meta)
{
    estado.SetLabel(QStringLiteral("%1; %2 a %3, %4 tickets")
                        .arg(QLatin1StringView{meta}, periodo.desde, periodo.hasta)
                        .arg(tickets)
                        .toStdString());
}

/// A builder against the bare program that answers to it. Both have to leave the same rows before anything is measured.
template<class Tienda, template<class> class Programa>
void registraPar(const std::string& nombre, DaBanco<Tienda> da, DaPeriodo<Tienda> elige, Constructor constructor, const char* meta)
{
    const auto prepara = [=]() -> const PeriodoDeCaja& {
        static std::map<std::string, PeriodoDeCaja> preparados;
        const auto hecho = preparados.find(nombre);
        if (hecho != preparados.end())
            return hecho->second;
        const PeriodoDeCaja periodo = elige(da(), constructor);
        std::cerr << nombre << ": " << periodo.desde.toStdString() << " a " << periodo.hasta.toStdString() << '\n';
        da().tienda().construye(constructor, periodo);
        da().template desnudo<Programa>(periodo);
        exigeIguales(da().tienda().listados(), da().tienda().listadosDesnudos());
        return preparados.emplace(nombre, periodo).first->second;
    };
    benchmark::RegisterBenchmark((nombre + "/desnuda").c_str(),
                                 [=](benchmark::State& estado) {
                                     const PeriodoDeCaja& periodo = prepara();
                                     for (auto _ : estado)
                                         da().template desnudo<Programa>(periodo);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark((nombre + "/nuestra").c_str(),
                                 [=](benchmark::State& estado) {
                                     const PeriodoDeCaja& periodo = prepara();
                                     for (auto _ : estado)
                                         da().tienda().construye(constructor, periodo);
                                     cuentaPeriodo(estado, periodo, da().tickets(periodo), meta);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

/// Each builder by itself, over a month and over the longest period that it bears, with the statements that it sends.
template<class Tienda>
void registraConstructores(const std::string& grupo, DaBanco<Tienda> da, const char* meta)
{
    const auto registra = [=](const std::string& nombre, Constructor constructor, DaPeriodo<Tienda> elige) {
        benchmark::RegisterBenchmark(nombre.c_str(),
                                     [=](benchmark::State& estado) {
                                         const PeriodoDeCaja periodo = elige(da(), constructor);
                                         const qint64 antes = da().tienda().sentencias();
                                         for (auto _ : estado)
                                             da().tienda().construye(constructor, periodo);
                                         const qint64 tickets = da().tickets(periodo);
                                         estado.counters["sentencias por ticket"] =
                                             static_cast<double>(da().tienda().sentencias() - antes) /
                                             static_cast<double>(estado.iterations()) / static_cast<double>(tickets);
                                         cuentaPeriodo(estado, periodo, tickets, meta);
                                     })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1);
    };
    for (const ConstructorDeCaja& uno : ConstructoresDeCaja) {
        registra(grupo + uno.botones + ", un mes", uno.constructor,
                 [](BancoDeCaja<Tienda>& banco, Constructor) { return banco.ultimoMes(); });
        registra(grupo + uno.botones + ", lo mas largo", uno.constructor,
                 [](BancoDeCaja<Tienda>& banco, Constructor constructor) { return banco.masLargo(constructor); });
    }
}

} // namespace kestrane::bench
