#include "lote/informe_de_lote.h"

#include "apoyo/tienda_de_prueba.h"
#include "lote/estado_de_salida.h"
#include "lote/peticion_imposible.h"
#include "pipeline/catalogue/catalogo.h"
#include "pipeline/informe_nuevo.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using catalogue::FilaCatalogo;
using prueba::TiendaDePrueba;

/// One row with the period, but none for the store "Vacía".
void construye(Listados& listados)
{
    InformeNuevo informe{listados, cabeceras::Completa};
    if (listados.contexto.TiendaSeleccionada == u"Vacía")
        return;
    informe.AddNew();
    informe.Fields(u"texto1") = listados.contexto.TiendaSeleccionada;
    informe.Update();
}

void fallaEnLaSegunda(Listados& listados)
{
    if (listados.contexto.TiendaSeleccionada == u"Vacía")
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    construye(listados);
}

void construyeSinFilas(Listados& listados)
{
    InformeNuevo informe{listados, cabeceras::Completa};
}

void construyeConPasos(Listados& listados)
{
    construye(listados);
    listados.progreso.IncrementaBarra();
    listados.progreso.IncrementaBarra();
}

void daUnPasoYFalla(Listados& listados)
{
    listados.progreso.IncrementaBarra();
    throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
}

constexpr auto SinDatos = "listados-lote: No hay datos para ser mostrados.\n";

/// A report with a date dialog that loops over the stores.
FilaCatalogo informe(QStringView control, Constructor constructor)
{
    FilaCatalogo fila = *catalogue::busca(control);
    fila.constructores[0].constructor = constructor;
    return fila;
}

class InformeDeLote : public testing::Test
{
protected:
    InformeDeLote()
    {
        m_salida.open(QIODevice::WriteOnly);
        m_errores.open(QIODevice::WriteOnly);
        m_opciones.hoy = Fecha::deCalendario(2024, 3, 15);
    }

    void enServidorCon(std::initializer_list<QString> tiendas)
    {
        m_tienda.ejecuta(
            u"insert into opciones (nombre, multitienda, nombretienda, numdecimales) values ('Ñandú', 'S', 'Servidor', 2)"_s);
        for (const QString& tienda : tiendas)
            m_tienda.ejecuta(u"insert into multitienda (nombre) values ('%1')"_s.arg(tienda));
    }

    int ejecuta(const FilaCatalogo& fila)
    {
        m_opciones.informe.fila = &fila;
        m_tienda.tienda().Close();
        m_tienda.listados().Close();
        return ejecutaInforme(m_opciones, m_tienda.opciones(), {m_tienda.carpeta(), m_salida, m_avisos});
    }

    /// "store:layout:data:texto1 of the rows" of each report on the output.
    [[nodiscard]] QStringList informes() const
    {
        QStringList todos;
        for (const QJsonValue& valor : QJsonDocument::fromJson(m_salida.data()).array()) {
            const QJsonObject objeto = valor.toObject();
            QStringList filas;
            for (const QJsonValue& fila : objeto.value(u"informes").toArray())
                filas += fila.toObject().value(u"texto1").toString();
            todos += u"%1:%2:%3:%4"_s.arg(objeto.value(u"tienda").toString(), objeto.value(u"layout").toString(),
                                          objeto.value(u"datos").toBool() ? u"si"_s : u"no"_s, filas.join(u','));
        }
        return todos;
    }

    [[nodiscard]] std::string errores() const { return m_errores.data().toStdString(); }

    TiendaDePrueba m_tienda;
    QBuffer m_salida;
    QBuffer m_errores;
    Avisos m_avisos{u"listados-lote"_s, m_errores, DestinoErrores::Fichero, [] { return qint64{0}; }};
    Opciones m_opciones;
};

TEST_F(InformeDeLote, AReportThatDoesNotExistYetSaysSoAndIsAnError)
{
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", nullptr)), SalidaError);
    EXPECT_EQ(errores(), "listados-lote: Este listado todavía no está disponible.\n");
    EXPECT_EQ(ejecuta(*catalogue::busca(u"Command8")), SalidaError);
    EXPECT_EQ(m_errores.data().count("listados-lote: Este listado todavía no está disponible.\n"), 2);
    EXPECT_EQ(m_salida.data(), "");
}

TEST_F(InformeDeLote, AStoreThatTheServerDoesNotHaveIsAnErrorOfUsage)
{
    enServidorCon({u"Sur"_s});
    m_opciones.informe.tienda = u"Norte"_s;
    EXPECT_THROW(ejecuta(informe(u"cmd_Ventas2", construye)), PeticionImposible);
}

