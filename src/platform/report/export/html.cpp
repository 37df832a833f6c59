#include "platform/report/export/html.h"

#include "platform/report/export/recorrido_tabla.h"
#include "platform/runtime/error_de_salida.h"

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype Trozo = qsizetype{64} * 1024;

constexpr auto Principio = R"(<!DOCTYPE html>
<html lang="es">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>%1</title>
<style>
body { font: 10pt/1.35 "DejaVu Sans", Verdana, sans-serif; color: #1c2733; margin: 1.5rem; }
h1 { font-size: 1.4rem; margin: 0 0 .8rem; }
h2 { font-size: 1.1rem; margin: 1.4rem 0 .5rem; break-after: avoid; }
table { border-collapse: collapse; width: 100%; }
th, td { padding: .25rem .5rem; text-align: left; vertical-align: top; white-space: pre-line; }
thead th { background: #24425c; color: #fff; position: sticky; top: 0; }
tbody td { border-bottom: 1px solid #dfe5ea; }
tr.grupo th { padding-top: .8rem; border-bottom: 2px solid #24425c; }
tr.n1 th { padding-left: 1.5rem; }
tr.n2 th { padding-left: 2.5rem; }
tr.total th, tr.total td { font-weight: bold; background: #edf2f6; border-top: 1px solid #24425c; }
.d { text-align: right; font-variant-numeric: tabular-nums; }
.c { text-align: center; }
@page { size: %2; margin: 12mm; }
@media print {
  body { margin: 0; font-size: 8pt; }
  thead { display: table-header-group; }
  thead th { position: static; -webkit-print-color-adjust: exact; print-color-adjust: exact; }
  tr { break-inside: avoid; }
  tr.grupo { break-after: avoid; }
}
</style>
</head>
<body>
<h1>%1</h1>
)";

constexpr auto Final = "</body>\n</html>\n";

QByteArray sinMarcas(const QString& texto)
{
    return texto.toHtmlEscaped().toUtf8();
}

/// The paper, for the printing browser; rolls are left to it.
QByteArray hojaDe(const Pagina& pagina)
{
    if (pagina.esRollo())
        return "auto";
    return QByteArray::number(pagina.tamano.width()) + "mm " + QByteArray::number(pagina.tamano.height()) + "mm";
}

const char* claseDe(Horizontal horizontal)
{
    switch (horizontal) {
    case Horizontal::Derecha:
        return " class=\"d\"";
    case Horizontal::Centro:
        return " class=\"c\"";
    case Horizontal::Izquierda:
        break;
    }
    return "";
}

/// Bytes on their way out, sent when there are many.
class SalidaHtml
{
public:
    explicit SalidaHtml(QIODevice& destino) : m_destino{destino} {}

    SalidaHtml& operator<<(const QByteArray& texto)
    {
        m_texto += texto;
        return *this;
    }
    void envia(qsizetype desde = Trozo)
    {
        if (m_texto.size() < desde)
            return;
        escribeTodo(m_destino, m_texto);
        m_texto.clear();
    }

private:
    QIODevice& m_destino;
    QByteArray m_texto;
};

class TablaHtml final : public DestinoTabla
{
public:
    TablaHtml(const TablaInforme& tabla, SalidaHtml& salida) : m_tabla{tabla}, m_salida{salida} {}

    void principio()
    {
        m_salida << "<table aria-label=\"" << sinMarcas(m_tabla.titulo()) << "\">\n<thead><tr>";
        for (const ColumnaTabla& columna : m_tabla.columnas())
            celda("th scope=\"col\"", claseDe(columna.horizontal), sinMarcas(columna.titulo), "th");
        m_salida << "</tr></thead>\n<tbody>\n";
    }

    void final() { m_salida << "</tbody>\n</table>\n"; }

    void empiezaGrupo(int grupo, const QString& titulo) override
    {
        m_salida << R"(<tr class="grupo n)" + QByteArray::number(grupo) + R"("><th scope="rowgroup" colspan=")" +
                        QByteArray::number(m_tabla.columnas().size()) + "\">" + sinMarcas(titulo) + "</th></tr>\n";
    }

    void fila(const std::vector<Valor>& valores) override
    {
        m_salida << "<tr>";
        for (size_t columna = 0; columna < valores.size(); ++columna)
            celdaDe(valores[columna], columna, m_tabla.columnas()[columna].formato);
        m_salida << "</tr>\n";
        m_salida.envia();
    }

    void totales(int, const QString& titulo, const std::vector<Valor>& valores) override
    {
        m_salida << "<tr class=\"total\">";
        for (size_t columna = 0; columna < valores.size(); ++columna) {
            if (columna == 0 && !m_tabla.columnas()[0].total)
                celda("th scope=\"row\"", "", sinMarcas(titulo), "th");
            else
                celdaDe(valores[columna], columna, m_tabla.columnas()[columna].formatoTotal());
        }
        m_salida << "</tr>\n";
    }

private:
    void celdaDe(const Valor& valor, size_t columna, const FormatoValor& formato)
    {
        const QString escrito = escribeValor(valor, formato, m_tabla.regional());
        const char* const abre = escrito.isRightToLeft() ? "td dir=\"rtl\"" : "td";
        celda(abre, claseDe(m_tabla.columnas()[columna].horizontal), sinMarcas(escrito), "td");
    }

    void celda(const char* abre, const char* clase, const QByteArray& contenido, const char* cierra)
    {
        m_salida << "<" << abre << clase << ">" << contenido << "</" << cierra << ">";
    }

    const TablaInforme& m_tabla;
    SalidaHtml& m_salida;
};

bool escribeTabla(const TablaInforme& tabla, SalidaHtml& salida, const AvanceExportacion& avance)
{
    TablaHtml destino{tabla, salida};
    destino.principio();
    const bool entera = recorre(tabla, destino, avance);
    destino.final();
    return entera;
}

QByteArray principioDe(const TablaInforme& tabla)
{
    QByteArray cabeza = Principio;
    return cabeza.replace("%2", hojaDe(tabla.pagina())).replace("%1", sinMarcas(tabla.titulo()));
}

} // namespace

bool escribeHtml(const TablaInforme& tabla, QIODevice& destino, const AvanceExportacion& avance,
                 std::span<const TablaInforme> subinformes)
{
    SalidaHtml salida{destino};
    salida << principioDe(tabla);
    if (!escribeTabla(tabla, salida, avance))
        return false;
    for (const TablaInforme& una : subinformes) {
        salida << "<h2>" << sinMarcas(una.titulo()) << "</h2>\n";
        if (!escribeTabla(una, salida, {}))
            return false;
    }
    salida << Final;
    salida.envia(0);
    return true;
}

} // namespace kestrane::report
