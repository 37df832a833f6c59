#include "apoyo/tienda_de_demostracion.h"

#include "instalacion/carga/carga.h"
#include "instalacion/demo/generador.h"

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

namespace {

/// One of the two databases while it is filled. The embedded one takes all rows in one transaction.
class BaseAbierta
{
public:
    BaseAbierta(const EntornoDatos& entorno, const QString& dsn) : m_motor{entorno.abre({.dsn = dsn, .usuario = {}, .clave = {}})}
    {
        enFichero("begin");
    }

    [[nodiscard]] instalacion::Carga& carga() { return m_carga; }
    void termina()
    {
        m_carga.envia();
        enFichero("commit");
    }

private:
    void enFichero(const QByteArray& sentencia)
    {
        if (m_motor->clase() == jet::Motor::Sqlite)
            m_motor->prepara(sentencia, {}, {})->ejecuta({});
    }

    std::unique_ptr<database::MotorBase> m_motor;
    instalacion::Carga m_carga{*m_motor};
};

} // namespace

void llenaConDemostracion(TiendaDePrueba& tienda, const demo::Parametros& parametros)
{
    BaseAbierta deTienda{tienda.entorno(), u"TiendaKestrane"_s};
    BaseAbierta deListados{tienda.entorno(), u"ListKestrane"_s};
    instalacion::Reparto reparto{deTienda.carga(), deListados.carga()};
    demo::generaTienda(parametros, reparto);
    deTienda.termina();
    deListados.termina();
}

} // namespace kestrane::prueba
