#include "platform/report/export/libro_xlsx.h"

#include "platform/report/export/cierre_xlsx.h"
#include "platform/report/export/formato_hoja.h"
#include "platform/runtime/error_de_salida.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <xlsxwriter.h>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr double MilimetrosPorSigno = 1.6; ///< of a column's width, with room for the sheet's larger type
constexpr double AnchoMinimo = 6;
constexpr int NivelMaximo = 7; ///< of a sheet's outline
constexpr lxw_color_t Tinta = 0x24425C;
constexpr lxw_color_t FondoTotal = 0xEDF2F6;

struct Papel
{
    double corto;
    uint8_t codigo;
};

constexpr Papel Papeles[] = {{210, 9}, {148, 11}, {297, 8}, {215.9, 1}};

uint8_t codigoDePapel(const Pagina& pagina)
{
    const double corto = pagina.esRollo() ? 0 : std::min(pagina.tamano.width(), pagina.tamano.height());
    for (const Papel& papel : Papeles) {
        if (std::abs(papel.corto - corto) < 1)
            return papel.codigo;
    }
    return Papeles[0].codigo;
}

void viste(lxw_format* formato, ClaseFila clase)
{
    if (clase != ClaseFila::Datos)
        format_set_bold(formato);
    if (clase == ClaseFila::Cabecera) {
        format_set_font_color(formato, LXW_COLOR_WHITE);
        format_set_bg_color(formato, Tinta);
        format_set_text_wrap(formato);
    }
    if (clase == ClaseFila::Grupo)
        format_set_bottom(formato, LXW_BORDER_THIN);
    if (clase == ClaseFila::Total) {
        format_set_bg_color(formato, FondoTotal);
        format_set_top(formato, LXW_BORDER_THIN);
    }
}

uint8_t lado(Horizontal horizontal)
{
    switch (horizontal) {
    case Horizontal::Centro:
        return LXW_ALIGN_CENTER;
    case Horizontal::Derecha:
        return LXW_ALIGN_RIGHT;
    case Horizontal::Izquierda:
        break;
    }
    return LXW_ALIGN_LEFT;
}

/// In headers and footers "&" begins a command.
QByteArray paraCabecera(const QString& titulo)
{
    return titulo.left(100).replace(u'&', u"&&"_s).toUtf8();
}

} // namespace

void compruebaFilasDeHoja(qint64 filas)
{
    if (filas > LXW_ROW_MAX)
        throw ErrorDeSalida{u"una hoja de cálculo no admite más de %1 filas"_s.arg(LXW_ROW_MAX)};
}

LibroXlsx::LibroXlsx(const QString& fichero, const QString& carpeta, const QString& titulo) : m_fichero{fichero}, m_carpeta{carpeta}
{
    QByteArray temporal = QFile::encodeName(carpeta);
    lxw_workbook_options opciones{.constant_memory = LXW_TRUE, .tmpdir = temporal.data(), .use_zip64 = LXW_FALSE};
    m_libro = workbook_new_opt(QFile::encodeName(fichero).constData(), &opciones);
    try {
        otraHoja(titulo);
    } catch (...) {
        lxw_workbook_free(m_libro);
        throw;
    }
    QByteArray nombre = titulo.toUtf8();
    QByteArray programa = "Kestrane Listados";
    lxw_doc_properties propiedades{};
    propiedades.title = nombre.data();
    propiedades.author = programa.data();
    workbook_set_properties(m_libro, &propiedades);
}

LibroXlsx::~LibroXlsx()
{
    lxw_workbook_free(m_libro);
}

void LibroXlsx::otraHoja(const QString& titulo)
{
    const QString nombre = nombreLibre(titulo);
    m_hoja = m_libro == nullptr ? nullptr : workbook_add_worksheet(m_libro, nombre.toUtf8().constData());
    if (m_hoja == nullptr || m_hoja->optimize_tmpfile == nullptr)
        throw ErrorDeSalida{u"no se puede empezar la hoja de cálculo"_s};
    m_hojas.push_back(m_hoja);
    m_nombres << nombre;
    m_fila = -1;
}

