#include "cash/vocabulary/nombres.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class NombresTest : public prueba::PruebaVocabulario
{
protected:
    void cliente(int codigo, const QString& nombre, const QString& apellidos, const QString& nif, const QString& tienda)
    {
        ejecuta({u"insert into clientes (codigo, Nombre, Apellidos, NIF, tienda) values (%1, %2, %3, %4, %5)"_s.arg(codigo).arg(
            nombre, apellidos, nif, tienda)});
    }
    QString nombre(int codigo) { return NombreCliente(m_listados, qint32{codigo}); }
};

TEST_F(NombresTest, AClientIsNameBlankSurnamesAndNullsAreEmpty)
{
    cliente(4, u"'Íñigo'"_s, u"'Núñez Paz'"_s, u"null"_s, u"'Centro'"_s);
    cliente(5, u"null"_s, u"'Paz'"_s, u"null"_s, u"'Centro'"_s);
    cliente(6, u"'Ana'"_s, u"null"_s, u"null"_s, u"'Centro'"_s);
    EXPECT_EQ(nombre(4), u"Íñigo Núñez Paz"_s);
    EXPECT_EQ(nombre(5), u" Paz"_s);
    EXPECT_EQ(nombre(6), u"Ana "_s);
}

TEST_F(NombresTest, AnUnknownClientIsGenericCodeZeroAmongThem)
{
    EXPECT_EQ(nombre(999), u"Cliente Generico"_s);
    EXPECT_EQ(nombre(0), u"Cliente Generico"_s);
}

TEST_F(NombresTest, AClientOfNoStoreIsFoundAsLongAsNoneIsChosen)
{
    cliente(4, u"'Ana'"_s, u"'Paz'"_s, u"null"_s, u"null"_s);
    EXPECT_EQ(nombre(4), u"Ana Paz"_s);
    eligeTienda(u"Centro"_s);
    EXPECT_EQ(nombre(4), u"Cliente Generico"_s);
}

TEST_F(NombresTest, AStoreMatchesThoseThatEndInItsName)
{
    cliente(1, u"'Uno'"_s, u"'A'"_s, u"null"_s, u"'Centro'"_s);
    cliente(2, u"'Dos'"_s, u"'B'"_s, u"null"_s, u"'Gran Centro'"_s);
    cliente(3, u"'Tres'"_s, u"'C'"_s, u"null"_s, u"'Centro Sur'"_s);
    eligeTienda(u"Centro"_s);
    EXPECT_EQ(nombre(1), u"Uno A"_s);
    EXPECT_EQ(nombre(2), u"Dos B"_s);
    EXPECT_EQ(nombre(3), u"Cliente Generico"_s);
}

TEST_F(NombresTest, TheTaxNumberIsGivenANullOneAsEmptyAndLeftAloneWithoutAClient)
{
    cliente(4, u"'Ana'"_s, u"'Paz'"_s, u"'123X'"_s, u"'Centro'"_s);
    cliente(5, u"'Luis'"_s, u"'Gil'"_s, u"null"_s, u"'Centro'"_s);
    QString nif = u"anterior"_s;
    EXPECT_EQ(NombreClienteNif(m_listados, qint32{4}, nif), u"Ana Paz"_s);
    EXPECT_EQ(nif, u"123X"_s);
    EXPECT_EQ(NombreClienteNif(m_listados, qint32{0}, nif), u"Cliente Generico"_s);
    EXPECT_EQ(nif, u"123X"_s);
    EXPECT_EQ(NombreClienteNif(m_listados, qint32{5}, nif), u"Luis Gil"_s);
    EXPECT_EQ(nif, u""_s);
}

TEST_F(NombresTest, AnEmployeeIsTheNameAndTheFirstLetterOfTheSurnames)
{
    ejecuta({u"insert into empleados (codigo, Nombre, Apellidos) values (3, 'Luis', 'Paz Gil')"_s,
             u"insert into empleados (codigo, Nombre) values (4, 'Ana')"_s,
             u"insert into empleados (codigo, Apellidos) values (5, 'Ñúñez')"_s});
    EXPECT_EQ(NombreCortoEmpleado(m_listados, qint32{3}), u"Luis P"_s);
    EXPECT_EQ(NombreCortoEmpleado(m_listados, qint32{4}), u"Ana "_s);
    EXPECT_EQ(NombreCortoEmpleado(m_listados, qint32{5}), u" Ñ"_s);
    EXPECT_EQ(NombreCortoEmpleado(m_listados, qint32{-1}), u""_s);
}

