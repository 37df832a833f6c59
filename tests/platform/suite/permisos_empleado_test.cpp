#include "platform/suite/permisos_empleado.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class PermisosEmpleadoTest : public testing::Test
{
protected:
    bool permite(qint32 empleado, const QString& control)
    {
        return PermisosEnTabla{}.leePermisos(m_tienda.tienda(), empleado).permite(control);
    }

    prueba::TiendaDePrueba m_tienda;
};

TEST_F(PermisosEmpleadoTest, WithoutTheTableAllIsAllowed)
{
    m_tienda.quitaTabla(u"permisos_listados"_s);
    EXPECT_TRUE(permite(1, u"cmd_Caja1"_s));
}

TEST_F(PermisosEmpleadoTest, WithoutARowAllIsAllowed)
{
    EXPECT_TRUE(permite(1, u"cmd_Caja1"_s));
}

TEST_F(PermisosEmpleadoTest, WhatARowForbidsIsForbiddenToThatEmployeeAlone)
{
    m_tienda.ejecuta({u"insert into permisos_listados (empleado, control, permitido) values (2, 'cmd_Caja1', 0)"_s,
                      u"insert into permisos_listados (empleado, control, permitido) values (2, 'cmd_Caja2', -1)"_s,
                      u"insert into permisos_listados (empleado, control, permitido) values (3, 'cmd_Caja3', 0)"_s});
    EXPECT_FALSE(permite(2, u"cmd_Caja1"_s));
    EXPECT_TRUE(permite(2, u"cmd_Caja2"_s));
    EXPECT_TRUE(permite(2, u"cmd_Caja3"_s));
    EXPECT_TRUE(permite(3, u"cmd_Caja1"_s));
    EXPECT_FALSE(permite(3, u"cmd_Caja3"_s));
    EXPECT_TRUE(permite(0, u"cmd_Caja1"_s));
}

TEST_F(PermisosEmpleadoTest, NamesOfControlsDoNotMindCase)
{
    m_tienda.ejecuta(u"insert into permisos_listados (empleado, control, permitido) values (2, 'CMD_caja1', 0)"_s);
    EXPECT_FALSE(permite(2, u"cmd_Caja1"_s));
}

TEST_F(PermisosEmpleadoTest, OfTwoRowsThatDisagreeTheOneThatForbidsHolds)
{
    m_tienda.ejecuta({u"insert into permisos_listados (empleado, control, permitido) values (2, 'cmd_Caja1', -1)"_s,
                      u"insert into permisos_listados (empleado, control, permitido) values (2, 'cmd_Caja1', 0)"_s});
    EXPECT_FALSE(permite(2, u"cmd_Caja1"_s));
}

} // namespace
} // namespace kestrane
