#include "cash/vocabulary/secciones.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class SeccionesTest : public prueba::PruebaVocabulario
{
protected:
    /// Code 7 in each catalogue, each in a section of its own.
    SeccionesTest()
    {
        ejecuta({u"insert into productos (codigo, seccion) values (7, 11)"_s,
                 u"insert into servicios (codigo, seccion) values (7, 12)"_s,
                 u"insert into familias (codigo, seccion) values (7, 13)"_s,
                 u"insert into cabecera_pack_spa (codigo, seccion) values (7, 14)"_s,
                 u"insert into pack (codigo, seccion) values (7, 15)"_s,
                 u"insert into seccion (codigo, Nombre) values (11, 'Tienda')"_s,
                 u"insert into seccion (codigo, Nombre) values (12, 'Salón')"_s,
                 u"insert into seccion (codigo, Nombre) values (13, 'Packs')"_s,
                 u"insert into seccion (codigo, Nombre) values (14, 'Spa')"_s,
                 u"insert into seccion (codigo, Nombre) values (15, 'Otros')"_s});
    }

    /// "rehusada" where the database's error ends the run.
    template<class Consulta>
    QString de(Consulta consulta, QStringView tipo, const Valor& codigo = qint32{7})
    {
        QString hallado;
        const int error = numeroDeError([&] { return hallado = consulta(m_listados, codigo, tipo); });
        return error == ErrorEjecucion::SentenciaRechazada ? u"rehusada"_s : hallado;
    }
};

struct SeccionEsperada
{
    QStringView tipo;
    QString nombre;
    QString codigo;
};

TEST_F(SeccionesTest, TheTwoLookupsKnowDifferentCataloguesByKind)
{
    const QString rehusada = u"rehusada"_s;
    const SeccionEsperada esperadas[] = {
        {u"P", u"Tienda"_s, u"11"_s},     {u"S", u"Salón"_s, u"12"_s},   {u"B", u"Salón"_s, u"12"_s},
        {u"CB", u"Salón"_s, u"12"_s},     {u"F", u"Packs"_s, u"13"_s},   {u"BF", u"Packs"_s, u"13"_s},
        {u"CBF", u"Packs"_s, u"13"_s},    {u"SF", u"Salón"_s, rehusada}, {u"CSF", u"Salón"_s, rehusada},
        {u"CPSPA", u"Salón"_s, rehusada}, {u"PSPA", u"Spa"_s, rehusada}, {u"SP", rehusada, u"15"_s},
        {u"X", rehusada, rehusada},       {u"", rehusada, rehusada},     {u"p", rehusada, rehusada},
    };
    for (const SeccionEsperada& esperada : esperadas) {
        EXPECT_EQ(de(NombreSeccionDeLinea, esperada.tipo), esperada.nombre) << esperada.tipo.toString().toStdString();
        EXPECT_EQ(de(CodigoSeccionDeLinea, esperada.tipo), esperada.codigo) << esperada.tipo.toString().toStdString();
    }
}

TEST_F(SeccionesTest, AnUnknownCodeHasNoNameAndTheCodeMinusOne)
{
    EXPECT_EQ(de(NombreSeccionDeLinea, u"P", qint32{99}), u""_s);
    EXPECT_EQ(de(CodigoSeccionDeLinea, u"P", qint32{99}), u"-1"_s);
}

TEST_F(SeccionesTest, ANameThatIsNullIsEmpty)
{
    ejecuta({u"update seccion set Nombre = null where codigo = 12"_s});
    EXPECT_EQ(de(NombreSeccionDeLinea, u"S"), u""_s);
}

TEST_F(SeccionesTest, ANullCodeIsRefused)
{
    EXPECT_EQ(de(NombreSeccionDeLinea, u"P", m_nulo), u"rehusada"_s);
    EXPECT_EQ(de(CodigoSeccionDeLinea, u"P", m_nulo), u"rehusada"_s);
}

} // namespace
} // namespace kestrane
