#include "platform/jet/lexer.h"

#include "platform/jet/limites.h"

#include <QLocale>
#include <QStringList>

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

/// The tokens written one behind the other: names in braces, literals by kind and value, words and signs as in messages.
QString escritos(const QString& texto)
{
    const auto tokens = tokeniza(texto);
    if (!tokens)
        return u"refused: "_s + tokens.error().mensaje;
    QStringList partes;
    for (const Token& token : tokens.valor()) {
        switch (token.clase) {
        case ClaseToken::Fin:
            break;
        case ClaseToken::Nombre:
            partes += u"{%1}"_s.arg(token.texto);
            break;
        case ClaseToken::Entero:
            partes += u"i:%1"_s.arg(QString::number(token.numero, 'f', 0));
            break;
        case ClaseToken::Doble:
            partes += u"d:%1"_s.arg(QString::number(token.numero, 'g', QLocale::FloatingPointShortest));
            break;
        case ClaseToken::Texto:
            partes += u"t:%1"_s.arg(token.texto);
            break;
        case ClaseToken::Fecha:
            partes += u"f:%1-%2-%3 %4:%5:%6"_s.arg(token.fecha.anio())
                          .arg(token.fecha.mes())
                          .arg(token.fecha.dia())
                          .arg(token.fecha.hora())
                          .arg(token.fecha.minuto())
                          .arg(token.fecha.segundo());
            break;
        default:
            partes += nombreDeToken(token.clase).remove(u'"');
        }
    }
    return partes.join(u' ');
}

void rehusa(const QString& texto, Clase clase, int posicion, int longitud)
{
    const auto tokens = tokeniza(texto);
    ASSERT_FALSE(tokens.bien()) << qPrintable(texto);
    EXPECT_EQ(tokens.error().clase, clase) << qPrintable(texto) << '\n' << qPrintable(tokens.error().mensaje);
    EXPECT_EQ(tokens.error().posicion, posicion) << qPrintable(texto);
    EXPECT_EQ(tokens.error().longitud, longitud) << qPrintable(texto);
}

TEST(LexerTest, RefusesCharactersOfOtherLanguages)
{
    rehusa(u"a = ?"_s, Clase::CaracterInesperado, 4, 1);
    rehusa(u"a = \"x\""_s, Clase::CaracterInesperado, 4, 1);
    rehusa(u"!a"_s, Clase::CaracterInesperado, 0, 1);
    rehusa(u"a ! b"_s, Clase::CaracterInesperado, 2, 1);
    rehusa(u"nombre]"_s, Clase::CaracterInesperado, 6, 1);
    rehusa(u"5€"_s, Clase::CaracterInesperado, 1, 1);
    rehusa(u"a\u00A0b"_s, Clase::CaracterInesperado, 1, 1);
    rehusa(u"a\x01z"_s, Clase::CaracterInesperado, 1, 1);
    rehusa(u"a \U0001F600"_s, Clase::CaracterInesperado, 2, 2);
    rehusa(u"a "_s + QChar(0xD800), Clase::CaracterInesperado, 2, 1);
}

TEST(LexerTest, RefusesWhatIsNotClosed)
{
    rehusa(u"a = 'x"_s, Clase::LiteralSinCerrar, 4, 2);
    rehusa(u"'"_s, Clase::LiteralSinCerrar, 0, 1);
    rehusa(u"'''"_s, Clase::LiteralSinCerrar, 0, 3);
    rehusa(u"a = #01/02/2024"_s, Clase::LiteralSinCerrar, 4, 11);
    rehusa(u"[nombre from t"_s, Clase::LiteralSinCerrar, 0, 14);
    rehusa(u"[]"_s, Clase::SintaxisIncorrecta, 0, 2);
    rehusa(u"[ ]"_s, Clase::SintaxisIncorrecta, 0, 3);
}

