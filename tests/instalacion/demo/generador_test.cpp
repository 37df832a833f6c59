#include "instalacion/demo/generador.h"

#include "instalacion/demo/calendario.h"
#include "instalacion/demo/mes_de_cada_sabor.h"

#include <QCryptographicHash>

#include <array>
#include <map>
#include <memory>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(JornadaDeLaDemo);

/// The digest of all rows in their order.
class Resumen : public Destino
{
public:
    explicit Resumen(const Parametros& parametros) { generaTienda(parametros, *this); }

    void fila(const TablaDemo& tabla, std::span<const Valor> valores) override
    {
        m_digesto.addData(QByteArrayView{tabla.nombre});
        for (const Valor& valor : valores)
            std::visit([this](const auto& dato) { anade(dato); }, valor.dato());
    }

    [[nodiscard]] QByteArray digesto() const { return m_digesto.result().toHex(); }

private:
    void anade(Nulo) { m_digesto.addData(QByteArrayView{"N"}); }
    void anade(const QString& texto) { m_digesto.addData(texto.toUtf8()); }
    void anade(Fecha fecha) { anade(QString::number(fecha.diaDeSerie()) + u':' + QString::number(fecha.segundoDelDia())); }
    void anade(bool si) { m_digesto.addData(QByteArrayView{si ? "V" : "F"}); }
    template<class Numero>
    void anade(Numero numero)
    {
        anade(QString::number(numero));
    }

    QCryptographicHash m_digesto{QCryptographicHash::Sha1};
};

/// Sums of a large shop, without its rows.
class Cuenta : public Destino
{
public:
    explicit Cuenta(const Parametros& parametros) { generaTienda(parametros, *this); }

    void fila(const TablaDemo& tabla, std::span<const Valor> valores) override
    {
        lineas += &tabla == &tablas::DetalleFactura ? 1 : 0;
        if (&tabla != &tablas::CabeceraFactura)
            return;
        ++tickets;
        const Fecha fecha = valores[1].fecha();
        const Fecha hora = valores[3].fecha();
        importe += valores[8].doble();
        porMes[fecha.anio() * 12 + fecha.mes()] += valores[8].doble();
        ++porDiaSemana[static_cast<std::size_t>(diaSemana(fecha) - 1)];
        dias[static_cast<std::size_t>(diaSemana(fecha) - 1)].insert(fecha);
        ++porMinuto[static_cast<std::size_t>(hora.segundoDelDia() / 60)];
        if (!valores[4].esNulo()) // a few have lost it
            ++porTienda[valores[4].texto()];
    }

    [[nodiscard]] double ticketsDe(int diaDeSemana) const
    {
        const auto lugar = static_cast<std::size_t>(diaDeSemana - 1);
        return dias[lugar].empty() ? 0.0 : porDiaSemana[lugar] / static_cast<double>(dias[lugar].size());
    }

    int tickets = 0;
    int lineas = 0;
    double importe = 0;
    std::map<int, double> porMes;
    std::array<int, 7> porDiaSemana{};
    std::array<std::set<Fecha>, 7> dias;
    std::array<int, 24 * 60> porMinuto{};
    std::map<QString, int> porTienda;
};

/// A store by the numbers of its tickets: some of them have lost its name.
int tiendaDe(const Fila& venta)
{
    return venta.entero("numero") / 100'000;
}

TEST(SemillaDeLaDemo, EqualParametersMakeEqualShops)
{
    const Parametros parametros{.tipo = TipoTienda::Spa, .tamano = Tamano::Mes, .semilla = 5};
    EXPECT_EQ(Resumen{parametros}.digesto(), Resumen{parametros}.digesto());
}

TEST(SemillaDeLaDemo, EachParameterMakesAnotherShop)
{
    const Parametros base{.tamano = Tamano::Dia};
    Parametros semilla = base;
    semilla.semilla = 2;
    Parametros hoy = base;
    hoy.hoy = base.hoy.masDias(1);
    Parametros tipo = base;
    tipo.tipo = TipoTienda::Estetica;
    Parametros terminal = base;
    terminal.terminal = QStringLiteral("otro");
    std::set<QByteArray> digestos;
    for (const Parametros& uno : {base, semilla, hoy, tipo, terminal})
        digestos.insert(Resumen{uno}.digesto());
    EXPECT_EQ(digestos.size(), 5U);
}

/// Takes rows and forgets them.
class Nada : public Destino
{
public:
    void fila(const TablaDemo&, std::span<const Valor>) override {}
};

TEST(DiasDeLaDemo, EachDayOfTheCalendarIsToldOnceAlsoThoseOnWhichTheShopIsClosed)
{
    const Parametros parametros{.tipo = TipoTienda::Spa, .tamano = Tamano::Mes};
    Nada nada;
    std::size_t dias = 0;
    generaTienda(parametros, nada, [&] { ++dias; });
    EXPECT_EQ(dias, (Calendario{parametros, sabor(parametros.tipo)}.dias().size()));
}

