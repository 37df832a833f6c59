#pragma once

#include "platform/report/export/exportacion.h"
#include "platform/report/layout/layout.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

namespace kestrane::report {

/// What kind of row a cell stands in: the heading, a group's title, a row, a total.
enum class ClaseFila { Cabecera, Grupo, Datos, Total };

/// ErrorDeSalida for more rows, the heading among them, than a sheet has.
void compruebaFilasDeHoja(qint64 filas);

/// A workbook on its way to a file, sheet by sheet. Rows are written from top to bottom and leave the memory at once.
class LibroXlsx
{
public:
    /// With its first sheet, which has the workbook's title. `carpeta` takes what is written on the way. ErrorDeSalida.
    LibroXlsx(const QString& fichero, const QString& carpeta, const QString& titulo);
    ~LibroXlsx();
    LibroXlsx(const LibroXlsx&) = delete;
    LibroXlsx& operator=(const LibroXlsx&) = delete;

    /// Another sheet behind; rows go there from now on. Names that are taken already get a number. ErrorDeSalida.
    void otraHoja(const QString& titulo);
    /// Paper, direction, title and page numbers when it is printed; the heading row stays in sight.
    void preparaHoja(const Pagina& pagina, const QString& titulo, bool resumenDebajo);
    void ponAncho(int columna, double milimetros);
    /// Begins the next row, at this level of the outline (0: none).
    void nuevaFila(int nivel);
    /// A cell of that row, from left to right: numbers and dates as such. Null leaves it empty but for its looks.
    void celda(int columna, const Valor& valor, const FormatoValor& comoValor, Horizontal horizontal, ClaseFila clase,
               const ConfiguracionRegional& regional);

    /// Puts the file on the disk. False when `avance` broke it off, which is what takes most of the time. ErrorDeSalida, also when
    /// the disk did not take some of it on the way.
    bool cierra(const AvanceExportacion& avance = {});

private:
    lxw_format* formato(const QByteArray& numero, Horizontal horizontal, ClaseFila clase);
    void numero(int columna, double valor, lxw_format* visto);
    void texto(int columna, const QString& valor, lxw_format* visto);
    [[nodiscard]] QString nombreLibre(const QString& titulo) const;

    QString m_fichero;
    QString m_carpeta;
    lxw_workbook* m_libro = nullptr;
    lxw_worksheet* m_hoja = nullptr;
    std::vector<lxw_worksheet*> m_hojas;
    QStringList m_nombres; ///< of the sheets
    QHash<QByteArray, lxw_format*> m_formatos;
    qint64 m_fila = -1;
};

} // namespace kestrane::report
