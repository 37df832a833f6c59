#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {
namespace {

/// Headers and their lines as a builder walks them, with and without what a report's scope does.
class Informe : public Conformidad
{
protected:
    Informe()
    {
        tabla(u"cabeceras"_s, {largo(u"numero"_s), largo(u"cliente"_s), texto(u"tienda"_s)});
        tabla(u"lineas"_s,
              {largo(u"num_factura"_s), largo(u"codigo"_s), texto(u"producto"_s), doble(u"precio"_s), fecha(u"dia"_s)});
        Recordset cabeceras;
        cabeceras.Open(u"cabeceras"_s, tienda(), CursorType::Keyset);
        Recordset lineas;
        lineas.Open(u"lineas"_s, tienda(), CursorType::Keyset);
        for (int i = 0; i < Cabeceras; ++i)
            mete(cabeceras, lineas, i);
    }

    static constexpr int Cabeceras = 450;

    /// Numbers come shuffled and some twice, one is Null, some have no lines, some have several.
    static void mete(Recordset& cabeceras, Recordset& lineas, int i)
    {
        const int numero = i * 7 % Cabeceras + (i % 50 == 0 ? 1 : 0);
        cabeceras.AddNew();
        cabeceras.Fields(u"numero") = i == 40 ? Valor{} : Valor{numero};
        cabeceras.Fields(u"cliente") = i % 5;
        cabeceras.Fields(u"tienda") = i % 3 == 0 ? u"Centro"_s : u"Sur"_s;
        cabeceras.Update();
        for (int linea = 0; linea < i % 4; ++linea) {
            lineas.AddNew();
            lineas.Fields(u"num_factura") = (numero + linea) % Cabeceras;
            lineas.Fields(u"codigo") = linea;
            lineas.Fields(u"producto") = u"Corte ñ "_s + QString::number(i);
            lineas.Fields(u"precio") = i * 0.25;
            lineas.Fields(u"dia") = Fecha::deSerie(45000 + i, linea == 2 ? 3600 : 0);
            lineas.Update();
        }
    }

    enum class Modo { Suelto, ConAmbito, Anticipado };

