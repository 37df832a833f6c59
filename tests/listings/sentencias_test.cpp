// What each listing asks of the shop, word by word and blank by blank.

#include "apoyo/motor_anotado.h"
#include "listings/listado_empleados.h"
#include "listings/listados_articulos.h"
#include "listings/listados_maestros.h"
#include "listings/listados_servicios.h"
#include "listings/puesto_envuelto.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

struct CasoSentencia
{
    const char* listado;
    Constructor constructor;
    QString sentencia;
};

const CasoSentencia casos[] = {
    {"ListadoServicios", ListadoServicios,
     u"Select servicios.*,seccion.nombre as nomsec from servicios,seccion where servicios.borrar = 0 and seccion.codigo = "
     "servicios.seccion order by servicios.Nombre"_s},
    {"ListadoArreglos", ListadoArreglos, u"Select arreglos.* from arreglos where arreglos.borrar = 0 order by nombre"_s},
    {"ListadoPackServicios", ListadoPackServicios,
     u"Select familias.*, "
     "       seccion.nombre as nomsec,"
     "       detalle_familia.servicio,"
     "       servicios.nombre as nomserv"
     "  from familias, "
     "       seccion,"
     "       detalle_familia,"
     "       servicios "
     " where familias.borrar = 0 "
     "   and seccion.codigo = familias.seccion "
     "   and detalle_familia.familia=familias.codigo "
     "   and servicios.codigo=detalle_familia.servicio"_s},
    {"ListadoPackSpa", ListadoPackSpa,
     u"Select cabecera_pack_spa.*, "
     "       seccion.nombre as nomsec,"
     "       detalle_pack_spa.codservicio,"
     "       detalle_pack_spa.dia,"
     "       servicios.nombre as nomserv"
     "  from cabecera_pack_spa, "
     "       seccion,"
     "       detalle_pack_spa,"
     "       servicios "
     " where cabecera_pack_spa.borrar = 0 "
     "   and seccion.codigo = cabecera_pack_spa.seccion "
     "   and detalle_pack_spa.codigo=cabecera_pack_spa.codigo "
     "   and servicios.codigo=detalle_pack_spa.codservicio"_s},
    {"ListadoEmpleados", ListadoEmpleados, u"Select * from empleados where baja = 0"_s},
    {"ListadoSecciones", ListadoSecciones, u"Select * from seccion where borrar = 0"_s},
    {"ListadoTallas", ListadoTallas, u"Select * from tallas where borrar = 0"_s},
    {"ListadoMarcas", ListadoMarcas, u"Select Nombre from Marcas where borrar = 0"_s},
    {"ListadoColores", ListadoColores, u"Select Nombre from colorestextil where borrar = 0"_s},
    {"ListadoFormasPago", ListadoFormasPago, u"Select * from formapago where borrar = 0"_s},
    {"ListadoProveedores", ListadoProveedores, u"Select * from proveedores where borrar = 0"_s},
    {"ListadoTalleres", ListadoTalleres, u"Select * from talleres where borrar = 0"_s},
};

class SentenciasTest : public testing::TestWithParam<CasoSentencia>
{
protected:
    SentenciasTest() { m_puesto.contexto.filtros.columnaOrden = u"Nombre"_s; }

    void abre(const QString& sentencia)
    {
        Recordset filas;
        filas.Open(sentencia, m_puesto.contexto.ConexionTienda);
    }
    /// What the builder has the engine of the shop run. During a report a statement that was asked twice before, in the very same
    /// text, is answered without the engine: of the texts `conocidas` nothing reaches it.
    QStringList enviadas(const QStringList& conocidas, Constructor constructor)
    {
        const auto ambito = m_puesto.contexto.ConexionTienda.EmpiezaInforme();
        for (const QString& sentencia : conocidas + conocidas)
            abre(sentencia);
        m_anotaciones.clear();
        constructor(m_puesto.listados);
        return m_anotaciones.filter(u"TiendaKestrane: "_s);
    }

    prueba::TiendaDePrueba m_tienda;
    QStringList m_anotaciones;
    prueba::PuestoEnvuelto m_puesto{m_tienda, prueba::anotaEn(m_anotaciones)};
};

TEST_P(SentenciasTest, TheShopIsAskedForThisTextToTheLastBlank)
{
    EXPECT_EQ(enviadas({GetParam().sentencia}, GetParam().constructor), QStringList{});
    EXPECT_EQ(enviadas({GetParam().sentencia + u' '}, GetParam().constructor).size(), 1) << "a blank more is another text";
}

TEST_P(SentenciasTest, TheReportIsClearedFirstAndTheShopAskedOnce)
{
    m_anotaciones.clear();
    abre(GetParam().sentencia);
    const QStringList consulta = m_anotaciones;
    ASSERT_EQ(consulta.size(), 1);
    m_anotaciones.clear();
    GetParam().constructor(m_puesto.listados);
    EXPECT_EQ(m_anotaciones, QStringList{u"ListKestrane: DELETE FROM informes"_s} + consulta);
}

INSTANTIATE_TEST_SUITE_P(Listados, SentenciasTest, testing::ValuesIn(casos),
                         [](const auto& caso) { return std::string{caso.param.listado}; });

class SentenciasDeEmpleadosTest : public SentenciasTest
{
};

TEST_F(SentenciasDeEmpleadosTest, EachEmployeesPayStepsAreAskedForWithTwoBlanksBeforeTheirOrder)
{
    m_tienda.ejecuta({u"insert into empleados (codigo, nombre) values (7, 'Ana')"_s,
                      u"insert into empleados (codigo, nombre) values (3, 'Luis')"_s});
    EXPECT_EQ(enviadas({u"Select * from empleados where baja = 0"_s,
                        u"Select * from sueldos where codEmpleado = 7 order by  volumen asc"_s,
                        u"Select * from sueldos where codEmpleado = 3 order by  volumen asc"_s},
                       ListadoEmpleados),
              QStringList{});
}

} // namespace
} // namespace kestrane
