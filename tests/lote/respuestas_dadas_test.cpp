#include "lote/respuestas_dadas.h"

#include "lote/peticion_imposible.h"
#include "pipeline/catalogue/catalogo.h"

#include <gtest/gtest.h>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

constexpr QStringView Columnas[] = {u"Nombre", u"Codigo"};

class RespuestasDadasTest : public testing::Test
{
protected:
    RespuestasDadasTest() { m_pedido.fila = catalogue::busca(u"cmd_Caja1"); }

    PedidoInforme m_pedido;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15, 18)};
    RespuestasDadas m_respuestas{m_pedido, m_reloj};
};

TEST_F(RespuestasDadasTest, WhatADialogCannotDoWithoutIsAskedForByName)
{
    EXPECT_THROW(static_cast<void>(m_respuestas.exigeNumero(Respuesta::Cliente)), PeticionImposible);
    m_pedido.respuestas[Respuesta::Cliente] = qint32{-3};
    EXPECT_EQ(m_respuestas.exigeNumero(Respuesta::Cliente), u"-3"_s);
}

TEST_F(RespuestasDadasTest, AColumnOutsideTheListIsRefused)
{
    EXPECT_EQ(m_respuestas.columnaDeOrden(Columnas), u"Nombre"_s);
    m_pedido.respuestas[Respuesta::Orden] = u"CODIGO"_s;
    EXPECT_EQ(m_respuestas.columnaDeOrden(Columnas), u"Codigo"_s);
    m_pedido.respuestas[Respuesta::Orden] = u""_s;
    EXPECT_THROW(static_cast<void>(m_respuestas.columnaDeOrden(Columnas)), PeticionImposible);
}

TEST_F(RespuestasDadasTest, WhatWasNotGivenHasItsDefault)
{
    EXPECT_FALSE(m_respuestas.tiene(Respuesta::Ticket));
    EXPECT_EQ(m_respuestas.numero(Respuesta::Empleado, -1), -1);
    EXPECT_EQ(m_respuestas.dia(Respuesta::Desde), *Fecha::deCalendario(2024, 3, 15));
    EXPECT_EQ(m_respuestas.texto(Respuesta::Clase), u""_s);
}

TEST_F(RespuestasDadasTest, WhatNobodyAskedForIsKnown)
{
    m_pedido.respuestas = {{Respuesta::Mes, qint32{3}}, {Respuesta::Desde, *Fecha::deCalendario(2024, 1, 1)}};
    EXPECT_EQ(m_respuestas.ignoradas(), (QStringList{u"--desde"_s, u"--mes"_s}));
    EXPECT_EQ(m_respuestas.numero(Respuesta::Mes, 1), 3);
    EXPECT_EQ(m_respuestas.ignoradas(), QStringList{u"--desde"_s});
}

} // namespace
} // namespace kestrane::lote
