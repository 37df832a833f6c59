#pragma once

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/valor.h"

#include <QStringList>

#include <initializer_list>
#include <utility>
#include <vector>

namespace kestrane::prueba {

using Celda = std::pair<QString, Valor>;
using FilaDeCaja = std::vector<Celda>;

/// That day of November 2026.
[[nodiscard]] Valor dia(int numero);
/// A bare time of day.
[[nodiscard]] Valor hora(int horas, int minutos);

/// Adds a row to `informes` or `subinformes`; what is not named stays null.
void pon(TiendaDePrueba& tienda, const QString& tabla, const FilaDeCaja& fila);
/// A row of `informes` with company, store and the period of 20 November 2026.
void ponInforme(TiendaDePrueba& tienda, const FilaDeCaja& fila);
/// Columns that have one value in every row.
void ponTotales(TiendaDePrueba& tienda, std::initializer_list<std::pair<QString, double>> totales);

/// The rows of a day as each report gets them, small enough to be summed by hand.
void llenaCajaDiaria(TiendaDePrueba& tienda);
void llenaAlbaranes(TiendaDePrueba& tienda);
void llenaCajaGeneral(TiendaDePrueba& tienda);
void llenaCajaTickets(TiendaDePrueba& tienda);
void llenaServicios(TiendaDePrueba& tienda);
void llenaFormasDePago(TiendaDePrueba& tienda);

/// Two remarks of the desk.
void llenaObservaciones(TiendaDePrueba& tienda);
/// A voucher that was spent and one that was not.
void llenaVales(TiendaDePrueba& tienda);
/// The lines of the box of movements; they sum up to 59,10.
void llenaMovimientos(TiendaDePrueba& tienda);

} // namespace kestrane::prueba
