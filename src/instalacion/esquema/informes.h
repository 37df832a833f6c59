#pragma once

#include "instalacion/esquema/columnas.h"

/// The staging tables of the reports database.
namespace kestrane::instalacion::tablas {

/// A row of a report: free columns, named by kind. The numbers that are missing were never in use.
inline constexpr ColumnaEsquema FilaInforme[] = {
    texto("texto1", 255),  texto("texto2", 255),  texto("texto3", 255),  texto("texto4", 255),  texto("texto5", 255),
    texto("texto6", 255),  texto("texto7", 255),  texto("texto8", 255),  texto("texto9", 255),  texto("texto10", 255),
    texto("texto11", 255), texto("texto12", 255), texto("texto13", 255), texto("texto14", 255), texto("texto15", 255),
    texto("texto16", 255), texto("texto17", 255), texto("texto18", 255), texto("texto19", 255), texto("TEXTO20", 255),
    texto("texto21", 255), texto("texto22", 255), texto("texto23", 255), texto("texto24", 255), texto("texto25", 255),
    texto("texto29", 255), texto("texto30", 255), texto("texto32", 255), texto("texto33", 255), texto("TEXTO34", 255),
    texto("TEXTO35", 255), doble("numerico1"),    doble("numerico2"),    doble("numerico3"),    doble("numerico4"),
    doble("numerico5"),    doble("numerico6"),    doble("numerico7"),    doble("numerico8"),    doble("numerico9"),
    doble("numerico10"),   doble("numerico11"),   doble("numerico12"),   doble("numerico13"),   doble("numerico14"),
    doble("numerico16"),   doble("numerico17"),   doble("numerico18"),   doble("numerico19"),   doble("numerico20"),
    doble("numerico21"),   doble("numerico22"),   fecha("Fecha1"),       fecha("fecha2"),       fecha("fecha3"),
    fecha("fecha4"),       memo("memo1"),
};

inline constexpr QLatin1StringView IndicesInformes[] = {"texto21"_L1};

/// One row.
inline constexpr ColumnaEsquema Listadostemporal[] = {
    texto("list1", 50),
};

inline constexpr TablaEsquema DeInformes[] = {
    {"informes"_L1, FilaInforme, {}, IndicesInformes},
    {"subinformes"_L1, FilaInforme, {}, {}},
    {"listadostemporal"_L1, Listadostemporal, {}, {}},
};

} // namespace kestrane::instalacion::tablas
