#include "pipeline/catalogue/ejecutor_de_prueba.h"

#include "apoyo/motor_anotado.h"
#include "platform/database/recordset.h"

/// Presses inside a press, and the time in which the shop connection may remember answers.
namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;
using prueba::EjecutorTest;
using prueba::fila;

class PulsacionDentro : public EjecutorTest
{
protected:
    /// The button that is pressed when events are drained next.
    void pulsaAlDrenar(QStringView control)
    {
        m_pantalla.alDrenar = [this, control] { m_ejecutor.ejecuta(fila(control)); };
    }
};

TEST_F(PulsacionDentro, AReportIsMadeInsideTheOtherAndTheProgressWindowClosedTwice)
{
    pulsaAlDrenar(u"cmd_Ventas7");
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"),
              (QStringList{u"frmFechas"_s, u"parar"_s, u"construye[]"_s, u"drena"_s,                                   //
                           u"frmFechas"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s, //
                           u"imprime K_IVA.rpt"_s, u"cerrar"_s,                                                        //
                           u"drena"_s, u"impresora Laser"_s, u"imprime K_formapago.rpt"_s, u"cerrar"_s}));
}

TEST_F(PulsacionDentro, APressThatIsLeftInItsDialogChangesNothingOfTheReportAround)
{
    const QStringList solo = ejecuta(u"cmd_Ventas2");
    m_pantalla.alDrenar = [this] {
        m_pantalla.alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = false; };
        m_ejecutor.ejecuta(fila(u"cmd_Ventas7"));
    };
    QStringList conOtra = ejecuta(u"cmd_Ventas2");
    EXPECT_EQ(conOtra.takeAt(4), u"frmFechas"_s);
    EXPECT_EQ(conOtra, solo);
}

TEST_F(PulsacionDentro, InTheLoopTheReportInsideIsForTheStoreOfTheMoment)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    pulsaAlDrenar(u"cmd_Ventas7");
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"), (QStringList{u"frmFechas"_s,
                                                    u"parar"_s,
                                                    u"construye[Sur]"_s,
                                                    u"drena"_s, //
                                                    u"frmFechas"_s,
                                                    u"parar"_s,
                                                    u"construye[Sur]"_s,
                                                    u"drena"_s,
                                                    u"drena"_s,
                                                    u"impresora Laser"_s, //
                                                    u"imprime K_IVA.rpt"_s,
                                                    u"cerrar"_s, //
                                                    u"drena"_s,
                                                    u"impresora Laser"_s,
                                                    u"imprime K_formapago.rpt"_s, //
                                                    u"construye[Centro]"_s,
                                                    u"drena"_s,
                                                    u"drena"_s,
                                                    u"impresora Laser"_s, //
                                                    u"imprime K_formapago.rpt"_s,
                                                    u"cerrar"_s}));
}

TEST_F(PulsacionDentro, TheLoopGoesOnWithItsOwnNextStoreWhateverThePressInsideChose)
{
    enServidorCon({u"Sur"_s, u"Centro"_s, u"Norte"_s});
    m_pantalla.alMostrar = [this](Dialogo) {
        m_contexto.FiltroAceptado = true;
        m_contexto.TiendaSeleccionada.clear(); // "Todas"
    };
    pulsaAlDrenar(u"cmd_Ventas7");
    EXPECT_EQ(construidas(u"cmd_Ventas2"), (QStringList{u"construye[Sur]"_s, u"construye[Sur]"_s, u"construye[Centro]"_s,
                                                        u"construye[Norte]"_s, u"construye[Centro]"_s, u"construye[Norte]"_s}));
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Norte"_s);
}

constexpr int Veces = 5;
/// An answer is remembered from the second time on.
constexpr int EnAmbito = 2;

/// Asks the shop the same several times.
void preguntaMucho(Listados& listados)
{
    Recordset filas;
    for (int vez = 0; vez < Veces; ++vez) {
        filas.Open(u"Select nombre from multitienda"_s, listados.contexto.ConexionTienda);
        EXPECT_EQ(filas.RecordCount(), 1);
        filas.Close();
    }
}

