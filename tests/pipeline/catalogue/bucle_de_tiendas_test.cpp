#include "pipeline/catalogue/ejecutor_de_prueba.h"

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/informe_nuevo.h"
#include "pipeline/salida_de_report.h"

/// The loop over the stores on the real output road, whose windows are written down.
namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;

/// One row for every store but the one without sales.
void soloDondeSeVende(Listados& listados)
{
    listados.contexto.ConexionListados.Execute(u"Delete * from informes"_s);
    if (listados.contexto.TiendaSeleccionada == u"Vacía")
        return;
    listados.contexto.ConexionListados.Execute(u"insert into informes (texto1) values ('venta')"_s);
}

class ControlAnotado final : public ControlReport
{
public:
    explicit ControlAnotado(QStringList& sucesos) : m_sucesos{sucesos} {}
    void ReportFileName(const QString&) override {}
    void WindowTitle(const QString&) override {}
    void OpcionA(bool) override {}
    void OpcionB(int) override {}
    void OpcionC(int) override {}
    void Destination(DestinoReport) override {}
    void OpcionD(int) override {}
    void Prepara() override {}
    void Action(AccionReport) override { m_sucesos += u"vista"_s; }
    void ReiniciaImpresora() override {}
    void PrinterName(const QString&) override {}
    void PrinterDriver(const QString&) override {}
    void PrinterPort(const QString&) override {}

private:
    QStringList& m_sucesos;
};

class SinImpresoras final : public Impresoras
{
public:
    [[nodiscard]] std::vector<ImpresoraInstalada> lista() const override { return {}; }
};

class EsperaAnotada final : public Espera
{
public:
    explicit EsperaAnotada(QStringList& sucesos) : m_sucesos{sucesos} {}
    void Muestra() override { m_sucesos += u"espera"_s; }

private:
    QStringList& m_sucesos;
};

class SinEventos final : public ColaEventos
{
public:
    void drena() override {}
};

class BucleDeTiendas : public prueba::EjecutorTest
{
protected:
    BucleDeTiendas() { m_deVeras.ConexionListados.Open(u"dsn=ListKestrane"_s); }

    prueba::TiendaDePrueba m_tienda;
    ContextoEjecucion m_deVeras{m_tienda.entorno()};
    prueba::PantallaGrabada m_ventanas{m_deVeras};
    ControlAnotado m_control{m_ventanas.sucesos};
    SinImpresoras m_impresoras;
    EsperaAnotada m_espera{m_ventanas.sucesos};
    SinEventos m_eventos;
    SalidaDeReport m_salida{m_deVeras, {m_control, m_impresoras, m_espera, m_ventanas, m_eventos}};
};

TEST_F(BucleDeTiendas, AStoreWithoutRowsSaysSoInTheMidstAndTheLoopGoesOn)
{
    m_deVeras.NombreTienda = u"Servidor"_s;
    m_deVeras.MultiTienda = m_deVeras.PermiteListadoVariosDias = true;
    m_deVeras.Tiendas.reserva(4);
    m_deVeras.Tiendas[1].Texto = u"Sur"_s;
    m_deVeras.Tiendas[2].Texto = u"Vacía"_s;
    m_deVeras.Tiendas[3].Texto = u"Centro"_s;
    FilaCatalogo fila = prueba::fila(u"cmd_Ventas7");
    fila.constructores[0].constructor = soloDondeSeVende;
    Ejecutor{m_deVeras, {m_ventanas, m_ventanas, m_ventanas, m_salida, m_ventanas}, m_reloj}.ejecuta(fila);
    EXPECT_EQ(m_ventanas.sucesos,
              (QStringList{u"frmFechas"_s, u"parar"_s, u"espera"_s, u"vista"_s, u"Listados: No hay datos para ser mostrados."_s,
                           u"espera"_s, u"vista"_s, u"cerrar"_s}));
    EXPECT_EQ(m_deVeras.TiendaSeleccionada, u"Centro"_s);
}

} // namespace
} // namespace kestrane::catalogue
