// The twelve listings on demo shops of all flavours: the same rows in the same order on the three engines.

#include "apoyo/tienda_de_demostracion.h"
#include "listings/listado_empleados.h"
#include "listings/listados_articulos.h"
#include "listings/listados_maestros.h"
#include "listings/listados_servicios.h"
#include "pipeline/puesto_de_prueba.h"
#include "platform/suite/preferencias_en_tabla.h"
#include "run_context/principal.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using demo::Sabor;

bool siempre(const Sabor&)
{
    return true;
}
bool conArreglos(const Sabor& sabor)
{
    return !sabor.arreglos.empty();
}
bool conPacks(const Sabor& sabor)
{
    return !sabor.packs.empty();
}
bool conPacksSpa(const Sabor& sabor)
{
    return !sabor.packsSpa.empty();
}
bool conTallas(const Sabor& sabor)
{
    return sabor.oficio == demo::Oficio::TallaColor;
}

/// A builder, the order column that its dialog would have left, and the flavours that have something to list.
struct Listado
{
    const char* nombre;
    Constructor constructor;
    bool (*tieneFilas)(const Sabor&);
    QStringView orden = {};
};

constexpr Listado TodosLosListados[] = {
    {"ListadoServicios by name", ListadoServicios, siempre, u"Nombre"},
    {"ListadoServicios by section", ListadoServicios, siempre, u"Seccion"},
    {"ListadoServicios by code", ListadoServicios, siempre, u"Codigo"},
    {"ListadoArreglos", ListadoArreglos, conArreglos},
    {"ListadoPackServicios", ListadoPackServicios, conPacks},
    {"ListadoPackSpa", ListadoPackSpa, conPacksSpa},
    {"ListadoEmpleados", ListadoEmpleados, siempre},
    {"ListadoSecciones", ListadoSecciones, siempre},
    {"ListadoTallas", ListadoTallas, conTallas},
    {"ListadoMarcas", ListadoMarcas, siempre},
    {"ListadoColores", ListadoColores, conTallas},
    {"ListadoFormasPago", ListadoFormasPago, siempre},
    {"ListadoProveedores", ListadoProveedores, siempre},
    {"ListadoTalleres", ListadoTalleres, conArreglos},
};

using Fila = std::vector<std::pair<QString, Valor>>; ///< by the column's name, in lower case

std::vector<Fila> filasDe(const QString& tabla, Conexion& conexion)
{
    std::vector<Fila> todas;
    Recordset rs;
    rs.Open(tabla, conexion);
    for (Recordset& fila : rs) {
        Fila& nueva = todas.emplace_back();
        for (const jet::ColumnaResultado& columna : fila.columnas())
            nueva.emplace_back(columna.nombre.toLower(), fila.Fields(columna.nombre));
    }
    return todas;
}

struct Informe
{
    std::vector<Fila> informes;
    std::vector<Fila> subinformes;
};

/// A demo shop of one day on an engine, and the program started on it.
class Tienda
{
public:
    Tienda(jet::Motor motor, demo::TipoTienda tipo) : m_bases{motor}
    {
        prueba::llenaConDemostracion(m_bases, {.tipo = tipo, .tamano = demo::Tamano::Dia});
        PreferenciasEnTabla preferencias{u"mostrador"_s};
        ConectorTiendaDsn conector;
        Principal principal{m_contexto, conector, preferencias, m_reloj};
        principal.AbreConexiones();
        principal.Inicializa();
    }

    enum class Lectura { UnaAUna, DeInforme };

    /// The staging tables behind a builder. `DeInforme`: in a report's scope, as the menu runs it.
    Informe construye(const Listado& listado, Lectura lectura)
    {
        m_contexto.filtros.columnaOrden = listado.orden.toString();
        std::optional<database::AmbitoInforme> ambito;
        if (lectura == Lectura::DeInforme)
            ambito.emplace(m_contexto.ConexionTienda.EmpiezaInforme());
        listado.constructor(m_listados);
        return {filasDe(u"informes"_s, m_contexto.ConexionListados), filasDe(u"subinformes"_s, m_contexto.ConexionListados)};
    }

private:
    prueba::TiendaDePrueba m_bases;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 6, 14, 12)};
    prueba::ProgresoContado m_progreso;
    ContextoEjecucion m_contexto{m_bases.entorno()};
    Listados m_listados{m_contexto, m_progreso, m_reloj};
};

QString texto(const Valor& valor)
{
    return valor.esNulo() ? u"nulo"_s : aTexto(valor, ConfiguracionRegional::espania());
}

void compara(const std::vector<Fila>& esperadas, const std::vector<Fila>& dadas, const std::string& quien)
{
    ASSERT_EQ(dadas.size(), esperadas.size()) << quien;
    for (size_t fila = 0; fila < dadas.size(); ++fila) {
        ASSERT_EQ(dadas[fila].size(), esperadas[fila].size()) << quien;
        for (size_t i = 0; i < dadas[fila].size(); ++i) {
            const auto& [columna, valor] = dadas[fila][i];
            EXPECT_EQ(columna, esperadas[fila][i].first) << quien;
            EXPECT_TRUE(valor == esperadas[fila][i].second)
                << quien << ", row " << fila << ", " << columna.toStdString() << ": " << texto(valor).toStdString()
                << " instead of " << texto(esperadas[fila][i].second).toStdString();
        }
    }
}

void compara(const Informe& esperado, const Informe& dado, const std::string& quien)
{
    compara(esperado.informes, dado.informes, quien + ", informes");
    compara(esperado.subinformes, dado.subinformes, quien + ", subinformes");
}

class ListadosEnServidores : public testing::TestWithParam<demo::TipoTienda>
{
};

TEST_P(ListadosEnServidores, EveryListingHasTheSameRowsOnTheThreeEngines)
{
    const Sabor& sabor = demo::sabor(GetParam());
    Tienda sqlite{jet::Motor::Sqlite, GetParam()};
    Tienda postgresql{jet::Motor::PostgreSql, GetParam()};
    Tienda mariadb{jet::Motor::MariaDb, GetParam()};
    for (const Listado& listado : TodosLosListados) {
        const Informe esperado = sqlite.construye(listado, Tienda::Lectura::UnaAUna);
        EXPECT_EQ(!esperado.informes.empty(), listado.tieneFilas(sabor)) << listado.nombre;
        for (const Fila& fila : esperado.informes)
            EXPECT_NE(std::ranges::find(fila, std::pair{u"texto35"_s, Valor{sabor.empresa}}), fila.end()) << listado.nombre;
        compara(esperado, sqlite.construye(listado, Tienda::Lectura::DeInforme), std::string{listado.nombre} + " on SQLite");
        compara(esperado, postgresql.construye(listado, Tienda::Lectura::DeInforme),
                std::string{listado.nombre} + " on PostgreSQL");
        compara(esperado, mariadb.construye(listado, Tienda::Lectura::DeInforme), std::string{listado.nombre} + " on MariaDB");
    }
}

INSTANTIATE_TEST_SUITE_P(Sabores, ListadosEnServidores, testing::ValuesIn(demo::TodosLosTipos),
                         [](const auto& caso) { return demo::sabor(caso.param).tipoPrograma.toString().toStdString(); });

} // namespace
} // namespace kestrane
