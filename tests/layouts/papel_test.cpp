#include "layouts/papel_leido.h"
#include "layouts/renglones_esperados.h"
#include "platform/report/export/exportacion.h"

#include <gtest/gtest.h>

#include <QDir>

#include <cmath>

// Every listing as it comes to paper, read back by another program: nothing is missing, nothing is cut, nothing more is there.

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::Casilla;
using prueba::Clase;
using prueba::Forma;
using prueba::Listado;
using prueba::Palabra;
using prueba::Renglon;
using prueba::renglonesDe;

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
