#include "cash/listado_caja_general.h"

#include "cash/filas_de_caja.h"
#include "cash/movimientos_de_caja.h"
#include "cash/servicios_compartidos.h"
#include "cash/sumas_por_empleado.h"
#include "cash/vendedores.h"
#include "cash/vocabulary/alcance.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sentencias_numero.h"

namespace kestrane {

using namespace Qt::StringLiterals;
using namespace cash;

namespace {

/// The lines of the balance, euros.
struct Saldo
{
    double NoCobrado = 0;
    double Gastos = 0;
    double Cobros = 0;
    double CajaInicial = 0;
    double IngresoDeposito = 0;
    double Retiradas = 0;
    double Devoluciones = 0; ///< stays 0: returns are in the sellers' rows

    [[nodiscard]] double total() const
    {
        return -NoCobrado - Gastos + Cobros + CajaInicial - Retiradas + IngresoDeposito - Devoluciones;
    }
};

class CajaGeneral
{
public:
    explicit CajaGeneral(Listados& listados) : m_listados{listados} {}

    void construye();

private:
    void productos();
    void servicios();
    void ingresosEnDeposito();
    void familia(const FamiliaDeCaja& columnas, const SumaPorEmpleado& suma);
    void devueltoYAnulado(const FamiliaDeCaja& columnas, const SumaPorEmpleado& suma);
    void sumasDelPeriodo();
    void resumen();
    void rotulosDelSabor();
    void tienda();

    template<class Accion>
    void porCadaSuma(const QString& sentencia, Accion accion);
    void ejecuta(const QString& sentencia) { m_contexto.ConexionListados.Execute(sentencia); }

    Listados& m_listados;
    ContextoEjecucion& m_contexto{m_listados.contexto};
    Vendedores m_vendedores{m_listados};
    Saldo m_saldo;
};

void CajaGeneral::construye()
{
    productos();
    servicios();
    ingresosEnDeposito();
    familia(familias_de_caja::Packs, sumas::Packs);
    familia(familias_de_caja::PacksSpa, sumas::PacksSpa);
    sumasDelPeriodo();
    resumen();
    rotulosDelSabor();
    tienda();
}

template<class Accion>
void CajaGeneral::porCadaSuma(const QString& sentencia, Accion accion)
{
    Recordset sumasDeEmpleados;
    sumasDeEmpleados.Open(sentencia, m_contexto.ConexionTienda);
    if (sumasDeEmpleados.RecordCount() <= 0)
        return;
    for (Recordset& suma : sumasDeEmpleados)
        accion(suma);
}

void CajaGeneral::productos()
{
    const FamiliaDeCaja& columnas = familias_de_caja::Productos;
    porCadaSuma(sentenciaVendido(m_contexto, sumas::Productos),
                [&](Recordset& suma) { m_vendedores.vendeElPrimero(columnas, suma); });
    devueltoYAnulado(columnas, sumas::Productos);
}

void CajaGeneral::servicios()
{
    const FamiliaDeCaja& columnas = familias_de_caja::Servicios;
    porCadaSuma(sentenciaVendido(m_contexto, sumas::Servicios), [&](Recordset& suma) { m_vendedores.vende(columnas, suma); });
    sumaServiciosCompartidos(m_listados, m_vendedores);
    devueltoYAnulado(columnas, sumas::Servicios);
    if (m_contexto.CajaCompleta)
        anadeServiciosCompartidosAnulados(m_listados, m_vendedores);
}

void CajaGeneral::familia(const FamiliaDeCaja& columnas, const SumaPorEmpleado& suma)
{
    porCadaSuma(sentenciaVendido(m_contexto, suma), [&](Recordset& fila) { m_vendedores.vende(columnas, fila); });
    devueltoYAnulado(columnas, suma);
}

void CajaGeneral::devueltoYAnulado(const FamiliaDeCaja& columnas, const SumaPorEmpleado& suma)
{
    porCadaSuma(sentenciaDevuelto(m_contexto, suma), [&](Recordset& fila) { m_vendedores.devuelve(columnas, fila); });
    if (m_contexto.CajaCompleta)
        porCadaSuma(sentenciaAnulado(m_contexto, suma), [&](Recordset& fila) { m_vendedores.anula(columnas, fila); });
}

/// Whatever they were paid with, and for no employee.
void CajaGeneral::ingresosEnDeposito()
{
    const SumaPorEmpleado& suma = sumas::IngresosEnDeposito;
    const auto total = [](Recordset& fila) { return fila.Fields(u"total").doble(); };
    porCadaSuma(sentenciaVendido(m_contexto, suma), [&](Recordset& fila) { m_saldo.IngresoDeposito += total(fila); });
    porCadaSuma(sentenciaDevuelto(m_contexto, suma), [&](Recordset& fila) { m_saldo.IngresoDeposito -= total(fila); });
    if (m_contexto.CajaCompleta)
        porCadaSuma(sentenciaAnulado(m_contexto, suma), [&](Recordset& fila) { m_saldo.IngresoDeposito += total(fila); });
}

void CajaGeneral::sumasDelPeriodo()
{
    m_saldo.NoCobrado = totalNoCobrado(m_listados);
    m_saldo.Cobros = sumaDeImportes(m_listados, u"detalle_pago"_s);
    m_saldo.Gastos = sumaDeImportes(m_listados, u"gastos"_s);
    if (esDeUnDia(m_contexto))
        m_saldo.Retiradas = sumaDeImportes(m_listados, u"retiradas"_s);
    m_saldo.CajaInicial = cajaInicialDelDia(m_listados);
}

void CajaGeneral::resumen()
{
    ejecuta(u"Delete * from subinformes"_s);
    using resumen_de_caja::Entra;
    using resumen_de_caja::Sale;
    const LineaResumen lineas[] = {
        {Sale, m_saldo.NoCobrado, u",'Ventas no Cobradas:')"},         {Sale, m_saldo.Gastos, u",'Gastos del Dia:')"},
        {Entra, m_saldo.Cobros, u",'Cobros de deudas Pendientes:')"},  {Entra, m_saldo.CajaInicial, u",'Caja Inicial:')"},
        {Entra, m_saldo.IngresoDeposito, u",'Ingreso en Deposito:')"}, {Sale, m_saldo.Retiradas, u",'Retiradas del dia:')"},
        {Sale, m_saldo.Devoluciones, u",'Devoluciones de Venta:')"},
    };
    escribeResumen(m_listados, lineas);
    ejecutaConNumero(m_listados, u"update informes set numerico19= ", m_saldo.total());
}

/// Every row bears the names of the families that the flavour has, whether or not it sold in them.
void CajaGeneral::rotulosDelSabor()
{
    const QString& sabor = m_contexto.TipoPrograma;
    const bool spa = sabor == u"SPA";
    const bool conPacks = spa || sabor == u"CLINICAS" || sabor == u"ESTETICA";
    if (conPacks || sabor == u"PELUQUERIA")
        ejecuta(u"update informes set TEXTO1= 'Servicios'"_s);
    if (conPacks)
        ejecuta(u"update informes set TEXTO2= 'Pack Servicios'"_s);
    if (spa)
        ejecuta(u"update informes set TEXTO3= 'Pack Spa'"_s);
}

/// Written where there is one store, too.
void CajaGeneral::tienda()
{
    ejecuta(u"Update informes set texto33 = 'Tienda = "_s + m_contexto.TiendaSeleccionada + u'\'');
}

} // namespace

void ListadoCajaGeneral(Listados& listados)
{
    CajaGeneral{listados}.construye();
}

} // namespace kestrane
