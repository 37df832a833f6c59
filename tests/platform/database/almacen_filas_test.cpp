#include "platform/database/almacen_filas.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

void anade(AlmacenFilas& filas, int numero, const QString& texto)
{
    filas.empiezaFila();
    filas.ponEntero32(numero);
    filas.ponTexto(texto);
    filas.terminaFila();
}

TEST(AlmacenFilas, EveryKindOfFieldComesBackAsItWasPut)
{
    const auto noche = Fecha::deCalendario(1850, 2, 3, 23, 59, 58);
    AlmacenFilas filas{11};
    filas.empiezaFila();
    filas.ponNulo();
    filas.ponLogico(true);
    filas.ponLogico(false);
    filas.ponEntero16(-32768);
    filas.ponEntero32(2147483647);
    filas.ponDoble(0.1);
    filas.ponFecha(Fecha::deSerie(-1, 0));
    filas.ponFecha(*noche);
    filas.ponTextoUtf8("a\xC3\xB1o", 4);
    filas.ponTexto(u"\U0001F600");
    filas.ponTextoComoUtf8(u"España");
    filas.terminaFila();

    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(0), Valor{});
    EXPECT_EQ(filas.valor(1), Valor{true});
    EXPECT_EQ(filas.valor(2), Valor{false});
    EXPECT_EQ(filas.valor(3), Valor{qint16{-32768}});
    EXPECT_EQ(filas.valor(4), Valor{qint32{2147483647}});
    EXPECT_EQ(filas.valor(5), Valor{0.1});
    EXPECT_EQ(filas.valor(6), Valor{Fecha::deSerie(-1, 0)});
    EXPECT_EQ(filas.valor(7), Valor{*noche});
    EXPECT_EQ(filas.valor(8), Valor{u"año"_s});
    EXPECT_EQ(filas.valor(9), Valor{u"\U0001F600"_s});
    EXPECT_EQ(filas.valor(10), Valor{u"España"_s});
    EXPECT_FALSE(filas.siguiente());
}

TEST(AlmacenFilas, FieldsMayBeReadInAnyOrderAndTwice)
{
    AlmacenFilas filas{2};
    anade(filas, 7, u"siete"_s);
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(1), Valor{u"siete"_s});
    EXPECT_EQ(filas.valor(0), Valor{7});
    EXPECT_EQ(filas.valor(1), Valor{u"siete"_s});
}

TEST(AlmacenFilas, ARowReadStaysReadableWhileMoreAreWritten)
{
    AlmacenFilas filas{2};
    anade(filas, 0, u"primera"_s);
    ASSERT_TRUE(filas.siguiente());
    for (int i = 1; i < 1000; ++i)
        anade(filas, i, u"otra"_s);
    EXPECT_EQ(filas.valor(1), Valor{u"primera"_s});
    EXPECT_EQ(filas.filas(), 1000);
}

TEST(AlmacenFilas, RowsPastTheLimitGoToAFileAndComeBackInOrder)
{
    AlmacenFilas filas{2, 10'000};
    const QString largo(300, u'ñ');
    for (int i = 0; i < 5000; ++i)
        anade(filas, i, largo);
    ASSERT_TRUE(filas.usaFichero());
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
        filas.alPrincipio();
        for (int i = 0; i < 5000; ++i) {
            ASSERT_TRUE(filas.siguiente());
            ASSERT_EQ(filas.valor(0), Valor{i});
            ASSERT_EQ(filas.valor(1), Valor{largo});
        }
        EXPECT_FALSE(filas.siguiente());
    }
}

TEST(AlmacenFilas, TheFileMayGrowBehindTheReader)
{
    AlmacenFilas filas{2, 0};
    for (int i = 0; i < 3000; ++i) {
        anade(filas, i, u"texto"_s);
        ASSERT_TRUE(filas.siguiente());
        ASSERT_EQ(filas.valor(0), Valor{i});
    }
    EXPECT_TRUE(filas.usaFichero());
}

