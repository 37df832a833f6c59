#include "pipeline/catalogue/ejecutor_de_prueba.h"
#include "pipeline/catalogue/filas_esperadas.h"
#include "pipeline/sabores.h"

/// Each row of the catalogue from its press to its end: every call in its order, in each group of flavours, away from the server,
/// on it with all stores and with one, with its dialogs accepted and left, and for today alone.
namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;
using prueba::EjecutorTest;
using prueba::FilaEsperada;

enum class Puesto { Tienda, ServidorConTodas, ServidorConUna };

struct Caso
{
    QString sabor;
    Puesto puesto = Puesto::Tienda;
    bool aceptado = true;
    bool ticket = false;
    bool variosDias = true;
};

/// The first of several choices ("T_x.rpt?comercio K_x.rpt") whose condition holds, and its place among them; "" when none does.
std::pair<QString, int> elige(QStringView opciones, const Caso& caso)
{
    const auto cuenta = [&caso](const QString& condicion) {
        if (condicion == u"comercio")
            return esComercio(caso.sabor);
        if (condicion == u"tallacolor")
            return esDeTallaYColor(caso.sabor);
        if (condicion == u"alimentacion")
            return esDeAlimentacionYPerfume(caso.sabor);
        if (condicion == u"ticket")
            return caso.ticket;
        if (condicion == u"ticket+comercio")
            return caso.ticket && esComercio(caso.sabor);
        return condicion.isEmpty(); // totals of employees and reprints are not asked for here
    };
    int lugar = 0;
    for (const QString& opcion : opciones.toString().split(u' ', Qt::SkipEmptyParts)) {
        if (cuenta(opcion.section(u'?', 1)))
            return {opcion.section(u'?', 0, 0), lugar};
        ++lugar;
    }
    return {{}, 0};
}

class RecorridoFilas : public EjecutorTest, public testing::WithParamInterface<FilaEsperada>
{
protected:
    static bool tiene(QStringView marca) { return GetParam().marcas.toString().split(u' ').contains(marca.toString()); }
    static QStringList dialogos() { return GetParam().dialogos.toString().split(u' ', Qt::SkipEmptyParts); }
    static bool esGrafico() { return GetParam().constructores.isEmpty(); }

    void pon(const Caso& caso)
    {
        m_contexto.TipoPrograma = caso.sabor;
        m_contexto.PermiteListadoVariosDias = caso.variosDias;
        m_contexto.FormatoTicket = caso.ticket;
        m_contexto.FiltroAceptado = false;
        m_contexto.ClienteBuscado.clear();
        m_contexto.TiendaSeleccionada.clear();
        m_contexto.NombreTienda.clear();
        m_contexto.MultiTienda = false;
        if (caso.puesto != Puesto::Tienda)
            enServidorCon({u"Sur"_s, u"Centro"_s});
        if (caso.puesto == Puesto::ServidorConUna)
            m_contexto.TiendaSeleccionada = u"Centro"_s;
        m_pantalla.alMostrar = [this, aceptado = caso.aceptado](Dialogo cual) {
            if (cual == Dialogo::SelTienda)
                return;
            m_contexto.FiltroAceptado = aceptado;
            if (cual == Dialogo::Buscar && aceptado)
                m_contexto.ClienteBuscado = u"17"_s;
        };
    }

    /// The dialogs that are shown, and whether the report goes on behind them.
    static std::pair<QStringList, bool> pregunta(const Caso& caso)
    {
        QStringList sucesos;
        if (tiene(u"Select") && caso.puesto != Puesto::Tienda)
            sucesos += u"frmSelTienda"_s;
        if (dialogos().isEmpty())
            return {sucesos, true};
        if (tiene(u"Hoy") && !caso.variosDias)
            return {sucesos + QStringList{u"repinta"_s}, true};
        if (dialogos().constFirst() == u"frmBuscar" && !caso.aceptado)
            return {sucesos + QStringList{u"frmBuscar"_s}, false};
        return {sucesos + dialogos(), caso.aceptado || tiene(u"SinFiltroAceptado")};
    }

