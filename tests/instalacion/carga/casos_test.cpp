#include "instalacion/carga/casos.h"

#include "instalacion/demo/sabor.h"
#include "instalacion/programa.h"
#include "platform/database/sqlite/sqlite_motor.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;
using demo::TipoTienda;

/// The flavours that a case is for.
bool toca(Casos::Quienes quienes, TipoTienda tipo)
{
    const bool salon = !demo::esComercio(demo::sabor(tipo));
    switch (quienes) {
    case Casos::Todos:
        return true;
    case Casos::Salones:
        return salon;
    case Casos::Comercios:
        return !salon;
    case Casos::ConBonos:
        return salon || tipo == TipoTienda::Perfumeria;
    case Casos::ConSpa:
        return tipo == TipoTienda::Spa;
    case Casos::ConTallas:
        return demo::sabor(tipo).oficio == demo::Oficio::TallaColor;
    case Casos::DeComida:
        return demo::sabor(tipo).oficio == demo::Oficio::Alimentacion;
    }
    return false;
}

class CasosDeLaTienda : public testing::TestWithParam<TipoTienda>
{
protected:
    void SetUp() override
    {
        QBuffer salida;
        QBuffer errores;
        ASSERT_TRUE(salida.open(QIODevice::WriteOnly) && errores.open(QIODevice::WriteOnly));
        const QString tipo = demo::sabor(GetParam()).tipoPrograma.toString();
        const QStringList argumentos{u"crear-tienda"_s, u"--tipo"_s,     tipo, u"--terminal"_s, u"caja"_s,
                                     u"--datos"_s,      m_carpeta.path()};
        ASSERT_EQ(ejecutaPrograma(argumentos, u"/no/se/usa"_s, salida, errores), 0) << errores.data().toStdString();
        const QString fichero = QDir{m_carpeta.path()}.filePath(u"TiendaKestrane.db"_s);
        m_motor = std::make_unique<database::sqlite::SqliteMotor>(database::sqlite::OpcionesSqlite{.fichero = fichero});
    }

    [[nodiscard]] int cuenta(const char* de)
    {
        const jet::TipoColumna tipo = jet::TipoColumna::Entero32;
        const auto sentencia = m_motor->prepara(QByteArray{"SELECT count(*) FROM "} + de, {}, std::span{&tipo, 1});
        sentencia->ejecuta({});
        database::AlmacenFilas filas{1};
        EXPECT_TRUE(sentencia->siguiente(filas));
        filas.alPrincipio();
        EXPECT_TRUE(filas.siguiente());
        return filas.valor(0).entero32();
    }

private:
    QTemporaryDir m_carpeta;
    std::unique_ptr<database::sqlite::SqliteMotor> m_motor;
};

INSTANTIATE_TEST_SUITE_P(Sabores, CasosDeLaTienda, testing::ValuesIn(demo::TodosLosTipos),
                         [](const auto& caso) { return demo::sabor(caso.param).tipoPrograma.toString().toStdString(); });

TEST_P(CasosDeLaTienda, AMonthHasEveryCaseOfItsTrade)
{
    for (const Casos& caso : casosDeLaDemo()) {
        if (toca(caso.quienes, GetParam())) {
            EXPECT_GT(cuenta(caso.de), 0) << caso.nombre;
        }
    }
}

} // namespace
} // namespace kestrane::instalacion
