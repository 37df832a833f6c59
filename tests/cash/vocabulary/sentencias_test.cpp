// What each look-up asks of the shop, word by word and blank by blank.

#include "cash/tienda_escuchada.h"
#include "cash/vocabulary/compartidas.h"
#include "cash/vocabulary/costes.h"
#include "cash/vocabulary/deudas.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/secciones.h"
#include "cash/vocabulary/ventas.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;

struct CasoSentencia
{
    const char* nombre;
    void (*consulta)(Listados&);
    QString sentencia;
};

template<auto Consulta, int... Codigos>
void pregunta(Listados& listados)
{
    static_cast<void>(Consulta(listados, Valor{qint32{Codigos}}...));
}

const LineaCompartida Compartida{qint32{115}, qint32{3}, u"CB"_s};

const CasoSentencia sinTienda[] = {
    {"NombreCliente", pregunta<NombreCliente, 4>,
     u"Select Nombre,Apellidos from clientes where codigo = 4 and (tienda like '%' or tienda is null)"_s},
    {"NombreClienteNif",
     [](Listados& listados) {
         QString nif;
         static_cast<void>(NombreClienteNif(listados, qint32{4}, nif));
     },
     u"Select Nombre,Apellidos, NIF from clientes where codigo = 4 and (tienda like '%' or tienda is null)"_s},
    {"NombreCortoEmpleado", pregunta<NombreCortoEmpleado, 3>, u"Select Nombre,Apellidos from empleados where codigo = 3"_s},
    {"NombreFormaPago", pregunta<NombreFormaPago, 1>, u"Select Nombre from formapago where codigo = 1"_s},
    {"NombreSeccion", pregunta<NombreSeccion, 3>, u"Select Nombre from seccion where codigo = 3"_s},
    {"NombreProveedor", pregunta<NombreProveedor, 2>, u"Select Nombre from proveedores where codigo = 2"_s},
    {"NombreServicio", pregunta<NombreServicio, 2>, u"Select nombre from servicios where codigo= 2"_s},
    {"NombreFamilia", pregunta<NombreFamilia, 1>, u"Select nombre from familias where codigo= 1"_s},
    {"NombreSeccionDeLinea", [](Listados& listados) { static_cast<void>(NombreSeccionDeLinea(listados, qint32{7}, u"PSPA")); },
     u"Select Nombre from seccion where codigo in (select seccion from Cabecera_pack_spa where codigo = 7)"_s},
    {"CodigoSeccionDeLinea", [](Listados& listados) { static_cast<void>(CodigoSeccionDeLinea(listados, qint32{7}, u"SP")); },
     u"Select CODIGO  from seccion where codigo in (select seccion from pack where codigo = 7)"_s},
    {"CosteProducto", pregunta<CosteProducto, 7>, u"Select coste from productos where codigo = 7"_s},
    {"CosteVarianteSinVariante", [](Listados& listados) { static_cast<void>(CosteVariante(listados, qint32{7}, u"-1"_s)); },
     u"Select coste from productos where codigo = 7"_s},
    {"CosteVariante", [](Listados& listados) { static_cast<void>(CosteVariante(listados, qint32{7}, u"71"_s)); },
     u"Select coste from productostextil where codigopadre = 7 and codigohijo = '71'"_s},
    {"TallaColorProducto", [](Listados& listados) { static_cast<void>(TallaColorProducto(listados, qint32{7}, u"71"_s)); },
     u"SELECT tallas.descripcionCorta as descTalla,        coloresTextil.nombre    from tallas,        coloresTextil,       "
     " productostextil  where productostextil.codigopadre = 7       and productostextil.codigohijo= '71'        and"
     " productostextil.talla = tallas.codigo        and productostextil.color = colorestextil.codigo"_s},
    {"TienePagoPendiente", pregunta<TienePagoPendiente, 118>,
     u"Select num_pago from cabecera_pago where num_factura= 118 and tienda like '%'"_s},
    {"ImportePendiente", pregunta<ImportePendiente, 118>, u"Select importe from cabecera_pago where num_factura = 118"_s},
    {"FacturaDelPago", pregunta<FacturaDelPago, 3>, u"Select num_factura from cabecera_pago where num_pago = 3"_s},
    {"ClienteDelPago", pregunta<ClienteDelPago, 3>, u"Select cliente from cabecera_pago where num_pago = 3"_s},
    {"UltimaFechaPago", pregunta<UltimaFechaPago, 3>, u"Select fecha from detalle_pago where num_pago = 3 order by fecha desc"_s},
    {"TotalPagado", pregunta<TotalPagado, 3>, u"Select importe from detalle_pago where num_pago = 3"_s},
    {"ProductosDeFactura", pregunta<ProductosDeFactura, 105>,
     u"Select producto from detalle_factura where num_factura = 105 and tienda like '%'"_s},
    {"SesionesBono", pregunta<SesionesBono, 105>, u"Select num_sesiones from cabecera_Bonos where num_factura= 105"_s},
    {"TieneValeAplicado", pregunta<TieneValeAplicado, 113>,
     u"Select num_factura_aplicado from Vales_descuento where num_factura_aplicado = 113"_s},
    {"EmpleadosCompartida", [](Listados& listados) { static_cast<void>(EmpleadosCompartida(listados, Compartida)); },
     u"Select nombre, apellidos from ventas_compartidas,empleados where num_factura = 115 and cod_detalle = 3 and tipo_venta = "
     "'CB' and ventas_compartidas.cod_empleado = empleados.codigo order by ventas_compartidas.cod_empleado"_s},
    {"CodigosCompartida", [](Listados& listados) { static_cast<void>(CodigosCompartida(listados, Compartida)); },
     u"Select cod_empleado from ventas_compartidas where num_factura = 115 and cod_detalle = 3 and tipo_venta = 'CB' order by"
     " ventas_compartidas.cod_empleado"_s},
    {"EmpleadoEnCompartida", pregunta<EmpleadoEnCompartida, 3, 115>,
     u"Select cod_empleado from ventas_compartidas where cod_empleado=3 and num_factura = 115"_s},
    {"ServicioVendidoEnFecha",
     [](Listados& listados) { static_cast<void>(ServicioVendidoEnFecha(listados, qint32{4}, dia(2024, 3, 15), qint32{3})); },
     u"Select codigo from detalle_factura where codigo = 3 and num_factura in (Select numero from cabecera_factura where cliente ="
     " 4 and fechaventa = #03/15/2024#)"_s},
};

