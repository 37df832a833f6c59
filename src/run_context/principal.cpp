#include "run_context/principal.h"

#include "platform/database/recordset.h"
#include "platform/runtime/conversiones.h"
#include "platform/runtime/ruta.h"
#include "platform/suite/apariencia.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrane {

namespace {

/// The first record of a query, read field by field with the platform's conversions.
class PrimeraFila
{
public:
    PrimeraFila(const QString& sentencia, Conexion& conexion) : m_regional{conexion.entorno().regional()}
    {
        m_filas.Open(sentencia, conexion);
    }

    [[nodiscard]] bool hay() { return m_filas.RecordCount() > 0; }
    [[nodiscard]] Valor valor(QStringView campo) { return m_filas.Fields(campo); }
    /// Null is "".
    [[nodiscard]] QString texto(QStringView campo) { return aTexto(valor(campo), m_regional); }
    /// Without a record "".
    [[nodiscard]] QString textoSiHay(QStringView campo) { return hay() ? texto(campo) : QString{}; }
    [[nodiscard]] bool logico(QStringView campo) { return aLogico(valor(campo), m_regional); }
    [[nodiscard]] qint16 entero16(QStringView campo) { return aEntero16(valor(campo), m_regional); }
    [[nodiscard]] qint32 entero32(QStringView campo) { return aEntero32(valor(campo), m_regional); }
    /// Null is `siNulo`.
    [[nodiscard]] Fecha fecha(QStringView campo, Fecha siNulo)
    {
        const Valor suyo = valor(campo);
        return suyo.esNulo() ? siNulo : aFecha(suyo, m_regional);
    }

private:
    const ConfiguracionRegional& m_regional;
    Recordset m_filas;
};

ElementoPanel elementoDeTienda(const QString& nombre)
{
    return {.Texto = nombre, .ColorFondo = u"16777215"_s, .Imagen = {}, .Nombre = nombre, .Codigo = nombre};
}

} // namespace

Principal::Principal(ContextoEjecucion& contexto, ConectorTienda& conector, PreferenciasTerminal& preferencias, const Reloj& reloj)
    : m_contexto{contexto}
    , m_conector{conector}
    , m_preferencias{preferencias}
    , m_reloj{reloj}
{
}

Principal::Inicio Principal::Main(CopiaUnica& copia, const std::function<void()>& muestraMenu)
{
    if (!copia.ocupa())
        return Inicio::OtraCopia;
    AbreConexiones();
    Inicializa();
    muestraMenu();
    return Inicio::EnMarcha;
}

void Principal::AbreConexiones()
{
    m_conector.AbrirConexion({}, m_contexto.ConexionTienda);
    m_contexto.ConexionListados.ConnectionString(u"dsn=ListKestrane"_s);
    m_contexto.ConexionListados.Open();
}

void Principal::Inicializa()
{
    m_contexto.IdentificadorEquipo = m_preferencias.DarIdentificador();
    m_contexto.List1 = LeerList1();
    m_contexto.ClaveInstancia = m_contexto.IdentificadorEquipo + LeerList1();
    m_contexto.RutaFotos = m_contexto.CarpetaPrograma + u"\\fotos\\"_s;
    LeerApariencia();
    LeerRutaBandera();
    LeerNombreRegional();
    LeerMigracionVentas();
    if (m_contexto.MigracionVentas)
        LeerFechaMigracionVentas();
    LeerTerminal();
    LeerImpresoras();
    LeerOpciones();
    LeerIdentificacionFiscal();
    LeerMultiTienda();
    if (enServidor(m_contexto))
        CargarListaTiendas();
    LeerPermiteListadoVariosDias();
    LeerModuloFacturas();
}

QString Principal::LeerList1() const
{
    Conexion propia{m_contexto.ConexionListados.entorno()};
    propia.ConnectionString(u"dsn=ListKestrane"_s);
    propia.Open();
    QString list1 = PrimeraFila{u"Select list1 from listadostemporal"_s, propia}.textoSiHay(u"list1");
    propia.Close();
    return list1;
}

void Principal::LeerApariencia()
{
    Conexion& tienda = m_contexto.ConexionTienda;
    m_contexto.Tema = m_preferencias.DarTema(tienda);
    m_contexto.AnchoVentana = m_preferencias.DarAncho(tienda);
    m_contexto.AltoVentana = m_preferencias.DarAlto(tienda);
    m_contexto.AnchoDiseno = TamanoDeDiseno.ancho;
    m_contexto.AltoDiseno = TamanoDeDiseno.alto;
    m_contexto.TamanoLetra = m_preferencias.DarLetra(tienda);
}

void Principal::LeerRutaBandera()
{
    PrimeraFila fila{u"Select bandera from configuracionregional"_s, m_contexto.ConexionTienda};
    const QString ruta = fila.textoSiHay(u"Bandera");
    const bool existe = QFileInfo{rutaDeMaquina(ruta, m_contexto.CarpetaPrograma)}.isFile();
    m_contexto.RutaBandera = existe ? ruta : QString{};
}

void Principal::LeerNombreRegional()
{
    PrimeraFila fila{u"Select nombre from configuracionregional"_s, m_contexto.ConexionTienda};
    m_contexto.NombreRegional = fila.textoSiHay(u"nombre");
}

