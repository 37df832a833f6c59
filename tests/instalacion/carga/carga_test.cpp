#include "instalacion/carga/carga.h"

#include "instalacion/demo/generador.h"
#include "instalacion/demo/tablas.h"
#include "instalacion/programa.h"
#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;
using database::sqlite::SqliteMotor;

/// An empty file with the statements of the test run on it.
class BaseDePrueba
{
public:
    explicit BaseDePrueba(const QStringList& sentencias) : m_ruta{m_carpeta.filePath(u"base.db"_s)}
    {
        QFile fichero{m_ruta};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.close();
        m_motor = std::make_unique<SqliteMotor>(database::sqlite::OpcionesSqlite{.fichero = m_ruta});
        for (const QString& sentencia : sentencias)
            m_motor->prepara(sentencia.toUtf8(), {}, {})->ejecuta({});
    }

    [[nodiscard]] SqliteMotor& motor() { return *m_motor; }

    /// The only value of a statement, as text.
    [[nodiscard]] QString valor(const QString& sql)
    {
        const jet::TipoColumna tipo = jet::TipoColumna::Memo;
        const auto sentencia = m_motor->prepara(sql.toUtf8(), {}, std::span{&tipo, 1});
        sentencia->ejecuta({});
        database::AlmacenFilas filas{1};
        EXPECT_TRUE(sentencia->siguiente(filas));
        filas.alPrincipio();
        EXPECT_TRUE(filas.siguiente());
        return filas.valor(0).texto();
    }

private:
    QTemporaryDir m_carpeta;
    QString m_ruta;
    std::unique_ptr<SqliteMotor> m_motor;
};

constexpr std::array Columnas{QLatin1StringView{"Texto"}, QLatin1StringView{"flag"}, QLatin1StringView{"dia"},
                              QLatin1StringView{"importe"}};
constexpr demo::TablaDemo Tabla{QLatin1StringView{"prueba"}, Columnas};
constexpr demo::TablaDemo Otra{QLatin1StringView{"otra"}, Columnas};

const QString CreaPrueba = u"CREATE TABLE prueba (importe DOUBLE, dia DATETIME, flag YESNO, texto TEXT(10))"_s;
const QString CreaOtra = u"CREATE TABLE otra (importe DOUBLE, dia DATETIME, flag YESNO, texto TEXT(10))"_s;

std::vector<Valor> fila(const QString& texto)
{
    return {texto, true, *Fecha::deCalendario(2024, 6, 14, 9, 5), 1.25};
}

TEST(CargaDeFilas, FindsColumnsByNameWhateverTheirCaseAndOrder)
{
    BaseDePrueba base{{CreaPrueba}};
    Carga carga{base.motor()};
    carga.fila(Tabla, fila(u"ñandú"_s));
    carga.envia();
    EXPECT_EQ(base.valor(u"SELECT texto || '|' || flag || '|' || dia || '|' || importe FROM prueba"_s),
              u"ñandú|-1|2024-06-14 09:05:00|1.25"_s);
}

TEST(CargaDeFilas, KeepsNullsAndTheOrderOfRows)
{
    BaseDePrueba base{{CreaPrueba}};
    Carga carga{base.motor()};
    for (const QString& texto : {u"c"_s, u"a"_s, u"b"_s})
        carga.fila(Tabla, fila(texto));
    const std::vector<Valor> vacia{Nulo{}, false, Nulo{}, Nulo{}};
    carga.fila(Tabla, vacia);
    EXPECT_EQ(base.valor(u"SELECT group_concat(coalesce(texto, 'nulo'), ',') FROM (SELECT texto FROM prueba ORDER BY rowid)"_s),
              u"c,a,b,nulo"_s);
}

TEST(CargaDeFilas, RefusesATableThatIsNotThere)
{
    BaseDePrueba base{{CreaPrueba}};
    Carga carga{base.motor()};
    EXPECT_TRUE(carga.tiene(Tabla));
    EXPECT_FALSE(carga.tiene(Otra));
    EXPECT_THROW(carga.fila(Otra, fila(u"x"_s)), ErrorEjecucion);
}

TEST(RepartoDeFilas, SendsEachRowToTheDatabaseThatHasItsTable)
{
    BaseDePrueba tienda{{CreaPrueba}};
    BaseDePrueba listados{{CreaOtra}};
    Carga deTienda{tienda.motor()};
    Carga deListados{listados.motor()};
    Reparto reparto{deTienda, deListados};
    reparto.fila(Tabla, fila(u"aquí"_s));
    reparto.fila(Otra, fila(u"allí"_s));
    EXPECT_EQ(tienda.valor(u"SELECT texto FROM prueba"_s), u"aquí"_s);
    EXPECT_EQ(listados.valor(u"SELECT texto FROM otra"_s), u"allí"_s);
}

/// The program run on a folder of its own.
struct Ejecucion
{
    int estado = 0;
    QString errores;
};

Ejecucion creaTienda(const QStringList& opciones, const QString& carpeta)
{
    QBuffer salida;
    QBuffer errores;
    EXPECT_TRUE(salida.open(QIODevice::WriteOnly) && errores.open(QIODevice::WriteOnly));
    const QStringList argumentos = QStringList{u"crear-tienda"_s} + opciones + QStringList{u"--datos"_s, carpeta};
    const int estado = ejecutaPrograma(argumentos, u"/no/se/usa"_s, salida, errores);
    return {estado, QString::fromUtf8(errores.data())};
}

