#pragma once

#include "platform/report/layout/expresion.h"
#include "platform/report/layout/formato.h"

#include <QColor>
#include <QMarginsF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <variant>
#include <vector>

/// A report on paper, as a layout file describes it: plain values. Lengths are millimetres, type sizes points.
namespace kestrane::report {

enum class Horizontal { Izquierda, Centro, Derecha };
enum class Vertical { Arriba, Centro, Abajo };

struct Estilo
{
    QString familia = QStringLiteral("DejaVu Sans");
    double cuerpo = 8.5;
    bool negrita = false;
    bool cursiva = false;
    QColor color = Qt::black;
    QColor fondo; ///< not valid: none
    Horizontal horizontal = Horizontal::Izquierda;
    Vertical vertical = Vertical::Centro;

    friend bool operator==(const Estilo&, const Estilo&) = default;
};

/// A style that takes the place of an element's own when its condition holds.
struct EstiloCondicional
{
    Expresion condicion;
    Estilo estilo;
};

/// What every element has. `caja` is relative to its band's corner.
struct ComunElemento
{
    QRectF caja;
    Expresion mostrar; ///< empty: always
};

struct Texto : ComunElemento
{
    Expresion valor;
    FormatoValor formato;
    Estilo estilo;
    std::vector<EstiloCondicional> variantes; ///< the first that holds
    bool crece = false; ///< breaks into lines and makes its band higher; otherwise it is cut with "…" at its box's width
};

struct Linea : ComunElemento ///< from the top left to the bottom right corner of the box
{
    double grosor = 0.2;
    QColor color = Qt::black;
    bool hastaElFondo = false; ///< as low as its band, however high that grows
};

struct Marco : ComunElemento
{
    double grosor = 0.2; ///< 0: no line
    QColor color = Qt::black;
    QColor relleno; ///< not valid: none
    bool hastaElFondo = false;
};

struct Imagen : ComunElemento ///< keeps its proportions within the box
{
    Expresion fichero; ///< below the program folder
};

struct Codigo39 : ComunElemento
{
    Expresion valor;
    Estilo estilo; ///< of the legend
    bool leyenda = true;
};

struct Layout;

/// A report of its own within the band: its bands one below the other, as wide as the box.
struct Subinforme : ComunElemento
{
    std::shared_ptr<const Layout> layout;
    QString titulo; ///< where it stands apart, as on a sheet of its own
};

using Elemento = std::variant<Texto, Linea, Marco, Imagen, Codigo39, Subinforme>;

struct Banda
{
    double alto = 0; ///< at least
    Expresion mostrar;
    bool saltoAntes = false;    ///< begins a page
    bool alPieDePagina = false; ///< stands as low as the page allows
    std::vector<Elemento> elementos;
    int linea = 0; ///< in the layout file
};
using Seccion = std::vector<Banda>;

struct ClaveOrden
{
    Expresion por;
    bool descendente = false;
};

struct Grupo
{
    QString nombre;
    Expresion por;
    bool descendente = false;
    bool ordena = true;          ///< rows are sorted by the key; otherwise it cuts them wherever it changes
    bool saltoDePagina = false;  ///< each but the first begins a page
    bool juntoALaPrimera = true; ///< its header is never the last thing on a page
    bool repiteCabecera = false; ///< on each page that it goes on to
    Expresion titulo;            ///< in the tree of the preview; empty: not there
    Seccion cabecera;
    Seccion pie;
};

/// A column of the rows as data, for spreadsheets and the like.
struct ColumnaDatos
{
    QString titulo;
    Expresion valor;
    Expresion mostrar = {}; ///< empty: always; where it does not hold the cell is blank
    FormatoValor formato;
    Horizontal horizontal = Horizontal::Izquierda;
    double ancho = 20;
    bool conTotal = false;
    FuncionAgregado total = FuncionAgregado::Suma;
};

struct Pagina
{
    QSizeF tamano{210, 297}; ///< a height of 0: a roll, as long as its content
    QMarginsF margenes{12, 12, 12, 12};
    int columnas = 1;          ///< of the details, across the page
    double separacion = 0;     ///< between columns
    double largoMaximo = 5000; ///< of a roll, then another page begins

    [[nodiscard]] bool esRollo() const { return tamano.height() <= 0; }
    [[nodiscard]] double anchoUtil() const { return tamano.width() - margenes.left() - margenes.right(); }
};

struct Layout
{
    QString fichero; ///< its name without a path
    QString carpeta; ///< where it lies: pictures are found from here
    QString titulo;
    Pagina pagina;
    QString dsn = QStringLiteral("ListKestrane");
    QString sentencia; ///< Jet SQL
    int lineaSentencia = 0;
    std::vector<ClaveOrden> orden; ///< after the groups' keys
    std::vector<Grupo> grupos;     ///< from the outside in
    Seccion cabeceraInforme;
    Seccion cabeceraPagina;
    Seccion detalle;
    Seccion piePagina;
    Seccion pieInforme;
    std::vector<ColumnaDatos> columnas;
    std::vector<Agregado> agregados;
};

} // namespace kestrane::report
