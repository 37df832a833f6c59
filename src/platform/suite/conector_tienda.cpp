#include "platform/suite/conector_tienda.h"

using namespace Qt::StringLiterals;

namespace kestrane {

void ConectorTiendaDsn::AbrirConexion(const QString& texto, Conexion& conexion)
{
    conexion.ConnectionString(texto.isEmpty() ? u"dsn=TiendaKestrane"_s : texto);
    conexion.Open();
}

} // namespace kestrane
