// A start on a shop of which something is not there.

#include "run_context/arranque.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

constexpr int ConexionImposible = -2147467259;
constexpr int SentenciaRechazada = -2147217900;

class SinConexionTest : public prueba::Arranque
{
};

TEST_F(SinConexionTest, AShopThatCannotBeOpenedEndsTheStart)
{
    derriba(u"TiendaKestrane"_s);
    EXPECT_EQ(errorAlArrancar(), ConexionImposible);
    EXPECT_EQ(m_anotaciones, (QStringList{u"ocupa"_s, u"AbrirConexion ''"_s}));
}

TEST_F(SinConexionTest, AReportsDatabaseThatCannotBeOpenedEndsTheStart)
{
    derriba(u"ListKestrane"_s);
    EXPECT_EQ(errorAlArrancar(), ConexionImposible);
    EXPECT_EQ(m_anotaciones, (QStringList{u"ocupa"_s, u"AbrirConexion ''"_s, u"abre TiendaKestrane"_s}));
}

/// An option table, and the last thing that happens in a start without it.
struct TablaQueFalta
{
    const char* tabla;
    QString ultima;
};

class SinTablaTest : public prueba::Arranque, public testing::WithParamInterface<TablaQueFalta>
{
};

TEST_P(SinTablaTest, TheStartEndsAtTheStatementThatNeedsTheTable)
{
    m_tienda.quitaTabla(QString::fromLatin1(GetParam().tabla));
    EXPECT_EQ(errorAlArrancar(), SentenciaRechazada);
    EXPECT_TRUE(m_anotaciones.last().contains(GetParam().ultima)) << m_anotaciones.last().toStdString();
    EXPECT_FALSE(m_anotaciones.contains(u"menu"_s));
}

const TablaQueFalta tablasQueFaltan[] = {
    {"configuracionregional", u"DarLetra"_s},
    {"migraciontablas", u"SELECT nombre FROM configuracionregional"_s},
    {"opciones_terminal", u"FROM migraciontablas"_s},
    {"impresoras", u"FROM opciones_terminal"_s},
    {"opciones", u"FROM impresoras"_s},
    {"relaciones_fijas", u"SELECT multitienda, nombretienda FROM opciones"_s},
};

INSTANTIATE_TEST_SUITE_P(Tablas, SinTablaTest, testing::ValuesIn(tablasQueFaltan),
                         [](const auto& caso) { return std::string{caso.param.tabla}; });

TEST_F(SinTablaTest, WithoutTheTableOfTheListsItEndsAtTheFirstReading)
{
    m_tienda.quitaTablaListados(u"listadostemporal"_s);
    EXPECT_EQ(errorAlArrancar(), SentenciaRechazada);
    EXPECT_EQ(m_anotaciones.mid(3),
              (QStringList{u"abre ListKestrane"_s, u"DarIdentificador"_s, u"abre ListKestrane"_s, u"cierra ListKestrane"_s}));
}

TEST_F(SinTablaTest, TheTableOfStoresIsMissedByTheServerAlone)
{
    m_tienda.quitaTabla(u"multitienda"_s);
    arranca();
    m_tienda.ejecuta(u"insert into opciones (multitienda, nombretienda, numdecimales) values ('T', 'Servidor', 2)"_s);
    EXPECT_EQ(errorAlArrancar(), SentenciaRechazada);
    EXPECT_TRUE(m_anotaciones.last().contains(u"SELECT multitienda, nombretienda FROM opciones"_s));
}

} // namespace
} // namespace kestrane
