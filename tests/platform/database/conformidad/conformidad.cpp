#include "platform/database/conformidad/conformidad.h"

namespace kestrane::database::conformidad {

jet::Columna largo(const QString& nombre)
{
    return {nombre, TipoColumna::Entero32, 0, true};
}

jet::Columna corto(const QString& nombre)
{
    return {nombre, TipoColumna::Entero16, 0, true};
}

jet::Columna doble(const QString& nombre)
{
    return {nombre, TipoColumna::Doble, 0, true};
}

jet::Columna fecha(const QString& nombre)
{
    return {nombre, TipoColumna::FechaHora, 0, true};
}

jet::Columna siNo(const QString& nombre)
{
    return {nombre, TipoColumna::SiNo, 0, false};
}

jet::Columna texto(const QString& nombre, int ancho)
{
    return {nombre, TipoColumna::Texto, ancho, true};
}

jet::Columna memo(const QString& nombre)
{
    return {nombre, TipoColumna::Memo, 0, true};
}

jet::Columna noNula(jet::Columna columna)
{
    columna.admiteNulo = false;
    return columna;
}

namespace {

QString enPalabras(Fecha fecha)
{
    const auto dos = [](int numero) { return QString::number(numero).rightJustified(2, u'0'); };
    const QString hora = dos(fecha.hora()) + u':' + dos(fecha.minuto()) + u':' + dos(fecha.segundo());
    if (fecha.esDiaCero())
        return hora;
    const QString dia = QString::number(fecha.anio()).rightJustified(4, u'0') + u'-' + dos(fecha.mes()) + u'-' + dos(fecha.dia());
    return fecha.esMedianoche() ? dia : dia + u' ' + hora;
}

} // namespace

std::string enPalabras(const Valor& valor)
{
    switch (valor.clase()) {
    case Valor::Clase::Nulo:
        return "NULL";
    case Valor::Clase::Logico:
        return valor.logico() ? "si" : "no";
    case Valor::Clase::Entero16:
    case Valor::Clase::Entero32:
        return std::to_string(valor.entero32());
    case Valor::Clase::Doble:
        return QByteArray::number(valor.doble(), 'g', 15).toStdString();
    case Valor::Clase::Fecha:
        return enPalabras(valor.fecha()).toStdString();
    case Valor::Clase::Texto:
        break;
    }
    return "'" + valor.texto().toStdString() + "'";
}

Conformidad::Conformidad()
    : m_contexto{creaContexto()}
    , m_entorno{std::make_unique<EntornoDatos>(m_contexto->opciones())}
    , m_tienda{*m_entorno}
    , m_listados{*m_entorno}
{
}

void Conformidad::crea(const QString& nombre, std::initializer_list<jet::Columna> columnas, Base base, bool conClave)
{
    jet::Tabla tabla;
    tabla.nombre = nombre;
    tabla.columnas = columnas;
    tabla.tieneClavesUnicas = conClave;
    m_contexto->crearTabla(base, tabla);
}

void Conformidad::tabla(const QString& nombre, std::initializer_list<jet::Columna> columnas, Base base)
{
    crea(nombre, columnas, base, false);
}

void Conformidad::tablaConClave(const QString& nombre, std::initializer_list<jet::Columna> columnas, Base base)
{
    crea(nombre, columnas, base, true);
}

Conexion& Conformidad::abierta(Conexion& conexion, Base base)
{
    if (!conexion.abierta())
        conexion.Open(u"dsn="_s + dsn(base));
    return conexion;
}

std::unique_ptr<Conexion> Conformidad::otra(Base base)
{
    auto conexion = std::make_unique<Conexion>(*m_entorno);
    conexion->Open(u"dsn="_s + dsn(base));
    return conexion;
}

void Conformidad::ejecuta(std::initializer_list<QString> sentencias)
{
    for (const QString& sentencia : sentencias)
        tienda().Execute(sentencia);
}

std::string Conformidad::filas(const QString& sentencia, Conexion& conexion)
{
    Recordset leidas;
    leidas.Open(sentencia, conexion);
    std::string todas;
    for (Recordset& fila : leidas) {
        for (int i = 0; i < static_cast<int>(fila.columnas().size()); ++i)
            todas += (i > 0 ? "," : "") + enPalabras(fila.Fields(i));
        todas += "|";
    }
    return todas;
}

qint32 Conformidad::error(const std::function<void()>& accion)
{
    try {
        accion();
        m_descripcion.clear();
        return 0;
    } catch (const ErrorEjecucion& error) {
        m_descripcion = error.descripcion();
        return error.numero();
    }
}

qint32 Conformidad::errorDe(const QString& sentencia)
{
    return error([&] { tienda().Execute(sentencia); });
}

} // namespace kestrane::database::conformidad
