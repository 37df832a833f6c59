#pragma once

#include "platform/database/entorno_datos.h"
#include "platform/report/filas_informe.h"
#include "platform/report/pagina_compuesta.h"

#include <QDeadlineTimer>

#include <memory>

namespace kestrane::report {

/// An entry of the tree of groups.
struct EntradaIndice
{
    QString titulo;
    int nivel = 0;  ///< 0: the outermost group
    int pagina = 0; ///< from 0
    double y = 0;   ///< millimetres from the page's top
};

/// A sub-report as data.
struct DatosSubinforme
{
    QString titulo; ///< as the layout says, often none
    const Layout& layout;
    const FilasInforme& filas;
};

/// A report with its rows: it outlives the tables from which they were read. Pages are laid out in order, as far as they are asked
/// for; a page is composed anew each time. One thread.
class Documento
{
public:
    /// Reads the layout, runs its statements on connections of their own and copies what they give. Error of the layout, of the
    /// database, or of the disk that takes the copy.
    Documento(const QString& rutaLayout, database::EntornoDatos& entorno);
    /// The same of a layout that is at hand.
    Documento(Layout layout, database::EntornoDatos& entorno);
    ~Documento();
    Documento(const Documento&) = delete;
    Documento& operator=(const Documento&) = delete;

    [[nodiscard]] const Layout& layout() const;
    [[nodiscard]] const FilasInforme& filas() const;
    [[nodiscard]] const ConfiguracionRegional& regional() const;
    /// The sub-reports that show and have rows, from the report's top to its end, those within others behind them. They live until
    /// the rows are laid out anew.
    [[nodiscard]] std::vector<DatosSubinforme> subinformes() const;

    /// Lays out on until `plazo`, at least one page; true when the last page is known.
    bool avanza(QDeadlineTimer plazo);
    /// Lays out to the end.
    void completa();
    [[nodiscard]] bool completo() const;
    /// 0 to 1, of the rows laid out.
    [[nodiscard]] double avance() const;
    /// Pages laid out so far; all of them when it is complete.
    [[nodiscard]] int paginas() const;
    /// Page `indice` from 0, laid out as far as needed. The number of pages reads "..." as long as it is not known. The empty page
    /// past the last.
    [[nodiscard]] PaginaCompuesta pagina(int indice);
    /// Groups with a title met so far.
    [[nodiscard]] const std::vector<EntradaIndice>& indice() const;
    /// Reads the layout file again and lays out the same rows anew. When the file no longer fits, its error, and the document
    /// stays as it was.
    void actualiza();
    /// Lays out the same rows anew by another layout of them; for one that does not fit as above.
    void actualiza(Layout layout);

private:
    class Interior;

    QString m_ruta; ///< of the layout file, "" when there is none
    std::unique_ptr<Interior> m_interior;
};

} // namespace kestrane::report
