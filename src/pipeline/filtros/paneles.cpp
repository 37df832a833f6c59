#include "pipeline/filtros/paneles.h"

#include "platform/database/recordset.h"
#include "platform/runtime/conversiones.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// Where a panel's elements come from, and in what they differ.
struct Origen
{
    QStringView sentencia;
    QStringView todos;
    QStringView marcaDeColor;
    QStringView segundoNombre; ///< joined behind the name with a blank; empty when there is none
    bool enRutaFotos = false;
    bool colorVacioVaPorTurno = false;
};

constexpr Origen Secciones{.sentencia = u"Select * from Seccion where Borrar=false order by posicion",
                           .todos = u"Todas las Secciones",
                           .marcaDeColor = u"sec_color",
                           .segundoNombre = {}};
constexpr Origen Empleados{.sentencia = u"Select codigo,nombre,apellidos,imagen,color,emp_color from empleados where baja= "
                                        u"false and mostrar_caja = -1 order by posicion",
                           .todos = u"Todos los Empleados",
                           .marcaDeColor = u"emp_color",
                           .segundoNombre = u"Apellidos",
                           .enRutaFotos = true,
                           .colorVacioVaPorTurno = true};
constexpr Origen Proveedores{.sentencia = u"Select * from Proveedores where Borrar=false order by posicion",
                             .todos = u"Todos los Proveedores",
                             .marcaDeColor = u"prv_color",
                             .segundoNombre = {}};

const Origen& origenDe(PanelDe panel)
{
    switch (panel) {
    case PanelDe::Secciones:
        return Secciones;
    case PanelDe::Empleados:
        return Empleados;
    case PanelDe::Proveedores:
        break;
    }
    return Proveedores;
}

/// Null, an empty text and 0, as a number or written out.
bool diceQueNoTiene(const Valor& marca)
{
    if (marca.esNulo())
        return true;
    if (marca.clase() != Valor::Clase::Texto)
        return marca.doble() == 0;
    bool esNumero = false;
    const double numero = marca.texto().toDouble(&esNumero);
    return marca.texto().isEmpty() || (esNumero && numero == 0);
}

/// The elements of one load, and whose turn it is among the colours.
class Cargador
{
public:
    Cargador(const ContextoEjecucion& contexto, const Origen& origen, const ColoresPredefinidos& colores)
        : m_contexto{contexto}
        , m_origen{origen}
        , m_colores{colores}
    {
    }

    [[nodiscard]] ElementoPanel elemento(Recordset& fila)
    {
        const QString nombre = nombreDe(fila);
        return {.Texto = nombre,
                .ColorFondo = colorDe(fila),
                .Imagen = imagenDe(fila),
                .Nombre = nombre,
                .Codigo = textoDe(fila.Fields(u"codigo"))};
    }

private:
    /// Null is "".
    [[nodiscard]] QString textoDe(const Valor& valor) const
    {
        return aTexto(valor, m_contexto.ConexionTienda.entorno().regional());
    }

    [[nodiscard]] QString nombreDe(Recordset& fila) const
    {
        const QString nombre = textoDe(fila.Fields(u"nombre"));
        return m_origen.segundoNombre.isEmpty() ? nombre : nombre + u" "_s + textoDe(fila.Fields(m_origen.segundoNombre));
    }

    [[nodiscard]] QString imagenDe(Recordset& fila) const
    {
        const Valor imagen = fila.Fields(u"imagen");
        if (imagen.esNulo())
            return u""_s;
        return m_origen.enRutaFotos ? m_contexto.RutaFotos + textoDe(imagen) : textoDe(imagen);
    }

    [[nodiscard]] QString colorDe(Recordset& fila)
    {
        if (diceQueNoTiene(fila.Fields(m_origen.marcaDeColor)))
            return siguiente();
        const Valor color = fila.Fields(u"color");
        const QString propio = color.esNulo() ? u"16777215"_s : textoDe(color);
        return propio.isEmpty() && m_origen.colorVacioVaPorTurno ? siguiente() : propio;
    }

    const QString& siguiente() { return m_colores.at(m_turno++ % m_colores.size()); }

    const ContextoEjecucion& m_contexto;
    const Origen& m_origen;
    const ColoresPredefinidos& m_colores;
    size_t m_turno = 0;
};

} // namespace

ElementoPanel elementoDeTodos(PanelDe panel)
{
    const QString texto = origenDe(panel).todos.toString();
    return {.Texto = texto, .ColorFondo = {}, .Imagen = {}, .Nombre = texto, .Codigo = QString::number(CodigoDeTodos)};
}

ArrayPanel cargaPanel(ContextoEjecucion& contexto, PanelDe panel, BotonDeTodos todos, const ColoresPredefinidos& colores)
{
    ArrayPanel elementos;
    const Origen& origen = origenDe(panel);
    Recordset filas;
    filas.Open(origen.sentencia.toString(), contexto.ConexionTienda, database::CursorType::Keyset);
    if (filas.RecordCount() <= 0 && todos == BotonDeTodos::Sin)
        return elementos;
    elementos.reserva(filas.RecordCount());
    int lugar = 0;
    if (todos == BotonDeTodos::Con)
        elementos[lugar++] = elementoDeTodos(panel);
    Cargador cargador{contexto, origen, colores};
    for (Recordset& fila : filas)
        elementos[lugar++] = cargador.elemento(fila);
    return elementos;
}

qint32 codigoDe(const ElementoPanel& elemento)
{
    return elemento.Codigo.toInt();
}

} // namespace kestrane
