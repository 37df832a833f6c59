#include "instalacion/esquema.h"

#include <gtest/gtest.h>

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <string>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

const ColumnaEsquema* columna(const TablaEsquema& tabla, QStringView nombre)
{
    const auto hallada = std::ranges::find_if(
        tabla.columnas, [&](const ColumnaEsquema& una) { return nombre.compare(una.nombre, Qt::CaseInsensitive) == 0; });
    return hallada == tabla.columnas.end() ? nullptr : &*hallada;
}

/// A table's columns by kind: how many of each.
struct Cuenta
{
    const char16_t* tabla;
    int textos;
    int memos;
    int largos;
    int cortos;
    int dobles;
    int fechas;
    int logicos;
};

// clang-format off
constexpr Cuenta TablasDeLaTienda[] = {
    // table                                T   M   L   I   D   F   Y
    {u"cabecera_factura",                   2,  0,  4,  1,  4,  3,  1},
    {u"detalle_factura",                    5,  0,  4,  0,  7,  0,  0},
    {u"cabecera_factura_anulaciones",       2,  0,  4,  1,  4,  3,  2},
    {u"detalle_factura_anulaciones",        5,  0,  4,  0,  7,  0,  0},
    {u"cabecera_factura_temp",              0,  0,  4,  1,  0,  1,  0},
    {u"detalle_factura_temp",               5,  0,  4,  0,  7,  0,  0},
    {u"cabecera_abono",                     1,  0,  3,  1,  4,  2,  0},
    {u"detalle_abono",                      5,  0,  5,  0,  5,  0,  0},
    {u"cabecera_pago",                      1,  0,  4,  1,  1,  1,  0},
    {u"detalle_pago",                       1,  0,  2,  1,  3,  1,  0},
    {u"ventas_compartidas",                 2,  0,  3,  0,  1,  0,  0},
    {u"vales_descuento",                    0,  0,  2,  0,  1,  1,  0},
    {u"caja_inicial",                       1,  0,  1,  0,  1,  1,  0},
    {u"gastos",                             2,  0,  1,  0,  1,  2,  0},
    {u"retiradas",                          1,  0,  1,  0,  1,  1,  0},
    {u"observacioncaja",                    2,  0,  1,  0,  0,  2,  0},
    {u"cabecera_bonos",                     1,  0,  5,  1,  0,  3,  1},
    {u"detalle_bono",                       1,  0,  2,  0,  0,  1,  0},
    {u"agenda",                             1,  1,  4,  0,  0,  2,  1},
    {u"clientes",                          13,  0,  1,  0,  1,  3,  1},
    {u"obserclientes",                      2,  0,  3,  0,  0,  1,  0},
    {u"empleados",                         15,  0,  2,  0,  0,  3,  2},
    {u"sueldos",                            0,  0,  1,  0,  3,  0,  0},
    {u"productos",                          3,  0,  3,  3,  5,  0,  1},
    {u"productos_codigosextra",             1,  0,  1,  0,  0,  0,  0},
    {u"productostextil",                    2,  0,  3,  0,  4,  0,  0},
    {u"tallas",                             2,  0,  1,  0,  0,  0,  1},
    {u"colorestextil",                      1,  0,  1,  0,  0,  0,  1},
    {u"marcas",                             1,  0,  1,  0,  0,  0,  1},
    {u"detalle_precio",                     0,  0,  2,  0,  1,  0,  0},
    {u"historicostock",                     2,  0,  4,  2,  2,  1,  0},
    {u"proveedores",                       11,  0,  2,  0,  0,  0,  1},
    {u"seccion",                            5,  0,  2,  0,  0,  0,  1},
    {u"servicios",                          2,  0,  3,  2,  2,  0,  1},
    {u"familias",                           2,  0,  3,  1,  2,  0,  1},
    {u"detalle_familia",                    0,  0,  2,  0,  0,  0,  0},
    {u"cabecera_pack_spa",                  2,  0,  3,  1,  2,  0,  1},
    {u"detalle_pack_spa",                   0,  0,  2,  1,  0,  0,  0},
    {u"pack",                               0,  0,  2,  0,  0,  0,  0},
    {u"servicepack",                        2,  0,  1,  0,  0,  0,  1},
    {u"arreglos",                           2,  0,  1,  2,  3,  0,  1},
    {u"arreglos_productos",                 2,  0,  3,  0,  0,  0,  1},
    {u"talleres",                           9,  0,  1,  0,  0,  0,  1},
    {u"formapago",                          3,  0,  1,  0,  0,  0,  1},
    {u"opciones",                          12,  0,  0,  1,  0,  0,  3},
    {u"opciones_terminal",                  2,  0,  1,  0,  0,  0,  0},
    {u"impresoras",                         4,  0,  0,  1,  0,  0,  0},
    {u"configuracionregional",              3,  0,  0,  0,  0,  0,  0},
    {u"relaciones_fijas",                   2,  0,  1,  0,  0,  0,  0},
    {u"multitienda",                        1,  0,  0,  0,  0,  0,  0},
    {u"migraciontablas",                    1,  0,  0,  0,  0,  1,  1},
    {u"pasardatos",                         3,  0,  1,  0,  0,  0,  0},
    {u"preferencias_terminal",              1,  0,  2,  0,  2,  0,  0},
    {u"permisos_listados",                  1,  0,  1,  0,  0,  0,  1},
};

