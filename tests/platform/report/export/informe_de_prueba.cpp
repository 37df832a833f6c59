#include "platform/report/export/informe_de_prueba.h"

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

int FilasDePrueba::gruposQueEmpiezan(qsizetype fila) const
{
    const int grupos = static_cast<int>(claves.size());
    for (int grupo = 0; fila > 0 && grupo < grupos; ++grupo) {
        const int clave = claves[static_cast<size_t>(grupo)];
        if (valor(fila, clave) != valor(fila - 1, clave))
            return grupos - grupo;
    }
    return fila == 0 ? grupos : 0;
}

InformeDePrueba::InformeDePrueba(const QStringList& columnas)
{
    filas.nombres = columnas;
    layout.fichero = u"prueba.rpt"_s;
    layout.titulo = u"Prueba"_s;
}

void InformeDePrueba::columna(const QString& titulo, const QString& valor, const report::FormatoValor& formato,
                              std::optional<report::FuncionAgregado> total)
{
    report::ColumnaDatos nueva;
    nueva.titulo = titulo;
    nueva.valor = analiza(valor);
    nueva.formato = formato;
    const bool texto = formato.formato == report::Formato::General;
    nueva.horizontal = texto ? report::Horizontal::Izquierda : report::Horizontal::Derecha;
    nueva.conTotal = total.has_value();
    nueva.total = total.value_or(report::FuncionAgregado::Suma);
    layout.columnas.push_back(std::move(nueva));
}

void InformeDePrueba::grupo(const QString& por, const QString& titulo)
{
    report::Grupo nuevo;
    nuevo.nombre = por;
    nuevo.por = analiza(por);
    if (!titulo.isEmpty())
        nuevo.titulo = analiza(titulo);
    layout.grupos.push_back(std::move(nuevo));
    filas.claves.push_back(static_cast<int>(filas.nombres.indexOf(por)));
}

report::Expresion InformeDePrueba::analiza(const QString& texto)
{
    report::ContextoAnalisis contexto{.grupos = {}, .nivel = 0, .agregados = layout.agregados};
    return report::analizaExpresion(texto, {u"prueba.rpt"_s, 1}, contexto);
}

qint64 DiscoLleno::writeData(const char*, qint64 bytes)
{
    if (bytes > m_caben) {
        setErrorString(qt_error_string(ENOSPC));
        return -1;
    }
    m_caben -= bytes;
    return bytes;
}

} // namespace kestrane::prueba
