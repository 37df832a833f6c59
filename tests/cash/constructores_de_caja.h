#pragma once

#include "cash/informe_comparado.h"
#include "cash/listado_albaranes.h"
#include "cash/listado_caja_diaria.h"
#include "cash/listado_caja_general.h"
#include "cash/listado_caja_tickets.h"
#include "cash/listado_formas_pago_ventas.h"
#include "cash/listado_por_servicios.h"

#include <array>

namespace kestrane::prueba {

inline constexpr std::array<Constructor, 6> ConstructoresDeCaja = {ListadoCajaDiaria,   ListadoCajaGeneral,      ListadoCajaTickets,
                                                                   ListadoPorServicios, ListadoFormasPagoVentas, ListadoAlbaranes};

inline constexpr std::array<QStringView, 10> Sabores = {u"PELUQUERIA", u"SPA",        u"ESTETICA",  u"CLINICAS",     u"TPV",
                                                        u"PERFUMERIA", u"TALLACOLOR", u"ZAPATERIA", u"SUPERMERCADO", u"PANADERIA"};

inline constexpr std::array<QStringView, 3> TiendasElegidas = {u"", u"Centro", u"Centro Sur"};

/// A way to run a builder for a flavour, by the number of its options: 3 stores, chain or not, complete or not, 1 to 3 days.
inline Sorteo sorteo(quint32 semilla, size_t constructor, size_t sabor, size_t opciones)
{
    return {.semilla = semilla,
            .constructor = constructor,
            .tipoPrograma = Sabores.at(sabor).toString(),
            .tienda = TiendasElegidas.at(opciones % 3).toString(),
            .multiTienda = opciones / 3 % 2 == 1,
            .completa = opciones / 6 % 2 == 1,
            .dias = 1 + static_cast<int>(opciones / 12 % 3)};
}

inline constexpr size_t CombinacionesDeOpciones = 36;

/// One run drawn from a seed, so that sixty seeds in a row have every builder in every flavour and thirty-six every combination of
/// options.
inline Sorteo sorteo(quint32 semilla)
{
    return sorteo(semilla, semilla % 6, semilla / 6 % 10, (semilla + semilla / 60) % CombinacionesDeOpciones);
}

} // namespace kestrane::prueba