TEST_F(NombresTest, SizeAndColourAreJoinedAndAVariantWithoutThemIsEmpty)
{
    ejecuta({u"insert into tallas (codigo, descripcionCorta) values (1, 'M')"_s,
             u"insert into tallas (codigo, descripcionCorta) values (2, null)"_s,
             u"insert into colorestextil (codigo, nombre) values (5, 'Rojo')"_s,
             u"insert into productostextil (codigopadre, codigohijo, talla, color) values (7, '71', 1, 5)"_s,
             u"insert into productostextil (codigopadre, codigohijo, talla, color) values (7, '72', 2, 5)"_s,
             u"insert into productostextil (codigopadre, codigohijo, talla, color) values (7, '73', 1, 9)"_s});
    EXPECT_EQ(TallaColorProducto(m_listados, qint32{7}, u"71"_s), u"M / Rojo"_s);
    EXPECT_EQ(TallaColorProducto(m_listados, qint32{7}, u"72"_s), u" / Rojo"_s);
    EXPECT_EQ(TallaColorProducto(m_listados, qint32{7}, u"73"_s), u""_s);
    EXPECT_EQ(TallaColorProducto(m_listados, qint32{8}, u"71"_s), u""_s);
}

TEST_F(NombresTest, AnApostropheInTheStoreOrTheChildCodeIsRefused)
{
    EXPECT_EQ(numeroDeError([&] { return TallaColorProducto(m_listados, qint32{7}, u"7'1"_s); }),
              ErrorEjecucion::SentenciaRechazada);
    eligeTienda(u"O'Donnell"_s);
    EXPECT_EQ(numeroDeError([&] { return nombre(4); }), ErrorEjecucion::SentenciaRechazada);
}

struct NombreDeTabla
{
    const char* tabla;
    QString (*nombre)(Listados&, const Valor&);
};

class NombresDeTablaTest : public prueba::PruebaVocabulario, public testing::WithParamInterface<NombreDeTabla>
{
};

TEST_P(NombresDeTablaTest, TheNameOfTheCodeOrNothing)
{
    const QString tabla = QString::fromLatin1(GetParam().tabla);
    ejecuta({u"insert into %1 (codigo, nombre) values (3, 'Ñandú')"_s.arg(tabla),
             u"insert into %1 (codigo, nombre) values (4, null)"_s.arg(tabla)});
    EXPECT_EQ(GetParam().nombre(m_listados, qint32{3}), u"Ñandú"_s);
    EXPECT_EQ(GetParam().nombre(m_listados, qint32{4}), u""_s);
    EXPECT_EQ(GetParam().nombre(m_listados, qint32{0}), u""_s);
}

TEST_P(NombresDeTablaTest, ANullCodeIsRefused)
{
    EXPECT_EQ(numeroDeError([&] { return GetParam().nombre(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
}

INSTANTIATE_TEST_SUITE_P(Tablas, NombresDeTablaTest,
                         testing::Values(NombreDeTabla{"formapago", NombreFormaPago}, NombreDeTabla{"seccion", NombreSeccion},
                                         NombreDeTabla{"proveedores", NombreProveedor}, NombreDeTabla{"servicios", NombreServicio},
                                         NombreDeTabla{"familias", NombreFamilia}),
                         [](const auto& caso) { return std::string{caso.param.tabla}; });

TEST_F(NombresTest, ANullCodeOfAClientOrAnEmployeeIsRefused)
{
    QString nif;
    EXPECT_EQ(numeroDeError([&] { return NombreCliente(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return NombreClienteNif(m_listados, m_nulo, nif); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return NombreCortoEmpleado(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return TallaColorProducto(m_listados, m_nulo, u"71"_s); }), ErrorEjecucion::SentenciaRechazada);
}

} // namespace
} // namespace kestrane
