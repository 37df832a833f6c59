#include "platform/database/conexion.h"

#include "platform/database/cadena_conexion.h"
#include "platform/database/estado_informe.h"
#include "platform/database/sesion.h"
#include "platform/runtime/error_ejecucion.h"

using namespace Qt::StringLiterals;

namespace kestrane::database {

Conexion::Conexion(EntornoDatos& entorno)
    : m_entorno{entorno}
    , m_informe{std::make_shared<EstadoInforme>(entorno.opciones().bytesRecordados)}
{
}

Conexion::~Conexion() = default;

void Conexion::Open(const QString& cadena, const QString& usuario, const QString& clave)
{
    Close();
    if (!cadena.isEmpty())
        m_cadena = cadena;
    m_usuario = usuario;
    m_clave = clave;
    abre();
}

void Conexion::abre()
{
    const DestinoConexion destino = leeCadena(m_cadena, m_usuario, m_clave);
    auto motor = m_entorno.abre(destino);
    m_sesion = std::make_unique<Sesion>(m_entorno, m_entorno.base(destino.dsn), std::move(motor), m_informe);
}

Sesion& Conexion::sesion()
{
    if (!m_sesion)
        throw ErrorEjecucion(ErrorEjecucion::ConexionImposible, u"La conexión no está abierta."_s);
    if (m_sesion->motor().perdida())
        abre(); // the lost one stays until the new one stands, so that a later use may try again
    return *m_sesion;
}

qint64 Conexion::Execute(const QString& sentencia)
{
    return sesion().ejecuta(sentencia);
}

jet::Traduccion::Clase Conexion::claseDe(const QString& sentencia)
{
    return sesion().prepara(sentencia).traduccion().clase;
}

bool Conexion::tieneTabla(QStringView nombre)
{
    return sesion().motor().catalogo().tabla(nombre) != nullptr;
}

jet::Motor Conexion::motor()
{
    return sesion().motor().clase();
}

void Conexion::Close()
{
    if (!m_sesion)
        return;
    const auto cerrada = std::move(m_sesion);
    cerrada->base().enviaYAvisa();
}

AmbitoInforme Conexion::EmpiezaInforme()
{
    return AmbitoInforme{m_informe};
}

} // namespace kestrane::database