TEST_F(InformeDeLote, AnErrorInTheMidstOfTheStoresLeavesNothingOnTheOutput)
{
    enServidorCon({u"Sur"_s, u"Vacía"_s});
    EXPECT_THROW(ejecuta(informe(u"cmd_Ventas2", fallaEnLaSegunda)), ErrorEjecucion);
    EXPECT_EQ(m_salida.data(), "");
}

TEST_F(InformeDeLote, AnErrorLeavesNoFile)
{
    enServidorCon({u"Sur"_s, u"Vacía"_s});
    m_opciones.informe.salida = QDir{m_tienda.carpeta()}.filePath(u"caja.json"_s);
    EXPECT_THROW(ejecuta(informe(u"cmd_Ventas2", fallaEnLaSegunda)), ErrorEjecucion);
    EXPECT_EQ(QDir{m_tienda.carpeta()}.entryList({u"caja*"_s}), QStringList{});
}

TEST_F(InformeDeLote, AnOutputThatCannotBeWrittenIsToldBeforeTheWork)
{
    m_opciones.informe.salida = m_tienda.carpeta() + u"/nada/caja.json"_s;
    EXPECT_THROW(ejecuta(informe(u"cmd_Ventas2", fallaEnLaSegunda)), ErrorDeSalida);
}

TEST_F(InformeDeLote, TheServerWithoutStoresEndsInError9)
{
    enServidorCon({});
    try {
        static_cast<void>(ejecuta(informe(u"cmd_Ventas2", construye)));
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::IndiceFueraDeIntervalo);
    }
}

TEST_F(InformeDeLote, OneObjectForEachStoreInTheirOrderThoughOneHasNoData)
{
    enServidorCon({u"Sur"_s, u"Vacía"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", construye)), SalidaBien);
    EXPECT_EQ(informes(), (QStringList{u"Sur:K_formapago.rpt:si:Sur"_s, u"Vacía:K_formapago.rpt:no:"_s,
                                       u"Centro:K_formapago.rpt:si:Centro"_s}));
    EXPECT_EQ(errores(), SinDatos) << "of the second store";
}

TEST_F(InformeDeLote, AStoreThatWasChosenIsReportedAlone)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    m_opciones.informe.tienda = u"centro"_s;
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", construye)), SalidaBien);
    EXPECT_EQ(informes(), QStringList{u"Centro:K_formapago.rpt:si:Centro"_s});
}

TEST_F(InformeDeLote, WithoutDataInEveryReportEachSaysSoAndTheStatusToo)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", construyeSinFilas)), SalidaSinDatos);
    EXPECT_EQ(informes(), (QStringList{u"Sur:K_formapago.rpt:no:"_s, u"Centro:K_formapago.rpt:no:"_s}));
    EXPECT_EQ(errores(), std::string{SinDatos} + SinDatos);
}

TEST_F(InformeDeLote, TheKeptReportsDatabaseOfAnEarlierRunOutlivesOneThatFails)
{
    const QString carpeta = QDir{m_tienda.carpeta()}.filePath(u"copia"_s);
    m_opciones.informe.carpetaListados = carpeta;
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", construye)), SalidaBien);
    QFile conservada{carpeta + u"/ListKestrane.db"_s};
    ASSERT_TRUE(conservada.open(QIODevice::ReadOnly));
    const QByteArray antes = conservada.readAll();
    conservada.close();
    enServidorCon({u"Sur"_s, u"Vacía"_s});
    EXPECT_THROW(ejecuta(informe(u"cmd_Ventas2", fallaEnLaSegunda)), ErrorEjecucion);
    ASSERT_TRUE(conservada.open(QIODevice::ReadOnly));
    EXPECT_EQ(conservada.readAll(), antes);
    EXPECT_EQ(QDir{carpeta}.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"ListKestrane.db"_s});
}

/// Somebody watches a report that takes a second per step.
class InformeEnTerminal : public InformeDeLote
{
protected:
    int ejecutaDespacio(Constructor constructor)
    {
        const FilaCatalogo fila = informe(u"cmd_Ventas2", constructor);
        m_opciones.informe.fila = &fila;
        m_tienda.tienda().Close();
        m_tienda.listados().Close();
        return ejecutaInforme(m_opciones, m_tienda.opciones(), {m_tienda.carpeta(), m_salida, m_lentos});
    }

    qint64 m_ahora = 0;
    Avisos m_lentos{u"listados-lote"_s, m_errores, DestinoErrores::Terminal, [this] { return m_ahora += 1000; }};
};