constexpr Cuenta TablasDeListados[] = {
    {u"informes",                          31,  1,  0,  0, 21,  4,  0},
    {u"subinformes",                       31,  1,  0,  0, 21,  4,  0},
    {u"listadostemporal",                   1,  0,  0,  0,  0,  0,  0},
};
// clang-format on

void expectCuentas(const BaseEsquema& base, std::span<const Cuenta> cuentas)
{
    EXPECT_EQ(base.tablas.size(), cuentas.size());
    for (const Cuenta& cuenta : cuentas) {
        SCOPED_TRACE(QString::fromUtf16(cuenta.tabla).toStdString());
        const TablaEsquema* const tabla = base.tabla(cuenta.tabla);
        ASSERT_NE(tabla, nullptr);
        const auto hay = [&](TipoColumna tipo) { return std::ranges::count(tabla->columnas, tipo, &ColumnaEsquema::tipo); };
        EXPECT_EQ(hay(TipoColumna::Texto), cuenta.textos);
        EXPECT_EQ(hay(TipoColumna::Memo), cuenta.memos);
        EXPECT_EQ(hay(TipoColumna::Entero32), cuenta.largos);
        EXPECT_EQ(hay(TipoColumna::Entero16), cuenta.cortos);
        EXPECT_EQ(hay(TipoColumna::Doble), cuenta.dobles);
        EXPECT_EQ(hay(TipoColumna::FechaHora), cuenta.fechas);
        EXPECT_EQ(hay(TipoColumna::SiNo), cuenta.logicos);
    }
}

TEST(Esquema, TheDatabasesHaveTheNamesThatTheProgramsOpen)
{
    EXPECT_EQ(baseTienda().dsn, "TiendaKestrane"_L1);
    EXPECT_EQ(baseListados().dsn, "ListKestrane"_L1);
}

TEST(Esquema, EveryTableHasItsColumns)
{
    expectCuentas(baseTienda(), TablasDeLaTienda);
    expectCuentas(baseListados(), TablasDeListados);
}

TEST(Esquema, ATableIsFoundWhateverTheCaseOfItsName)
{
    EXPECT_EQ(baseTienda().tabla(u"noexiste"), nullptr);
    EXPECT_EQ(baseTienda().tabla(u"informes"), nullptr) << "of the other database";
    ASSERT_NE(baseTienda().tabla(u"ColoresTextil"), nullptr);
    EXPECT_EQ(baseTienda().tabla(u"ColoresTextil"), baseTienda().tabla(u"colorestextil"));
}

template<class F>
void porTabla(const F& accion)
{
    for (const BaseEsquema* const base : {&baseTienda(), &baseListados()}) {
        for (const TablaEsquema& tabla : base->tablas) {
            SCOPED_TRACE(tabla.nombre.data());
            accion(tabla);
        }
    }
}

