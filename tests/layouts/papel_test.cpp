#include "layouts/listado_de_prueba.h"
#include "layouts/papel_leido.h"
#include "platform/report/export/exportacion.h"

#include <gtest/gtest.h>

#include <QDir>

#include <cmath>

// Every listing as it comes to paper, read back by another program: nothing is missing, nothing is cut, nothing more is there.

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::Clase;
using prueba::Columna;
using prueba::Forma;
using prueba::Listado;
using prueba::Palabra;
using prueba::valorDe;

/// Words that stand in one box. Their edge is that of the heading of a column, if they belong to one.
struct Casilla
{
    QString texto;
    int columna = -1;
    Clase clase = Clase::Texto;
};

/// What stands together on one page.
struct Renglon
{
    std::vector<Casilla> casillas;
    bool esCabecera = false; ///< repeated where a page goes on below it
};

QString celda(const Listado& listado, int fila, const Columna& columna)
{
    return prueba::escrito(valorDe(listado, fila, columna.campo), columna.clase);
}

Renglon deTabla(const Listado& listado, int fila, size_t cuantas)
{
    Renglon renglon;
    for (size_t i = 0; i < cuantas; ++i) {
        const Columna& columna = listado.columnas[i];
        renglon.casillas.push_back({celda(listado, fila, columna), static_cast<int>(i), columna.clase});
    }
    return renglon;
}

Renglon deFicha(const Listado& listado, int fila)
{
    const auto valor = [&](int lugar) { return celda(listado, fila, {u"texto%1"_s.arg(lugar), {}}); };
    Renglon renglon;
    const auto pon = [&](const QString& texto) { renglon.casillas.push_back({texto}); };
    pon(valor(1));
    pon(valor(2) + u' ' + valor(3));
    pon(valor(14));
    pon(u"Dirección "_s + valor(6));
    pon(u"C.P. y localidad "_s + valor(16) + u' ' + valor(4));
    pon(u"Provincia "_s + valor(5));
    const std::pair<QString, int> rotulos[] = {{u"Teléfono"_s, 7},
                                               {u"Otro teléfono"_s, 8},
                                               {u"DNI"_s, 12},
                                               {u"Seguridad Social"_s, 13},
                                               {u"Fecha de nacimiento"_s, 9},
                                               {u"Fecha de alta"_s, 10},
                                               {u"Fecha de baja"_s, 11},
                                               {u"Sueldo base"_s, 17},
                                               {u"Tramo 1"_s, 18},
                                               {u"Tramo 2"_s, 19},
                                               {u"Tramo 3"_s, 20},
                                               {u"Tramo 4"_s, 21}};
    for (const auto& [rotulo, lugar] : rotulos)
        pon(rotulo + u' ' + valor(lugar));
    pon(valor(22));
    return renglon;
}

std::vector<Renglon> dePack(const Listado& listado, int primera, int filas)
{
    std::vector<Renglon> renglones{deTabla(listado, primera, 7)};
    renglones[0].esCabecera = true;
    const int hasta = std::min(primera + prueba::ServiciosPorPack, filas);
    for (int i = primera; i < hasta; ++i) {
        const bool porDias = listado.forma == Forma::PacksPorDias;
        const int fila = porDias ? hasta - 1 - (i - primera) : i; // days stand in the table from the last to the first
        const QString dia = porDias ? valorDe(listado, fila, u"texto8"_s).texto() + u' ' : QString{};
        renglones.push_back({{{dia + valorDe(listado, fila, u"texto7"_s).texto()}}});
    }
    return renglones;
}

std::vector<Renglon> renglonesDe(const Listado& listado, int filas)
{
    std::vector<Renglon> renglones;
    for (int fila = 0; fila < filas; fila += listado.conPacks() ? prueba::ServiciosPorPack : 1) {
        if (listado.conPacks()) {
            for (Renglon& uno : dePack(listado, fila, filas))
                renglones.push_back(std::move(uno));
        } else {
            renglones.push_back(listado.forma == Forma::Fichas ? deFicha(listado, fila)
                                                               : deTabla(listado, fila, listado.columnas.size()));
        }
    }
    return renglones;
}

/// Goes along the words of a page, and compares.
class Lectura
{
public:
    Lectura(const Listado& listado, const prueba::PaginaLeida& pagina) : m_listado{listado}, m_pagina{pagina} {}

    void texto(const QString& esperado) { lee({esperado}); }

    void cabecera(bool conEmpresa)
    {
        if (conEmpresa) {
            texto(prueba::Empresa);
            texto(prueba::Direccion);
        }
        texto(m_listado.titulo);
        const bool conTitulos = m_listado.forma != Forma::Fichas;
        const size_t cuantos = m_listado.conPacks() ? 7 : m_listado.columnas.size();
        const int veces = m_listado.forma == Forma::TresColumnas ? 3 : 1;
        for (size_t i = 0; conTitulos && i < cuantos * static_cast<size_t>(veces); ++i)
            m_titulos.push_back(lee({m_listado.columnas[i % cuantos].titulo}));
    }

    void renglon(const Renglon& renglon)
    {
        double hasta = 0;
        for (const Casilla& casilla : renglon.casillas) {
            const Palabra caja = lee(casilla);
            if (casilla.columna < 0 || casilla.texto.isEmpty())
                continue;
            EXPECT_GT(caja.izquierda, hasta) << caja.texto.toStdString();
            hasta = caja.derecha;
            EXPECT_TRUE(bajoSuTitulo(casilla, caja)) << caja.texto.toStdString();
        }
    }

