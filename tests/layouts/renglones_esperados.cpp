#include "layouts/renglones_esperados.h"

#include <algorithm>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

QString celda(const Listado& listado, int fila, const Columna& columna)
{
    return escrito(valorDe(listado, fila, columna.campo), columna.clase);
}

Renglon deTabla(const Listado& listado, int fila, size_t cuantas)
{
    Renglon renglon;
    for (size_t i = 0; i < cuantas; ++i) {
        const Columna& columna = listado.columnas[i];
        renglon.casillas.push_back({celda(listado, fila, columna), static_cast<int>(i), columna.clase});
    }
    return renglon;
}

Renglon deFicha(const Listado& listado, int fila)
{
    const auto valor = [&](int lugar) { return celda(listado, fila, {u"texto%1"_s.arg(lugar), {}}); };
    Renglon renglon;
    const auto pon = [&](const QString& texto) { renglon.casillas.push_back({texto}); };
    pon(valor(1));
    pon(valor(2) + u' ' + valor(3));
    pon(valor(14));
    pon(u"Dirección "_s + valor(6));
    pon(u"C.P. y localidad "_s + valor(16) + u' ' + valor(4));
    pon(u"Provincia "_s + valor(5));
    const std::pair<QString, int> rotulos[] = {{u"Teléfono"_s, 7},
                                               {u"Otro teléfono"_s, 8},
                                               {u"DNI"_s, 12},
                                               {u"Seguridad Social"_s, 13},
                                               {u"Fecha de nacimiento"_s, 9},
                                               {u"Fecha de alta"_s, 10},
                                               {u"Fecha de baja"_s, 11},
                                               {u"Sueldo base"_s, 17},
                                               {u"Tramo 1"_s, 18},
                                               {u"Tramo 2"_s, 19},
                                               {u"Tramo 3"_s, 20},
                                               {u"Tramo 4"_s, 21}};
    for (const auto& [rotulo, lugar] : rotulos)
        pon(rotulo + u' ' + valor(lugar));
    pon(valor(22));
    return renglon;
}

std::vector<Renglon> dePack(const Listado& listado, int primera, int filas)
{
    std::vector<Renglon> renglones{deTabla(listado, primera, 7)};
    renglones[0].esCabecera = true;
    const int hasta = std::min(primera + ServiciosPorPack, filas);
    for (int i = primera; i < hasta; ++i) {
        const bool porDias = listado.forma == Forma::PacksPorDias;
        const int fila = porDias ? hasta - 1 - (i - primera) : i; // days stand in the table from the last to the first
        const QString dia = porDias ? valorDe(listado, fila, u"texto8"_s).texto() + u' ' : QString{};
        renglones.push_back({{{dia + valorDe(listado, fila, u"texto7"_s).texto()}}});
    }
    return renglones;
}

} // namespace

std::vector<Renglon> renglonesDe(const Listado& listado, int filas)
{
    std::vector<Renglon> renglones;
    for (int fila = 0; fila < filas; fila += listado.conPacks() ? ServiciosPorPack : 1) {
        if (listado.conPacks()) {
            for (Renglon& uno : dePack(listado, fila, filas))
                renglones.push_back(std::move(uno));
        } else {
            renglones.push_back(listado.forma == Forma::Fichas ? deFicha(listado, fila)
                                                               : deTabla(listado, fila, listado.columnas.size()));
        }
    }
    return renglones;
}

} // namespace kestrane::prueba