/// Sheets do not mind case in their names.
QString LibroXlsx::nombreLibre(const QString& titulo) const
{
    const QString primero = nombreDeHoja(titulo);
    QString nombre = primero;
    for (int otro = 2; m_nombres.contains(nombre, Qt::CaseInsensitive); ++otro)
        nombre = nombreDeHoja(primero, u' ' + QString::number(otro));
    return nombre;
}

void LibroXlsx::preparaHoja(const Pagina& pagina, const QString& titulo, bool resumenDebajo)
{
    if (!pagina.esRollo() && pagina.tamano.width() > pagina.tamano.height())
        worksheet_set_landscape(m_hoja);
    worksheet_set_paper(m_hoja, codigoDePapel(pagina));
    worksheet_fit_to_pages(m_hoja, 1, 0);
    worksheet_repeat_rows(m_hoja, 0, 0);
    worksheet_freeze_panes(m_hoja, 1, 0);
    worksheet_set_header(m_hoja, ("&L&\"-,Bold\"" + paraCabecera(titulo)).constData());
    worksheet_set_footer(m_hoja, "&CPágina &P de &N");
    worksheet_outline_settings(m_hoja, LXW_TRUE, resumenDebajo ? LXW_TRUE : LXW_FALSE, LXW_TRUE, LXW_FALSE);
}

void LibroXlsx::ponAncho(int columna, double milimetros)
{
    const auto lugar = static_cast<lxw_col_t>(columna);
    worksheet_set_column(m_hoja, lugar, lugar, std::max(AnchoMinimo, milimetros / MilimetrosPorSigno), nullptr);
}

void LibroXlsx::nuevaFila(int nivel)
{
    compruebaFilasDeHoja(++m_fila + 1);
    if (nivel == 0)
        return;
    lxw_row_col_options opciones{};
    opciones.level = static_cast<uint8_t>(std::min(nivel, NivelMaximo));
    worksheet_set_row_opt(m_hoja, static_cast<lxw_row_t>(m_fila), LXW_DEF_ROW_HEIGHT, nullptr, &opciones);
}

lxw_format* LibroXlsx::formato(const QByteArray& numero, Horizontal horizontal, ClaseFila clase)
{
    const QByteArray clave =
        numero + '\t' + QByteArray::number(static_cast<int>(horizontal)) + QByteArray::number(static_cast<int>(clase));
    lxw_format*& hallado = m_formatos[clave];
    if (hallado != nullptr)
        return hallado;
    hallado = workbook_add_format(m_libro);
    format_set_align(hallado, lado(horizontal));
    if (!numero.isEmpty())
        format_set_num_format(hallado, numero.constData());
    viste(hallado, clase);
    return hallado;
}

void LibroXlsx::celda(int columna, const Valor& valor, const FormatoValor& comoValor, Horizontal horizontal, ClaseFila clase,
                      const ConfiguracionRegional& regional)
{
    lxw_format* visto = formato(formatoDeHoja(valor, comoValor, regional), horizontal, clase);
    if (valor.esNulo()) {
        worksheet_write_blank(m_hoja, static_cast<lxw_row_t>(m_fila), static_cast<lxw_col_t>(columna), visto);
        return;
    }
    if (const auto cifra = numeroDeHoja(valor))
        return numero(columna, *cifra, visto);
    texto(columna, valor.clase() == Valor::Clase::Texto ? valor.texto() : escribeValor(valor, comoValor, regional), visto);
}

void LibroXlsx::numero(int columna, double valor, lxw_format* visto)
{
    worksheet_write_number(m_hoja, static_cast<lxw_row_t>(m_fila), static_cast<lxw_col_t>(columna), valor, visto);
}

void LibroXlsx::texto(int columna, const QString& valor, lxw_format* visto)
{
    worksheet_write_string(m_hoja, static_cast<lxw_row_t>(m_fila), static_cast<lxw_col_t>(columna),
                           textoDeHoja(valor).toUtf8().constData(), visto);
}

bool LibroXlsx::cierra(const AvanceExportacion& avance)
{
    return cierraLibro({m_libro, m_hojas, m_fichero, m_carpeta}, avance);
}

} // namespace kestrane::report
