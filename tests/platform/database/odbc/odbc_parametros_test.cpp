#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

/// A value written through a mark and read back through a column.
class OdbcParametros : public Servidor
{
protected:
    std::string vuelta(const QString& columna, TipoColumna tipo, const Ligado& valor)
    {
        ejecuta(u"delete from t"_s);
        ejecuta(u"insert into t (%1) values (?)"_s.arg(columna), {valor}, {tipo});
        return filas(u"select %1 from t"_s.arg(columna), {tipo});
    }
    std::string fecha(int anio, int mes, int dia, int hora = 0, int minuto = 0, int segundo = 0)
    {
        return vuelta(u"f"_s, TipoColumna::FechaHora, *Fecha::deCalendario(anio, mes, dia, hora, minuto, segundo));
    }
    void expectTexto(const QString& texto)
    {
        EXPECT_EQ(vuelta(u"x"_s, TipoColumna::Texto, QStringView{texto}), "'" + texto.toStdString() + "'|");
        EXPECT_EQ(vuelta(u"m"_s, TipoColumna::Memo, QStringView{texto}), "'" + texto.toStdString() + "'|");
    }
    void expectDoble(double valor)
    {
        EXPECT_EQ(vuelta(u"d"_s, TipoColumna::Doble, valor), QByteArray::number(valor, 'g', 17).toStdString() + "|");
    }
};
KESTRANE_EN_TODOS(OdbcParametros);

TEST_P(OdbcParametros, NumbersComeBackToTheLastBit)
{
    EXPECT_EQ(vuelta(u"a"_s, TipoColumna::Entero32, std::numeric_limits<qint32>::max()), "2147483647|");
    EXPECT_EQ(vuelta(u"a"_s, TipoColumna::Entero32, std::numeric_limits<qint32>::min()), "-2147483648|");
    EXPECT_EQ(vuelta(u"i"_s, TipoColumna::Entero16, -32768), "-32768|");
    expectDoble(0.0);
    expectDoble(0.1 + 0.2);
    expectDoble(1.0 / 3.0);
    expectDoble(-12.5);
    expectDoble(1.4210854715202E-14);
    expectDoble(1.7976931348623157E308);
    expectDoble(5E-324);
    expectDoble(123456789012345680.0);
}

TEST_P(OdbcParametros, ANumberOfAnotherKindIsTurnedIntoTheMarks)
{
    EXPECT_EQ(vuelta(u"d"_s, TipoColumna::Doble, 7), "7|");
    EXPECT_EQ(vuelta(u"a"_s, TipoColumna::Entero32, 2.5), "2|") << "half to even";
    EXPECT_EQ(vuelta(u"s"_s, TipoColumna::SiNo, -1), "si|");
    EXPECT_EQ(vuelta(u"s"_s, TipoColumna::SiNo, 0), "no|");
}

TEST_P(OdbcParametros, DatesOfAnyAgeAndBareTimesComeBack)
{
    EXPECT_EQ(fecha(2024, 3, 15), "2024-3-15 0:0:0|");
    EXPECT_EQ(fecha(2024, 2, 29, 23, 59, 59), "2024-2-29 23:59:59|");
    EXPECT_EQ(fecha(1899, 12, 30, 9, 5, 0), "1899-12-30 9:5:0|");
    EXPECT_EQ(fecha(1899, 12, 30), "1899-12-30 0:0:0|");
    EXPECT_EQ(fecha(1845, 6, 1, 0, 0, 1), "1845-6-1 0:0:1|");
    EXPECT_EQ(fecha(100, 1, 1), "100-1-1 0:0:0|");
    EXPECT_EQ(fecha(9999, 12, 31, 23, 0, 0), "9999-12-31 23:0:0|");
}

TEST_P(OdbcParametros, TextsComeBackLetterByLetter)
{
    expectTexto(u""_s);
    expectTexto(u" blancos "_s);
    expectTexto(u"Ñandú, O'Donnell \"y\" Cía."_s);
    expectTexto(u"a\\b%_#--;{}?"_s);
    expectTexto(u"dos\r\nlíneas\ty tabulador"_s);
    expectTexto(u"emoji 😀 y 漢字"_s);
    expectTexto(QString{50, u'ñ'});
}

TEST_P(OdbcParametros, AnEmptyTextIsNotNull)
{
    EXPECT_EQ(vuelta(u"x"_s, TipoColumna::Texto, QStringView{}), "''|");
    EXPECT_EQ(vuelta(u"x"_s, TipoColumna::Texto, Nulo{}), "NULL|");
}

TEST_P(OdbcParametros, NullFitsEveryKind)
{
    EXPECT_EQ(vuelta(u"a"_s, TipoColumna::Entero32, Nulo{}), "NULL|");
    EXPECT_EQ(vuelta(u"i"_s, TipoColumna::Entero16, Nulo{}), "NULL|");
    EXPECT_EQ(vuelta(u"d"_s, TipoColumna::Doble, Nulo{}), "NULL|");
    EXPECT_EQ(vuelta(u"f"_s, TipoColumna::FechaHora, Nulo{}), "NULL|");
    EXPECT_EQ(vuelta(u"m"_s, TipoColumna::Memo, Nulo{}), "NULL|");
    EXPECT_TRUE(error([&] { vuelta(u"s"_s, TipoColumna::SiNo, Nulo{}); }));
}

TEST_P(OdbcParametros, ALongTextAfterAShortOneGrowsItsPlace)
{
    const auto sentencia = motor().prepara("insert into t (m) values (?)", std::array{TipoColumna::Memo}, {});
    const QString larga = QString{100000, u'é'};
    for (const QString& texto : {u"corta"_s, larga, u"corta otra vez"_s}) {
        sentencia->ejecuta(std::array<Ligado, 1>{QStringView{texto}});
        sentencia->reinicia();
    }
    EXPECT_EQ(filas(u"select m from t order by orden_"_s, {TipoColumna::Memo}),
              "'corta'|'" + larga.toStdString() + "'|'corta otra vez'|");
}

TEST_P(OdbcParametros, ATextThatIsTooWideIsRefusedNotCut)
{
    const QString ancha{51, u'x'};
    const auto rechazo = error([&] { ejecuta(u"insert into t (x) values (?)"_s, {QStringView{ancha}}, {TipoColumna::Texto}); });
    ASSERT_TRUE(rechazo);
    EXPECT_EQ(rechazo->categoria(), ErrorMotor::Categoria::Restriccion) << rechazo->what();
}

} // namespace
} // namespace kestrane::database::odbc
