#include "corpus/condiciones.h"

#include "corpus/tienda_corpus.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::prueba {
namespace {

std::vector<std::string> filasDonde(TiendaCorpus& tienda, const QString& condicion)
{
    SentenciaCorpus consulta;
    consulta.texto = u"select numero from cabecera_factura where "_s + condicion;
    const Respuesta respuesta = tienda.ejecuta(consulta);
    EXPECT_EQ(respuesta.error, "") << condicion.toStdString();
    return respuesta.filas;
}

TEST(Condiciones, EveryRowIsWhereItHoldsOrWhereItDoesNotOrWhereItIsNull)
{
    TiendaCorpus tienda{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    std::vector<std::string> todas = filasDonde(tienda, u"true"_s);
    ASSERT_GT(todas.size(), 10U);
    std::sort(todas.begin(), todas.end());
    int conTresPartes = 0;
    for (const QString& p : condicionesGeneradas(2000)) {
        const auto si = filasDonde(tienda, p);
        const auto no = filasDonde(tienda, u"not ("_s + p + u')');
        const auto nulas = filasDonde(tienda, u'(' + p + u") is null"_s);
        std::vector<std::string> juntas = si;
        juntas.insert(juntas.end(), no.begin(), no.end());
        juntas.insert(juntas.end(), nulas.begin(), nulas.end());
        std::sort(juntas.begin(), juntas.end());
        EXPECT_EQ(juntas, todas) << p.toStdString();
        conTresPartes += !si.empty() && !no.empty() && !nulas.empty() ? 1 : 0;
    }
    // Conditions that tell nothing apart would prove nothing.
    EXPECT_GT(conTresPartes, 200);
}

} // namespace
} // namespace kestrane::prueba
