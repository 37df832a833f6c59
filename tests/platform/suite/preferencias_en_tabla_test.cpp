#include "platform/suite/preferencias_en_tabla.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/database/recordset.h"
#include "platform/runtime/soporte.h"

#include <QFile>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class PreferenciasEnTablaTest : public testing::Test
{
protected:
    /// What a copy of the program that starts now would find.
    Apariencia guardada(const QString& terminal = u"PC"_s)
    {
        PreferenciasEnTabla otra{terminal};
        Conexion& tienda = m_tienda.tienda();
        return {otra.DarTema(tienda), otra.DarLetra(tienda), otra.DarAncho(tienda), otra.DarAlto(tienda)};
    }
    /// The table holds one row of the terminal, the four columns as given.
    void fila(const QString& valores)
    {
        m_tienda.ejecuta(
            {u"delete from preferencias_terminal"_s,
             u"insert into preferencias_terminal (terminal, tema, letra, ancho, alto) values ('PC', "_s + valores + u')'});
    }
    qint32 filas()
    {
        Recordset rs;
        rs.Open(u"preferencias_terminal"_s, m_tienda.tienda());
        return rs.RecordCount();
    }
    /// The size after `ancho` x `alto`.
    TamanoVentana siguienteTamano(double ancho, double alto)
    {
        EXPECT_TRUE(m_preferencias.SiguienteTamano(m_tienda.tienda(), ancho, alto));
        return {ancho, alto};
    }

    static constexpr Apariencia PorDefecto{1, 10, 15360, 11085};

    prueba::TiendaDePrueba m_tienda;
    PreferenciasEnTabla m_preferencias{u"PC"_s};
};

TEST_F(PreferenciasEnTablaTest, TheIdentifierIsTheMachinesHostName)
{
    QFile nombre{u"/proc/sys/kernel/hostname"_s};
    ASSERT_TRUE(nombre.open(QIODevice::ReadOnly));
    EXPECT_EQ(PreferenciasEnTabla{}.DarIdentificador(), QString::fromUtf8(nombre.readAll()).trimmed());
    EXPECT_EQ(m_preferencias.DarIdentificador(), u"PC"_s);
}

TEST_F(PreferenciasEnTablaTest, WithoutTheTableARowOrAValueTheDefaultsHold)
{
    EXPECT_EQ(guardada(), PorDefecto) << "no row";
    fila(u"null, null, null, null"_s);
    EXPECT_EQ(guardada(), PorDefecto);
    fila(u"99, 11, 0, -3"_s);
    EXPECT_EQ(guardada(), PorDefecto) << "what is no choice";
    m_tienda.quitaTabla(u"preferencias_terminal"_s);
    EXPECT_EQ(guardada(), PorDefecto) << "no table";
}

TEST_F(PreferenciasEnTablaTest, WhatIsStoredIsGivenToItsTerminalAlone)
{
    fila(u"3, 14, 20000.5, 12000"_s);
    EXPECT_EQ(guardada(), (Apariencia{3, 14, 20000.5, 12000}));
    EXPECT_EQ(guardada(u"OTRO"_s), PorDefecto);
}

TEST_F(PreferenciasEnTablaTest, ThemesGoRoundOneToFour)
{
    for (const qint32 esperado : {2, 3, 4, 1, 2}) {
        EXPECT_EQ(m_preferencias.SiguienteTema(m_tienda.tienda()), esperado);
        EXPECT_EQ(guardada().tema, esperado);
    }
    EXPECT_EQ(filas(), 1);
}

TEST_F(PreferenciasEnTablaTest, FontsGoRoundNineTenTwelveFourteen)
{
    for (const qint32 esperada : {12, 14, 9, 10, 12}) {
        EXPECT_EQ(m_preferencias.SiguienteLetra(m_tienda.tienda()), esperada);
        EXPECT_EQ(guardada().letra, esperada);
    }
    EXPECT_EQ(filas(), 1);
}

TEST_F(PreferenciasEnTablaTest, SizesGoRoundFromTheOneGiven)
{
    EXPECT_EQ(siguienteTamano(15360, 11085), (TamanoVentana{19200, 14400}));
    EXPECT_EQ(guardada(), (Apariencia{1, 10, 19200, 14400}));
    EXPECT_EQ(siguienteTamano(19200, 14400), (TamanoVentana{28800, 16200}));
    EXPECT_EQ(siguienteTamano(28800, 16200), (TamanoVentana{15360, 11085}));
    EXPECT_EQ(guardada(), PorDefecto);
    EXPECT_EQ(filas(), 1);
}