    void pie(size_t pagina, size_t paginas)
    {
        texto(m_listado.titulo + u" Página %1 de %2"_s.arg(pagina).arg(paginas));
        EXPECT_EQ(m_lugar, m_pagina.size()) << "more stands on the page";
    }

    /// Whether the page's foot comes now, which has the words of the title and four more.
    [[nodiscard]] bool enElPie() const
    {
        const auto palabras = static_cast<size_t>(m_listado.titulo.split(u' ').size()) + 4;
        return m_lugar + palabras >= m_pagina.size();
    }

private:
    Palabra lee(const Casilla& casilla)
    {
        Palabra leida;
        for (const QString& palabra : casilla.texto.split(u' ', Qt::SkipEmptyParts)) {
            if (m_lugar >= m_pagina.size()) {
                ADD_FAILURE() << "the page ends before " << palabra.toStdString();
                return leida;
            }
            const Palabra& hallada = m_pagina[m_lugar++];
            EXPECT_EQ(hallada.texto.toStdString(), palabra.toStdString());
            leida.izquierda = leida.texto.isEmpty() ? hallada.izquierda : leida.izquierda;
            leida.derecha = hallada.derecha;
            leida.texto += hallada.texto;
        }
        return leida;
    }

    [[nodiscard]] bool bajoSuTitulo(const Casilla& casilla, const Palabra& caja) const
    {
        constexpr double Holgura = 0.75; // points: what the letters' own margins differ in
        const auto cerca = [](double a, double b) { return std::abs(a - b) < Holgura; };
        if (m_listado.forma == Forma::TresColumnas)
            return std::ranges::any_of(m_titulos, [&](const Palabra& titulo) { return cerca(titulo.izquierda, caja.izquierda); });
        const Palabra& titulo = m_titulos.at(static_cast<size_t>(casilla.columna));
        if (casilla.clase == Clase::Texto)
            return cerca(titulo.izquierda, caja.izquierda);
        if (casilla.clase == Clase::Centrado)
            return cerca(titulo.izquierda + titulo.derecha, caja.izquierda + caja.derecha);
        return cerca(titulo.derecha, caja.derecha);
    }

    const Listado& m_listado;
    const prueba::PaginaLeida& m_pagina;
    size_t m_lugar = 0;
    std::vector<Palabra> m_titulos;
};

class Papel : public testing::TestWithParam<std::tuple<int, int>>
{
protected:
    [[nodiscard]] static const Listado& listado()
    {
        return prueba::listadosEntregados()[static_cast<size_t>(std::get<0>(GetParam()))];
    }
    [[nodiscard]] static int filas() { return std::get<1>(GetParam()); }

    std::vector<prueba::PaginaLeida> imprime()
    {
        const QString pdf = QDir{m_tienda.carpeta()}.filePath(u"a.pdf"_s);
        Documento documento{QStringLiteral(KESTRANE_LAYOUTS) + u'/' + listado().fichero, m_tienda.entorno()};
        EXPECT_TRUE(exporta(documento, FormatoExportacion::Pdf, pdf));
        return prueba::leePapel(pdf);
    }

    /// The report's last line: how many there are, with a dot after thousands.
    [[nodiscard]] static QString recuento()
    {
        const QString cuantos = filas() == 5000 ? u"5.000"_s : QString::number(filas());
        return (listado().conPacks() ? u"Servicios en packs: "_s : u"Registros: "_s) + cuantos;
    }

    prueba::TiendaDePrueba m_tienda;
};

TEST_P(Papel, AllOfItStandsOnPaperInOrder)
{
    prueba::llena(m_tienda, listado(), filas());
    m_tienda.ejecutaListados(u"insert into subinformes (texto1, numerico1) values ('Señal', 2.5)"_s);
    const std::vector<Renglon> renglones = renglonesDe(listado(), filas());
    const auto paginas = imprime();
    size_t siguiente = 0;
    size_t cabecera = 0;
    for (size_t i = 0; i < paginas.size() && !HasFailure(); ++i) {
        SCOPED_TRACE("page " + std::to_string(i + 1));
        const bool ultima = i + 1 == paginas.size();
        Lectura lectura{listado(), paginas[i]};
        lectura.cabecera(filas() > 0);
        if (listado().conPacks() && i > 0 && siguiente < renglones.size() && !renglones[siguiente].esCabecera)
            lectura.renglon(renglones[cabecera]);
        for (; siguiente < renglones.size() && !lectura.enElPie() && !HasFailure(); ++siguiente) {
            cabecera = renglones[siguiente].esCabecera ? siguiente : cabecera;
            lectura.renglon(renglones[siguiente]);
        }
        if (ultima)
            lectura.texto(recuento());
        lectura.pie(i + 1, paginas.size());
    }
    EXPECT_EQ(siguiente, renglones.size());
    EXPECT_GE(paginas.size(), filas() == 5000 ? 25U : 1U);
}

INSTANTIATE_TEST_SUITE_P(Listados, Papel, testing::Combine(testing::Range(0, 12), testing::Values(0, 1, 3, 5000)),
                         [](const auto& caso) {
                             const Listado& uno = prueba::listadosEntregados()[static_cast<size_t>(std::get<0>(caso.param))];
                             return uno.fichero.chopped(4).toStdString() + "_" + std::to_string(std::get<1>(caso.param));
                         });

} // namespace
} // namespace kestrane::report
