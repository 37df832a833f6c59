#include "lote/informes_json.h"

#include "lote/escritor_json.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/motivo_sistema.h"

#include <QFile>

#include <vector>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

void anadeCampo(QByteArray& linea, const char* nombre, const QString& valor)
{
    linea.append('"').append(nombre).append("\":");
    anadeTextoJson(linea, valor);
    linea.append(',');
}

/// `"texto1":` for each column.
std::vector<QByteArray> claves(const Recordset& filas)
{
    std::vector<QByteArray> todas;
    for (const jet::ColumnaResultado& columna : filas.columnas()) {
        QByteArray clave;
        anadeTextoJson(clave, columna.nombre.toLower());
        todas.push_back(clave + ':');
    }
    return todas;
}

void anadeFila(QByteArray& linea, Recordset& fila, const std::vector<QByteArray>& claves)
{
    linea.append('{');
    bool primera = true;
    for (int columna = 0; columna < static_cast<int>(claves.size()); ++columna) {
        const Valor valor = fila.Fields(columna);
        if (valor.esNulo())
            continue;
        if (!primera)
            linea.append(',');
        primera = false;
        linea.append(claves[static_cast<size_t>(columna)]);
        anadeValorJson(linea, valor);
    }
    linea.append('}');
}

void anadeFilas(QByteArray& linea, const QString& sentencia, Conexion& listados, QIODevice& cuerpo)
{
    Recordset filas;
    filas.Open(sentencia, listados);
    const std::vector<QByteArray> nombres = claves(filas);
    linea.append('[');
    bool primera = true;
    for (Recordset& fila : filas) {
        if (!primera)
            linea.append(",\n  ");
        primera = false;
        anadeFila(linea, fila, nombres);
        vuelcaSiEsMucho(linea, cuerpo);
    }
    linea.append(']');
}

} // namespace

QStringList InformesJson::escribe(const InformeMostrado& informe, Conexion& listados, const QString& base)
{
    QFile cuerpo{base + u".json"_s};
    if (!cuerpo.open(QIODevice::WriteOnly))
        throw ErrorDeSalida{motivoDe(cuerpo)};
    escribeCuerpo(informe, listados, cuerpo);
    if (!cuerpo.flush())
        throw ErrorDeSalida{motivoDe(cuerpo)};
    return {cuerpo.fileName()};
}

void InformesJson::escribeCuerpo(const InformeMostrado& informe, Conexion& listados, QIODevice& cuerpo)
{
    QByteArray linea = "{";
    anadeCampo(linea, "control", informe.control);
    anadeCampo(linea, "tienda", informe.tienda);
    anadeCampo(linea, "layout", informe.layout);
    anadeCampo(linea, "impresora", informe.impresora);
    linea.append(informe.datos ? "\"datos\":true,\n \"informes\":" : "\"datos\":false,\n \"informes\":");
    anadeFilas(linea, u"select * from informes"_s, listados, cuerpo);
    linea.append(",\n \"subinformes\":");
    anadeFilas(linea, u"select * from subinformes"_s, listados, cuerpo);
    linea.append('}');
    vuelca(linea, cuerpo);
}

} // namespace kestrane::lote