    static QStringList unaVez(const Caso& caso, const QString& tienda)
    {
        const QString construye = u"construye["_s + tienda + u']';
        if (esGrafico())
            return {u"grafico "_s + GetParam().disenos.toString(), construye};
        const auto [constructor, cual] = elige(GetParam().constructores, caso);
        if (constructor.isEmpty())
            return {};
        QStringList sucesos(cual + 1, construye); // the second builder of a row shows itself twice
        sucesos += {u"drena"_s, u"drena"_s};
        if (QString diseno = elige(GetParam().disenos, caso).first; !diseno.isEmpty()) {
            const bool enTicketera = diseno.endsWith(u'!');
            sucesos += enTicketera ? u"impresora Tira"_s : u"impresora Laser"_s;
            sucesos += u"imprime "_s + diseno.remove(u'!');
        }
        return sucesos;
    }

    static QStringList esperado(const Caso& caso)
    {
        auto [sucesos, sigue] = pregunta(caso);
        if (!sigue)
            return sucesos;
        const bool aviso = tiene(u"ConAviso");
        sucesos += aviso ? QStringList{u"aviso"_s, u"parar"_s, u"drena"_s} : QStringList{u"parar"_s};
        if (tiene(u"Bucle") && caso.puesto == Puesto::ServidorConTodas)
            sucesos += unaVez(caso, u"Sur"_s) + unaVez(caso, u"Centro"_s);
        else
            sucesos += unaVez(caso, caso.puesto == Puesto::ServidorConUna ? u"Centro"_s : QString{});
        sucesos += u"cerrar"_s;
        if (aviso)
            sucesos += u"sin aviso"_s;
        return sucesos;
    }

    void compara(const Caso& caso)
    {
        pon(caso);
        EXPECT_EQ(ejecuta(GetParam().control), esperado(caso))
            << caso.sabor.toStdString() << ", puesto " << static_cast<int>(caso.puesto) << (caso.aceptado ? "" : ", left")
            << (caso.ticket ? ", ticket" : "") << (caso.variosDias ? "" : ", today");
    }
};

const QStringList Sabores{u"PELUQUERIA"_s, u"TPV"_s, u"TALLACOLOR"_s, u"SUPERMERCADO"_s};
constexpr Puesto Puestos[] = {Puesto::Tienda, Puesto::ServidorConTodas, Puesto::ServidorConUna};

TEST_P(RecorridoFilas, TakesItsStepsInEachFlavourOnAndAwayFromTheServer)
{
    for (const QString& sabor : Sabores) {
        for (const Puesto puesto : Puestos)
            compara({.sabor = sabor, .puesto = puesto});
    }
}

TEST_P(RecorridoFilas, EndsWhereItsDialogIsLeft)
{
    for (const Puesto puesto : Puestos)
        compara({.sabor = u"SPA"_s, .puesto = puesto, .aceptado = false});
}

TEST_P(RecorridoFilas, TakesTheTicketFormatWhereItHasOne)
{
    for (const QString& sabor : Sabores)
        compara({.sabor = sabor, .ticket = true});
}

TEST_P(RecorridoFilas, SkipsItsDialogWhereItIsForTodayAlone)
{
    for (const Puesto puesto : Puestos)
        compara({.sabor = u"PERFUMERIA"_s, .puesto = puesto, .variosDias = false});
}

std::string nombreDeFila(const testing::TestParamInfo<FilaEsperada>& caso)
{
    return caso.param.control.toString().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Informes, RecorridoFilas, testing::ValuesIn(prueba::Informes), nombreDeFila);
INSTANTIATE_TEST_SUITE_P(Graficos, RecorridoFilas, testing::ValuesIn(prueba::Graficos), nombreDeFila);

} // namespace
} // namespace kestrane::catalogue
