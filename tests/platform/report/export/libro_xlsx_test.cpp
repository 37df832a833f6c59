#include "platform/report/export/libro_xlsx.h"

#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class LibroXlsxTest : public testing::Test
{
protected:
    [[nodiscard]] QString fichero() const { return m_carpeta.filePath(u"a.xlsx"_s); }

    QTemporaryDir m_carpeta;
};

TEST_F(LibroXlsxTest, WhatIsNotClosedIsNotWritten)
{
    {
        LibroXlsx libro{fichero(), m_carpeta.path(), u"Prueba"_s};
        libro.nuevaFila(0);
    }
    EXPECT_FALSE(QFileInfo::exists(fichero()));
}

TEST_F(LibroXlsxTest, MoreRowsThanASheetHasAreAnError)
{
    LibroXlsx libro{fichero(), m_carpeta.path(), u"Prueba"_s};
    for (int fila = 0; fila < 1048576; ++fila)
        libro.nuevaFila(0);
    try {
        libro.nuevaFila(0);
        FAIL() << "it was taken";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"una hoja de cálculo no admite más de 1048576 filas"_s);
    }
}

} // namespace
} // namespace kestrane::report
