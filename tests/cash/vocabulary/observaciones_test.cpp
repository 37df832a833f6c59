#include "cash/vocabulary/observaciones.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class ObservacionesTest : public prueba::PruebaVocabulario
{
protected:
    const QString m_sentencia = CabezaObservaciones.toString() + u"#03/01/2024# and #03/31/2024#"_s;
};

TEST_F(ObservacionesTest, TheHeadNamesTheFourFields)
{
    EXPECT_EQ(CabezaObservaciones, u"Select observacion,fecha,hora,empleado from observacioncaja where fecha between ");
}

TEST_F(ObservacionesTest, EachRemarkIsARowWithItsDayItsBareTimeAndTheShortName)
{
    ejecuta(
        {u"insert into empleados (codigo, Nombre, Apellidos) values (3, 'Luis', 'Paz')"_s,
         u"insert into observacioncaja (fecha, hora, empleado, observacion) values (#03/15/2024#, '9:05:00', 3, 'Falta cambio')"_s,
         u"insert into observacioncaja (fecha, hora, empleado, observacion) values (#03/14/2024#, null, 99, null)"_s,
         u"insert into observacioncaja (fecha, hora, empleado, observacion) values (#04/01/2024#, '9:05:00', 3, 'Abril')"_s});
    copiaObservaciones(m_listados, m_sentencia);
    EXPECT_EQ(m_puesto.filas(u"Fecha1,fecha2,texto1,texto2"_s, u"subinformes"_s),
              (QStringList{u"15/03/2024|9:05:00|Luis P|Falta cambio"_s, u"14/03/2024|nulo||nulo"_s}));
    EXPECT_EQ(m_puesto.progreso.pasos, 2);
}

TEST_F(ObservacionesTest, RowsOfAnEarlierReportAreClearedWithoutARemarkToo)
{
    m_puesto.contexto.ConexionListados.Execute(u"insert into subinformes (texto1) values ('vieja')"_s);
    m_puesto.contexto.ConexionListados.Execute(u"insert into informes (texto1) values ('queda')"_s);
    copiaObservaciones(m_listados, m_sentencia);
    EXPECT_EQ(m_puesto.filas(u"texto1"_s, u"subinformes"_s), QStringList{});
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{u"queda"_s});
    EXPECT_EQ(m_puesto.progreso.pasos, 0);
}

TEST_F(ObservacionesTest, ANullEmployeeIsRefusedAndEarlierRowsStay)
{
    ejecuta({u"insert into observacioncaja (fecha, empleado, observacion) values (#03/15/2024#, 99, 'primera')"_s,
             u"insert into observacioncaja (fecha, observacion) values (#03/15/2024#, 'segunda')"_s});
    EXPECT_EQ(numeroDeError([&] { return copiaObservaciones(m_listados, m_sentencia); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(m_puesto.filas(u"texto2"_s, u"subinformes"_s), QStringList{u"primera"_s});
}

} // namespace
} // namespace kestrane
