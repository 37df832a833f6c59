#include "platform/database/sqlite/sqlite_motor.h"

#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <functional>
#include <unistd.h>

namespace kestrane::database::sqlite {
namespace {

using namespace Qt::StringLiterals;
using jet::TipoColumna;
using Categoria = ErrorMotor::Categoria;

constexpr const char* TablaT = "create table t (a LONG, b TEXT(50), c DATETIME)";

struct Fallo
{
    qint32 numero = 0;
    Categoria categoria = Categoria::Sentencia;
    QString descripcion;
};

Fallo fallo(const std::function<void()>& accion)
{
    try {
        accion();
    } catch (const ErrorMotor& error) {
        return {error.numero(), error.categoria(), error.descripcion()};
    }
    ADD_FAILURE() << "nothing was refused";
    return {};
}

void abre(const QString& fichero, std::chrono::milliseconds espera = std::chrono::milliseconds{5000})
{
    const SqliteMotor motor{{fichero, Uso::Tienda, espera, ConfiguracionRegional::espania()}};
}

/// Runs a query and packs its rows.
AlmacenFilas filas(SqliteMotor& motor, const QByteArray& sql, std::vector<TipoColumna> tipos, std::vector<Ligado> valores = {})
{
    const auto sentencia = motor.prepara(sql, {}, tipos);
    AlmacenFilas leidas{static_cast<int>(tipos.size())};
    sentencia->ejecuta(valores);
    while (sentencia->siguiente(leidas)) {
    }
    return leidas;
}

/// A bare connection that holds the file.
class Bloqueo
{
public:
    explicit Bloqueo(const BaseDePrueba& base)
    {
        sqlite3* abierta = nullptr;
        EXPECT_EQ(sqlite3_open(base.fichero().toUtf8().constData(), &abierta), SQLITE_OK);
        m_base.reset(abierta);
        EXPECT_EQ(sqlite3_exec(m_base.get(), "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
    }

private:
    Base m_base;
};

TEST(SqliteMotor, AMissingFileIsAnErrorAndStaysMissing)
{
    const BaseDePrueba base{TablaT};
    const QString falta = base.carpeta() + u"/Falta.db"_s;
    const Fallo error = fallo([&] { abre(falta); });
    EXPECT_EQ(error.numero, ErrorEjecucion::ConexionImposible);
    EXPECT_TRUE(error.descripcion.contains(u"No existe la base de datos \"Falta\"")) << qPrintable(error.descripcion);
    EXPECT_TRUE(error.descripcion.contains(base.carpeta()));
    EXPECT_FALSE(QFile::exists(falta));
}

TEST(SqliteMotor, AFolderOfThatNameIsNoFile)
{
    const BaseDePrueba base{TablaT};
    EXPECT_EQ(fallo([&] { abre(base.carpeta()); }).numero, ErrorEjecucion::ConexionImposible);
}

TEST(SqliteMotor, AFileThatIsNoDatabaseIsAnError)
{
    const BaseDePrueba base{TablaT};
    QFile otro{base.carpeta() + u"/Otro.db"_s};
    ASSERT_TRUE(otro.open(QIODevice::WriteOnly));
    otro.write(QByteArray("Esto no es una base de datos. ").repeated(100));
    otro.close();
    const Fallo error = fallo([&] { abre(otro.fileName()); });
    EXPECT_EQ(error.numero, ErrorEjecucion::ConexionImposible);
    EXPECT_EQ(error.categoria, Categoria::Danada);
    EXPECT_TRUE(error.descripcion.contains(u"no es una base de datos"));
    EXPECT_TRUE(error.descripcion.contains(u"copia de seguridad"));
}

TEST(SqliteMotor, AFileThatAnotherProgramHoldsIsWaitedForAndThenRefused)
{
    const BaseDePrueba base{TablaT};
    const Bloqueo bloqueo{base};
    QElapsedTimer reloj;
    reloj.start();
    const Fallo error = fallo([&] { abre(base.fichero(), std::chrono::milliseconds{200}); });
    EXPECT_GE(reloj.elapsed(), 150);
    EXPECT_EQ(error.categoria, Categoria::Ocupada);
    EXPECT_TRUE(error.descripcion.contains(u"bloqueada por otro programa"));
}

TEST(SqliteMotor, ALockMetByAStatementIsTheStatementsError)
{
    const BaseDePrueba base{TablaT};
    SqliteMotor motor{{base.fichero(), Uso::Tienda, std::chrono::milliseconds{50}, ConfiguracionRegional::espania()}};
    const Bloqueo bloqueo{base};
    const Fallo error = fallo([&] { static_cast<void>(filas(motor, "select a from t", {TipoColumna::Entero32})); });
    EXPECT_EQ(error.numero, ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(error.categoria, Categoria::Ocupada);
    EXPECT_FALSE(motor.perdida());
}

/// Root may write everywhere: these tests run their action as another user where they can.
class ComoOtroUsuario
{
public:
    ComoOtroUsuario() : m_antes{geteuid()} { m_cambiado = seteuid(m_antes == 0 ? 65534 : m_antes) == 0; }
    ~ComoOtroUsuario() { static_cast<void>(seteuid(m_antes)); }
    [[nodiscard]] bool listo() const { return m_cambiado; }

private:
    uid_t m_antes;
    bool m_cambiado = false;
};

TEST(SqliteMotor, AFolderThatCannotBeWrittenCanBeReadButNotChanged)
{
    const BaseDePrueba base{"create table t (a LONG); insert into t values (5)"};
    ASSERT_TRUE(QFile::setPermissions(base.fichero(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    ASSERT_TRUE(QFile::setPermissions(base.carpeta(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup));
    const ComoOtroUsuario otro;
    ASSERT_TRUE(otro.listo());
    SqliteMotor motor{{base.fichero()}};
    EXPECT_EQ(filas(motor, "select a from t", {TipoColumna::Entero32}).filas(), 1);
    const Fallo error = fallo([&] { motor.prepara("delete from t", {}, {})->ejecuta({}); });
    EXPECT_EQ(error.categoria, Categoria::SoloLectura);
    EXPECT_TRUE(error.descripcion.contains(u"permiso de escritura"));
}

TEST(SqliteMotor, AFileThatCannotBeReadIsAnErrorOfOpening)
{
    const BaseDePrueba base{TablaT};
    ASSERT_TRUE(QFile::setPermissions(base.carpeta(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup));
    ASSERT_TRUE(QFile::setPermissions(base.fichero(), QFile::Permissions{})); // whoever runs this, its owner too
    const ComoOtroUsuario otro;
    ASSERT_TRUE(otro.listo());
    const Fallo error = fallo([&] { abre(base.fichero()); });
    EXPECT_EQ(error.numero, ErrorEjecucion::ConexionImposible);
    EXPECT_TRUE(error.descripcion.contains(u"puede leerlo")) << qPrintable(error.descripcion);
}

TEST(SqliteMotor, AStatementThatTheEngineRefusesBringsItsText)
{
    const BaseDePrueba base{TablaT};
    SqliteMotor motor{{base.fichero()}};
    const Fallo error = fallo([&] { static_cast<void>(motor.prepara("select nada from t", {}, {})); });
    EXPECT_EQ(error.numero, ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(error.descripcion.contains(u"nada"));
}

TEST(SqliteMotor, ABrokenRuleOfTheDatabaseIsARestriction)
{
    const BaseDePrueba base{"create table t (a LONG unique)"};
    SqliteMotor motor{{base.fichero()}};
    const auto alta = motor.prepara("insert into t values (?)", {}, {});
    const Ligado uno[] = {qint32{1}};
    alta->ejecuta(uno);
    EXPECT_EQ(fallo([&] { alta->ejecuta(uno); }).categoria, Categoria::Restriccion);
}

TEST(SqliteMotor, EveryKindOfValueGoesInAndComesBackAsItsType)
{
    const BaseDePrueba base{"create table t (a LONG, b INTEGER, c DOUBLE, d DATETIME, e YESNO, f TEXT(50), g TEXT)"};
    SqliteMotor motor{{base.fichero()}};
    const Fecha dia = *Fecha::deCalendario(2024, 3, 5);
    const std::vector<Ligado> valores{qint32{-5}, qint32{7}, 0.1, dia, qint32{-1}, QStringView{u"Ñoño €"}, Nulo{}};
    motor.prepara("insert into t values (?, ?, ?, ?, ?, ?, ?)", {}, {})->ejecuta(valores);
    AlmacenFilas leidas = filas(motor, "select * from t",
                                {TipoColumna::Entero32, TipoColumna::Entero16, TipoColumna::Doble, TipoColumna::FechaHora,
                                 TipoColumna::SiNo, TipoColumna::Texto, TipoColumna::Memo});
    ASSERT_TRUE(leidas.siguiente());
    EXPECT_EQ(leidas.valor(0), Valor{-5});
    EXPECT_EQ(leidas.valor(1), Valor{qint16{7}});
    EXPECT_EQ(leidas.valor(2), Valor{0.1});
    EXPECT_EQ(leidas.valor(3), Valor{dia});
    EXPECT_EQ(leidas.valor(4), Valor{true});
    EXPECT_EQ(leidas.valor(5), Valor{u"Ñoño €"_s});
    EXPECT_EQ(leidas.valor(6), Valor{});
    EXPECT_EQ(base.consulta("select typeof(d) || d from t"), "text2024-03-05|");
}

TEST(SqliteMotor, WhatOtherProgramsStoredIsReadTolerantlyOrRefusedByName)
{
    const BaseDePrueba base{"create table t (a LONG, c DATETIME); insert into t values (2.5, '9:05'), (1, 45366), (3, 'ayer')"};
    SqliteMotor motor{{base.fichero()}};
    AlmacenFilas leidas = filas(motor, "select a, c from t limit 2", {TipoColumna::Entero32, TipoColumna::FechaHora});
    ASSERT_TRUE(leidas.siguiente());
    EXPECT_EQ(leidas.valor(0), Valor{2});
    EXPECT_EQ(leidas.valor(1), Valor{Fecha::deSerie(0, 9 * 3600 + 5 * 60)});
    ASSERT_TRUE(leidas.siguiente());
    EXPECT_EQ(leidas.valor(1), Valor{*Fecha::deCalendario(2024, 3, 15)});
    try {
        static_cast<void>(filas(motor, "select c from t", {TipoColumna::FechaHora}));
        FAIL();
    } catch (const ErrorEjecucion& error) {
        EXPECT_TRUE(error.descripcion().contains(u"\"ayer\""));
    }
}

TEST(SqliteMotor, RowsGoInTogetherOrNotAtAll)
{
    const BaseDePrueba base{"create table t (a LONG unique, b TEXT(50))"};
    SqliteMotor motor{{base.fichero()}};
    const jet::Tabla& t = *motor.catalogo().tabla(u"t");
    AlmacenFilas buenas{2};
    AlmacenFilas malas{2};
    for (const int numero : {1, 2, 3}) {
        buenas.empiezaFila();
        buenas.ponTexto(u"ñ");
        buenas.ponEntero32(numero);
        buenas.terminaFila();
        malas.empiezaFila();
        malas.ponTextoUtf8("x", 1);
        malas.ponEntero32(numero + 2);
        malas.terminaFila();
    }
    const int columnas[] = {1, 0};
    motor.insertaFilas(t, columnas, buenas);
    EXPECT_EQ(base.consulta("select a || b from t order by rowid"), "1ñ|2ñ|3ñ|");
    EXPECT_EQ(fallo([&] { motor.insertaFilas(t, columnas, malas); }).categoria, Categoria::Restriccion);
    EXPECT_EQ(base.consulta("select count(*) from t"), "3|");
}

TEST(SqliteMotor, TheLockEndsWithTheLastRow)
{
    const BaseDePrueba base{"create table t (a LONG); insert into t values (1), (2)"};
    SqliteMotor motor{{base.fichero()}};
    const TipoColumna tipos[] = {TipoColumna::Entero32};
    const auto sentencia = motor.prepara("select a from t", {}, tipos);
    AlmacenFilas leidas{1};
    sentencia->ejecuta({});
    while (sentencia->siguiente(leidas)) {
    }
    const Bloqueo bloqueo{base}; // exclusive: would be refused while anybody reads
    EXPECT_EQ(leidas.filas(), 2);
}

TEST(SqliteMotor, OnlyTheReportsDatabaseIsChangedInItsWays)
{
    const BaseDePrueba base{TablaT};
    {
        const SqliteMotor tienda{{base.fichero(), Uso::Tienda}};
        EXPECT_EQ(base.consulta("pragma journal_mode"), "delete|");
    }
    const SqliteMotor listados{{base.fichero(), Uso::Listados}};
    EXPECT_EQ(base.consulta("pragma journal_mode"), "wal|");
}

} // namespace
} // namespace kestrane::database::sqlite
