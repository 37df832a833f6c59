#include "platform/database/altas_pendientes.h"

#include "platform/database/error_motor.h"

#include <gtest/gtest.h>

#include <set>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;
using Categoria = ErrorMotor::Categoria;

/// An engine that keeps the texts of the first column it is sent and refuses some.
class MotorDeAltas final : public MotorBase
{
public:
    jet::Motor clase() const override { return jet::Motor::Sqlite; }
    jet::Catalogo& catalogo() override { throw std::logic_error{"not asked for"}; }
    std::unique_ptr<SentenciaMotor> prepara(const QByteArray&, std::span<const jet::TipoColumna>,
                                            std::span<const jet::TipoColumna>) override
    {
        return nullptr;
    }
    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) override
    {
        if (m_lleno)
            throw ErrorMotor(Categoria::SinSitio, ErrorEjecucion::SentenciaRechazada, u"lleno"_s);
        QStringList nuevas;
        for (filas.alPrincipio(); filas.siguiente();) {
            QString fila = tabla.nombre + u':';
            for (int i = 0; i < static_cast<int>(columnas.size()); ++i) {
                const Valor valor = filas.valor(i);
                fila +=
                    QString::number(columnas[static_cast<size_t>(i)]) + u'=' + (valor.esNulo() ? u"null"_s : valor.texto()) + u' ';
                if (!valor.esNulo() && m_rechazadas.contains(valor.texto()))
                    throw ErrorMotor(m_motivo, ErrorEjecucion::SentenciaRechazada, valor.texto());
                if (!valor.esNulo() && filas.filas() == 1 && valor.texto() == m_seBloqueaEn)
                    throw ErrorMotor(Categoria::Ocupada, ErrorEjecucion::SentenciaRechazada, u"ocupada"_s);
            }
            nuevas << fila.trimmed();
        }
        ++m_envios;
        m_filas << nuevas;
    }
    bool perdida() const override { return false; }

    QStringList m_filas;
    std::set<QString> m_rechazadas;
    Categoria m_motivo = Categoria::Restriccion;
    QString m_seBloqueaEn; ///< when it comes alone
    bool m_lleno = false;
    int m_envios = 0;
};

jet::Tabla tabla(const QString& nombre)
{
    jet::Tabla una;
    una.nombre = nombre;
    una.columnas.resize(3);
    return una;
}

class AltasPendientesTest : public testing::Test
{
protected:
    void anade(const jet::Tabla& en, std::initializer_list<std::pair<int, QString>> valores)
    {
        Edicion fila{en};
        for (const auto& [columna, texto] : valores)
            fila.pon(columna, texto);
        m_altas.anade(en, fila);
    }
    QString falloAlEnviar()
    {
        try {
            m_altas.envia(m_motor);
            return {};
        } catch (const ErrorEjecucion& error) {
            return error.descripcion();
        }
    }

    jet::Tabla m_t = tabla(u"t"_s);
    AltasPendientes m_altas;
    MotorDeAltas m_motor;
};

TEST_F(AltasPendientesTest, RowsOfOneTableGoTogetherWithNullInWhatTheyDidNotWrite)
{
    anade(m_t, {{0, u"a"_s}});
    anade(m_t, {{2, u"b"_s}});
    anade(m_t, {{2, u"c"_s}, {0, u"d"_s}});
    EXPECT_EQ(m_altas.filas(), 3);
    m_altas.envia(m_motor);
    EXPECT_EQ(m_motor.m_filas, (QStringList{u"t:0=a 2=null"_s, u"t:0=null 2=b"_s, u"t:0=d 2=c"_s}));
    EXPECT_EQ(m_motor.m_envios, 1);
    EXPECT_TRUE(m_altas.vacia());
}

TEST_F(AltasPendientesTest, EachTableHasItsOwnSending)
{
    const jet::Tabla otra = tabla(u"otra"_s);
    anade(m_t, {{0, u"a"_s}});
    anade(otra, {{0, u"b"_s}});
    anade(m_t, {{0, u"c"_s}});
    m_altas.envia(m_motor);
    EXPECT_EQ(m_motor.m_filas, (QStringList{u"t:0=a"_s, u"t:0=c"_s, u"otra:0=b"_s}));
    EXPECT_EQ(m_motor.m_envios, 2);
}