    /// All that a walk over headers, lines and clients reads, as text.
    std::string recorre(Modo modo, const QString& cola = u" order by codigo desc"_s)
    {
        std::optional<AmbitoInforme> ambito;
        if (modo != Modo::Suelto)
            ambito.emplace(tienda().EmpiezaInforme());
        const QString cabeza = u"Select * from lineas where producto like '%' and num_factura = "_s;
        std::string todo;
        Recordset cabeceras;
        cabeceras.Open(u"select * from cabeceras where numero <> null"_s, tienda());
        if (modo == Modo::Anticipado)
            cabeceras.Anticipa(cabeza, u"NUMERO"_s, cola);
        for (Recordset& cabecera : cabeceras) {
            const QString numero = QString::number(cabecera.Fields(u"numero").entero32());
            todo += numero.toStdString() + ":" + filas(cabeza + numero + cola) + "\n";
            Recordset cliente;
            cliente.Open(u"select tienda from cabeceras where cliente = "_s +
                             QString::number(cabecera.Fields(u"cliente").entero32()),
                         tienda());
            if (cliente.RecordCount() > 0)
                todo += enPalabras(cliente.Fields(u"tienda"));
        }
        return todo;
    }
};

TEST_F(Informe, ResultsAreTheSameWithAndWithoutAScope)
{
    const std::string esperado = recorre(Modo::Suelto);
    EXPECT_GT(esperado.size(), 20'000u);
    EXPECT_EQ(recorre(Modo::ConAmbito), esperado);
    EXPECT_EQ(recorre(Modo::Anticipado), esperado);
}

TEST_F(Informe, AnAnnouncementThatCannotBeReadAheadChangesNothing)
{
    // Sorted by what is not in the result of a group, limited, with a second use of the key.
    for (const QString& cola :
         {u""_s, u" and codigo = 1"_s, u" or codigo = 99"_s, u" and producto <> 'x'"_s, u" order by precio, codigo"_s})
        EXPECT_EQ(recorre(Modo::Anticipado, cola), recorre(Modo::Suelto, cola)) << qPrintable(cola);
}

TEST_F(Informe, GroupedAndCountedStatementsMayBeAnnouncedToo)
{
    const QString cabeza = u"select count(codigo) as n from lineas where num_factura = "_s;
    const auto cuenta = [&](bool anticipado) {
        const AmbitoInforme ambito = tienda().EmpiezaInforme();
        std::string todo;
        Recordset cabeceras;
        cabeceras.Open(u"select numero from cabeceras where numero <> null"_s, tienda());
        if (anticipado)
            cabeceras.Anticipa(cabeza, u"numero"_s, u""_s);
        for (Recordset& fila : cabeceras)
            todo += filas(cabeza + QString::number(fila.Fields(0).entero32()));
        return todo;
    };
    EXPECT_EQ(cuenta(true), cuenta(false));
}

TEST_F(Informe, AnErrorComesWhereItBelongs)
{
    const auto hastaElError = [&](Modo modo) {
        std::optional<AmbitoInforme> ambito;
        if (modo != Modo::Suelto)
            ambito.emplace(tienda().EmpiezaInforme());
        std::string leido;
        const qint32 numero = error([&] {
            const QString cabeza = u"select codigo, precio / (codigo - 2) as q from lineas where num_factura = "_s;
            Recordset cabeceras;
            cabeceras.Open(u"select numero from cabeceras where numero <> null"_s, tienda());
            if (modo == Modo::Anticipado)
                cabeceras.Anticipa(cabeza, u"numero"_s, u""_s);
            for (Recordset& cabecera : cabeceras) {
                const QString texto = QString::number(cabecera.Fields(0).entero32());
                leido += texto.toStdString() + ":" + filas(cabeza + texto) + "|";
            }
        });
        return leido + std::to_string(numero);
    };
    const std::string suelto = hastaElError(Modo::Suelto);
    EXPECT_TRUE(suelto.ends_with(std::to_string(ErrorEjecucion::SentenciaRechazada)))
        << "a line of code 2 divides by zero: " << suelto;
    EXPECT_EQ(hastaElError(Modo::ConAmbito), suelto);
    EXPECT_EQ(hastaElError(Modo::Anticipado), suelto);
}

TEST_F(Informe, AWriteOfTheProgramIsSeenAtOnce)
{
    const AmbitoInforme ambito = tienda().EmpiezaInforme();
    const QString texto = u"select count(numero) as n from cabeceras where cliente = 3"_s;
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(filas(texto), "90|");
    tienda().Execute(u"insert into cabeceras (numero,cliente) values (9999,3)"_s);
    EXPECT_EQ(filas(texto), "91|");
    EXPECT_EQ(filas(texto), "91|");
    otra(Base::Tienda)->Execute(u"delete from cabeceras where numero = 9999"_s);
    EXPECT_EQ(filas(texto), "90|");
    Recordset altas;
    altas.Open(u"cabeceras"_s, tienda(), CursorType::Keyset);
    altas.AddNew();
    altas.Fields(u"numero") = 9999;
    altas.Fields(u"cliente") = 3;
    altas.Update();
    EXPECT_EQ(filas(texto), "91|") << "a row that waits to be sent counts too";
}

TEST_F(Informe, AWriteInTheMidstOfTheWalkIsSeenByWhatIsReadAhead)
{
    const AmbitoInforme ambito = tienda().EmpiezaInforme();
    const QString cabeza = u"select producto from lineas where codigo = 0 and num_factura = "_s;
    Recordset cabeceras;
    cabeceras.Open(u"select numero from cabeceras where numero <> null"_s, tienda());
    cabeceras.Anticipa(cabeza, u"numero"_s, u""_s);
    EXPECT_NE(filas(cabeza + QString::number(cabeceras.Fields(0).entero32())), "'cambiado'|");
    tienda().Execute(u"update lineas set producto = 'cambiado'"_s);
    cabeceras.MoveNext();
    for (Recordset& cabecera : cabeceras) {
        const std::string leido = filas(cabeza + QString::number(cabecera.Fields(0).entero32()));
        EXPECT_TRUE(leido.empty() || leido.starts_with("'cambiado'|")) << leido;
    }
}

TEST_F(Informe, ARememberedAnswerCanBeOpenSeveralTimesAtOnce)
{
    const AmbitoInforme ambito = tienda().EmpiezaInforme();
    const QString texto = u"select numero from cabeceras where cliente = 2 and numero < 60"_s;
    const std::string esperado = filas(texto);
    for (int vuelta = 0; vuelta < 3; ++vuelta) {
        Recordset una;
        una.Open(texto, tienda());
        Recordset otra;
        otra.Open(texto, tienda());
        una.MoveNext();
        EXPECT_NE(una.Fields(0).entero32(), otra.Fields(0).entero32());
        EXPECT_EQ(filas(texto), esperado);
    }
}

TEST_F(Informe, ScopesNestAndOutsideThemNothingIsRemembered)
{
    const QString texto = u"select count(numero) as n from cabeceras"_s;
    EntornoDatos aparte{entorno().opciones()};
    Conexion deOtroPrograma{aparte};
    deOtroPrograma.Open(u"dsn=TiendaKestrane"_s);
    {
        AmbitoInforme fuera = tienda().EmpiezaInforme();
        {
            const AmbitoInforme dentro = tienda().EmpiezaInforme();
            EXPECT_EQ(filas(texto), "449|");
        }
        EXPECT_EQ(filas(texto), "449|");
        fuera.TerminaInforme();
        fuera.TerminaInforme();
    }
    deOtroPrograma.Execute(u"delete from cabeceras where numero = null"_s);
    deOtroPrograma.Execute(u"delete from cabeceras where numero <> null"_s);
    EXPECT_EQ(filas(texto), "0|");
}

TEST_F(Informe, TheConnectionMayCloseBeforeItsScope)
{
    const AmbitoInforme ambito = tienda().EmpiezaInforme();
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(filas(u"select numero from cabeceras"_s).empty());
    tienda().Close();
    EXPECT_FALSE(filas(u"select numero from cabeceras"_s).empty()) << "opened anew";
}

} // namespace
} // namespace kestrane::database::conformidad
