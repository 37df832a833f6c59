#include "platform/report/export/csv.h"

#include "platform/report/export/avance_exportacion.h"
#include "platform/runtime/conversiones.h"
#include "platform/runtime/error_de_salida.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype Trozo = qsizetype{64} * 1024;
constexpr qsizetype FilasPorAviso = 256;

bool esNumeroOTelefono(QStringView texto)
{
    return std::ranges::all_of(texto, [](QChar signo) { return (signo >= u'0' && signo <= u'9') || u" .,"_s.contains(signo); });
}

bool pareceFormula(const QString& texto)
{
    if (texto.isEmpty())
        return false;
    const QChar primero = texto.front();
    if (primero == u'+' || primero == u'-')
        return !esNumeroOTelefono(QStringView{texto}.sliced(1));
    return primero == u'=' || primero == u'@' || primero == u'\t' || primero == u'\r';
}

void anadeTexto(QByteArray& linea, QString texto)
{
    if (pareceFormula(texto))
        texto.prepend(u'\'');
    const bool entreComillas = std::ranges::any_of(texto, [](QChar signo) { return u";\"\r\n"_s.contains(signo); });
    if (entreComillas)
        linea.append('"').append(texto.replace(u'"', u"\"\""_s).toUtf8()).append('"');
    else
        linea.append(texto.toUtf8());
}

/// Dates and times as on paper; numbers as a spreadsheet reads them back, with all their digits.
void anadeValor(QByteArray& linea, const TablaInforme& tabla, const Valor& valor, size_t columna)
{
    if (valor.clase() == Valor::Clase::Fecha)
        linea.append(tabla.escrito(valor, columna).toUtf8());
    else if (valor.clase() == Valor::Clase::Texto)
        anadeTexto(linea, valor.texto());
    else
        linea.append(aTexto(valor, tabla.regional()).toUtf8());
}

void anadeFila(QByteArray& linea, const TablaInforme& tabla, qsizetype fila)
{
    std::vector<Valor> valores = tabla.valores(fila);
    tabla.oculta(fila, valores);
    for (size_t columna = 0; columna < valores.size(); ++columna) {
        if (columna > 0)
            linea.append(';');
        anadeValor(linea, tabla, valores[columna], columna);
    }
    linea.append("\r\n");
}

QByteArray cabecera(const TablaInforme& tabla)
{
    QByteArray linea = "\xEF\xBB\xBF";
    for (size_t columna = 0; columna < tabla.columnas().size(); ++columna) {
        if (columna > 0)
            linea.append(';');
        anadeTexto(linea, tabla.columnas()[columna].titulo);
    }
    return linea + "\r\n";
}

} // namespace

bool escribeCsv(const TablaInforme& tabla, QIODevice& destino, const AvanceExportacion& avance)
{
    QByteArray lineas = cabecera(tabla);
    for (qsizetype fila = 0; fila < tabla.filas(); ++fila) {
        if (fila % FilasPorAviso == 0 && !sigue(avance, fila, tabla.filas()))
            return false;
        anadeFila(lineas, tabla, fila);
        if (lineas.size() > Trozo) {
            escribeTodo(destino, lineas);
            lineas.clear();
        }
    }
    escribeTodo(destino, lineas);
    return sigue(avance, 1, 1);
}

} // namespace kestrane::report