TEST_F(AltasPendientesTest, ARefusedRowIsDroppedAndTakesNoOtherAlong)
{
    m_motor.m_rechazadas = {u"mala"_s};
    for (const QString& texto : {u"a"_s, u"mala"_s, u"b"_s, u"c"_s})
        anade(m_t, {{0, texto}});
    EXPECT_EQ(falloAlEnviar(), u"mala\nLa fila no se ha guardado en la tabla \"t\".");
    EXPECT_EQ(m_motor.m_filas, (QStringList{u"t:0=a"_s, u"t:0=b"_s, u"t:0=c"_s}));
    EXPECT_EQ(m_altas.rechazadas(), 1);
    EXPECT_EQ(falloAlEnviar(), u"");
}

TEST_F(AltasPendientesTest, SeveralRefusedRowsAreToldAtOnceAndOtherTablesAreSentToo)
{
    const jet::Tabla otra = tabla(u"otra"_s);
    m_motor.m_rechazadas = {u"mala"_s, u"peor"_s};
    for (const QString& texto : {u"peor"_s, u"a"_s, u"mala"_s})
        anade(m_t, {{0, texto}});
    anade(otra, {{0, u"b"_s}});
    EXPECT_EQ(falloAlEnviar(), u"peor\nLa fila no se ha guardado en la tabla \"t\".\nOtras 1 filas tampoco se han guardado.");
    EXPECT_EQ(m_motor.m_filas, (QStringList{u"t:0=a"_s, u"otra:0=b"_s}));
}

TEST_F(AltasPendientesTest, ARowThatTheEngineDoesNotUnderstandDoesNotStopLaterSendings)
{
    m_motor.m_rechazadas = {u"mala"_s};
    m_motor.m_motivo = Categoria::Sentencia;
    anade(m_t, {{0, u"mala"_s}});
    anade(m_t, {{0, u"a"_s}});
    EXPECT_TRUE(falloAlEnviar().startsWith(u"mala"));
    EXPECT_EQ(m_motor.m_filas, QStringList{u"t:0=a"_s});
    EXPECT_TRUE(m_altas.vacia());
}

TEST_F(AltasPendientesTest, ALockMetWhileRowsGoOneByOneLosesNone)
{
    m_motor.m_rechazadas = {u"mala"_s};
    m_motor.m_seBloqueaEn = u"b"_s;
    for (const QString& texto : {u"a"_s, u"b"_s, u"mala"_s, u"c"_s})
        anade(m_t, {{0, texto}});
    EXPECT_EQ(falloAlEnviar(), u"ocupada");
    EXPECT_EQ(m_altas.filas(), 3);
    m_motor.m_seBloqueaEn.clear();
    EXPECT_TRUE(falloAlEnviar().startsWith(u"mala"));
    EXPECT_EQ(m_motor.m_filas, (QStringList{u"t:0=a"_s, u"t:0=b"_s, u"t:0=c"_s}));
}

TEST_F(AltasPendientesTest, WhenTheDatabaseCannotBeWrittenAllWaitOn)
{
    anade(m_t, {{0, u"a"_s}});
    anade(m_t, {{0, u"b"_s}});
    m_motor.m_lleno = true;
    EXPECT_EQ(falloAlEnviar(), u"lleno");
    EXPECT_EQ(m_altas.filas(), 2);
    m_motor.m_lleno = false;
    EXPECT_EQ(falloAlEnviar(), u"");
    EXPECT_EQ(m_motor.m_filas.size(), 2);
}

TEST_F(AltasPendientesTest, RowsOutliveTheirConnectionAndMeetThoseOfTheNext)
{
    {
        const jet::Tabla deOtraConexion = m_t;
        anade(deOtraConexion, {{0, u"a"_s}});
        m_altas.olvidaTablas();
    }
    anade(m_t, {{0, u"b"_s}});
    m_altas.envia(m_motor);
    EXPECT_EQ(m_motor.m_filas, (QStringList{u"t:0=a"_s, u"t:0=b"_s}));
    EXPECT_EQ(m_motor.m_envios, 1);
}

TEST_F(AltasPendientesTest, ColumnsAreRememberedUntilTheyAreForgotten)
{
    anade(m_t, {{1, u"a"_s}});
    m_altas.envia(m_motor);
    anade(m_t, {{0, u"b"_s}});
    m_altas.envia(m_motor);
    m_altas.olvidaColumnas();
    anade(m_t, {{0, u"c"_s}});
    m_altas.envia(m_motor);
    EXPECT_EQ(m_motor.m_filas, (QStringList{u"t:1=a"_s, u"t:1=null 0=b"_s, u"t:0=c"_s}));
}

} // namespace
} // namespace kestrane::database
