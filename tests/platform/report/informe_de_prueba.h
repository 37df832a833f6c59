#pragma once

#include "platform/report/maquetado.h"

#include <QHash>

namespace kestrane::prueba {

/// A layout made in code: A4 with margins of 10 mm, style of 10 points at the top of its box.
class LayoutDePrueba
{
public:
    LayoutDePrueba();

    report::Layout layout;

    /// An expression; aggregates without a group belong to `nivel`.
    [[nodiscard]] report::Expresion expresion(const QString& texto, int nivel = 0);
    /// A text at the left of its band, as wide as the page.
    [[nodiscard]] report::Texto texto(const QString& valor, int nivel = 0);
    /// A text that grows in a box of `ancho` by 4 mm.
    [[nodiscard]] report::Texto crece(const QString& valor, double ancho);
    /// A band with one such text.
    [[nodiscard]] report::Banda banda(double alto, const QString& valor, int nivel = 0);
    /// A group by a column, its header showing "NAME VALUE", its footer the text when there is one.
    report::Grupo& grupo(const QString& columna, double altoCabecera = 10, const QString& pie = {});
    /// Room for bands on a page: changes the paper's height.
    void altoUtil(double alto);
};

/// Rows as a statement would give them.
[[nodiscard]] report::CopiaFilas copiaDe(const QStringList& columnas, const std::vector<std::vector<Valor>>& filas);
/// `cuantas` rows with a column "n" that counts from 1.
[[nodiscard]] report::CopiaFilas copiaNumerada(int cuantas);

/// A layout's pages over rows made in code; sub-reports have the rows of the copy that their statement names.
class PaginasDePrueba
{
public:
    explicit PaginasDePrueba(const report::Layout& layout, const report::CopiaFilas& filas,
                             const QHash<QString, report::CopiaFilas>& deSubinformes = {});

    [[nodiscard]] report::Maquetado& maquetado() { return m_maquetado; }
    /// Lays out all pages and composes them.
    [[nodiscard]] std::vector<report::PaginaCompuesta> paginas();
    /// "text@y" of each, headings included.
    [[nodiscard]] std::vector<QStringList> textos();

private:
    ConfiguracionRegional m_regional = ConfiguracionRegional::espania();
    report::Maquetado m_maquetado;
};

/// The texts of a page in the order of painting.
[[nodiscard]] QStringList textosDe(const report::PaginaCompuesta& pagina);
/// The same as "text@y" or "text@x,y": the top left corner of each in millimetres.
[[nodiscard]] QStringList textosConAltura(const report::PaginaCompuesta& pagina);
[[nodiscard]] QStringList textosConLugar(const report::PaginaCompuesta& pagina);

} // namespace kestrane::prueba
