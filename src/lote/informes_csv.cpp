#include "lote/informes_csv.h"

#include "instalacion/esquema.h"
#include "platform/database/recordset.h"
#include "platform/runtime/conversiones.h"

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

void anadeTexto(QByteArray& linea, const QString& texto)
{
    const bool entreComillas =
        texto.isEmpty() || texto.contains(u';') || texto.contains(u'"') || texto.contains(u'\n') || texto.contains(u'\r');
    if (!entreComillas) {
        linea.append(texto.toUtf8());
        return;
    }
    linea.append('"').append(QString{texto}.replace(u'"', u"\"\""_s).toUtf8()).append('"');
}

void anadeFila(QByteArray& linea, Recordset& fila, const QStringList& columnas, const ConfiguracionRegional& regional)
{
    for (const QString& columna : columnas) {
        linea.append(';');
        const Valor valor = fila.Fields(columna);
        if (!valor.esNulo())
            anadeTexto(linea, aTexto(valor, regional));
    }
    linea.append("\r\n");
}

} // namespace

InformesCsv::InformesCsv()
{
    for (const instalacion::ColumnaEsquema& columna : instalacion::baseListados().tabla(u"informes")->columnas)
        m_columnas += QString{columna.nombre}.toLower();
}

void InformesCsv::escribe(const InformeMostrado& informe, Conexion& listados, QIODevice& cuerpo)
{
    escribeFilas(informe.tienda, u"informes"_s, listados, cuerpo);
    escribeFilas(informe.tienda, u"subinformes"_s, listados, cuerpo);
}

void InformesCsv::escribeFilas(const QString& tienda, const QString& tabla, Conexion& listados, QIODevice& cuerpo)
{
    Recordset filas;
    filas.Open(u"select * from "_s + tabla, listados);
    QByteArray linea;
    for (Recordset& fila : filas) {
        anadeTexto(linea, tienda);
        linea.append(';').append(tabla.toUtf8());
        anadeFila(linea, fila, m_columnas, listados.entorno().regional());
        vuelcaSiEsMucho(linea, cuerpo);
    }
    vuelca(linea, cuerpo);
}

QByteArray InformesCsv::principio() const
{
    return "\xEF\xBB\xBFtienda;tabla;" + m_columnas.join(u';').toUtf8() + "\r\n";
}

} // namespace kestrane::lote