TEST(LexerTest, RefusesDatesThatDoNotExist)
{
    for (const QString& fecha :
         {u"#13/01/2024#"_s, u"#02/30/2024#"_s, u"#02/29/2023#"_s, u"#00/15/2024#"_s, u"#03/00/2024#"_s, u"##"_s, u"#hoy#"_s,
          u"#03/15/24#"_s, u"#03/15/2024+1#"_s, u"#2024-03-15#"_s, u"#03/15/2024 25:00:00#"_s, u"#03/15/2024 10:60#"_s,
          u"#03/15/2024 10#"_s, u"#03/15/202410:00#"_s, u"#9:05:00#"_s})
        rehusa(fecha, Clase::FechaInvalida, 0, static_cast<int>(fecha.size()));
}

TEST(LexerTest, RefusesNumbersThatNoDoubleHolds)
{
    rehusa(u"a = 1E999"_s, Clase::NumeroInvalido, 4, 5);
    rehusa(QString(400, u'9'), Clase::NumeroInvalido, 0, 400);
}

TEST(LexerTest, RefusesTextsAndNamesPastTheLimits)
{
    rehusa(QString(limites::LongitudTexto + 1, u'a'), Clase::DemasiadoLargo, limites::LongitudTexto, 0);
    rehusa(QString(limites::LongitudNombre + 1, u'a'), Clase::DemasiadoLargo, 0, limites::LongitudNombre + 1);
}

TEST(LexerTest, WordsDoNotMindCase)
{
    EXPECT_EQ(escritos(u"SELECT sElEcT select"_s), u"SELECT SELECT SELECT"_s);
    EXPECT_EQ(escritos(u"Order BY Desc"_s), u"ORDER BY DESC"_s);
    EXPECT_EQ(escritos(u"TRUE False NULL mod"_s), u"TRUE FALSE NULL MOD"_s);
}

TEST(LexerTest, NamesTakeLettersOfAllAlphabetsDigitsAndUnderscores)
{
    EXPECT_EQ(escritos(u"año cigüeña texto33 _x 日本 e\u0301l"_s), u"{año} {cigüeña} {texto33} {_x} {日本} {e\u0301l}"_s);
    EXPECT_EQ(escritos(u"\U00010400a"_s), u"{\U00010400a}"_s);
    EXPECT_EQ(escritos(u"selecta select1"_s), u"{selecta} {select1}"_s);
}

TEST(LexerTest, BracketsMakeANameOfAnything)
{
    EXPECT_EQ(escritos(u"[order] [nombre del cliente] [o'b#c]"_s), u"{order} {nombre del cliente} {o'b#c}"_s);
    EXPECT_EQ(escritos(u"select[nombre]from[t]"_s), u"SELECT {nombre} FROM {t}"_s);
}

TEST(LexerTest, AWordDoesNotEndWhereAnotherCouldBegin)
{
    EXPECT_EQ(escritos(u"proveedorand productos"_s), u"{proveedorand} {productos}"_s);
    EXPECT_EQ(escritos(u"nombrefrom"_s), u"{nombrefrom}"_s);
}

TEST(LexerTest, NumbersAndTextsMayRunIntoTheNextWord)
{
    EXPECT_EQ(escritos(u"2and tienda"_s), u"i:2 AND {tienda}"_s);
    EXPECT_EQ(escritos(u"12.5and"_s), u"d:12.5 AND"_s);
    EXPECT_EQ(escritos(u"'%'order by"_s), u"t:% ORDER BY"_s);
    EXPECT_EQ(escritos(u"#03/01/2024#and"_s), u"f:2024-3-1 0:0:0 AND"_s);
    EXPECT_EQ(escritos(u"2e"_s), u"i:2 {e}"_s);
    EXPECT_EQ(escritos(u"2e+x"_s), u"i:2 {e} + {x}"_s);
    EXPECT_EQ(escritos(u"0x10"_s), u"i:0 {x10}"_s);
}

