#include "platform/database/fichero_filas.h"

#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrane::database {
namespace {

std::string fila(const std::string& contenido)
{
    const auto bytes = static_cast<quint32>(contenido.size() + sizeof(quint32));
    return std::string{reinterpret_cast<const char*>(&bytes), sizeof bytes} + contenido;
}

std::string leida(FicheroFilas& fichero, qsizetype& posicion)
{
    BloqueBytes destino;
    posicion = fichero.lee(posicion, destino);
    return {destino.datos(), static_cast<size_t>(destino.tamano())};
}

TEST(FicheroFilas, ARowThatWasNotWrittenCannotBeRead)
{
    FicheroFilas fichero;
    BloqueBytes destino;
    EXPECT_THROW(static_cast<void>(fichero.lee(0, destino)), ErrorEjecucion);
}

TEST(FicheroFilas, RowsComeBackInOrderWhileOthersAreWritten)
{
    FicheroFilas fichero;
    qsizetype posicion = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string una = fila(std::string(static_cast<size_t>(i % 500), 'x') + std::to_string(i));
        fichero.escribe(una.data(), static_cast<qsizetype>(una.size()));
        ASSERT_EQ(leida(fichero, posicion), una);
    }
    EXPECT_EQ(fichero.bytes(), posicion);
}

TEST(FicheroFilas, TheyMayBeReadAgainFromAnyPlace)
{
    FicheroFilas fichero;
    const std::string una = fila("una");
    const std::string otra = fila(std::string(600'000, 'y'));
    fichero.escribe(una.data(), static_cast<qsizetype>(una.size()));
    fichero.escribe(otra.data(), static_cast<qsizetype>(otra.size()));
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
        qsizetype posicion = static_cast<qsizetype>(una.size());
        EXPECT_EQ(leida(fichero, posicion), otra);
        posicion = 0;
        EXPECT_EQ(leida(fichero, posicion), una);
    }
}

} // namespace
} // namespace kestrane::database
