#include "lote/consola_sql.h"

#include "lote/escritor_informes.h"
#include "lote/escritor_json.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

void anadeColumnas(QByteArray& linea, std::span<const jet::ColumnaResultado> columnas)
{
    linea.append(R"({"columnas":[)");
    for (const jet::ColumnaResultado& columna : columnas) {
        if (&columna != columnas.data())
            linea.append(',');
        linea.append(R"({"nombre":)");
        anadeTextoJson(linea, columna.nombre);
        linea.append(R"(,"tipo":)");
        anadeTextoJson(linea, QString{jet::nombreDeTipo(columna.tipo)});
        linea.append('}');
    }
    linea.append(R"(],"filas":[)");
}

void anadeFila(QByteArray& linea, Recordset& fila)
{
    linea.append('[');
    for (int columna = 0; columna < static_cast<int>(fila.columnas().size()); ++columna) {
        if (columna > 0)
            linea.append(',');
        anadeValorJson(linea, fila.Fields(columna));
    }
    linea.append(']');
}

} // namespace

ConsolaSql::ConsolaSql(database::Conexion& conexion, Permiso permiso, QIODevice& salida, Avisos& avisos)
    : m_conexion{conexion}
    , m_permiso{permiso}
    , m_salida{salida}
    , m_avisos{avisos}
{
}

std::optional<ErrorEjecucion> ConsolaSql::ejecuta(QStringView sentencia)
{
    m_linea.clear();
    m_avisos.avanza();
    try {
        responde(sentencia.toString());
        return {};
    } catch (const ErrorEjecucion& error) {
        responde(error);
        return error;
    }
}

int ConsolaSql::ejecutaLineas(QIODevice& fichero)
{
    int errores = 0;
    while (!fichero.atEnd()) {
        const QString sentencia = sinEscapes(QString::fromUtf8(fichero.readLine()).remove(u'\n').remove(u'\r'));
        if (!sentencia.trimmed().isEmpty() && ejecuta(sentencia))
            ++errores;
    }
    return errores;
}

void ConsolaSql::responde(const QString& sentencia)
{
    if (m_conexion.claseDe(sentencia) == jet::Traduccion::Clase::Consulta)
        return respondeFilas(sentencia);
    if (m_permiso == Permiso::SoloLectura)
        throw ErrorEjecucion{ErrorEjecucion::SentenciaRechazada,
                             u"Sin --escribir solo se admiten consultas (SELECT): la sentencia no se ha ejecutado."_s};
    m_linea.append(R"({"afectadas":)").append(QByteArray::number(m_conexion.Execute(sentencia))).append("}\n");
    envia();
}

void ConsolaSql::respondeFilas(const QString& sentencia)
{
    Recordset filas;
    filas.Open(sentencia, m_conexion);
    anadeColumnas(m_linea, filas.columnas());
    bool primera = true;
    for (Recordset& fila : filas) {
        if (!primera)
            m_linea.append(',');
        primera = false;
        anadeFila(m_linea, fila);
        if (m_linea.size() > TrozoDeSalida)
            envia();
    }
    m_linea.append("]}\n");
    envia();
}

void ConsolaSql::responde(const ErrorEjecucion& error)
{
    // Rows that went out already stand on a line that stays open: the error gets a line of its own.
    m_linea = m_aMedias ? "\n" : "";
    m_linea.append(R"({"error":)").append(QByteArray::number(error.numero())).append(R"(,"descripcion":)");
    anadeTextoJson(m_linea, error.descripcion());
    m_linea.append("}\n");
    envia();
}

void ConsolaSql::envia()
{
    m_avisos.empiezanLosResultados();
    m_aMedias = !m_linea.endsWith('\n');
    vuelca(m_linea, m_salida);
}

QString sinEscapes(QStringView linea)
{
    QString texto;
    texto.reserve(linea.size());
    for (qsizetype i = 0; i < linea.size(); ++i) {
        const QChar siguiente = i + 1 < linea.size() ? linea[i + 1] : QChar{};
        if (linea[i] != u'\\' || (siguiente != u'r' && siguiente != u'n' && siguiente != u'\\')) {
            texto.append(linea[i]);
            continue;
        }
        texto.append(siguiente == u'r' ? u'\r' : siguiente == u'n' ? u'\n' : u'\\');
        ++i;
    }
    return texto;
}

} // namespace kestrane::lote