TEST(LexerTest, NumbersAreWholeWithin32BitsAndDoublesBeyond)
{
    EXPECT_EQ(escritos(u"0 7 007 2147483647"_s), u"i:0 i:7 i:7 i:2147483647"_s);
    EXPECT_EQ(escritos(u"2147483648"_s), u"d:2147483648"_s);
    EXPECT_EQ(escritos(u"12.5 .5 0.1 1.0"_s), u"d:12.5 d:0.5 d:0.1 d:1"_s);
    EXPECT_EQ(escritos(u"123456789012345678901234567890"_s), u"d:1.2345678901234568e+29"_s);
    EXPECT_EQ(escritos(u"0.1234567890123456789012"_s), u"d:0.12345678901234568"_s);
}

TEST(LexerTest, AnExponentNeedsADigit)
{
    EXPECT_EQ(escritos(u"1E3 1.5e+1 1e-3"_s), u"d:1000 d:15 d:0.001"_s);
    EXPECT_EQ(escritos(u"1.4210854715202E-14"_s), u"d:1.4210854715202e-14"_s);
    EXPECT_EQ(escritos(u"1e-999"_s), u"d:0"_s);
}

TEST(LexerTest, APointIsPartOfANumberUnlessItFollowsAName)
{
    EXPECT_EQ(escritos(u"t.codigo"_s), u"{t} . {codigo}"_s);
    EXPECT_EQ(escritos(u"t.5"_s), u"{t} . i:5"_s);
    EXPECT_EQ(escritos(u"[t].5"_s), u"{t} . i:5"_s);
    EXPECT_EQ(escritos(u"> .5"_s), u"> d:0.5"_s);
    EXPECT_EQ(escritos(u"1.2.3"_s), u"d:1.2 . i:3"_s);
    EXPECT_EQ(escritos(u"5. 6"_s), u"i:5 . i:6"_s);
}

TEST(LexerTest, DatesHaveTheMonthFirst)
{
    EXPECT_EQ(escritos(u"#03/15/2024#"_s), u"f:2024-3-15 0:0:0"_s);
    EXPECT_EQ(escritos(u"#3/1/2024#"_s), u"f:2024-3-1 0:0:0"_s);
    EXPECT_EQ(escritos(u"#12/30/1899#"_s), u"f:1899-12-30 0:0:0"_s);
    EXPECT_EQ(escritos(u"#03/15/2024 9:05#"_s), u"f:2024-3-15 9:5:0"_s);
    EXPECT_EQ(escritos(u"# 03/15/2024  23:59:58 #"_s), u"f:2024-3-15 23:59:58"_s);
}

TEST(LexerTest, InsideATextEverythingIsPlain)
{
    EXPECT_EQ(escritos(u"'#--%\\ select \r\n'"_s), u"t:#--%\\ select \r\n"_s);
    EXPECT_EQ(escritos(u"'O''Donnell' ''''"_s), u"t:O''Donnell t:''"_s);
    EXPECT_EQ(escritos(u"''"_s), u"t:"_s);
}

TEST(LexerTest, ThereAreNoComments)
{
    EXPECT_EQ(escritos(u"--5.5"_s), u"- - d:5.5"_s);
    EXPECT_EQ(escritos(u"a /* b */"_s), u"{a} / * {b} * /"_s);
}

TEST(LexerTest, OfTwoSignsTheLongerIsTaken)
{
    EXPECT_EQ(escritos(u"<=<><>=>="_s), u"<= <> <> = >="_s);
    EXPECT_EQ(escritos(u"< >\\&;"_s), u"< > \\ & ;"_s);
}

TEST(LexerTest, TokensKnowTheirPlaceAndLiteralsTheirNumber)
{
    const QString texto = u"a = 5 or b = 'x'"_s;
    const auto tokens = tokeniza(texto);
    const Token& cinco = tokens.valor()[2];
    const Token& equis = tokens.valor()[6];
    EXPECT_EQ(cinco.posicion, 4);
    EXPECT_EQ(cinco.literal, 0);
    EXPECT_EQ(equis.posicion, 13);
    EXPECT_EQ(equis.longitud, 3);
    EXPECT_EQ(equis.literal, 1);
    EXPECT_EQ(tokens.valor().back().posicion, 16);
}

} // namespace
} // namespace kestrane::jet
