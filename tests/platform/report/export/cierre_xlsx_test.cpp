#include "platform/report/export/cierre_xlsx.h"

#include "apoyo/limite_de_fichero.h"
#include "platform/report/export/libro_xlsx.h"
#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <stdexcept>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::LimiteDeFichero;

class CierreXlsx : public testing::Test
{
protected:
    [[nodiscard]] QString fichero() const { return m_carpeta.filePath(u"a.xlsx"_s); }

    void filas(LibroXlsx& libro, int cuantas)
    {
        for (int fila = 0; fila < cuantas; ++fila) {
            libro.nuevaFila(0);
            libro.celda(0, u"una fila como otra %1"_s.arg(fila), {}, Horizontal::Izquierda, ClaseFila::Datos, m_regional);
        }
    }

    QTemporaryDir m_carpeta;
    ConfiguracionRegional m_regional = ConfiguracionRegional::espania();
};

TEST_F(CierreXlsx, AFolderThatIsNotThereIsAnError)
{
    const QString nombre = m_carpeta.filePath(u"nada/a.xlsx"_s);
    LibroXlsx libro{nombre, m_carpeta.path(), u"Prueba"_s};
    try {
        libro.cierra();
        FAIL() << "it was taken";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"\"%1\": no existe"_s.arg(nombre));
    }
}

TEST_F(CierreXlsx, ADiskThatDoesNotTakeTheRowsIsAnError)
{
    const LimiteDeFichero limite{100000};
    LibroXlsx libro{fichero(), m_carpeta.path(), u"Prueba"_s};
    filas(libro, 20000);
    try {
        libro.cierra();
        FAIL() << "it was taken";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"\"%1\": el fichero sería demasiado grande"_s.arg(fichero()));
    }
}

TEST_F(CierreXlsx, ADiskWithoutRoomForThePackedFileIsAnError)
{
    LibroXlsx libro{fichero(), m_carpeta.path(), u"Prueba"_s};
    filas(libro, 100);
    const LimiteDeFichero limite{100000};
    EXPECT_THROW(libro.cierra(), ErrorDeSalida);
}

TEST_F(CierreXlsx, WhatTheOneWhoIsToldThrowsComesThrough)
{
    LibroXlsx libro{fichero(), m_carpeta.path(), u"Prueba"_s};
    filas(libro, 1);
    EXPECT_THROW(libro.cierra([](double) -> bool { throw std::runtime_error{"ya no"}; }), std::runtime_error);
}

} // namespace
} // namespace kestrane::report