QByteArray contenido(const QString& ruta)
{
    QFile fichero{ruta};
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
    return fichero.readAll();
}

class CuentaFilas : public demo::Destino
{
public:
    void fila(const demo::TablaDemo& tabla, std::span<const Valor>) override { ++cuantas[&tabla]; }
    std::map<const demo::TablaDemo*, int> cuantas;
};

TEST(TiendaDeDemostracion, HoldsEveryRowOfTheGenerator)
{
    const QTemporaryDir carpeta;
    const Ejecucion hecha = creaTienda({u"--tipo"_s, u"SPA"_s, u"--tamano"_s, u"dia"_s}, carpeta.path());
    ASSERT_EQ(hecha.estado, 0) << hecha.errores.toStdString();
    CuentaFilas cuenta;
    demo::generaTienda({.tipo = demo::TipoTienda::Spa, .tamano = demo::Tamano::Dia}, cuenta);
    SqliteMotor motor{{.fichero = QDir{carpeta.path()}.filePath(u"TiendaKestrane.db"_s)}};
    for (const auto& [tabla, filas] : cuenta.cuantas) {
        if (tabla == &demo::tablas::Listadostemporal)
            continue;
        const jet::TipoColumna tipo = jet::TipoColumna::Entero32;
        const auto sentencia = motor.prepara("SELECT count(*) FROM " + QByteArray{tabla->nombre.data()}, {}, std::span{&tipo, 1});
        sentencia->ejecuta({});
        database::AlmacenFilas resultado{1};
        ASSERT_TRUE(sentencia->siguiente(resultado));
        resultado.alPrincipio();
        ASSERT_TRUE(resultado.siguiente());
        EXPECT_EQ(resultado.valor(0).entero32(), filas) << tabla->nombre.data();
    }
}

TEST(TiendaDeDemostracion, EqualOptionsMakeEqualFiles)
{
    const QTemporaryDir una;
    const QTemporaryDir otra;
    const QStringList opciones{u"--tamano"_s, u"dia"_s, u"--semilla"_s, u"3"_s, u"--terminal"_s, u"caja"_s};
    ASSERT_EQ(creaTienda(opciones, una.path()).estado, 0);
    ASSERT_EQ(creaTienda(opciones, otra.path()).estado, 0);
    for (const QString& nombre : {u"TiendaKestrane.db"_s, u"ListKestrane.db"_s})
        EXPECT_EQ(contenido(una.filePath(nombre)), contenido(otra.filePath(nombre))) << nombre.toStdString();
}

TEST(TiendaDeDemostracion, DoesNotTouchOneThatIsThereUnlessToldTo)
{
    const QTemporaryDir carpeta;
    ASSERT_EQ(creaTienda({u"--tamano"_s, u"dia"_s}, carpeta.path()).estado, 0);
    const QByteArray antes = contenido(carpeta.filePath(u"TiendaKestrane.db"_s));
    const Ejecucion rehusada = creaTienda({u"--tamano"_s, u"dia"_s, u"--semilla"_s, u"2"_s}, carpeta.path());
    EXPECT_EQ(rehusada.estado, 1);
    EXPECT_THAT(rehusada.errores.toStdString(), testing::HasSubstr("--reemplazar"));
    EXPECT_EQ(contenido(carpeta.filePath(u"TiendaKestrane.db"_s)), antes);
    const Ejecucion nueva = creaTienda({u"--tamano"_s, u"dia"_s, u"--semilla"_s, u"2"_s, u"--reemplazar"_s}, carpeta.path());
    EXPECT_EQ(nueva.estado, 0);
    EXPECT_NE(contenido(carpeta.filePath(u"TiendaKestrane.db"_s)), antes);
    EXPECT_EQ(QDir{carpeta.path()}.entryList(QDir::Files).size(), 2); // nothing provisional is left
}

TEST(TiendaDeDemostracion, TellsWhatItDoesNotUnderstand)
{
    const QTemporaryDir carpeta;
    const auto dice = [&](const QStringList& opciones) {
        const Ejecucion hecha = creaTienda(opciones, carpeta.path());
        EXPECT_EQ(hecha.estado, 2);
        return hecha.errores.toStdString();
    };
    EXPECT_THAT(dice({u"--tipo"_s, u"FRUTERIA"_s}), testing::HasSubstr("FRUTERIA"));
    EXPECT_THAT(dice({u"--tamano"_s, u"enorme"_s}), testing::HasSubstr("enorme"));
    EXPECT_THAT(dice({u"--semilla"_s, u"tres"_s}), testing::HasSubstr("tres"));
    EXPECT_THAT(dice({u"--hoy"_s, u"2024-02-30"_s}), testing::HasSubstr("2024-02-30"));
    EXPECT_THAT(dice({u"--hoy"_s, u"14/06/2024"_s}), testing::HasSubstr("14/06/2024"));
    EXPECT_THAT(dice({u"--vacia"_s, u"--tipo"_s, u"SPA"_s}), testing::HasSubstr("--tipo"));
    EXPECT_TRUE(QDir{carpeta.path()}.isEmpty());
}

} // namespace
} // namespace kestrane::instalacion
