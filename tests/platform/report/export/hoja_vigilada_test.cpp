#include "platform/report/export/hoja_vigilada.h"

#include "platform/report/export/libro_xlsx.h"

#include <gmock/gmock.h>

#include <QFileInfo>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

/// A workbook of two sheets with some megabytes of rows each.
class HojasVigiladas : public testing::Test
{
protected:
    HojasVigiladas()
    {
        filas();
        m_libro.otraHoja(u"Otra"_s);
        filas();
    }

    void filas()
    {
        const ConfiguracionRegional regional = ConfiguracionRegional::espania();
        for (int fila = 0; fila < 20000; ++fila) {
            m_libro.nuevaFila(0);
            m_libro.celda(0, u"una fila como otra %1"_s.arg(fila), {}, Horizontal::Izquierda, ClaseFila::Datos, regional);
        }
    }

    QTemporaryDir m_carpeta;
    QString m_fichero = m_carpeta.filePath(u"a.xlsx"_s);
    LibroXlsx m_libro{m_fichero, m_carpeta.path(), u"Prueba"_s};
};

TEST_F(HojasVigiladas, ItTellsHowFarItIsThroughAllSheets)
{
    std::vector<double> avisos;
    EXPECT_TRUE(m_libro.cierra([&avisos](double hecho) {
        avisos.push_back(hecho);
        return true;
    }));
    ASSERT_GE(avisos.size(), 6U);
    EXPECT_TRUE(std::ranges::is_sorted(avisos));
    EXPECT_LT(avisos.front(), 0.3);
    EXPECT_GT(avisos.back(), 0.7);
    EXPECT_LE(avisos.back(), 1.0);
    EXPECT_GT(QFileInfo{m_fichero}.size(), 100000);
}

TEST_F(HojasVigiladas, ItCanBeBrokenOffAndAsksNoMore)
{
    int avisos = 0;
    EXPECT_FALSE(m_libro.cierra([&avisos](double) { return ++avisos < 2; }));
    EXPECT_EQ(avisos, 2);
    EXPECT_LT(QFileInfo{m_fichero}.size(), 60000) << "not all of it";
}

} // namespace
} // namespace kestrane::report