TEST_F(InformeEnTerminal, ItsStepsAreCountedOnALineThatVanishes)
{
    EXPECT_EQ(ejecutaDespacio(construyeConPasos), SalidaBien);
    EXPECT_EQ(errores(), "Generando Reporte: 1\r\x1b[KGenerando Reporte: 2\r\x1b[K");
}

TEST_F(InformeEnTerminal, AnErrorInTheMidstStandsOnALineOfItsOwn)
{
    EXPECT_THROW(ejecutaDespacio(daUnPasoYFalla), ErrorEjecucion);
    m_lentos.di(u"error 6."_s);
    EXPECT_EQ(errores(), "Generando Reporte: 1\r\x1b[Klistados-lote: error 6.\n");
}

TEST_F(InformeDeLote, SeveralReportsAreAFileEach)
{
    enServidorCon({u"Sur"_s, u"Vacía"_s});
    m_opciones.informe.salida = QDir{m_tienda.carpeta()}.filePath(u"caja.json"_s);
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", construye)), SalidaBien);
    EXPECT_EQ(QDir{m_tienda.carpeta()}.entryList({u"caja*"_s}, QDir::Files, QDir::Name),
              (QStringList{u"caja-Sur.json"_s, u"caja-Vacía.json"_s}));
    EXPECT_EQ(m_salida.data(), "");
}

TEST_F(InformeDeLote, ThePeriodIsTodaysUnlessItIsGiven)
{
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", construye)), SalidaBien);
    EXPECT_TRUE(m_salida.data().contains("\"fecha1\":\"2024-03-15T00:00:00\",\"fecha2\":\"2024-03-15T00:00:00\""))
        << m_salida.data().toStdString();
}

TEST_F(InformeDeLote, WhereSeveralDaysAreNotAllowedWhatTheDialogWouldHaveSetIsIgnored)
{
    m_tienda.ejecuta(u"insert into relaciones_fijas (indice, datoa) values ('PermiteListadoVariosDias', 'NO')"_s);
    m_opciones.informe.respuestas = {{Respuesta::Desde, *Fecha::deCalendario(2024, 1, 1)}, {Respuesta::Completa, true}};
    EXPECT_EQ(ejecuta(informe(u"cmd_Caja1", construye)), SalidaBien);
    EXPECT_TRUE(m_salida.data().contains("\"fecha1\":\"2024-03-15T00:00:00\""));
    EXPECT_EQ(errores(), "listados-lote: cmd_Caja1 no ofrece --desde, que se ignora.\n"
                         "listados-lote: cmd_Caja1 no ofrece --completa, que se ignora.\n");
}

TEST_F(InformeDeLote, DeliveryNotesOutsideRetailHaveAnObjectWithoutALayout)
{
    EXPECT_EQ(ejecuta(informe(u"cmdAlbaranes", construye)), SalidaBien);
    EXPECT_EQ(informes(), QStringList{u"::si:"_s});
}

TEST_F(InformeDeLote, TheReportsDatabaseOfTheProgramIsLeftAlone)
{
    m_tienda.ejecutaListados(u"insert into informes (texto1) values ('del programa')"_s);
    EXPECT_EQ(ejecuta(informe(u"cmd_Ventas2", construye)), SalidaBien);
    Recordset filas;
    filas.Open(u"select texto1 from informes"_s, m_tienda.listados());
    EXPECT_EQ(filas.RecordCount(), 1);
    EXPECT_EQ(filas.Fields(u"texto1").texto(), u"del programa"_s);
}

TEST_F(InformeDeLote, TheListNamesReportsAndChartsAndWhatIsStillMissing)
{
    const QByteArray lista = listaDeInformes();
    EXPECT_EQ(lista.count('\n'), 59 + 7); // reports and charts
    EXPECT_TRUE(lista.startsWith("cmd_Caja1\tCaja: Caja Diaria General\tinforme\n"));
    EXPECT_TRUE(lista.contains("\ncmd_Marcas\tMarcas\tinforme\n"));
    EXPECT_TRUE(lista.contains("\nCommand8\tGraficos de venta: Por Empleados\tgrafico\ttodavía no disponible\n"));
    EXPECT_TRUE(lista.contains("\nCommand10\tListados Generales: Etiquetas de Clientes\tinforme\t"));
    EXPECT_FALSE(lista.contains("Continuar"));
    EXPECT_FALSE(lista.contains("cmd_Salir"));
}

} // namespace
} // namespace kestrane::lote
