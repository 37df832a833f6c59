#include "listings/listado_empleados.h"

#include "apoyo/motor_anotado.h"
#include "listings/puesto_envuelto.h"
#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::PuestoDePrueba;

class ListadoEmpleadosTest : public testing::Test
{
protected:
    void empleado(int codigo, const QString& nombre)
    {
        m_puesto.tienda.ejecuta(u"insert into empleados (codigo, nombre) values (%1, '%2')"_s.arg(codigo).arg(nombre));
    }

    void sueldo(int codigo, const QString& volumen, const QString& base, const QString& valor)
    {
        m_puesto.tienda.ejecuta(
            u"insert into sueldos (codEmpleado, volumen, sueldobase, valorvolumen) values (%1, %2, %3, %4)"_s.arg(codigo).arg(
                volumen, base, valor));
    }

    /// The number of the error that the builder ends in, 0 when it does not.
    int numeroDeError()
    {
        try {
            ListadoEmpleados(m_puesto.listados);
            return 0;
        } catch (const ErrorEjecucion& error) {
            return error.numero();
        }
    }

    QStringList tramos() { return m_puesto.filas(u"texto2,texto17,texto18,texto19,TEXTO20,texto21"_s); }

    PuestoDePrueba m_puesto;
};

TEST_F(ListadoEmpleadosTest, OneTwoOrThreePayStepsRunPastTheLastRecordAndEndTheRun)
{
    empleado(1, u"Ana"_s);
    empleado(2, u"Luis"_s);
    for (const int filas : {1, 2, 3}) {
        sueldo(2, QString::number(filas), u"900"_s, u"10"_s);
        EXPECT_EQ(numeroDeError(), ErrorEjecucion::SinRegistroActual) << filas;
        EXPECT_EQ(m_puesto.filas(u"texto2"_s), QStringList{u"Ana"_s}) << filas;
    }
    sueldo(2, u"4"_s, u"900"_s, u"10"_s);
    EXPECT_EQ(numeroDeError(), 0);
}

TEST_F(ListadoEmpleadosTest, WithoutPayStepsTheirColumnsStayNull)
{
    empleado(1, u"Ana"_s);
    EXPECT_EQ(numeroDeError(), 0);
    EXPECT_EQ(tramos(), QStringList{u"Ana|nulo|nulo|nulo|nulo|nulo"_s});
}

TEST_F(ListadoEmpleadosTest, FourStepsAreReadInTheOrderOfTheirVolumeAndMoreAreLeftUnread)
{
    empleado(1, u"Ana"_s);
    sueldo(1, u"3000"_s, u"1"_s, u"30.5"_s);
    sueldo(1, u"1000"_s, u"1200.75"_s, u"10"_s);
    sueldo(1, u"9000"_s, u"2"_s, u"50"_s);
    sueldo(1, u"4000"_s, u"3"_s, u"40"_s);
    sueldo(1, u"2000"_s, u"4"_s, u"20"_s);
    sueldo(2, u"1"_s, u"5"_s, u"1"_s);
    EXPECT_EQ(numeroDeError(), 0);
    EXPECT_EQ(tramos(), QStringList{u"Ana|1200,75|10|20|30,5|40"_s});
}

TEST_F(ListadoEmpleadosTest, DuringAReportTheStepsOfAllEmployeesAreReadAhead)
{
    for (int codigo = 1; codigo <= 5; ++codigo) {
        empleado(codigo, u"Empleado %1"_s.arg(codigo));
        for (int tramo = 4; tramo >= 1 && codigo != 3; --tramo)
            sueldo(codigo, QString::number(tramo * 1000), QString::number(codigo * 100), QString::number(codigo * 10 + tramo));
    }
    QStringList anotaciones;
    prueba::PuestoEnvuelto puesto{m_puesto.tienda, prueba::anotaEn(anotaciones)};
    {
        const auto ambito = puesto.contexto.ConexionTienda.EmpiezaInforme();
        ListadoEmpleados(puesto.listados);
    }
    EXPECT_EQ(anotaciones.filter(u"FROM sueldos"_s).size(), 1);
    puesto.contexto.ConexionListados.Close();
    EXPECT_EQ(tramos(), (QStringList{u"Empleado 1|100|11|12|13|14"_s, u"Empleado 2|200|21|22|23|24"_s,
                                     u"Empleado 3|nulo|nulo|nulo|nulo|nulo"_s, u"Empleado 4|400|41|42|43|44"_s,
                                     u"Empleado 5|500|51|52|53|54"_s}));
}

TEST_F(ListadoEmpleadosTest, EveryColumnHasItsField)
{
    m_puesto.tienda.ejecuta(u"insert into empleados (codigo, nombre, apellidos, localidad, provincia, direccion, telefono,"
                            " telefono1, fechanacimiento, fechaalta, fechabaja, dni, ss, categoria, cp, observaciones) values"
                            " (7, 'Íñigo', 'Núñez', 'Peñíscola', 'Castellón', 'Mar, 3', '111', '222', #05/04/1980#, #01/15/2020#,"
                            " #12/31/2023#, '1A', '2B', 'Oficial', '12598', 'Nota')"_s);
    EXPECT_EQ(numeroDeError(), 0);
    EXPECT_EQ(m_puesto.filas(u"texto1,texto2,texto3,texto4,texto5,texto6,texto7,texto8"_s),
              QStringList{u"7|Íñigo|Núñez|Peñíscola|Castellón|Mar, 3|111|222"_s});
    EXPECT_EQ(m_puesto.filas(u"texto9,texto10,texto11,texto12,texto13,texto14,texto16,texto22"_s),
              QStringList{u"04/05/1980|15/01/2020|31/12/2023|1A|2B|Oficial|12598|Nota"_s});
    EXPECT_EQ(m_puesto.filas(u"TEXTO35,TEXTO34"_s), QStringList{u"Peluquería Ñandú|Calle Mayor, 1"_s});
}

TEST_F(ListadoEmpleadosTest, AFieldThatIsNullLeavesItsColumnNull)
{
    empleado(1, u"Ana"_s);
    EXPECT_EQ(numeroDeError(), 0);
    EXPECT_EQ(m_puesto.escritas(0), (QStringList{u"texto1"_s, u"texto2"_s, u"texto34"_s, u"texto35"_s}));
}

TEST_F(ListadoEmpleadosTest, RetiredEmployeesAreLeftOut)
{
    empleado(1, u"Ana"_s);
    empleado(2, u"Luis"_s);
    m_puesto.tienda.ejecuta(u"update empleados set baja = -1 where codigo = 1"_s);
    EXPECT_EQ(numeroDeError(), 0);
    EXPECT_EQ(m_puesto.filas(u"texto2"_s), QStringList{u"Luis"_s});
    EXPECT_EQ(m_puesto.progreso.pasos, 1);
}

} // namespace
} // namespace kestrane
