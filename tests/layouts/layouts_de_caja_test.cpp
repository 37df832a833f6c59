#include "layouts/listado_de_prueba.h"
#include "layouts/papel_de_caja.h"

#include <map>

// What holds for every layout of the till, sheet or roll.

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

constexpr double PuntosPorMilimetro = 72 / 25.4;

/// Which columns a layout shows on each line.
struct Columnas
{
    QStringList textos;
    QStringList importes;
};

Columnas columnasDe(const QString& layout)
{
    static const Columnas DeLineas{{u"texto2"_s, u"texto3"_s, u"texto7"_s}, {u"numerico2"_s}};
    static const std::map<QString, Columnas> Otras{
        {u"K_caja_diariaResumido.rpt"_s, {{u"texto4"_s}, {u"numerico2"_s}}},
        {u"T_caja_diariaResumido.rpt"_s, {{u"texto4"_s}, {u"numerico2"_s}}},
        {u"K_caja_general.rpt"_s, {{u"texto20"_s}, {u"numerico1"_s}}},
        {u"K_caja_general_ticket.rpt"_s, {{u"texto20"_s}, {u"numerico1"_s}}},
        {u"T_caja_general_ticket.rpt"_s, {{u"texto20"_s}, {u"numerico1"_s}}},
        {u"K_caja_tickets.rpt"_s, {{u"texto2"_s, u"texto30"_s}, {u"numerico1"_s, u"numerico22"_s}}},
    };
    const auto suyas = Otras.find(layout);
    return suyas == Otras.end() ? DeLineas : suyas->second;
}

class LayoutDeCaja : public testing::TestWithParam<std::string>
{
protected:
    [[nodiscard]] static QString layout() { return QString::fromStdString(GetParam()); }
    [[nodiscard]] PapelDeCaja imprime() { return imprimeCaja(m_tienda, layout()); }

    /// A line that has what every layout needs to show it.
    void ponLinea(const QString& ticket, const FilaDeCaja& mas)
    {
        FilaDeCaja fila{{u"texto10"_s, ticket}, {u"texto21"_s, u"Ventas Generales"_s},
                        {u"texto22"_s, u"2"_s}, {u"texto23"_s, u"1"_s},
                        {u"numerico2"_s, 1.0},  {u"numerico3"_s, 0.0},
                        {u"numerico17"_s, 1.0}, {u"fecha3"_s, dia(20)},
                        {u"texto24"_s, u"7"_s}, {u"numerico5"_s, 1.0}};
        fila.insert(fila.end(), mas.begin(), mas.end());
        ponInforme(m_tienda, fila);
    }

    TiendaDePrueba m_tienda;
};

TEST_P(LayoutDeCaja, PrintsASingleRowWithNothingButItsHeader)
{
    ponInforme(m_tienda, {});
    const PapelDeCaja papel = imprime();
    EXPECT_EQ(papel.paginas.size(), 1U);
    EXPECT_TRUE(papel.dice(Empresa + u' ' + Direccion));
    EXPECT_TRUE(papel.dice(u"Del 20/11/2026 al 20/11/2026 Tienda = Centro"_s));
    EXPECT_FALSE(papel.texto().contains(u'…'));
}

TEST_P(LayoutDeCaja, StandsAloneOnWhatSubinformesHolds)
{
    llenaObservaciones(m_tienda);
    llenaMovimientos(m_tienda);
    pon(m_tienda, u"subinformes"_s, {{u"texto3"_s, u" al 21% "_s}, {u"numerico5"_s, 121.0}, {u"numerico4"_s, 21.0}});
    const PapelDeCaja papel = imprime();
    const bool dice = papel.dice(u"Falta cambio"_s) || papel.dice(u"Suma de los movimientos 59,10"_s) ||
                      papel.dice(u"al 21% 100,00 21,00 121,00"_s);
    EXPECT_TRUE(dice) << papel.texto().toStdString();
}

TEST_P(LayoutDeCaja, LetsLongTextsGrow)
{
    FilaDeCaja fila;
    QStringList palabras;
    for (const QString& columna : columnasDe(layout()).textos) {
        QStringList suyas;
        for (int i = 1; i <= 12; ++i)
            suyas << u"%1ñ%2"_s.arg(columna.mid(5)).arg(i);
        fila.emplace_back(columna, suyas.join(u' '));
        palabras << suyas;
    }
    ponLinea(u"501"_s, fila);
    const PapelDeCaja papel = imprime();
    for (const QString& palabra : palabras)
        EXPECT_TRUE(papel.dice(palabra));
    EXPECT_FALSE(papel.texto().contains(u'…')) << papel.texto().toStdString();
}

TEST_P(LayoutDeCaja, LetsLongRemarksGrow)
{
    ponLinea(u"501"_s, {});
    QStringList palabras;
    for (int i = 1; i <= 40; ++i)
        palabras << u"ñ%1"_s.arg(i);
    pon(m_tienda, u"subinformes"_s, {{u"Fecha1"_s, dia(20)}, {u"texto1"_s, u"Ana P"_s}, {u"texto2"_s, palabras.join(u' ')}});
    const PapelDeCaja papel = imprime();
    const bool conObservaciones = papel.texto().contains(u"Observaciones"_s);
    EXPECT_EQ(bool{papel.dice(palabras.join(u' '))}, conObservaciones);
    EXPECT_FALSE(papel.texto().contains(u'…'));
}

