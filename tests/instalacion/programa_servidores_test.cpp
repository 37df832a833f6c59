#include "instalacion/ddl.h"
#include "instalacion/lectura.h"
#include "instalacion/obra.h"
#include "instalacion/programa.h"
#include "platform/database/odbc/odbc_motor.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;

struct Caso
{
    const char* nombre;
    QString motor;
    QString tienda;
    QString listados;
    QString caido;
};

class ProgramaEnServidor : public testing::TestWithParam<Caso>
{
protected:
    ProgramaEnServidor()
    {
        vacia(GetParam().tienda, baseTienda());
        vacia(GetParam().listados, baseListados());
    }
    static void vacia(const QString& dsn, const BaseEsquema& base)
    {
        const auto motor = database::odbc::abre(u"dsn="_s + dsn);
        for (const QString& sentencia : sentenciasDeBorrado(base, motor->clase()))
            ejecuta(*motor, sentencia);
    }
    int corre(const QStringList& argumentos)
    {
        QBuffer salida;
        QBuffer errores;
        salida.open(QIODevice::WriteOnly);
        errores.open(QIODevice::WriteOnly);
        const QStringList comunes{u"crear-tienda"_s, u"--vacia"_s, u"--motor"_s, GetParam().motor};
        const int estado = ejecutaPrograma(comunes + argumentos, m_carpeta.path(), salida, errores);
        m_errores = errores.data().toStdString();
        return estado;
    }
    int correEntera(const QStringList& mas = {})
    {
        return corre(QStringList{u"--dsn"_s, GetParam().tienda, u"--dsn-listados"_s, GetParam().listados} + mas);
    }
    [[nodiscard]] QString fichero(const QString& nombre) const { return m_carpeta.filePath(nombre); }

    std::string m_errores;

private:
    QTemporaryDir m_carpeta;
};
INSTANTIATE_TEST_SUITE_P(
    Servidores, ProgramaEnServidor,
    testing::Values(Caso{"PostgreSql", u"postgresql"_s, u"KestranePgTienda"_s, u"KestranePgListados"_s, u"KestranePgCaido"_s},
                    Caso{"MariaDb", u"mariadb"_s, u"KestraneMariaTienda"_s, u"KestraneMariaListados"_s, u"KestraneMariaCaido"_s}),
    [](const auto& caso) { return std::string{caso.param.nombre}; });

TEST_P(ProgramaEnServidor, BothDatabasesAreMade)
{
    ASSERT_EQ(correEntera(), SalidaBien) << m_errores;
    expectEsquema(*database::odbc::abre(GetParam().tienda), baseTienda());
    expectEsquema(*database::odbc::abre(GetParam().listados), baseListados());
}

TEST_P(ProgramaEnServidor, WhatIsThereIsKeptUnlessItMayBeReplaced)
{
    ASSERT_EQ(correEntera(), SalidaBien) << m_errores;
    EXPECT_EQ(correEntera(), SalidaError);
    EXPECT_NE(m_errores.find("Ya existe la base de datos \"" + GetParam().tienda.toStdString()), std::string::npos) << m_errores;
    EXPECT_EQ(correEntera({u"--reemplazar"_s}), SalidaBien) << m_errores;
}

TEST_P(ProgramaEnServidor, WithoutADataSourceTheReportsDatabaseIsAFile)
{
    ASSERT_EQ(corre({u"--dsn"_s, GetParam().tienda}), SalidaBien) << m_errores;
    EXPECT_TRUE(QFile::exists(fichero(u"datos/ListKestrane.db"_s)));
    EXPECT_EQ(database::odbc::abre(GetParam().listados)->catalogo().tabla(u"informes"), nullptr);
}

TEST_P(ProgramaEnServidor, WhenTheReportsDatabaseCannotBeMadeTheShopsIsNotEither)
{
    EXPECT_EQ(corre({u"--dsn"_s, GetParam().tienda, u"--dsn-listados"_s, GetParam().caido}), SalidaError);
    EXPECT_NE(m_errores.find("No se puede conectar con el servidor"), std::string::npos) << m_errores;
    EXPECT_EQ(database::odbc::abre(GetParam().tienda)->catalogo().tabla(u"cabecera_factura"), nullptr);
}

TEST_P(ProgramaEnServidor, ADriverThatIsNotThereIsToldInOneSentence)
{
    EXPECT_EQ(corre({u"--dsn"_s, u"KestraneSinBiblioteca"_s}), SalidaError);
    EXPECT_NE(m_errores.find("No se encuentra el controlador ODBC"), std::string::npos) << m_errores;
    EXPECT_EQ(std::ranges::count(m_errores, '\n'), 1);
}

} // namespace
} // namespace kestrane::instalacion