const CasoSentencia conTienda[] = {
    {"NombreCliente", pregunta<NombreCliente, 4>,
     u"Select Nombre,Apellidos from clientes where codigo = 4 and (tienda like '%Centro')"_s},
    {"NombreClienteNif",
     [](Listados& listados) {
         QString nif;
         static_cast<void>(NombreClienteNif(listados, qint32{4}, nif));
     },
     u"Select Nombre,Apellidos, NIF from clientes where codigo = 4 and (tienda like '%Centro')"_s},
    {"TienePagoPendiente", pregunta<TienePagoPendiente, 118>,
     u"Select num_pago from cabecera_pago where num_factura= 118 and tienda like '%Centro'"_s},
    {"ImportePendiente", pregunta<ImportePendiente, 118>, u"Select importe from cabecera_pago where num_factura = 118"_s},
    {"ProductosDeFactura", pregunta<ProductosDeFactura, 105>,
     u"Select producto from detalle_factura where num_factura = 105 and tienda like '%Centro'"_s},
};

class SentenciasVocabularioTest : public testing::TestWithParam<CasoSentencia>
{
protected:
    void pruebaAlPieDeLaLetra()
    {
        EXPECT_EQ(m_tienda.enviadas({GetParam().sentencia}, GetParam().consulta), QStringList{});
        EXPECT_EQ(m_tienda.enviadas({GetParam().sentencia + u' '}, GetParam().consulta).size(), 1)
            << "a blank more is another text";
    }

    prueba::TiendaEscuchada m_tienda;
};

TEST_P(SentenciasVocabularioTest, TheShopIsAskedOnceAndForThisTextToTheLastBlank)
{
    pruebaAlPieDeLaLetra();
}

INSTANTIATE_TEST_SUITE_P(SinTienda, SentenciasVocabularioTest, testing::ValuesIn(sinTienda),
                         [](const auto& caso) { return std::string{caso.param.nombre}; });

class SentenciasDeUnaTiendaTest : public SentenciasVocabularioTest
{
protected:
    SentenciasDeUnaTiendaTest() { m_tienda.puesto.contexto.TiendaSeleccionada = u"Centro"_s; }
};

TEST_P(SentenciasDeUnaTiendaTest, TheShopIsAskedOnceAndForThisTextToTheLastBlank)
{
    pruebaAlPieDeLaLetra();
}

INSTANTIATE_TEST_SUITE_P(Centro, SentenciasDeUnaTiendaTest, testing::ValuesIn(conTienda),
                         [](const auto& caso) { return std::string{caso.param.nombre}; });

} // namespace
} // namespace kestrane
