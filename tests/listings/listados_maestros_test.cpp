#include "listings/listados_maestros.h"

#include "pipeline/puesto_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::PuestoDePrueba;

TEST(ListadoSecciones, ANameThatIsNullStaysNullAndDeletedSectionsAreLeftOut)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta({u"insert into seccion (codigo, codigocliente, nombre) values (5, '05', 'Corte')"_s,
                           u"insert into seccion (codigo, codigocliente, nombre, borrar) values (6, '06', 'Vieja', -1)"_s,
                           u"insert into seccion (codigo, codigocliente) values (4, '04')"_s});
    ListadoSecciones(puesto.listados);
    EXPECT_EQ(puesto.filas(u"TEXTO35,TEXTO34,texto1,texto2"_s),
              (QStringList{u"Peluquería Ñandú|Calle Mayor, 1|05|Corte"_s, u"Peluquería Ñandú|Calle Mayor, 1|04|nulo"_s}));
}

TEST(ListadoFormasPago, CodeNameAndRemarks)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta(
        {u"insert into formapago (codigo, codigocliente, nombre, observaciones) values (2, 'T', 'Tarjeta', 'x')"_s,
         u"insert into formapago (codigo, codigocliente, nombre) values (1, 'M', 'Metálico')"_s,
         u"insert into formapago (codigo, nombre, borrar) values (3, 'Vieja', -1)"_s});
    ListadoFormasPago(puesto.listados);
    EXPECT_EQ(puesto.filas(u"texto1,texto2,texto3"_s), (QStringList{u"T|Tarjeta|x"_s, u"M|Metálico|nulo"_s}));
}

TEST(ListadoProveedores, EveryColumnHasItsField)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta({u"insert into proveedores (codigo, codigocliente, nombre, direccion, cp, telefono, fax, contacto, nif)"
                           " values (1, 'P1', 'Distribuciones', 'Puerto, 2', '46001', '961', '962', 'Eva', 'B1')"_s,
                           u"insert into proveedores (codigo, nombre, borrar) values (2, 'Vieja', -1)"_s});
    ListadoProveedores(puesto.listados);
    EXPECT_EQ(puesto.filas(u"texto1,texto2,texto3,texto4,texto5,texto6,texto7,texto8"_s),
              QStringList{u"P1|Distribuciones|Puerto, 2|46001|961|962|Eva|B1"_s});
}

/// texto7 of a workshop with these contacts, given as statement text.
QString contactos(const QString& uno, const QString& dos)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta(u"insert into talleres (codigo, contacto1, contacto2) values (1, %1, %2)"_s.arg(uno, dos));
    ListadoTalleres(puesto.listados);
    return puesto.filas(u"texto7"_s).join(u',');
}

TEST(ListadoTalleres, AWorkshopWithoutContactsShowsNothing)
{
    EXPECT_EQ(contactos(u"''"_s, u"''"_s), u""_s);
    EXPECT_EQ(contactos(u"null"_s, u"null"_s), u""_s);
    EXPECT_EQ(contactos(u"' '"_s, u"null"_s), u""_s);
}

TEST(ListadoTalleres, ContactsAreJoinedByASlashEvenWhenOneIsMissing)
{
    EXPECT_EQ(contactos(u"'Eva'"_s, u"'Luis'"_s), u"Eva / Luis"_s);
    EXPECT_EQ(contactos(u"'Eva'"_s, u"''"_s), u"Eva / "_s);
    EXPECT_EQ(contactos(u"null"_s, u"'Luis'"_s), u" / Luis"_s);
    EXPECT_EQ(contactos(u"'/'"_s, u"''"_s), u"/ / "_s);
}

TEST(ListadoTalleres, EveryColumnHasItsField)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta({u"insert into talleres (codigo, codigocliente, nombre, direccion, cp, telefono1, email, cif) values"
                           " (1, 'T1', 'Costuras', 'Sol, 4', '12001', '964', 'a@b.es', 'C1')"_s,
                           u"insert into talleres (codigo, nombre, borrar) values (2, 'Viejo', -1)"_s});
    ListadoTalleres(puesto.listados);
    EXPECT_EQ(puesto.filas(u"texto1,texto2,texto3,texto4,texto5,texto6,texto8"_s),
              QStringList{u"T1|Costuras|Sol, 4|12001|964|a@b.es|C1"_s});
}

} // namespace
} // namespace kestrane