TEST(AlmacenFilas, ARowLargerThanAnyBufferComesBackFromTheFile)
{
    AlmacenFilas filas{2, 100};
    const QString enorme(1'000'000, u'x');
    anade(filas, 1, enorme);
    anade(filas, 2, u""_s);
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(1), Valor{enorme});
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(1), Valor{u""_s});
}

TEST(AlmacenFilas, SeveralReadersWalkTheSameRowsEachForItself)
{
    AlmacenFilas filas{2, 60};
    for (int i = 0; i < 10; ++i)
        anade(filas, i, u"uno"_s);
    LectorFilas uno{filas};
    LectorFilas otro{filas};
    ASSERT_TRUE(uno.siguiente());
    ASSERT_TRUE(uno.siguiente());
    ASSERT_TRUE(otro.siguiente());
    EXPECT_EQ(uno.valor(0), Valor{1});
    EXPECT_EQ(otro.valor(0), Valor{0});
}

TEST(AlmacenFilas, AnAbandonedRowLeavesTheOthersAlone)
{
    AlmacenFilas filas{2};
    anade(filas, 1, u"uno"_s);
    filas.abandonaFila();
    filas.empiezaFila();
    filas.ponEntero32(2);
    filas.abandonaFila();
    anade(filas, 3, u"tres"_s);
    ASSERT_EQ(filas.filas(), 2);
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(1), Valor{u"uno"_s});
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(0), Valor{3});
}

TEST(AlmacenFilas, EmptiedItIsAsNewAndHasNoFile)
{
    AlmacenFilas filas{2, 50};
    for (int i = 0; i < 100; ++i)
        anade(filas, i, u"uno"_s);
    filas.vacia();
    EXPECT_EQ(filas.filas(), 0);
    EXPECT_EQ(filas.bytes(), 0);
    EXPECT_FALSE(filas.usaFichero());
    EXPECT_FALSE(filas.siguiente());
    anade(filas, 5, u"cinco"_s);
    ASSERT_TRUE(filas.siguiente());
    EXPECT_EQ(filas.valor(0), Valor{5});
}

TEST(AlmacenFilas, MovedItTakesItsRowsAlong)
{
    AlmacenFilas una{2};
    anade(una, 1, u"uno"_s);
    AlmacenFilas otra{std::move(una)};
    ASSERT_TRUE(otra.siguiente());
    EXPECT_EQ(otra.valor(1), Valor{u"uno"_s});
}

TEST(AlmacenFilas, ReaderComesBackToAPlaceInMemoryAndInTheFile)
{
    AlmacenFilas filas{2, 100};
    for (int i = 0; i < 20; ++i)
        anade(filas, i, u"fila"_s);
    ASSERT_TRUE(filas.usaFichero());
    LectorFilas lector{filas};
    std::vector<LectorFilas::Sitio> sitios;
    do
        sitios.push_back(lector.sitio());
    while (lector.siguiente());
    for (const int fila : {17, 2, 19, 0}) {
        lector.vuelve(sitios[static_cast<size_t>(fila)]);
        ASSERT_TRUE(lector.siguiente());
        EXPECT_EQ(lector.valor(0), Valor{fila});
        EXPECT_EQ(lector.fila(), fila + 1);
    }
}

TEST(AlmacenFilas, PackedRowsGoFromStoreToStore)
{
    AlmacenFilas filas{2};
    anade(filas, 1, u"uno"_s);
    anade(filas, 2, u"dos"_s);
    AlmacenFilas copia{2};
    LectorFilas lector{filas};
    while (lector.siguiente())
        copia.copiaFila(lector.empaquetada());
    ASSERT_EQ(copia.filas(), 2);
    ASSERT_TRUE(copia.siguiente() && copia.siguiente());
    EXPECT_EQ(copia.valor(1), Valor{u"dos"_s});
}

} // namespace
} // namespace kestrane::database
