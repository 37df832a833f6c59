#include "platform/runtime/error_ejecucion.h"

#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(ErrorEjecucion, NumeroYDescripcionPropia)
{
    const auto es = [](ErrorEjecucion::Numero numero, int esperado, const QString& descripcion) {
        EXPECT_EQ(ErrorEjecucion{numero}.numero(), esperado);
        EXPECT_EQ(ErrorEjecucion{numero}.descripcion(), descripcion);
    };
    es(ErrorEjecucion::Desbordamiento, 6, u"Desbordamiento."_s);
    es(ErrorEjecucion::IndiceFueraDeIntervalo, 9, u"El subíndice está fuera del intervalo."_s);
    es(ErrorEjecucion::DivisionPorCero, 11, u"División por cero."_s);
    es(ErrorEjecucion::TiposNoCoinciden, 13, u"No coinciden los tipos."_s);
    es(ErrorEjecucion::UsoNoValidoDeNull, 94, u"Uso no válido de Null."_s);
    es(ErrorEjecucion::SinRegistroActual, 3021, u"No hay ningún registro actual."_s);
    es(ErrorEjecucion::CampoInexistente, 3265, u"No se encuentra el elemento en la colección."_s);
    es(ErrorEjecucion::ConexionImposible, -2147467259, u"No se puede abrir la conexión con la base de datos."_s);
    es(ErrorEjecucion::LayoutIncorrecto, 20001, u"El diseño del informe no es correcto."_s);
    es(ErrorEjecucion::SentenciaRechazada, -2147217900, u"La base de datos ha rechazado la sentencia."_s);
}

TEST(ErrorEjecucion, ConDescripcionAjena)
{
    const ErrorEjecucion error{ErrorEjecucion::SentenciaRechazada, u"No existe la tabla."_s};
    EXPECT_EQ(error.numero(), -2147217900);
    EXPECT_EQ(error.descripcion(), u"No existe la tabla."_s);
}

TEST(ErrorEjecucion, ElContextoVaEnUnaLineaPropia)
{
    const ErrorEjecucion error = ErrorEjecucion{ErrorEjecucion::UsoNoValidoDeNull}.conContexto(u"Campo \"precio\"."_s);
    EXPECT_EQ(error.numero(), 94);
    EXPECT_EQ(error.descripcion(), u"Uso no válido de Null.\nCampo \"precio\"."_s);
}

TEST(ErrorEjecucion, WhatEnUtf8)
{
    EXPECT_STREQ(ErrorEjecucion{ErrorEjecucion::TiposNoCoinciden}.what(), "ERROR 13: No coinciden los tipos.");
    EXPECT_STREQ(ErrorEjecucion{ErrorEjecucion::DivisionPorCero}.what(), "ERROR 11: División por cero.");
}

TEST(ErrorEjecucion, SeAtrapaComoExcepcionCorriente)
{
    try {
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "ERROR 6: Desbordamiento.");
    }
}

TEST(ErrorEjecucion, IgualesConElMismoNumeroYDescripcion)
{
    const ErrorEjecucion error{ErrorEjecucion::Desbordamiento};
    EXPECT_EQ(error, ErrorEjecucion{ErrorEjecucion::Desbordamiento});
    EXPECT_NE(error, ErrorEjecucion{ErrorEjecucion::DivisionPorCero});
    EXPECT_NE(error, error.conContexto(u"x"_s));
}

} // namespace
} // namespace kestrane