TEST_P(JornadaDeLaDemo, NumbersOfAStoreFollowOneAnotherWhenTheAnnulledAreCounted)
{
    std::map<int, std::set<int>> numeros;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        numeros[tiendaDe(venta)].insert(venta.entero("numero"));
    int renumeradas = 0;
    for (const Fila& venta : filas(tablas::CabeceraFacturaAnulaciones)) {
        if (venta.entero("numero") <= 0)
            ++renumeradas; // its own number is gone
        else {
            EXPECT_TRUE(numeros[tiendaDe(venta)].insert(venta.entero("numero")).second);
        }
    }
    int huecos = 0;
    for (const auto& [nombre, suyos] : numeros)
        huecos += *suyos.rbegin() - *suyos.begin() + 1 - static_cast<int>(suyos.size());
    EXPECT_LE(huecos, renumeradas);
    EXPECT_GE(huecos + static_cast<int>(numeros.size()), renumeradas); // the last ticket of a store may be one of them
}

TEST_P(JornadaDeLaDemo, TimeGoesOnFromTicketToTicket)
{
    std::map<int, std::map<int, qint64>> momentos;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        momentos[tiendaDe(venta)][venta.entero("numero")] =
            qint64{venta.fecha("fechaventa").diaDeSerie()} * Fecha::SegundosPorDia + venta.fecha("hora").segundoDelDia();
    for (const auto& [nombre, suyos] : momentos) {
        qint64 antes = 0;
        for (const auto& [numero, momento] : suyos) {
            EXPECT_LE(antes, momento) << nombre << ' ' << numero;
            antes = momento;
        }
    }
}

TEST_P(JornadaDeLaDemo, NoTicketIsRungUpAtNight)
{
    for (const TablaDemo* tabla : {&tablas::CabeceraFactura, &tablas::CabeceraFacturaAnulaciones, &tablas::CabeceraAbono}) {
        for (const Fila& venta : filas(*tabla)) {
            EXPECT_GE(venta.fecha("hora").hora(), 7);
            EXPECT_LE(venta.fecha("hora").hora(), 21);
            EXPECT_TRUE(venta.fecha("hora").esDiaCero());
        }
    }
}

class AnioDeCadaSabor : public testing::TestWithParam<TipoTienda>
{
protected:
    [[nodiscard]] static const Cuenta& anio()
    {
        static std::map<TipoTienda, std::unique_ptr<Cuenta>> hechas;
        auto& suya = hechas[GetParam()];
        if (suya == nullptr)
            suya = std::make_unique<Cuenta>(Parametros{.tipo = GetParam(), .tamano = Tamano::Anio});
        return *suya;
    }
};

INSTANTIATE_TEST_SUITE_P(Sabores, AnioDeCadaSabor, testing::ValuesIn(TodosLosTipos),
                         [](const auto& caso) { return nombreDeCaso(caso.param); });

TEST_P(AnioDeCadaSabor, AYearHasSixtyThousandTickets)
{
    EXPECT_GE(anio().tickets, 60000);
    for (const auto& [nombre, tickets] : anio().porTienda)
        EXPECT_LT(tickets, 100000) << nombre.toStdString(); // the numbers of a store
}

TEST_P(AnioDeCadaSabor, TheAverageTicketIsOfItsTrade)
{
    struct Margen
    {
        double desde;
        double hasta;
    };
    const std::map<TipoTienda, Margen> margenes{{TipoTienda::Peluqueria, {22, 42}},   {TipoTienda::Spa, {45, 85}},
                                                {TipoTienda::Estetica, {28, 58}},     {TipoTienda::Clinicas, {38, 85}},
                                                {TipoTienda::Tpv, {9, 25}},           {TipoTienda::Perfumeria, {22, 50}},
                                                {TipoTienda::TallaColor, {35, 75}},   {TipoTienda::Zapateria, {35, 75}},
                                                {TipoTienda::Supermercado, {12, 30}}, {TipoTienda::Panaderia, {4, 12}}};
    const double media = anio().importe / anio().tickets;
    EXPECT_GE(media, margenes.at(GetParam()).desde);
    EXPECT_LE(media, margenes.at(GetParam()).hasta);
}

TEST_P(AnioDeCadaSabor, TheWeekGrowsTowardsItsEnd)
{
    EXPECT_GT(anio().ticketsDe(5), anio().ticketsDe(1));
    const Sabor& datos = sabor(GetParam());
    const bool sabadoEntero = datos.ritmo.sabado[1].hasta > 0 || datos.ritmo.sabado[0].hasta > 15 * 60;
    if (sabadoEntero) {
        EXPECT_GT(anio().ticketsDe(6), anio().ticketsDe(1));
    }
    EXPECT_EQ(anio().dias[6].empty(), datos.ritmo.domingo[0].hasta == 0);
}

