#include "platform/database/entorno_datos.h"

#include "platform/database/base_compartida.h"
#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <QDir>

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

OpcionesDatos opciones(const sqlite::BaseDePrueba& base)
{
    OpcionesDatos opciones;
    opciones.carpeta = base.carpeta();
    opciones.origenes = Origenes::SoloEmbebidos;
    return opciones;
}

TEST(EntornoDatos, ADataSourceWithoutItsFileIsAnErrorAndMakesNone)
{
    const sqlite::BaseDePrueba base{"create table t (a LONG)"};
    const EntornoDatos entorno{opciones(base)};
    EXPECT_THROW(static_cast<void>(entorno.abre({u"Otra"_s, {}, {}})), ErrorEjecucion);
    EXPECT_EQ(QDir{base.carpeta()}.entryList(QDir::Files), QStringList{u"Prueba.db"_s});
}

TEST(EntornoDatos, ADataSourceIsTheFileOfItsName)
{
    const sqlite::BaseDePrueba base{"create table t (a LONG)"};
    const EntornoDatos entorno{opciones(base)};
    EXPECT_EQ(entorno.fichero(u"Prueba"_s), base.fichero());
    EXPECT_EQ(entorno.abre({u"Prueba"_s, {}, {}})->clase(), jet::Motor::Sqlite);
}

TEST(EntornoDatos, OnlyTheReportsDataSourceWritesAhead)
{
    const sqlite::BaseDePrueba base{"create table t (a LONG)"};
    OpcionesDatos conListados = opciones(base);
    {
        const EntornoDatos entorno{conListados};
        static_cast<void>(entorno.abre({u"Prueba"_s, {}, {}}));
        EXPECT_EQ(base.consulta("pragma journal_mode"), "delete|");
    }
    conListados.dsnListados = u"PRUEBA"_s;
    const EntornoDatos entorno{conListados};
    const auto motor = entorno.abre({u"Prueba"_s, {}, {}});
    EXPECT_EQ(base.consulta("pragma journal_mode"), "wal|");
}

TEST(EntornoDatos, ConnectionsToOneDataSourceShareWhateverTheCaseOfItsName)
{
    const sqlite::BaseDePrueba base{"create table t (a LONG)"};
    EntornoDatos entorno{opciones(base)};
    EXPECT_EQ(entorno.base(u"Prueba"_s), entorno.base(u"PRUEBA"_s));
    EXPECT_NE(entorno.base(u"Prueba"_s), entorno.base(u"Otra"_s));
    EXPECT_TRUE(entorno.enviaPendientes()) << "nothing waits";
}

TEST(EntornoDatos, TheEngineMayComeFromElsewhere)
{
    const sqlite::BaseDePrueba base{"create table t (a LONG)"};
    OpcionesDatos propias = opciones(base);
    QString pedido;
    propias.abreMotor = [&](const DestinoConexion& destino) -> std::unique_ptr<MotorBase> {
        pedido = destino.dsn + u' ' + destino.usuario;
        return nullptr;
    };
    const EntornoDatos entorno{propias};
    static_cast<void>(entorno.abre({u"Tienda"_s, u"ana"_s, {}}));
    EXPECT_EQ(pedido, u"Tienda ana");
}

} // namespace
} // namespace kestrane::database