TEST_P(LayoutDeCaja, HasRoomForSumsOfAMillion)
{
    for (int i = 0; i < 13; ++i) {
        FilaDeCaja fila;
        for (const QString& columna : columnasDe(layout()).importes)
            fila.emplace_back(columna, 98765.43);
        ponLinea(QString::number(501 + i), fila);
    }
    const PapelDeCaja papel = imprime();
    EXPECT_TRUE(papel.dice(u"1.283.950,59"_s)); // 13 times 98.765,43
    EXPECT_FALSE(papel.texto().contains(u'…')) << papel.texto().toStdString();
}

TEST_P(LayoutDeCaja, NamesNoColumnAndNoKeyInItsData)
{
    ponLinea(u"501"_s, {{u"texto20"_s, u"Ana P"_s}});
    ponLinea(u"502"_s, {{u"texto22"_s, Nulo{}}, {u"texto23"_s, Nulo{}}, {u"texto20"_s, u"Luis G"_s}});
    llenaObservaciones(m_tienda);
    llenaMovimientos(m_tienda);
    const QString datos = datosDeCaja(m_tienda, layout());
    EXPECT_TRUE(datos.contains(u"<td"_s));
    for (const QString& resto : {u">texto"_s, u">numerico"_s, u">zz"_s, u">1</th>"_s, u"Total 1<"_s})
        EXPECT_FALSE(datos.contains(resto)) << resto.toStdString() << datos.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Todos, LayoutDeCaja, testing::ValuesIn(nombresDeCaja()), nombreDePrueba);

class LayoutDeRollo : public LayoutDeCaja
{
};

TEST_P(LayoutDeRollo, KeepsToTheSeventyTwoMillimetresThatArePrinted)
{
    llenaCajaGeneral(m_tienda);
    llenaCajaTickets(m_tienda);
    llenaObservaciones(m_tienda);
    ponLinea(u"501"_s, {{u"texto3"_s, u"Tratamiento de hidratación profunda"_s}, {u"texto20"_s, QString{60, u'W'}}});
    const PapelDeCaja papel = imprime();
    EXPECT_DOUBLE_EQ(papel.ancho, 80);
    for (const PaginaLeida& pagina : papel.paginas) {
        for (const Palabra& palabra : pagina) {
            EXPECT_GE(palabra.izquierda, 4 * PuntosPorMilimetro - 0.5) << palabra.texto.toStdString();
            EXPECT_LE(palabra.derecha, 76 * PuntosPorMilimetro + 0.5) << palabra.texto.toStdString();
        }
    }
}

std::vector<std::string> losDeRollo()
{
    auto suyos = nombresDeCaja();
    std::erase_if(suyos, [](const std::string& layout) { return !vaEnRollo(QString::fromStdString(layout)); });
    return suyos;
}

INSTANTIATE_TEST_SUITE_P(Rollos, LayoutDeRollo, testing::ValuesIn(losDeRollo()), nombreDePrueba);

TEST(LineasDeCaja, HaveTheirHeadingsOnEachPage)
{
    const std::pair<QString, QString> casos[] = {
        {u"K_caja_diariageneral2.rpt"_s, u"Fecha Ticket Cliente Concepto Empleado Pago Neto Impuestos Total Por ticket"_s},
        {u"T_caja_diariageneral2.rpt"_s, u"Fecha Ticket Cliente Concepto Empleado Pago Neto Impuestos Total Por ticket"_s},
        {u"K_caja_general.rpt"_s, u"Empleado Productos Total"_s},
        {u"K_porservicios.rpt"_s, u"Fecha Ticket Cliente Código Servicio Empleado Pago Precio Uds. Neto Impuestos Total"_s},
        {u"K_formapago.rpt"_s, u"Fecha Ticket Cliente Concepto Empleado Neto Impuestos Total"_s},
        {u"T_Albaranes.rpt"_s, u"Fecha Albarán Cliente Concepto Empleado Pago Neto Impuestos Total Por alb."_s},
    };
    for (const auto& [layout, titulos] : casos) {
        SCOPED_TRACE(layout.toStdString());
        TiendaDePrueba tienda;
        for (int i = 0; i < 150; ++i)
            ponInforme(
                tienda,
                {{u"texto10"_s, QString::number(i)}, {u"texto20"_s, u"Ana P"_s}, {u"texto22"_s, u"2"_s}, {u"texto23"_s, u"1"_s}});
        const PapelDeCaja papel = imprimeCaja(tienda, layout);
        EXPECT_GT(papel.paginas.size(), 2U);
        for (const QString& pagina : papel.textos)
            EXPECT_TRUE(pagina.contains(titulos)) << pagina.toStdString();
    }
}

} // namespace
} // namespace kestrane::prueba