TEST(Esquema, NoNameStandsTwice)
{
    QSet<QString> tablas;
    porTabla([&](const TablaEsquema& tabla) {
        EXPECT_FALSE(tablas.contains(QString{tabla.nombre}.toLower()));
        tablas += QString{tabla.nombre}.toLower();
        QSet<QString> columnas;
        for (const ColumnaEsquema& una : tabla.columnas)
            columnas += QString{una.nombre}.toLower();
        EXPECT_EQ(columnas.size(), static_cast<qsizetype>(tabla.columnas.size()));
    });
}

TEST(Esquema, TextsHaveAWidthAndNothingElseHas)
{
    porTabla([](const TablaEsquema& tabla) {
        for (const ColumnaEsquema& una : tabla.columnas)
            EXPECT_EQ(una.ancho > 0, una.tipo == TipoColumna::Texto) << una.nombre.data();
    });
}

TEST(Esquema, KeysAndFlagsAreNeverNull)
{
    porTabla([](const TablaEsquema& tabla) {
        for (const ColumnaEsquema& una : tabla.columnas) {
            const bool esClave = una.nombre == tabla.claveUnica;
            if (esClave || una.tipo == TipoColumna::SiNo) {
                EXPECT_EQ(una.nulos, Nulos::NoAdmite) << una.nombre.data();
            }
        }
    });
    for (const char16_t* const conNulos : {u"informes", u"subinformes", u"listadostemporal"}) {
        for (const ColumnaEsquema& una : baseListados().tabla(conNulos)->columnas)
            EXPECT_EQ(una.nulos, Nulos::Admite) << una.nombre.data();
    }
}

TEST(Esquema, KeysAndIndexesStandOnColumnsOfTheTableEachOnce)
{
    porTabla([](const TablaEsquema& tabla) {
        QStringList indexadas;
        if (!tabla.claveUnica.isEmpty())
            indexadas += QString{tabla.claveUnica}.toLower();
        for (const QLatin1StringView indice : tabla.indices)
            indexadas += QString{indice}.toLower();
        for (const QString& una : indexadas)
            EXPECT_NE(columna(tabla, una), nullptr) << una.toStdString();
        EXPECT_EQ(indexadas.removeDuplicates(), 0);
    });
}

void expectClave(const char16_t* tabla, const char* clave)
{
    EXPECT_EQ(baseTienda().tabla(tabla)->claveUnica, QLatin1StringView{clave}) << QString::fromUtf16(tabla).toStdString();
}

TEST(Esquema, OnlyWhatIsUniqueInPracticeIsAKey)
{
    expectClave(u"cabecera_factura", "Numero");
    expectClave(u"cabecera_factura_anulaciones", "");
    expectClave(u"cabecera_factura_temp", "Numero");
    expectClave(u"detalle_factura", "");
    expectClave(u"cabecera_pago", "num_pago");
    expectClave(u"detalle_pago", "");
    expectClave(u"vales_descuento", "");
    expectClave(u"cabecera_bonos", "numbono");
    expectClave(u"agenda", "num_cita");
    expectClave(u"clientes", "codigo");
    expectClave(u"detalle_pack_spa", "");
    expectClave(u"arreglos_productos", "num_arreglo");
    expectClave(u"opciones_terminal", "identificador");
    expectClave(u"multitienda", "nombre");
    expectClave(u"migraciontablas", "tabla");
    expectClave(u"pasardatos", "");
    const auto claves =
        std::ranges::count_if(baseTienda().tablas, [](const TablaEsquema& una) { return !una.claveUnica.isEmpty(); });
    EXPECT_EQ(claves, 27) << "26 of the shop and the one of preferencias_terminal";
}

void expectIndices(const BaseEsquema& base, const char16_t* tabla, std::initializer_list<QLatin1StringView> indices)
{
    EXPECT_TRUE(std::ranges::equal(base.tabla(tabla)->indices, indices)) << QString::fromUtf16(tabla).toStdString();
}

TEST(Esquema, IndexesServeTheLookUps)
{
    expectIndices(baseTienda(), u"cabecera_factura", {"fechaventa"_L1, "cliente"_L1});
    expectIndices(baseTienda(), u"cabecera_factura_anulaciones", {"Numero"_L1, "fechaventa"_L1, "fecha"_L1, "cliente"_L1});
    expectIndices(baseTienda(), u"detalle_factura", {"num_factura"_L1});
    expectIndices(baseTienda(), u"vales_descuento", {"Num_Factura"_L1, "num_Factura_aplicado"_L1, "Desde"_L1});
    expectIndices(baseTienda(), u"productos", {"Nombre"_L1, "codigocliente"_L1, "seccion"_L1, "proveedor"_L1});
    expectIndices(baseTienda(), u"relaciones_fijas", {"indice"_L1});
    expectIndices(baseTienda(), u"opciones", {});
    expectIndices(baseListados(), u"informes", {"texto21"_L1});
    expectIndices(baseListados(), u"subinformes", {});
}

