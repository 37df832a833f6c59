#include "instalacion/demo/nombres.h"

#include <gtest/gtest.h>

namespace kestrane::demo::pruebas {
namespace {

TEST(NombresDeLaDemo, TaxNumbersLookRightAndAreNot)
{
    constexpr QStringView letras = u"TRWAGMYFPDXBNJZSQVHLCKE";
    ASSERT_EQ(letras[12345678 % 23], u'Z'); // the well-known example
    Azar azar{9};
    for (int i = 0; i < 50; ++i) {
        const QString numero = nif(azar);
        ASSERT_EQ(numero.size(), 9);
        EXPECT_TRUE(letras.contains(numero.back()));
        EXPECT_NE(numero.back(), letras[numero.first(8).toInt() % 23]);
        const QString empresa = cif(azar);
        EXPECT_EQ(empresa.size(), 9);
        EXPECT_TRUE(empresa.startsWith(u'B') && empresa.back().isDigit());
    }
}

TEST(NombresDeLaDemo, BarcodesHaveTheirControlDigit)
{
    for (const int numero : {1, 42, 999999, 1234567}) {
        const QString codigo = codigoDeBarras(numero);
        ASSERT_EQ(codigo.size(), 13);
        int suma = 0;
        for (int i = 0; i < 13; ++i)
            suma += codigo[i].digitValue() * (i % 2 == 0 ? 1 : 3);
        EXPECT_EQ(suma % 10, 0) << codigo.toStdString();
    }
}

TEST(NombresDeLaDemo, MailGoesNowhere)
{
    EXPECT_EQ(correo(u"María José", u"Núñez"), QStringLiteral("mariajose.nunez@correo.example"));
}

} // namespace
} // namespace kestrane::demo::pruebas
