#include "platform/database/cadena_conexion.h"

#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

TEST(CadenaConexion, ATextThatNamesNoDataSourceIsRefused)
{
    for (const QString& cadena : {u""_s, u"ListKestrane"_s, u"dsn="_s, u"dsn=../otra"_s, u"dsn=a\\b"_s, u"dsn=.."_s, u"driver=x"_s,
                                  u"dsn=T;driver=x"_s, u"dsn=T;x"_s}) {
        try {
            static_cast<void>(leeCadena(cadena, {}, {}));
            ADD_FAILURE() << qPrintable(cadena);
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.numero(), ErrorEjecucion::ConexionImposible);
            EXPECT_TRUE(error.descripcion().contains(u"dsn=NOMBRE"));
        }
    }
}

TEST(CadenaConexion, ARefusalDoesNotShowThePassword)
{
    try {
        static_cast<void>(leeCadena(u"dsn=T;pwd=secreta;driver=x"_s, {}, {}));
        FAIL();
    } catch (const ErrorEjecucion& error) {
        EXPECT_FALSE(error.descripcion().contains(u"secreta"));
    }
}

TEST(CadenaConexion, TheNameIsReadWhateverTheCaseOfTheWord)
{
    for (const QString& cadena : {u"dsn=ListKestrane"_s, u"DSN=ListKestrane"_s, u" Dsn = ListKestrane ;"_s})
        EXPECT_EQ(leeCadena(cadena, {}, {}).dsn, u"ListKestrane");
}

TEST(CadenaConexion, UserAndPasswordComeFromTheTextOrApart)
{
    const DestinoConexion enTexto = leeCadena(u"dsn=T;UID=ana;PWD=x=y"_s, {}, {});
    EXPECT_EQ(enTexto.usuario, u"ana");
    EXPECT_EQ(enTexto.clave, u"x=y");
    const DestinoConexion aparte = leeCadena(u"dsn=T;uid=ana;pwd=1"_s, u"eva"_s, u"2"_s);
    EXPECT_EQ(aparte.usuario, u"eva");
    EXPECT_EQ(aparte.clave, u"2");
}

} // namespace
} // namespace kestrane::database