MatrizGrafico recogeMucho(Listados& listados)
{
    preguntaMucho(listados);
    return {};
}

void preguntaYFalla(Listados& listados)
{
    preguntaMucho(listados);
    throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
}

class AmbitoDelInforme : public testing::Test
{
protected:
    AmbitoDelInforme()
    {
        m_tienda.ejecuta(u"insert into multitienda (nombre) values ('Sur')"_s);
        m_tienda.tienda().Close();
        m_contexto.ConexionTienda.Open(u"dsn=TiendaKestrane"_s);
    }

    /// The question asked several times here and now.
    void pregunta()
    {
        Listados listados{m_contexto, m_pantalla, m_reloj};
        preguntaMucho(listados);
    }

    /// How often the question was sent since this was asked last.
    qsizetype enviadas()
    {
        const qsizetype cuantas = m_anotaciones.filter(u"FROM multitienda"_s).size();
        m_anotaciones.clear();
        return cuantas;
    }

    void ejecuta(const FilaCatalogo& elegida) { Ejecutor{m_contexto, m_pantalla.pantalla(), m_reloj}.ejecuta(elegida); }

    FilaCatalogo fila(Constructor constructor)
    {
        FilaCatalogo copia = *busca(u"cmd_Generales8");
        copia.constructores[0].constructor = constructor;
        return copia;
    }

    prueba::TiendaDePrueba m_tienda;
    QStringList m_anotaciones;
    EntornoDatos m_entorno{m_tienda.opciones(prueba::anotaEn(m_anotaciones))};
    ContextoEjecucion m_contexto{m_entorno};
    prueba::PantallaGrabada m_pantalla{m_contexto};
    RelojFijo m_reloj{prueba::dia(2024, 3, 15)};
};

TEST_F(AmbitoDelInforme, AroundTheBuilderOneIsOpenAndBeforeAndAfterItNone)
{
    pregunta();
    EXPECT_EQ(enviadas(), Veces);
    ejecuta(fila(preguntaMucho));
    EXPECT_EQ(enviadas(), EnAmbito);
    pregunta();
    EXPECT_EQ(enviadas(), Veces);
}

TEST_F(AmbitoDelInforme, WhileEventsAreDrainedThereIsNone)
{
    m_pantalla.alDrenar = [this] {
        EXPECT_EQ(enviadas(), EnAmbito);
        pregunta();
    };
    ejecuta(fila(preguntaMucho));
    EXPECT_EQ(enviadas(), Veces);
}

TEST_F(AmbitoDelInforme, ABuilderThatFailsLeavesNone)
{
    EXPECT_THROW(ejecuta(fila(preguntaYFalla)), ErrorEjecucion);
    EXPECT_EQ(enviadas(), EnAmbito);
    pregunta();
    EXPECT_EQ(enviadas(), Veces);
}

TEST_F(AmbitoDelInforme, EachStoreOfTheLoopHasItsOwn)
{
    m_contexto.NombreTienda = u"Servidor"_s;
    m_contexto.MultiTienda = true;
    m_contexto.Tiendas.reserva(3);
    m_contexto.Tiendas[1].Texto = u"Sur"_s;
    m_contexto.Tiendas[2].Texto = u"Centro"_s;
    FilaCatalogo enBucle = fila(preguntaMucho);
    enBucle.marcas |= Marca::Bucle;
    ejecuta(enBucle);
    EXPECT_EQ(enviadas(), EnAmbito + EnAmbito);
}

TEST_F(AmbitoDelInforme, AChartsCollectorIsInOneAndItsWindowIsNot)
{
    FilaCatalogo grafico = *busca(u"Command4");
    grafico.grafico.recolector = recogeMucho;
    m_pantalla.alRecoger = [this] {
        EXPECT_EQ(enviadas(), EnAmbito);
        pregunta();
    };
    ejecuta(grafico);
    EXPECT_EQ(enviadas(), Veces);
}

} // namespace
} // namespace kestrane::catalogue
