#include "instalacion/demo/tablas.h"

#include "instalacion/demo/mes_de_cada_sabor.h"
#include "instalacion/esquema.h"

#include <set>

namespace kestrane::demo::pruebas {
namespace {

using instalacion::ColumnaEsquema;
using instalacion::Nulos;
using instalacion::TablaEsquema;
using jet::TipoColumna;

const TablaEsquema* enElEsquema(const TablaDemo& tabla)
{
    const QString nombre{tabla.nombre};
    const TablaEsquema* suya = instalacion::baseTienda().tabla(nombre);
    return suya != nullptr ? suya : instalacion::baseListados().tabla(nombre);
}

const ColumnaEsquema* columna(const TablaEsquema& tabla, QLatin1StringView nombre)
{
    for (const ColumnaEsquema& una : tabla.columnas) {
        if (nombre.compare(una.nombre, Qt::CaseInsensitive) == 0)
            return &una;
    }
    return nullptr;
}

Valor::Clase claseDe(TipoColumna tipo)
{
    switch (tipo) {
    case TipoColumna::Entero32:
        return Valor::Clase::Entero32;
    case TipoColumna::Entero16:
        return Valor::Clase::Entero16;
    case TipoColumna::Doble:
        return Valor::Clase::Doble;
    case TipoColumna::FechaHora:
        return Valor::Clase::Fecha;
    case TipoColumna::SiNo:
        return Valor::Clase::Logico;
    case TipoColumna::Texto:
    case TipoColumna::Memo:
        break;
    }
    return Valor::Clase::Texto;
}

/// What is wrong with a value in a column, "" when nothing is.
std::string defecto(const Valor& valor, const ColumnaEsquema& columna)
{
    if (valor.esNulo())
        return columna.nulos == Nulos::NoAdmite || columna.tipo == TipoColumna::SiNo ? "null" : "";
    if (valor.clase() != claseDe(columna.tipo))
        return "another type";
    if (columna.tipo == TipoColumna::Texto && valor.texto().size() > columna.ancho)
        return "too long: " + valor.texto().toStdString();
    if (valor.clase() == Valor::Clase::Texto && valor.texto().contains(u'\''))
        return "an apostrophe: " + valor.texto().toStdString();
    return "";
}

KESTRANE_CADA_SABOR(FilasDeLaDemo);

TEST(TablasDeLaDemo, EachTableHasTheColumnsOfTheSchemaAndNoOther)
{
    for (const TablaDemo* tabla : tablas::todas()) {
        const TablaEsquema* esquema = enElEsquema(*tabla);
        ASSERT_NE(esquema, nullptr) << tabla->nombre.data();
        EXPECT_EQ(tabla->columnas.size(), esquema->columnas.size()) << tabla->nombre.data();
        for (const QLatin1StringView nombre : tabla->columnas)
            EXPECT_NE(columna(*esquema, nombre), nullptr) << tabla->nombre.data() << '.' << nombre.data();
    }
}

TEST(TablasDeLaDemo, OnlyTheStagingTablesAreLeftEmpty)
{
    std::set<std::string> escritas;
    for (const TablaDemo* tabla : tablas::todas())
        escritas.insert(tabla->nombre.data());
    std::set<std::string> vacias;
    for (const auto* base : {&instalacion::baseTienda(), &instalacion::baseListados()}) {
        for (const TablaEsquema& tabla : base->tablas) {
            if (!escritas.contains(tabla.nombre.data()))
                vacias.insert(tabla.nombre.data());
        }
    }
    EXPECT_EQ(vacias, (std::set<std::string>{"informes", "subinformes"}));
}

TEST_P(FilasDeLaDemo, EveryValueHasTheTypeAndTheWidthOfItsColumnAndNoApostrophe)
{
    for (const TablaDemo* tabla : tablas::todas()) {
        const TablaEsquema& esquema = *enElEsquema(*tabla);
        for (const auto& fila : tienda().crudas(*tabla)) {
            ASSERT_EQ(fila.size(), tabla->columnas.size());
            for (std::size_t i = 0; i < fila.size(); ++i)
                ASSERT_EQ(defecto(fila[i], *columna(esquema, tabla->columnas[i])), "")
                    << tabla->nombre.data() << '.' << tabla->columnas[i].data();
        }
    }
}

TEST_P(FilasDeLaDemo, UniqueKeysAreUnique)
{
    for (const TablaDemo* tabla : tablas::todas()) {
        const QLatin1StringView clave = enElEsquema(*tabla)->claveUnica;
        if (clave.isEmpty())
            continue;
        std::set<QString> vistas;
        for (const Fila& fila : filas(*tabla)) {
            const Valor& valor = fila.valor(clave.data());
            const QString texto =
                valor.clase() == Valor::Clase::Texto ? valor.texto().toLower() : QString::number(valor.entero32());
            EXPECT_TRUE(vistas.insert(texto).second) << tabla->nombre.data() << ' ' << texto.toStdString();
        }
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
