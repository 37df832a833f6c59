#include "cash/caja_diaria.h"

#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/nombres.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sabores.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

CajaDiaria::CajaDiaria(Listados& listados)
    : m_listados{listados}
    , m_contexto{listados.contexto}
    , m_informe{listados, cabeceras::Completa}
{
}

void CajaDiaria::construye()
{
    if (esDeUnDia(m_contexto))
        cajaInicial();
    ventas();
    if (m_contexto.CajaCompleta)
        ventasRegularizadas();
    cobrosDeDeudas();
    devoluciones();
    gastos();
    if (esDeUnDia(m_contexto))
        retiradas();
    totales();
    observaciones();
    if (esComercio(m_contexto.TipoPrograma))
        vales();
}

/// The company's tax number stands behind the store, where there is one.
void CajaDiaria::nuevaFila()
{
    m_informe.AddNew();
    m_informe.anade(u"texto33", u' ' + m_contexto.CifEmpresa);
}

void CajaDiaria::ponNumero(const Valor& numero)
{
    m_informe.Fields(u"numerico1") = numero;
    m_informe.Fields(u"texto10") = numero;
}

void CajaDiaria::ponCliente(const Valor& codigo)
{
    m_informe.Fields(u"texto2") = NombreClienteNif(m_listados, codigo, m_nif);
    m_informe.Fields(u"texto30") = m_nif;
}

QString CajaDiaria::deLaTienda() const
{
    return u"  and tienda like "_s + patronTienda(m_contexto);
}

} // namespace kestrane::cash
