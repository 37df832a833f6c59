#pragma once

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/valor.h"

#include <QStringList>

#include <vector>

namespace kestrane::prueba {

enum class Clase { Texto, TextoALaDerecha, Centrado, Entero, Importe };

/// A column as its reader sees it.
struct Columna
{
    QString campo;
    QString titulo;
    Clase clase = Clase::Texto;
};

/// How a listing lies on its page.
enum class Forma { Tabla, TresColumnas, Fichas, Packs, PacksPorDias };

struct Listado
{
    QString fichero;
    QString titulo;
    Forma forma;
    std::vector<Columna> columnas; ///< of paper; of a card or a pack those of the spreadsheet

    [[nodiscard]] bool conPacks() const { return forma == Forma::Packs || forma == Forma::PacksPorDias; }
};

/// The twelve that are delivered.
[[nodiscard]] const std::vector<Listado>& listadosEntregados();

constexpr int ServiciosPorPack = 4; ///< so that some packs go on on the next page
inline const QString Empresa = QStringLiteral("Peluquería Ñandú, S.L.");
inline const QString Direccion = QStringLiteral("Calle de Íñigo, 3");

/// What row `fila` holds, by rule alone: no two texts of a listing are the same, amounts are quarters, some are negative, some
/// cells Null. In packs all but the service and its day is the same in each row of a pack.
[[nodiscard]] Valor valorDe(const Listado& listado, int fila, const QString& campo);
/// As an accountant in Spain writes it; "" for Null and for a time of 0.
[[nodiscard]] QString escrito(const Valor& valor, Clase clase);

/// Puts the rows into `informes`; packs from the last to the first.
void llena(TiendaDePrueba& tienda, const Listado& listado, int filas);

} // namespace kestrane::prueba
