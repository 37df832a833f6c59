#include "cash/resumen_impuestos.h"

#include "cash/vocabulary/totales_ventas.h"
#include "pipeline/fragmentos_sql.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// Lines of one rate.
struct Grupo
{
    double tipo = 0; ///< per cent
    double impuesto = 0;
    double precio = 0;
};

class ResumenDeImpuestos
{
public:
    explicit ResumenDeImpuestos(Listados& listados) : m_listados{listados} {}

    void construye();

private:
    void suma(Recordset& linea);
    void cierraGrupo();
    [[nodiscard]] bool cuenta(Recordset& linea);
    [[nodiscard]] bool devuelta(Recordset& linea);

    Listados& m_listados;
    Recordset m_filas;
    Grupo m_grupo; ///< begins as one of rate 0, which a first line of another rate closes empty
};

/// Whatever lines of a sale were returned.
ConsultaPorCodigo consultaDeDevueltas()
{
    return {u"Select codigo from detalle_abono where num_factura = "_s, {}};
}

void ResumenDeImpuestos::construye()
{
    ContextoEjecucion& contexto = m_listados.contexto;
    contexto.ConexionListados.Execute(u"Delete * from SubInformes"_s);
    m_filas.Open(u"Select * from Subinformes"_s, contexto.ConexionListados, CursorType::Keyset, LockType::Optimistic);
    // The lines of all stores, whichever is chosen.
    Recordset lineas;
    lineas.Open(
        u"Select * from detalle_factura where num_factura in (SElect numero from cabecera_factura where fechaventa between "_s +
            entreFechas(contexto) + u" ) order by tipoimpuesto"_s,
        contexto.ConexionTienda);
    if (lineas.RecordCount() <= 0)
        return;
    consultaDeDevueltas().anuncia(lineas, u"num_factura"_s);
    for (Recordset& linea : lineas) {
        if (cuenta(linea))
            suma(linea);
        m_listados.progreso.IncrementaBarra();
    }
    cierraGrupo();
}

bool ResumenDeImpuestos::cuenta(Recordset& linea)
{
    return !esIngresoEnDeposito(m_listados, linea) && !devuelta(linea);
}

/// Hardly any sale has returned lines, and whether one has can be read ahead: its lines then need not be looked up one by one.
bool ResumenDeImpuestos::devuelta(Recordset& linea)
{
    const Valor factura = linea.Fields(u"num_factura");
    const Valor codigo = linea.Fields(u"codigo");
    if (!codigo.esNulo() && !hayFila(m_listados, consultaDeDevueltas().sentencia(m_listados, factura)))
        return false;
    return TieneDetalleAbono(m_listados, factura, codigo);
}

void ResumenDeImpuestos::suma(Recordset& linea)
{
    const Valor tipo = linea.Fields(u"tipoimpuesto");
    if (tipo.esNulo() || tipo.doble() != m_grupo.tipo) {
        cierraGrupo();
        m_grupo = {tipo.doble(), 0, 0};
    }
    m_grupo.impuesto += linea.Fields(u"impuesto").doble();
    m_grupo.precio += linea.Fields(u"precio").doble();
}

/// A group of a negative rate leaves no row.
void ResumenDeImpuestos::cierraGrupo()
{
    if (m_grupo.tipo < 0)
        return;
    m_filas.AddNew();
    m_filas.Fields(u"texto3") = u" al "_s + m_listados.texto(m_grupo.tipo) + u"% "_s;
    m_filas.Fields(u"numerico5") = m_grupo.precio;
    m_filas.Fields(u"numerico4") = m_grupo.precio - m_grupo.precio / (1 + m_grupo.tipo / 100);
    m_filas.Update();
}

} // namespace

bool TieneDetalleAbono(Listados& listados, const Valor& factura, const Valor& codigo)
{
    return hayFila(listados, u"Select codigo from detalle_abono where num_factura = "_s + listados.texto(factura) +
                                 u" and codigo = "_s + listados.texto(codigo));
}

void escribeResumenDeImpuestos(Listados& listados)
{
    ResumenDeImpuestos{listados}.construye();
}

} // namespace kestrane
