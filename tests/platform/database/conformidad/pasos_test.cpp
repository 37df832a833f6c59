// What engines are asked for, and what must not depend on how rows travel or on the regional settings, on every engine.

#include "platform/database/conformidad/conformidad.h"
#include "platform/database/motor_contado.h"

namespace kestrane::database::conformidad {
namespace {

class PasosDelMotor : public Conformidad
{
protected:
    PasosDelMotor()
    {
        tabla(u"informes"_s, {doble(u"numerico1"_s), fecha(u"fecha3"_s), texto(u"texto10"_s)});
        tabla(u"productos"_s, {largo(u"codigo"_s), texto(u"nombre"_s), texto(u"tienda"_s)});
    }
    /// Another program's connection to the shop.
    struct Programa
    {
        explicit Programa(const OpcionesDatos& opciones) : entorno{opciones} { conexion.Open(u"dsn="_s + dsn(Base::Tienda)); }

        EntornoDatos entorno;
        Conexion conexion{entorno};
    };
    void llenaProductos(int hasta)
    {
        Recordset rs;
        rs.Open(u"productos"_s, tienda(), CursorType::Keyset);
        for (int i = 1; i <= hasta; ++i) {
            rs.AddNew();
            rs.Fields(u"codigo") = i;
            rs.Fields(u"nombre") = u"producto ñ "_s + QString::number(i);
            rs.Update();
        }
    }

    Pasos m_pasos;
};

TEST_F(PasosDelMotor, WhatTheFrontEndRefusesNeverReachesTheEngine)
{
    Programa contado{contando(entorno().opciones(), m_pasos)};
    for (const QString& sentencia :
         {u"select p.codigo from productos p order by p.nombre and p.tienda like '%Centro'"_s,
          u"select codigo from productos where productos.codigo = productos.proveedorand productos.tienda like '%'"_s,
          u"select codigo from  where codigo = 7"_s, u"select codigo from productos where nombre = 'O'Donnell'"_s,
          u"select nada from productos"_s, u"delete from productos; delete from informes"_s, u"drop table productos"_s,
          u"select codigo from productos -- where"_s}) {
        EXPECT_EQ(error([&] { contado.conexion.Execute(sentencia); }), ErrorEjecucion::SentenciaRechazada) << qPrintable(sentencia);
    }
    EXPECT_EQ(m_pasos.preparadas, 0);
    EXPECT_EQ(m_pasos.ejecutadas, 0);
    contado.conexion.Execute(u"delete from productos"_s);
    EXPECT_EQ(m_pasos.ejecutadas, 1) << "what is counted is what runs";
}

TEST_F(PasosDelMotor, AnnouncedStatementsGoToTheEngineInChunks)
{
    llenaProductos(300);
    tienda().Close();
    Programa contado{contando(entorno().opciones(), m_pasos)};
    const AmbitoInforme ambito = contado.conexion.EmpiezaInforme();
    Recordset padres;
    padres.Open(u"select codigo from productos"_s, contado.conexion);
    padres.Anticipa(u"select nombre from productos where codigo = "_s, u"codigo"_s, u" and nombre like '%'"_s);
    for (Recordset& padre : padres) {
        const QString codigo = QString::number(padre.Fields(0).entero32());
        Recordset rs;
        rs.Open(u"select nombre from productos where codigo = "_s + codigo + u" and nombre like '%'"_s, contado.conexion);
        ASSERT_TRUE(rs.RecordCount() == 1);
        ASSERT_EQ(rs.Fields(0).texto(), u"producto ñ "_s + codigo);
    }
    EXPECT_EQ(m_pasos.ejecutadas, 3) << "the parents, 200 keys, 100 keys";
}

TEST_F(PasosDelMotor, ResultsThatSpillToAFileHaveTheSameRows)
{
    llenaProductos(2000);
    tienda().Close();
    OpcionesDatos estrechas = entorno().opciones();
    estrechas.limiteFilas = 2048;
    Programa enFichero{estrechas};
    const QString sentencia = u"select codigo,nombre,tienda from productos"_s;
    const std::string esperado = filas(sentencia);
    EXPECT_TRUE(esperado.ends_with("2000,'producto ñ 2000',NULL|"));
    EXPECT_EQ(filas(sentencia, enFichero.conexion), esperado);
    Recordset rs;
    rs.Open(sentencia, enFichero.conexion);
    EXPECT_EQ(qint32{rs.RecordCount()}, 2000);
    EXPECT_EQ(rs.Fields(0).entero32(), 1);
}

TEST_F(PasosDelMotor, EnglishSettingsReadAndWriteTextsTheirWay)
{
    OpcionesDatos opciones = entorno().opciones();
    opciones.regional = *ConfiguracionRegional::deNombre(u"en_US"_s);
    Programa ingles{opciones};
    ingles.conexion.Execute(u"insert into informes (fecha3,numerico1,texto10) values ('03/05/2024','12.5','100')"_s);
    const auto leidas = [&](const QString& sentencia) { return filas(sentencia, ingles.conexion); };
    EXPECT_EQ(leidas(u"select fecha3,numerico1,texto10 from informes"_s), "2024-03-05,12.5,'100'|") << "the fifth of March";
    EXPECT_EQ(leidas(u"select numerico1 & '' as n, fecha3 & '' as f from informes"_s), "'12.5','03/05/2024'|");
    for (const QString& valor : {u"numerico1 = '12,5x'"_s, u"fecha3 = '15/03/2024'"_s})
        EXPECT_EQ(error([&] { ingles.conexion.Execute(u"update informes set "_s + valor); }), ErrorEjecucion::SentenciaRechazada)
            << qPrintable(valor);
    Recordset rs;
    rs.Open(u"informes"_s, ingles.conexion, CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"fecha3") = u"12/31/2023"_s;
    rs.Fields(u"numerico1") = u"-1.05"_s;
    rs.Fields(u"texto10") = 2.5;
    rs.Update();
    EXPECT_EQ(leidas(u"select fecha3,numerico1,texto10 from informes where numerico1 < 0"_s), "2023-12-31,-1.05,'2.5'|");
}

} // namespace
} // namespace kestrane::database::conformidad
