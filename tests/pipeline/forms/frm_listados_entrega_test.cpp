#include "pipeline/forms/menu_de_prueba.h"
#include "platform/database/recordset.h"

/// What a sibling program left in `pasardatos`.
namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::MenuTest;

class EntregaTest : public MenuTest
{
protected:
    void entrega(const QString& terminal, int indice, const QString& codigo, const QString& uso = u"Listado"_s)
    {
        m_tienda.ejecuta(u"insert into pasardatos (terminal, texto2, indice, texto1) values ('%1', '%2', %3, '%4')"_s.arg(
            terminal, uso, QString::number(indice), codigo));
    }
    /// What is left, "terminal/codigo" by the order of the rows.
    QStringList quedan()
    {
        QStringList filas;
        Recordset resto;
        resto.Open(u"Select * from pasardatos order by indice"_s, m_tienda.tienda());
        for (Recordset& fila : resto)
            filas += fila.Fields(u"terminal").texto() + u'/' + fila.Fields(u"texto1").texto();
        return filas;
    }
    QStringList marcados()
    {
        QStringList nombres;
        for (const QString& nombre : {u"Frame1"_s, u"Frame3"_s, u"Frame5"_s, u"Frame6"_s, u"Frame7"_s, u"Frame9"_s, u"Frame10"_s,
                                      u"Frame11"_s, u"Frame12"_s}) {
            const QWidget& grupo = control(nombre);
            if (grupo.palette().color(grupo.backgroundRole()) == QColor{Qt::yellow})
                nombres += nombre;
        }
        return nombres;
    }
};

TEST_F(EntregaTest, WithoutARowNothingIsMarked)
{
    abre();
    EXPECT_TRUE(marcados().isEmpty());
}

TEST_F(EntregaTest, OfTwoRowsTheLowerIsUsedAndGoesTheOtherWaitsForTheNextStart)
{
    entrega(u"MOSTRADOR"_s, 10, u"LstBon"_s);
    entrega(u"MOSTRADOR"_s, 9, u"LstStk"_s);
    abre();
    EXPECT_EQ(marcados(), QStringList{u"Frame9"_s});
    EXPECT_EQ(quedan(), QStringList{u"MOSTRADOR/LstBon"_s});
    abre();
    EXPECT_EQ(marcados(), QStringList{u"Frame11"_s});
    EXPECT_TRUE(quedan().isEmpty());
}

TEST_F(EntregaTest, EachCodeMarksItsGroupInWhateverCaseItIsWritten)
{
    const std::pair<QString, QString> casos[] = {
        {u"LSTGEN"_s, u"Frame3"_s},  {u"lstgen"_s, u"Frame3"_s},  {u"LstGen"_s, u"Frame3"_s}, {u"lstAge"_s, u"Frame10"_s},
        {u"LSTBON"_s, u"Frame11"_s}, {u"LstCom"_s, u"Frame12"_s}, {u"LstPed"_s, u"Frame9"_s}, {u"LstStk"_s, u"Frame9"_s},
    };
    for (const auto& [codigo, grupo] : casos) {
        entrega(u"MOSTRADOR"_s, 1, codigo);
        abre();
        EXPECT_EQ(marcados(), QStringList{grupo}) << codigo.toStdString();
    }
}

TEST_F(EntregaTest, ARowWithAnUnknownCodeGoesWithoutEffect)
{
    entrega(u"MOSTRADOR"_s, 1, u"LstNada"_s);
    abre();
    EXPECT_TRUE(marcados().isEmpty());
    EXPECT_TRUE(quedan().isEmpty());
}

TEST_F(EntregaTest, RowsOfAnotherTerminalOrForAnotherUseAreLeftAlone)
{
    entrega(u"TRASTIENDA"_s, 1, u"LstGen"_s);
    entrega(u"MOSTRADOR"_s, 2, u"LstGen"_s, u"Ficha"_s);
    abre();
    EXPECT_TRUE(marcados().isEmpty());
    EXPECT_EQ(quedan(), (QStringList{u"TRASTIENDA/LstGen"_s, u"MOSTRADOR/LstGen"_s}));
}

TEST_F(EntregaTest, TheKeyIsTheTerminalFollowedByAFreshReadingOfTheList)
{
    m_contexto.List1 = u"0"_s;
    m_list1 = u"7"_s;
    entrega(u"MOSTRADOR0"_s, 1, u"LstBon"_s);
    entrega(u"MOSTRADOR7"_s, 2, u"LstGen"_s);
    abre();
    EXPECT_EQ(marcados(), QStringList{u"Frame3"_s});
    EXPECT_EQ(quedan(), QStringList{u"MOSTRADOR0/LstBon"_s});
}

TEST_F(EntregaTest, TheIndexHandedOverIsNotUsedTheFirstRowGoes)
{
    entrega(u"MOSTRADOR"_s, 5, u"LstBon"_s);
    construye();
    entrega(u"MOSTRADOR"_s, 3, u"LstAge"_s);
    m_menu->Listar(u"5"_s, u"LstGen"_s);
    EXPECT_EQ(quedan(), QStringList{u"MOSTRADOR/LstBon"_s});
}

TEST_F(EntregaTest, ItNeverSaysThatAReportWasRun)
{
    construye();
    EXPECT_FALSE(m_menu->ListadoDirecto());
    entrega(u"MOSTRADOR"_s, 1, u"LstGen"_s);
    EXPECT_FALSE(m_menu->ListadoDirecto());
    EXPECT_TRUE(m_pulsados.isEmpty());
}

} // namespace
} // namespace kestrane
