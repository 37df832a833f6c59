#include "platform/database/odbc/odbc_recursos.h"

#include "platform/database/error_motor.h"

#include <sqlucode.h>

#include <array>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

/// "[unixODBC][Driver]text;\nError while executing the query" -> "text".
QString sinMarcas(QString texto)
{
    while (texto.startsWith(u'[')) {
        const qsizetype fin = texto.indexOf(u']');
        if (fin < 0)
            break;
        texto = texto.mid(fin + 1);
    }
    for (const QStringView cola : {u";\nError while executing the query"_s, u";\nError while preparing parameters"_s}) {
        if (texto.endsWith(cola))
            texto.chop(cola.size());
    }
    return texto.trimmed();
}

} // namespace

void sinManejador()
{
    throw ErrorMotor(
        ErrorMotor::Categoria::SinSitio, ErrorEjecucion::ConexionImposible,
        u"El gestor de controladores ODBC no puede abrir otra conexión: cierre otros programas y repita la operación."_s);
}

ManejadorEntorno entornoOdbc3()
{
    ManejadorEntorno entorno{nullptr};
    SQLSetEnvAttr(entorno.get(), SQL_ATTR_ODBC_VERSION, numeroComoPuntero(SQL_OV_ODBC3), 0);
    return entorno;
}

std::vector<Diagnostico> diagnosticos(SQLSMALLINT clase, SQLHANDLE manejador)
{
    std::vector<Diagnostico> hallados;
    for (SQLSMALLINT i = 1; i <= 16; ++i) {
        std::array<SQLWCHAR, 6> estado{};
        std::array<SQLWCHAR, 2048> texto{};
        SQLINTEGER nativo = 0;
        SQLSMALLINT largo = 0;
        if (!SQL_SUCCEEDED(SQLGetDiagRecW(clase, manejador, i, estado.data(), &nativo, texto.data(), texto.size(), &largo)))
            break;
        hallados.push_back({QString::fromUtf16(reinterpret_cast<const char16_t*>(estado.data()), 5), nativo,
                            sinMarcas(QString::fromUtf16(reinterpret_cast<const char16_t*>(texto.data())))});
    }
    return hallados;
}

} // namespace kestrane::database::odbc