TEST_P(AnioDeCadaSabor, TheBadMonthIsBelowItsNeighbours)
{
    const int febrero = 2024 * 12 + 2;
    EXPECT_LT(anio().porMes.at(febrero), anio().porMes.at(febrero - 1) * 0.8);
    EXPECT_LT(anio().porMes.at(febrero), anio().porMes.at(febrero + 1) * 0.8);
}

TEST_P(AnioDeCadaSabor, ChristmasSellsAndAugustRests)
{
    const double enero = anio().porMes.at(2024 * 12 + 1);
    const double agosto = anio().porMes.at(2023 * 12 + 8);
    const double diciembre = anio().porMes.at(2023 * 12 + 12);
    if (GetParam() != TipoTienda::Clinicas) {
        EXPECT_GT(diciembre, enero * 0.9);
    }
    EXPECT_GT(diciembre, agosto);
    EXPECT_GT(enero, agosto);
}

TEST_P(AnioDeCadaSabor, HardlyAnyoneIsServedWhileTheShopIsShutForLunch)
{
    const Horario& horario = sabor(GetParam()).ritmo.laborable;
    if (horario[1].hasta == 0)
        return;
    int enLaComida = 0;
    for (int minuto = 15 * 60 + 15; minuto < 15 * 60 + 45; ++minuto)
        enLaComida += anio().porMinuto[static_cast<std::size_t>(minuto)];
    EXPECT_EQ(enLaComida, 0);
}

class CadenaDeCadaSabor : public testing::TestWithParam<TipoTienda>
{
};

INSTANTIATE_TEST_SUITE_P(Sabores, CadenaDeCadaSabor, testing::ValuesIn(TodosLosTipos),
                         [](const auto& caso) { return nombreDeCaso(caso.param); });

TEST_P(CadenaDeCadaSabor, FiftyStoresSellTwoMillionLines)
{
    // A fifth of a chain for most trades, to save time; the floor of four tickets a day weighs little in it.
    const bool entera = GetParam() == TipoTienda::Peluqueria;
    const double parte = entera ? 1.0 : 0.2;
    const Cuenta cadena{Parametros{.tipo = GetParam(), .tamano = Tamano::Cadena, .proporcion = parte}};
    EXPECT_EQ(cadena.porTienda.size(), 50U);
    EXPECT_GE(cadena.lineas, static_cast<int>(2000000 * parte));
    for (const auto& [nombre, tickets] : cadena.porTienda)
        EXPECT_LT(tickets, 100000) << nombre.toStdString();
}

class DiaDeCadaSabor : public testing::TestWithParam<TipoTienda>
{
};

INSTANTIATE_TEST_SUITE_P(Sabores, DiaDeCadaSabor, testing::ValuesIn(TodosLosTipos),
                         [](const auto& caso) { return nombreDeCaso(caso.param); });

TEST_P(DiaDeCadaSabor, EvenTheSmallestShopHasSomethingForEveryReport)
{
    const TiendaEnMemoria tienda{Parametros{.tipo = GetParam(), .tamano = Tamano::Dia}};
    std::vector<const TablaDemo*> llenas{&tablas::CabeceraFactura,
                                         &tablas::DetalleFactura,
                                         &tablas::CabeceraFacturaAnulaciones,
                                         &tablas::CabeceraAbono,
                                         &tablas::DetalleAbono,
                                         &tablas::CabeceraPago,
                                         &tablas::DetallePago,
                                         &tablas::VentasCompartidas,
                                         &tablas::CajaInicial,
                                         &tablas::Gastos,
                                         &tablas::Retiradas,
                                         &tablas::Observacioncaja,
                                         &tablas::Obserclientes,
                                         &tablas::Agenda,
                                         &tablas::Historicostock,
                                         &tablas::Clientes};
    if (esComercio(sabor(GetParam())))
        llenas.insert(llenas.end(), {&tablas::CabeceraFacturaTemp, &tablas::ValesDescuento});
    else
        llenas.insert(llenas.end(), {&tablas::CabeceraBonos, &tablas::DetalleBono});
    for (const TablaDemo* tabla : llenas)
        EXPECT_FALSE(tienda.filas(*tabla).empty()) << tabla->nombre.data();
    std::set<int> pagos;
    for (const Fila& venta : tienda.filas(tablas::CabeceraFactura))
        pagos.insert(venta.entero("pago"));
    for (const int pago : {1, 2, 3, 4})
        EXPECT_TRUE(pagos.contains(pago)) << pago;
}

} // namespace
} // namespace kestrane::demo::pruebas
