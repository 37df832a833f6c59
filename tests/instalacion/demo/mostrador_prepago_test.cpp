#include "instalacion/demo/mes_de_cada_sabor.h"
#include "instalacion/demo/nombres.h"

#include <algorithm>
#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(PrepagoDeLaDemo);

/// What services by their codes are for whom: 2 is the reserved one, which is no service of the trade.
std::map<int, Publico> publicos(const Sabor& datos)
{
    std::map<int, Publico> todos;
    int codigo = 1;
    for (const DatosServicio& servicio : datos.servicios) {
        todos[codigo] = servicio.publico;
        codigo += codigo == 1 ? 2 : 1;
    }
    return todos;
}

TEST_P(PrepagoDeLaDemo, BonosAreSoldToThoseForWhomTheServiceIs)
{
    const auto esDe = [](const QString& nombre, std::span<const QStringView> lista) {
        return std::ranges::any_of(lista, [&](QStringView uno) { return uno == nombre; });
    };
    const auto publico = publicos(datos());
    const auto clientes = porNumero(filas(tablas::Clientes), "codigo");
    const auto vivas = codigos(filas(tablas::CabeceraFactura), "numero");
    for (const Fila& bono : filas(tablas::CabeceraBonos)) {
        if (bono.entero("servicio") == 0 || !vivas.contains(bono.entero("num_factura")))
            continue;
        const QString nombre = clientes.at(bono.entero("cliente")).texto("nombre");
        const Publico suyo = publico.at(bono.entero("servicio"));
        EXPECT_FALSE(suyo == Publico::Mujer && esDe(nombre, nombresDeHombre())) << bono.entero("numbono");
        EXPECT_FALSE(suyo == Publico::Hombre && esDe(nombre, nombresDeMujer())) << bono.entero("numbono");
    }
}

TEST_P(PrepagoDeLaDemo, ALargeOrderOnAccountIsOwedWhole)
{
    const auto ventas = porNumero(filas(tablas::CabeceraFactura), "numero");
    std::map<int, qsizetype> largos;
    for (const Fila& linea : filas(tablas::DetalleFactura))
        largos[linea.entero("num_factura")] += linea.texto("producto").size() + 3;
    int enteros = 0;
    int cortados = 0;
    for (const Fila& deuda : filas(tablas::CabeceraPago)) {
        const qsizetype largo = largos[deuda.entero("num_factura")] - 3;
        if (largo < 253)
            continue;
        EXPECT_EQ(deuda.doble("importe"), ventas.at(deuda.entero("num_factura")).doble("total"));
        (largo <= 255 ? enteros : cortados) += 1;
    }
    EXPECT_GT(enteros, 0);
    EXPECT_GT(cortados, 0);
}

} // namespace
} // namespace kestrane::demo::pruebas
