#include "platform/report/export/entrega_conjunta.h"

#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

/// Two files "1" and "2" on their way to the names a and b, where a file "viejo" is called b.
class EntregaDeDos : public testing::Test
{
protected:
    EntregaDeDos()
    {
        escribe(destino(u"b"_s), "viejo");
        escribe(m_provisional.ruta(u"uno"_s), "1");
        escribe(m_provisional.ruta(u"dos"_s), "2");
    }

    static void escribe(const QString& nombre, const QByteArray& texto)
    {
        QFile fichero{nombre};
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto);
    }
    [[nodiscard]] QByteArray lee(const QString& nombre) const
    {
        QFile fichero{destino(nombre)};
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << nombre.toStdString();
        return fichero.readAll();
    }
    [[nodiscard]] QStringList nombres() const
    {
        return QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }
    [[nodiscard]] QString destino(const QString& nombre) const { return m_carpeta.filePath(nombre); }

    QTemporaryDir m_carpeta;
    CarpetaProvisional m_provisional{m_carpeta.filePath(u"a"_s)};
};

TEST_F(EntregaDeDos, ConfirmedTheyStay)
{
    {
        EntregaConjunta entrega{m_provisional};
        entrega.entrega(u"uno"_s, destino(u"a"_s));
        entrega.entrega(u"dos"_s, destino(u"b"_s));
        entrega.confirma();
    }
    EXPECT_EQ(lee(u"a"_s), "1");
    EXPECT_EQ(lee(u"b"_s), "2");
}

TEST_F(EntregaDeDos, WithoutThatAllIsAsItWas)
{
    {
        EntregaConjunta entrega{m_provisional};
        entrega.entrega(u"uno"_s, destino(u"a"_s));
        entrega.entrega(u"dos"_s, destino(u"b"_s));
    }
    EXPECT_EQ(nombres(), QStringList{u"b"_s});
    EXPECT_EQ(lee(u"b"_s), "viejo");
}

TEST_F(EntregaDeDos, OneThatFailsLeavesTheOthersToBeTakenBack)
{
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"c"_s));
    {
        EntregaConjunta entrega{m_provisional};
        entrega.entrega(u"dos"_s, destino(u"b"_s));
        EXPECT_THROW(entrega.entrega(u"uno"_s, destino(u"c"_s)), ErrorDeSalida);
    }
    EXPECT_EQ(nombres(), (QStringList{u"b"_s, u"c"_s}));
    EXPECT_EQ(lee(u"b"_s), "viejo");
}

} // namespace
} // namespace kestrane::report
