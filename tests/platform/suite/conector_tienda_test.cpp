#include "platform/suite/conector_tienda.h"

#include "apoyo/motor_anotado.h"
#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class ConectorTiendaTest : public testing::Test
{
protected:
    QStringList m_anotaciones;
    prueba::TiendaDePrueba m_tienda;
    EntornoDatos m_entorno{m_tienda.opciones(prueba::anotaEn(m_anotaciones))};
    Conexion m_conexion{m_entorno};
    ConectorTiendaDsn m_conector;
};

TEST_F(ConectorTiendaTest, WithAnEmptyTextItOpensTheShop)
{
    m_conector.AbrirConexion({}, m_conexion);
    EXPECT_TRUE(m_conexion.abierta());
    EXPECT_EQ(m_conexion.ConnectionString(), u"dsn=TiendaKestrane"_s);
    EXPECT_EQ(m_anotaciones, QStringList{u"abre TiendaKestrane"_s});
}

TEST_F(ConectorTiendaTest, AnotherTextIsTheConnectionString)
{
    m_conector.AbrirConexion(u"dsn=ListKestrane"_s, m_conexion);
    EXPECT_EQ(m_anotaciones, QStringList{u"abre ListKestrane"_s});
}

TEST_F(ConectorTiendaTest, AFileThatIsNotThereIsAnError)
{
    ASSERT_TRUE(QFile::remove(m_entorno.fichero(u"TiendaKestrane"_s)));
    EXPECT_EQ(prueba::numeroDeError([&] {
                  m_conector.AbrirConexion({}, m_conexion);
                  return 0;
              }),
              -2147467259);
    EXPECT_FALSE(m_conexion.abierta());
}

} // namespace
} // namespace kestrane
