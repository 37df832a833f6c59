#pragma once

#include "platform/report/layout/expresion.h"
#include "platform/report/layout/lector_layout.h"
#include "platform/runtime/error_ejecucion.h"
#include "platform/runtime/soporte.h"

#include <vector>

namespace kestrane {

/// Kind and content, for messages.
inline void PrintTo(const Valor& valor, std::ostream* salida)
{
    *salida << "Valor of kind " << static_cast<int>(valor.clase());
    if (valor.clase() == Valor::Clase::Texto)
        *salida << " \"" << valor.texto().toStdString() << '"';
    else if (valor.clase() == Valor::Clase::Doble)
        *salida << ' ' << valor.doble();
}

namespace prueba {

/// One row, one value for each aggregate, and a page.
struct AmbitoFijo final : report::AmbitoExpresion
{
    std::vector<Valor> fila_ = {};
    std::vector<Valor> agregados = {};
    int pagina_ = 1;
    int paginas_ = 0;

    [[nodiscard]] Valor columna(int indice) const override { return fila_.at(static_cast<size_t>(indice)); }
    [[nodiscard]] Valor agregado(int indice) const override { return agregados.at(static_cast<size_t>(indice)); }
    [[nodiscard]] int pagina() const override { return pagina_; }
    [[nodiscard]] int paginas() const override { return paginas_; }
    [[nodiscard]] qsizetype fila() const override { return 7; }
};

inline AmbitoFijo enPagina(int pagina, int paginas = 0)
{
    AmbitoFijo ambito;
    ambito.pagina_ = pagina;
    ambito.paginas_ = paginas;
    return ambito;
}

inline AmbitoFijo conFila(std::vector<Valor> fila)
{
    AmbitoFijo ambito;
    ambito.fila_ = std::move(fila);
    return ambito;
}

inline AmbitoFijo conAgregados(std::vector<Valor> agregados)
{
    AmbitoFijo ambito;
    ambito.agregados = std::move(agregados);
    return ambito;
}

/// What the run-time error that `accion` raises tells; nothing when it raises none.
template<class Accion>
QString descripcionDeError(Accion accion)
{
    try {
        static_cast<void>(accion());
    } catch (const ErrorEjecucion& error) {
        return error.descripcion();
    }
    return {};
}

/// `texto` over the columns a = 10, b = 4, t = "Ana", f = 05/03/2024, n = Null.
inline Valor evalua(const QString& texto, const AmbitoFijo& donde = {})
{
    std::vector<report::Agregado> agregados;
    report::ContextoAnalisis contexto{{}, 0, agregados, QStringLiteral("Secciones")};
    const report::Expresion expresion = report::analizaExpresion(texto, {QStringLiteral("K_x.rpt"), 12}, contexto);
    AmbitoFijo ambito = donde;
    ambito.fila_ = {10.0, 4.0, QStringLiteral("Ana"), dia(2024, 3, 5), Nulo{}};
    const QStringList columnas = QStringLiteral("a b T f n").split(u' ');
    return report::ExpresionEnlazada{expresion, columnas}.valor(ambito, es());
}

inline const QString EspacioInforme = QStringLiteral("xmlns=\"urn:kestrane:informe\"");

/// The layout that `contenido` makes within <informe>, below a statement that gives a and b.
inline report::Layout layoutDe(const QString& contenido)
{
    const QString xml = QStringLiteral("<informe %1 titulo=\"Prueba\"><consulta>select a, b from informes</consulta>\n%2</informe>")
                            .arg(EspacioInforme, contenido);
    return report::leeLayout(xml.toUtf8(), QStringLiteral("K_x.rpt"), {});
}

/// Why `contenido` is refused.
inline QString rechazoDe(const QString& contenido)
{
    return descripcionDeError([&] { return layoutDe(contenido); });
}

/// The first element of the first band of `seccion`, which is a T.
template<class T>
const T& primero(const report::Seccion& seccion)
{
    return std::get<T>(seccion.at(0).elementos.at(0));
}

} // namespace prueba
} // namespace kestrane