void Principal::LeerMigracionVentas()
{
    PrimeraFila fila{u"Select * from migraciontablas where tabla = 'Ventas' and estado = -1"_s, m_contexto.ConexionTienda};
    m_contexto.MigracionVentas = fila.hay();
}

void Principal::LeerFechaMigracionVentas()
{
    PrimeraFila fila{u"Select fecha from migraciontablas where tabla = 'Ventas' and estado =-1"_s, m_contexto.ConexionTienda};
    if (fila.hay())
        m_contexto.FechaMigracionVentas = fila.fecha(u"fecha", m_reloj.hoy());
}

void Principal::LeerTerminal()
{
    PrimeraFila fila{u"Select empleado,terminal from opciones_terminal where identificador = '"_s + m_contexto.IdentificadorEquipo +
                         u'\'',
                     m_contexto.ConexionTienda};
    if (!fila.hay())
        return;
    m_contexto.NombreTerminal = fila.texto(u"terminal");
    m_contexto.EmpleadoTerminal = fila.entero32(u"empleado");
}

QString Principal::impresora(QChar tipo)
{
    PrimeraFila fila{u"Select impresora from impresoras where tipo = '"_s + tipo + u"' and terminal = '"_s +
                         m_contexto.NombreTerminal + u'\'',
                     m_contexto.ConexionTienda};
    return fila.textoSiHay(u"impresora");
}

void Principal::LeerImpresoras()
{
    m_contexto.ImpresoraTicket = impresora(u'T');
    m_contexto.ImpresoraListados = impresora(u'L');
    m_contexto.ImpresoraEtiquetas = impresora(u'E');
}

void Principal::LeerOpciones()
{
    PrimeraFila fila{u"Select Nombre, Direccion , Poblacion, Provincia, CP,UtilizaColores_empleados,Cif,moneda,Simbolo,"
                     u"tipo_programa,NumDecimales from opciones"_s,
                     m_contexto.ConexionTienda};
    if (!fila.hay())
        return;
    m_contexto.NumDecimales = fila.entero16(u"numDecimales");
    m_contexto.ConexionTienda.entorno().ponDecimales(m_contexto.NumDecimales); // for the amounts on paper
    m_contexto.TipoPrograma = fila.texto(u"Tipo_Programa");
    m_contexto.UtilizaColoresEmpleados = fila.logico(u"UtilizaColores_empleados");
    m_contexto.NombreEmpresa = fila.texto(u"nombre");
    m_contexto.DireccionEmpresa = fila.texto(u"Direccion");
    m_contexto.PoblacionEmpresa = fila.texto(u"poblacion");
    m_contexto.ProvinciaEmpresa = fila.texto(u"provincia");
    m_contexto.CPEmpresa = fila.texto(u"cp");
    m_contexto.CifEmpresa = fila.texto(u"Cif");
    m_contexto.Moneda = fila.texto(u"moneda");
    m_contexto.SimboloMoneda = fila.texto(u"simbolo");
}

void Principal::LeerIdentificacionFiscal()
{
    PrimeraFila fila{u"Select Identificacion_Fiscal from configuracionregional"_s, m_contexto.ConexionTienda};
    m_contexto.IdentificacionFiscal = fila.textoSiHay(u"Identificacion_Fiscal");
}

void Principal::LeerMultiTienda()
{
    m_contexto.NombreTienda.clear();
    m_contexto.MultiTienda = false;
    PrimeraFila fila{u"Select multitienda, nombretienda from opciones"_s, m_contexto.ConexionTienda};
    const QString letra = fila.textoSiHay(u"multitienda");
    if (letra != u"S" && letra != u"T")
        return;
    m_contexto.MultiTienda = true;
    m_contexto.NombreTienda = fila.texto(u"nombretienda");
}

void Principal::CargarListaTiendas()
{
    Recordset filas;
    filas.Open(u"Select nombre from multitienda where nombre <> 'Servidor'"_s, m_contexto.ConexionTienda);
    const qint32 tiendas = filas.RecordCount();
    if (tiendas == 0)
        return;
    ArrayPanel& lista = m_contexto.Tiendas;
    lista.reserva(tiendas + 1);
    lista[0] = elementoDeTienda(u"Todas"_s);
    int lugar = 0;
    for (Recordset& fila : filas)
        lista[++lugar] = elementoDeTienda(aTexto(fila.Fields(u"nombre"), m_contexto.ConexionTienda.entorno().regional()));
}

void Principal::LeerPermiteListadoVariosDias()
{
    PrimeraFila fila{u"select datoa from relaciones_fijas where indice ='PermiteListadoVariosDias'"_s, m_contexto.ConexionTienda};
    m_contexto.PermiteListadoVariosDias = !fila.hay() || fila.texto(u"datoa") == u"SI";
}

void Principal::LeerModuloFacturas()
{
    PrimeraFila fila{u"Select modulofacturas from opciones"_s, m_contexto.ConexionTienda};
    m_contexto.ModuloFacturas = fila.hay() && fila.logico(u"modulofacturas");
}

} // namespace kestrane
