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

    QBuffer m_errores;
    qint64 m_ahora = 5000;
    Avisos m_avisos{u"listados-lote"_s, m_errores, DestinoErrores::Terminal, [this] { return m_ahora; }};
};

TEST_F(PantallaDeLote, MessagesAreLinesOfTheProgram)
{
    MensajesDeLote mensajes{m_avisos};
    mensajes.Informa(u"Ya está."_s, u"Listados"_s);
    mensajes.Critico(u"Desbordamiento."_s, u"6"_s);
    EXPECT_EQ(m_errores.data(), "listados-lote: Ya está.\nlistados-lote: error 6: Desbordamiento.\n");
}

TEST_F(PantallaDeLote, TheProgressWindowIsTheLineOfSteps)
{
    ProgresoDeLote progreso{m_avisos};
    m_ahora += 1000;
    progreso.IncrementaBarra();
    EXPECT_EQ(m_errores.data(), "") << "not shown yet";
    progreso.Muestra();
    progreso.IncrementaBarra();
    EXPECT_EQ(m_errores.data(), "Generando Reporte: 1");
    progreso.cerrar();
    progreso.cerrar();
    EXPECT_EQ(m_errores.data(), "Generando Reporte: 1\r\x1b[K");
}

} // namespace
} // namespace kestrane::lote
