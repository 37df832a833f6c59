// The central installation of a demo shop with several stores, from the run context to the output.

#include "apoyo/tienda_de_demostracion.h"
#include "lote/estado_de_salida.h"
#include "lote/informe_de_lote.h"
#include "pipeline/catalogue/catalogo.h"
#include "pipeline/informe_nuevo.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

const QString Semana = u" where fecha between #06/08/2024# and #06/14/2024# "_s;

/// The expenses of the period, of the chosen store or of all.
void construyeGastos(Listados& listados)
{
    InformeNuevo informe{listados, cabeceras::Completa};
    Recordset gastos;
    gastos.Open(u"select importe from gastos"_s + Semana + u"and tienda like '%"_s + listados.contexto.TiendaSeleccionada + u"'"_s,
                listados.contexto.ConexionTienda);
    for (Recordset& gasto : gastos) {
        informe.AddNew();
        informe.Fields(u"numerico2") = gasto.Fields(u"importe");
        informe.Update();
    }
}

/// One report: the store it was built for and, of each row, the amount and the store that it names, "" when it names none.
struct Informe
{
    QString tienda;
    QList<double> importes;
    QStringList nombradas;
};

Informe informeDe(const QJsonObject& objeto)
{
    Informe informe{objeto.value(u"tienda").toString(), {}, {}};
    for (const QJsonValue& valor : objeto.value(u"informes").toArray()) {
        const QJsonObject fila = valor.toObject();
        informe.importes += fila.value(u"numerico2").toDouble();
        informe.nombradas += fila.value(u"texto33").toString();
    }
    return informe;
}

demo::Parametros cadenaPequena()
{
    return {.tipo = demo::TipoTienda::Peluqueria, .proporcion = 0.1};
}

class TiendasDelServidor : public testing::Test
{
protected:
    TiendasDelServidor()
    {
        prueba::llenaConDemostracion(m_tienda, cadenaPequena());
        m_tienda.ejecuta(u"update opciones set multitienda = 'S', nombretienda = 'Servidor'"_s);
        m_gastos.constructores[0].constructor = construyeGastos;
    }

    /// What a run writes, nobody having chosen a store.
    QList<Informe> informes(const catalogue::FilaCatalogo& fila)
    {
        m_tienda.tienda().Close();
        m_tienda.listados().Close();
        Opciones opciones;
        opciones.hoy = Fecha::deCalendario(2024, 6, 14);
        opciones.informe.fila = &fila;
        QBuffer salida;
        QBuffer errores;
        salida.open(QIODevice::WriteOnly);
        errores.open(QIODevice::WriteOnly);
        Avisos avisos{u"listados-lote"_s, errores, DestinoErrores::Fichero, [] { return qint64{0}; }};
        if (&fila == &m_gastos)
            opciones.informe.respuestas = {{Respuesta::Desde, *Fecha::deCalendario(2024, 6, 8)}};
        EXPECT_EQ(ejecutaInforme(opciones, m_tienda.opciones(), {m_tienda.carpeta(), salida, avisos}), SalidaBien);
        EXPECT_EQ(errores.data().toStdString(), "");
        QList<Informe> todos;
        for (const QJsonValue& valor : QJsonDocument::fromJson(salida.data()).array())
            todos += informeDe(valor.toObject());
        return todos;
    }

    /// The expenses of the week as the shop holds them; `condicion` begins with "and" or is empty.
    [[nodiscard]] QList<double> gastos(const QString& condicion)
    {
        Recordset filas;
        filas.Open(u"select importe from gastos"_s + Semana + condicion, m_tienda.tienda());
        QList<double> importes;
        for (Recordset& fila : filas)
            importes += fila.Fields(u"importe").doble();
        return importes;
    }

    TiendaDePrueba m_tienda;
    /// A row of the catalogue that goes from store to store.
    catalogue::FilaCatalogo m_gastos = *catalogue::busca(u"cmd_Estadisticas2");
};

TEST_F(TiendasDelServidor, EachStoreHasOneReportInTheirOrderWithTheRowsOfNamesThatEndInIts)
{
    const QStringList tiendas = demo::nombresDeTiendas(cadenaPequena());
    ASSERT_GT(tiendas.size(), 1);
    const QList<Informe> leidos = informes(m_gastos);
    ASSERT_EQ(leidos.size(), tiendas.size());
    for (qsizetype i = 0; i < tiendas.size(); ++i) {
        const QStringList acabanIgual = tiendas.filter(QRegularExpression{tiendas[i] + u'$'});
        const QList<double> suyos = gastos(u"and tienda in ('%1')"_s.arg(acabanIgual.join(u"','")));
        ASSERT_FALSE(suyos.isEmpty()) << tiendas[i].toStdString();
        EXPECT_EQ(leidos[i].tienda, tiendas[i]);
        EXPECT_EQ(leidos[i].importes, suyos) << tiendas[i].toStdString();
        EXPECT_EQ(leidos[i].nombradas, QStringList(suyos.size(), u"Tienda = "_s + tiendas[i]));
    }
}

TEST_F(TiendasDelServidor, WhereTheOptionOfSeveralStoresIsOffTheReportRunsOnceOverAllRows)
{
    const QList<double> todos = gastos(u""_s);
    ASSERT_FALSE(todos.isEmpty());
    for (const QString& letra : {u"null"_s, u"''"_s, u"'N'"_s}) {
        m_tienda.ejecuta(u"update opciones set multitienda = "_s + letra);
        const QList<Informe> leidos = informes(m_gastos);
        ASSERT_EQ(leidos.size(), 1) << letra.toStdString();
        EXPECT_EQ(leidos[0].tienda, u""_s);
        EXPECT_EQ(leidos[0].importes, todos) << letra.toStdString();
        EXPECT_EQ(leidos[0].nombradas, QStringList(todos.size(), u""_s)) << "no store is named";
    }
}

TEST_F(TiendasDelServidor, AReportThatDoesNotGoFromStoreToStoreRunsOnceThere)
{
    const QList<Informe> leidos = informes(*catalogue::busca(u"cmd_Generales3"));
    ASSERT_EQ(leidos.size(), 1);
    EXPECT_EQ(leidos[0].tienda, u""_s);
    Recordset empleados;
    empleados.Open(u"select codigo from empleados where baja = 0"_s, m_tienda.tienda());
    ASSERT_GT(empleados.RecordCount(), 1);
    EXPECT_EQ(leidos[0].importes.size(), qint32{empleados.RecordCount()});
}

} // namespace
} // namespace kestrane::lote
