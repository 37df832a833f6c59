#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

/// What does not fit a column, and what computed values look like as texts.
class Limites : public Conformidad
{
protected:
    Limites()
    {
        tabla(u"informes"_s, {texto(u"texto1"_s, 10), memo(u"memo1"_s), largo(u"numero"_s), corto(u"pago"_s), doble(u"total"_s)});
        ejecuta({u"insert into informes (texto1,memo1,numero,pago,total) values ('añadidos','0123456789ñ',2147483647,32767,1)"_s});
    }
    std::string informes() { return filas(u"select texto1,numero,pago from informes"_s); }
};

TEST_F(Limites, AComputedTextWiderThanItsColumnIsRefusedAndNothingIsWritten)
{
    const std::string antes = informes();
    for (const QString& valor : {u"texto1 & texto1"_s, u"texto1 & 'xxx'"_s, u"memo1"_s, u"'123456' & '78901'"_s})
        EXPECT_EQ(errorDe(u"update informes set texto1 = "_s + valor), ErrorEjecucion::SentenciaRechazada) << qPrintable(valor);
    EXPECT_EQ(errorDe(u"insert into informes (texto1) values ('123456' & '78901')"_s), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(informes(), antes);
    ejecuta({u"update informes set texto1 = texto1 & 'ñ€'"_s});
    EXPECT_EQ(informes(), "'añadidosñ€',2147483647,32767|") << "ten characters, whatever their bytes";
}

TEST_F(Limites, AComputedNumberOutOfRangeIsRefusedAndNothingIsWritten)
{
    const std::string antes = informes();
    for (const QString& asignacion :
         {u"pago = pago + 1"_s, u"pago = pago + 32767"_s, u"pago = numero"_s, u"numero = numero + pago"_s, u"pago = -pago - 2"_s})
        EXPECT_EQ(errorDe(u"update informes set "_s + asignacion), ErrorEjecucion::SentenciaRechazada) << qPrintable(asignacion);
    EXPECT_EQ(informes(), antes);
    ejecuta({u"update informes set pago = -pago - 1, numero = numero - pago"_s});
    EXPECT_EQ(informes(), "'añadidos',2147450880,-32768|") << "both reckon with the row as it was";
}

TEST_F(Limites, ALiteralOutOfRangeIsRefusedWithItsColumn)
{
    EXPECT_EQ(errorDe(u"insert into informes (pago) values (40000)"_s), ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(ultimaDescripcion().contains(u"\"pago\"")) << qPrintable(ultimaDescripcion());
    EXPECT_EQ(errorDe(u"update informes set numero = 3000000000"_s), ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(ultimaDescripcion().contains(u"\"numero\"")) << qPrintable(ultimaDescripcion());
}

TEST_F(Limites, ATextWithTheCharacterZeroIsRefusedWhenItIsAssigned)
{
    Recordset rs;
    rs.Open(u"informes"_s, tienda(), CursorType::Keyset);
    rs.AddNew();
    EXPECT_EQ(error([&] { rs.Fields(u"memo1") = QString::fromUtf16(u"a\0b", 3); }), ErrorEjecucion::SentenciaRechazada);
    rs.Fields(u"numero") = 5;
    rs.Update();
    EXPECT_EQ(filas(u"select memo1 from informes where numero = 5"_s), "NULL|");
}

TEST_F(Limites, ADoubleJoinedToATextIsWrittenAsThePlatformDoes)
{
    struct Caso
    {
        const char* numero;
        const char* texto;
    };
    for (const Caso& caso :
         {Caso{"1", "1"}, Caso{"-12.5", "-12,5"}, Caso{"0", "0"}, Caso{"0.0001", "0,0001"}, Caso{"0.00001", "1E-05"},
          Caso{"1.5E-05", "1,5E-05"}, Caso{"-0.00000000123", "-1,23E-09"}, Caso{"999999999999999", "999999999999999"},
          Caso{"1E+15", "1E+15"}, Caso{"-1.25E+20", "-1,25E+20"}, Caso{"1.5E+300", "1,5E+300"},
          Caso{"0.1234567890123456", "0,123456789012346"}, Caso{"1234567.891", "1234567,891"}}) {
        ejecuta({u"update informes set total = "_s + QString::fromLatin1(caso.numero)});
        EXPECT_EQ(filas(u"select 'x' & total as t from informes"_s), "'x" + std::string{caso.texto} + "'|") << caso.numero;
    }
    ejecuta({u"update informes set total = 1"_s});
    EXPECT_EQ(filas(u"select total / 3 & '' as t from informes"_s), "'0,333333333333333'|");
}

TEST_F(Limites, AnUnknownTableOrColumnNamesTheDatabaseAndWhatToDo)
{
    for (const QString& sentencia : {u"select * from noexiste"_s, u"select noexiste from informes"_s}) {
        EXPECT_EQ(errorDe(sentencia), ErrorEjecucion::SentenciaRechazada);
        for (const QString& trozo : {u"noexiste"_s, u"\"TiendaKestrane\""_s, u"crear-tienda"_s})
            EXPECT_TRUE(ultimaDescripcion().contains(trozo)) << qPrintable(ultimaDescripcion());
    }
}

TEST_F(Limites, AnAssignmentCountsEvenWhenTheRowWasReadWithThatValue)
{
    Recordset rs;
    rs.Open(u"select texto1 from informes"_s, tienda());
    EXPECT_EQ(rs.Fields(u"texto1").texto(), u"añadidos");
    ejecuta({u"update informes set texto1 = 'otro'"_s});
    rs.Fields(u"texto1") = u"añadidos"_s;
    rs.Update();
    EXPECT_EQ(filas(u"select texto1 from informes"_s), "'añadidos'|");
}

} // namespace
} // namespace kestrane::database::conformidad