TEST_F(PreferenciasEnTablaTest, ASizeOutsideTheCycleGoesToTheNextWiderOne)
{
    EXPECT_EQ(siguienteTamano(10000, 9000), (TamanoVentana{15360, 11085}));
    EXPECT_EQ(siguienteTamano(16000, 16200), (TamanoVentana{19200, 14400}));
    EXPECT_EQ(siguienteTamano(40000, 20000), (TamanoVentana{15360, 11085}));
}

TEST_F(PreferenciasEnTablaTest, OneChangeLeavesTheOtherPreferencesAndTerminalsAsTheyWere)
{
    fila(u"2, 14, 19200, 14400"_s);
    m_tienda.ejecuta(
        u"insert into preferencias_terminal (terminal, tema, letra, ancho, alto) values ('OTRO', 4, 9, 28800, 16200)"_s);
    m_preferencias.SiguienteTema(m_tienda.tienda());
    EXPECT_EQ(guardada(), (Apariencia{3, 14, 19200, 14400}));
    m_preferencias.SiguienteLetra(m_tienda.tienda());
    EXPECT_EQ(guardada(), (Apariencia{3, 9, 19200, 14400}));
    EXPECT_EQ(guardada(u"OTRO"_s), (Apariencia{4, 9, 28800, 16200}));
}

TEST_F(PreferenciasEnTablaTest, WithoutTheTableChangesHoldForTheRun)
{
    m_tienda.quitaTabla(u"preferencias_terminal"_s);
    EXPECT_EQ(m_preferencias.SiguienteTema(m_tienda.tienda()), 2);
    EXPECT_EQ(m_preferencias.SiguienteTema(m_tienda.tienda()), 3);
    EXPECT_EQ(m_preferencias.DarTema(m_tienda.tienda()), 3);
    EXPECT_EQ(siguienteTamano(15360, 11085), (TamanoVentana{19200, 14400}));
    EXPECT_EQ(m_preferencias.DarAncho(m_tienda.tienda()), 19200);
    EXPECT_EQ(m_preferencias.DarAlto(m_tienda.tienda()), 14400);
    EXPECT_EQ(guardada(), PorDefecto);
}

TEST_F(PreferenciasEnTablaTest, ATerminalWithAnApostropheKeepsItsPreferencesToo)
{
    PreferenciasEnTabla preferencias{u"PC O'Donnell"_s};
    EXPECT_EQ(preferencias.DarTema(m_tienda.tienda()), 1);
    EXPECT_EQ(preferencias.SiguienteTema(m_tienda.tienda()), 2);
    EXPECT_EQ(guardada(u"PC O'Donnell"_s).tema, 2);
}

TEST_F(PreferenciasEnTablaTest, OfALongNameTheFirstFiftyCharactersCount)
{
    const QString cincuenta = QString{46, u'x'} + u"ñ-01"_s;
    ASSERT_EQ(cincuenta.size(), 50);
    const QString largo = cincuenta + u".tienda.local"_s;
    PreferenciasEnTabla preferencias{largo};
    EXPECT_EQ(preferencias.DarIdentificador(), largo) << "it is shortened for its row alone";
    EXPECT_EQ(preferencias.SiguienteTema(m_tienda.tienda()), 2);
    EXPECT_EQ(preferencias.SiguienteLetra(m_tienda.tienda()), 12);
    EXPECT_EQ(guardada(largo), (Apariencia{2, 12, 15360, 11085}));
    EXPECT_EQ(guardada(cincuenta), (Apariencia{2, 12, 15360, 11085}));
    EXPECT_EQ(guardada(cincuenta.chopped(1)), PorDefecto);
    EXPECT_EQ(filas(), 1);
}

TEST_F(PreferenciasEnTablaTest, ALetterOfTwoUnitsIsNotCutInTwo)
{
    const QString largo = QString{49, u'x'} + u"😀"_s;
    EXPECT_EQ(PreferenciasEnTabla{largo}.SiguienteTema(m_tienda.tienda()), 2);
    EXPECT_EQ(guardada(largo).tema, 2);
    EXPECT_EQ(guardada(QString{49, u'x'}).tema, 2);
}

} // namespace
} // namespace kestrane