/// Columns that would give an unqualified name of a statement, or a field of a result, two owners.
struct Prohibidas
{
    const char16_t* tabla;
    const char16_t* columnas;
};

constexpr Prohibidas NuncaEnLaTienda[] = {
    {u"cabecera_factura", u"codEmpleado precio tipo_venta codigo cod_detalle"},
    {u"detalle_factura", u"cod_detalle fechaventa Numero hora pago total impuestoincluido"},
    {u"cabecera_factura_anulaciones", u"codEmpleado precio tipo_venta codigo"},
    {u"detalle_factura_anulaciones", u"fechaventa pago impuestoincluido"},
    {u"cabecera_factura_temp", u"fechaventa"},
    {u"cabecera_abono", u"codempleado precio tipo_venta"},
    {u"ventas_compartidas", u"nombre apellidos fechaventa"},
    {u"clientes", u"fechaventa fecha_desde fecha_hasta total cliente Numero"},
    {u"empleados", u"num_factura cod_detalle tipo_venta fecha anulado hora_inicio fecha_consumo num_bono tienda"},
    {u"productos", u"tipo descripciontipo fecha talla color codcliente codigohijo descTall nomCol prectextil codclitextil"},
    {u"productos_codigosextra", u"codigocliente borrar mostrarencaja nombre"},
    {u"tallas", u"talla color"},
    {u"colorestextil", u"talla color"},
    {u"proveedores", u"coste precio stock stockminimo seccion proveedor tipoprod stockConsumoInterno tipo descripciontipo fecha"},
    {u"seccion", u"coste precio stock stockminimo seccion proveedor tipoprod stockConsumoInterno"},
    {u"cabecera_pago", u"FORMA_pago efectivo tarjeta num empleadodet fechapago impPagado"},
    {u"detalle_pago", u"cliente num_factura num empleadodet fechapago impPagado"},
    {u"gastos", u"nombre apellidos"},
    {u"retiradas", u"nombre apellidos"},
    {u"cabecera_bonos", u"nombre apellidos"},
    {u"agenda", u"nomEmp apeemp"},
    {u"servicios", u"nomsec"},
    {u"familias", u"nomsec nomserv servicio"},
    {u"cabecera_pack_spa", u"nomsec nomserv codservicio dia"},
    {u"historicostock", u"prov"},
};

TEST(Esquema, NoColumnMakesANameOfAStatementAmbiguous)
{
    for (const Prohibidas& unas : NuncaEnLaTienda) {
        const TablaEsquema* const tabla = baseTienda().tabla(unas.tabla);
        ASSERT_NE(tabla, nullptr);
        for (const QString& nombre : QString::fromUtf16(unas.columnas).split(u' '))
            EXPECT_EQ(columna(*tabla, nombre), nullptr) << tabla->nombre.data() << "." << nombre.toStdString();
    }
}

TEST(Esquema, TheStagingTablesLackTheNumbersThatWereNeverInUse)
{
    for (const char16_t* const nombre : {u"informes", u"subinformes"}) {
        const TablaEsquema& tabla = *baseListados().tabla(nombre);
        for (const char16_t* const falta : {u"texto26", u"texto27", u"texto28", u"texto31", u"numerico15", u"fecha5", u"memo2"})
            EXPECT_EQ(columna(tabla, falta), nullptr) << QString::fromUtf16(falta).toStdString();
        EXPECT_EQ(columna(tabla, u"texto35")->ancho, 255);
    }
}

TEST(Esquema, NoColumnHasTheNameOfTheHiddenOrder)
{
    porTabla([](const TablaEsquema& tabla) { EXPECT_EQ(columna(tabla, u"orden_"), nullptr); });
}

} // namespace
} // namespace kestrane::instalacion
