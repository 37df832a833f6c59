#include "instalacion/demo/mes_de_cada_sabor.h"

#include <set>
#include <vector>

namespace kestrane::demo::pruebas {
namespace {

TEST(OpcionesDeLaDemo, IsAloneAndHasNoName)
{
    const TiendaEnMemoria tienda{Parametros{.tamano = Tamano::Dia}};
    const Fila opciones = tienda.filas(tablas::Opciones).front();
    EXPECT_TRUE(opciones.nulo("multitienda"));
    EXPECT_TRUE(opciones.nulo("nombretienda"));
    EXPECT_TRUE(tienda.filas(tablas::Multitienda).empty());
    for (const Fila& venta : tienda.filas(tablas::CabeceraFactura))
        EXPECT_EQ(venta.texto("tienda"), QString{});
}

TEST(OpcionesDeLaDemo, NamesItsStoresAndItself)
{
    const TiendaEnMemoria tienda{Parametros{.tamano = Tamano::Mes}};
    const Fila opciones = tienda.filas(tablas::Opciones).front();
    EXPECT_EQ(opciones.texto("multitienda"), QStringLiteral("S"));
    EXPECT_EQ(opciones.texto("nombretienda"), QStringLiteral("Servidor"));
    EXPECT_EQ(opciones.texto("tipo_programa"), QStringLiteral("PELUQUERIA"));
    std::vector<QString> nombres;
    for (const Fila& una : tienda.filas(tablas::Multitienda))
        nombres.push_back(una.texto("nombre"));
    EXPECT_EQ(nombres, (std::vector<QString>{QStringLiteral("Servidor"), QStringLiteral("Centro"), QStringLiteral("Gran Centro"),
                                             QStringLiteral("Norte")}));
}

TEST(OpcionesDeLaDemo, ABranchHasTheNameOfItsStore)
{
    const TiendaEnMemoria tienda{
        Parametros{.tipo = TipoTienda::Tpv, .tamano = Tamano::Mes, .tiendaDelTerminal = QStringLiteral("Gran Centro")}};
    const Fila opciones = tienda.filas(tablas::Opciones).front();
    EXPECT_EQ(opciones.texto("multitienda"), QStringLiteral("T"));
    EXPECT_EQ(opciones.texto("nombretienda"), QStringLiteral("Gran Centro"));
}

TEST(OpcionesDeLaDemo, ShopsChooseDifferently)
{
    std::set<QString> letras;
    std::set<QString> variosDias;
    std::set<bool> facturas;
    std::set<bool> conImpuesto;
    for (const TipoTienda tipo : TodosLosTipos) {
        for (const Tamano tamano : {Tamano::Dia, Tamano::Mes}) {
            const TiendaEnMemoria tienda{Parametros{.tipo = tipo, .tamano = tamano, .proporcion = 0.1}};
            const Fila opciones = tienda.filas(tablas::Opciones).front();
            letras.insert(opciones.nulo("multitienda") ? QStringLiteral("null") : opciones.texto("multitienda"));
            facturas.insert(opciones.si("modulofacturas"));
            conImpuesto.insert(opciones.si("iva"));
            QString suyo = QStringLiteral("missing");
            for (const Fila& relacion : tienda.filas(tablas::RelacionesFijas))
                suyo = relacion.texto("indice") == u"PermiteListadoVariosDias" ? relacion.texto("datoa") : suyo;
            variosDias.insert(suyo);
        }
    }
    EXPECT_EQ(letras, (std::set<QString>{QStringLiteral(""), QStringLiteral("N"), QStringLiteral("S"), QStringLiteral("T"),
                                         QStringLiteral("null")}));
    EXPECT_EQ(variosDias,
              (std::set<QString>{QStringLiteral("NO"), QStringLiteral("SI"), QStringLiteral("missing"), QStringLiteral("si")}));
    EXPECT_EQ(facturas.size(), 2U);
    EXPECT_EQ(conImpuesto.size(), 2U);
}

TEST(OpcionesDeLaDemo, HasAnEmployeePrintersAndATariff)
{
    const TiendaEnMemoria tienda{Parametros{.tamano = Tamano::Dia, .terminal = QStringLiteral("equipo7")}};
    const Fila terminal = tienda.filas(tablas::OpcionesTerminal).front();
    EXPECT_EQ(terminal.texto("identificador"), QStringLiteral("equipo7"));
    std::set<QString> tipos;
    for (const Fila& impresora : tienda.filas(tablas::Impresoras)) {
        EXPECT_EQ(impresora.texto("terminal"), terminal.texto("terminal"));
        tipos.insert(impresora.texto("tipo"));
    }
    EXPECT_EQ(tipos, (std::set<QString>{QStringLiteral("E"), QStringLiteral("L"), QStringLiteral("T")}));
    const QString instancia = QStringLiteral("equipo7") + tienda.filas(tablas::Listadostemporal).front().texto("list1");
    int tarifas = 0;
    for (const Fila& relacion : tienda.filas(tablas::RelacionesFijas))
        tarifas += relacion.texto("indice") == u"TarifaAplicada" && relacion.texto("datoa") == instancia ? 1 : 0;
    EXPECT_EQ(tarifas, 1);
}

} // namespace
} // namespace kestrane::demo::pruebas
