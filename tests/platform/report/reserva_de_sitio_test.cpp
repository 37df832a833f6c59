#include "platform/report/reserva_de_sitio.h"

#include "platform/report/filas_agrupadas.h"
#include "platform/report/informe_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class ReservaDeSitioTest : public testing::Test
{
protected:
    /// For the step at the first row, on a page with room for 100 mm.
    double para(const Paso& paso)
    {
        const CopiaFilas copia = prueba::copiaDe({u"a"_s, u"b"_s, u"t"_s}, {{1, 1, m_texto}});
        const InformeEnlazado informe{
            m_prueba.layout, [&](const Layout& layout) { return std::make_unique<FilasAgrupadas>(layout, copia, m_regional); },
            m_estilos};
        const MedidorBandas medidor{m_estilos, m_regional};
        return ReservaDeSitio{informe, medidor, {}}.para(paso, 100);
    }

    prueba::LayoutDePrueba m_prueba;
    QString m_texto = u"x"_s;
    ConfiguracionRegional m_regional = ConfiguracionRegional::espania();
    TablaEstilos m_estilos;
};

TEST_F(ReservaDeSitioTest, HeadersNeedTheirFirstRow)
{
    m_prueba.grupo(u"a"_s, 12);
    m_prueba.grupo(u"b"_s, 8);
    m_prueba.layout.detalle.push_back(m_prueba.banda(5, u"t"_s));
    EXPECT_EQ(para({Parte::AbreGrupos, 0, 0, 0}), 25);
    EXPECT_EQ(para({Parte::CabeceraGrupo, 2, 0, 0}), 13);
    EXPECT_EQ(para({Parte::Detalle, 0, 0, 0}), 5);
    EXPECT_EQ(para({Parte::Fin, 0, 0, 0}), 0);
}

TEST_F(ReservaDeSitioTest, AHeaderThatMayStandAloneNeedsItsOwnRoom)
{
    m_prueba.grupo(u"a"_s, 12).juntoALaPrimera = false;
    m_prueba.layout.detalle.push_back(m_prueba.banda(5, u"t"_s));
    EXPECT_EQ(para({Parte::AbreGrupos, 0, 0, 0}), 12);
}

TEST_F(ReservaDeSitioTest, ARowThatNoPageHoldsNeedsOnlyItsBeginning)
{
    m_texto = QString{200, u'\n'};
    m_prueba.grupo(u"a"_s, 12);
    Banda banda;
    banda.alto = 5;
    banda.elementos.emplace_back(m_prueba.crece(u"t"_s, 50));
    m_prueba.layout.detalle.push_back(banda);
    EXPECT_EQ(para({Parte::AbreGrupos, 0, 0, 0}), 17);
}

} // namespace
} // namespace kestrane::report
