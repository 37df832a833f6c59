#include "lote/pantalla_de_lote.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

class PantallaDeLote : public testing::Test
{
protected:
    PantallaDeLote() { m_errores.open(QIODevice::WriteOnly); }

    void pasos(int cuantos)
    {
        for (int i = 0; i < cuantos; ++i)
            m_progreso.IncrementaBarra();
    }

    QBuffer m_errores;
    qint64 m_ahora = 5000;
    ProgresoDeLote m_progreso{m_errores, [this] { return m_ahora; }};
};

TEST_F(PantallaDeLote, MessagesAreLinesOfTheProgram)
{
    MensajesDeLote mensajes{m_errores};
    mensajes.Informa(u"Ya está."_s, u"Listados"_s);
    mensajes.Critico(u"Desbordamiento."_s, u"6"_s);
    EXPECT_EQ(m_errores.data(), "listados-lote: Ya está.\nlistados-lote: error 6: Desbordamiento.\n");
}

TEST_F(PantallaDeLote, InTheFirstSecondNothingIsSaid)
{
    m_progreso.Muestra();
    m_ahora += 999;
    pasos(100000);
    m_progreso.cerrar();
    EXPECT_EQ(m_errores.data(), "");
}

TEST_F(PantallaDeLote, AfterwardsTheStepsAreCountedFiveTimesASecondAndTheLineVanishes)
{
    m_progreso.Muestra();
    m_ahora += 1000;
    pasos(64);
    EXPECT_EQ(m_errores.data(), "\rGenerando Reporte: 1");
    m_ahora += 200;
    pasos(64);
    m_progreso.cerrar();
    EXPECT_EQ(m_errores.data(), "\rGenerando Reporte: 1\rGenerando Reporte: 65\r\x1b[K");
    m_progreso.cerrar();
    EXPECT_TRUE(m_errores.data().endsWith("65\r\x1b[K"));
}

} // namespace
} // namespace kestrane::lote
