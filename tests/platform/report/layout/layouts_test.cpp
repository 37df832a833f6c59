#include "apoyo/tienda_de_prueba.h"
#include "platform/database/recordset.h"
#include "platform/report/layout/soporte.h"

#include <QDir>

#include <set>

// Every layout that is delivered: it reads, its statements run on the reports database, and give every column that it names.

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

const QString CarpetaLayouts = QStringLiteral(KESTRANE_LAYOUTS);

class Enlazador
{
public:
    Enlazador(const Layout& layout, Conexion& conexion) : m_layout{layout}, m_conexion{conexion}
    {
        Recordset filas;
        filas.Open(layout.sentencia, conexion);
        for (const jet::ColumnaResultado& columna : filas.columnas())
            m_columnas << columna.nombre;
    }

    void enlazaTodo()
    {
        for (const ClaveOrden& clave : m_layout.orden)
            enlaza(clave.por);
        for (const Grupo& grupo : m_layout.grupos) {
            enlaza(grupo.por);
            enlaza(grupo.titulo);
            enlaza(grupo.cabecera);
            enlaza(grupo.pie);
        }
        for (const Seccion* seccion :
             {&m_layout.cabeceraInforme, &m_layout.cabeceraPagina, &m_layout.detalle, &m_layout.piePagina, &m_layout.pieInforme})
            enlaza(*seccion);
        for (const ColumnaDatos& columna : m_layout.columnas)
            enlaza(columna.valor);
        for (const Agregado& agregado : m_layout.agregados)
            enlaza(agregado.de);
    }

    [[nodiscard]] int enlazadas() const { return m_enlazadas; }

private:
    void enlaza(const Expresion& expresion)
    {
        const ExpresionEnlazada enlazada{expresion, m_columnas};
        m_enlazadas += enlazada.vacia() ? 0 : 1;
    }

    void enlaza(const Seccion& seccion)
    {
        for (const Banda& banda : seccion) {
            enlaza(banda.mostrar);
            for (const Elemento& elemento : banda.elementos) {
                enlaza(std::visit([](const auto& e) -> const ComunElemento& { return e; }, elemento).mostrar);
                enlazaPropio(elemento);
            }
        }
    }

    void enlazaPropio(const Elemento& elemento)
    {
        if (const auto* texto = std::get_if<Texto>(&elemento)) {
            enlaza(texto->valor);
            for (const EstiloCondicional& variante : texto->variantes)
                enlaza(variante.condicion);
        } else if (const auto* imagen = std::get_if<Imagen>(&elemento)) {
            enlaza(imagen->fichero);
        } else if (const auto* codigo = std::get_if<Codigo39>(&elemento)) {
            enlaza(codigo->valor);
        } else if (const auto* subinforme = std::get_if<Subinforme>(&elemento)) {
            Enlazador{*subinforme->layout, m_conexion}.enlazaTodo();
        }
    }

    const Layout& m_layout;
    Conexion& m_conexion;
    QStringList m_columnas;
    int m_enlazadas = 0;
};

TEST(Layouts, CadaUnoEncuentraSusColumnas)
{
    prueba::TiendaDePrueba tienda;
    const QDir carpeta{CarpetaLayouts};
    const QStringList ficheros = carpeta.entryList({u"*.rpt"_s});
    EXPECT_GE(ficheros.size(), 12);
    for (const QString& fichero : ficheros) {
        SCOPED_TRACE(fichero.toStdString());
        const Layout layout = leeLayout(carpeta.filePath(fichero));
        Enlazador enlazador{layout, tienda.listados()};
        enlazador.enlazaTodo();
        EXPECT_GT(enlazador.enlazadas(), 3);
        EXPECT_FALSE(layout.columnas.empty());
    }
}

/// The columns that the builder writes, each of which the reader of the listing sees on paper and in the spreadsheet.
void muestra(const QString& fichero, const QString& columnas)
{
    SCOPED_TRACE(fichero.toStdString());
    const Layout layout = leeLayout(CarpetaLayouts + u'/' + fichero);
    const QStringList escritas = columnas.split(u' ');
    std::set<QString> vistas;
    for (const ColumnaDatos& columna : layout.columnas) {
        const ExpresionEnlazada enlazada{columna.valor, escritas};
        for (const int lugar : enlazada.columnas())
            vistas.insert(escritas[lugar]);
        EXPECT_FALSE(columna.titulo.isEmpty());
    }
    EXPECT_EQ(vistas, std::set<QString>(escritas.begin(), escritas.end()));
}

TEST(Layouts, LosDelCatalogoMuestranTodoLoEscrito)
{
    muestra(u"K_Servicios.rpt"_s, u"texto1 texto2 texto21 texto4 texto5 numerico6 numerico2 numerico3"_s);
    muestra(u"TC_Arreglos.rpt"_s, u"texto1 texto2 texto5 numerico6 numerico2 numerico7 numerico3"_s);
    muestra(u"K_PackServicios.rpt"_s, u"texto1 texto2 texto21 texto4 texto5 texto7 numerico2 numerico3"_s);
    muestra(u"K_PackSpa.rpt"_s, u"texto1 texto2 texto21 texto4 texto5 texto7 texto8 numerico2 numerico3"_s);
    muestra(u"K_Empleados.rpt"_s,
            u"texto1 texto2 texto3 texto4 texto5 texto6 texto7 texto8 texto9 texto10 texto11 texto12 texto13 texto14"
            " texto16 texto17 texto18 texto19 texto20 texto21 texto22"_s);
    muestra(u"K_Secciones.rpt"_s, u"texto1 texto2"_s);
    muestra(u"TC_Tallas.rpt"_s, u"texto1 texto2"_s);
    muestra(u"TC_Marcas.rpt"_s, u"texto2"_s);
    muestra(u"TC_colores.rpt"_s, u"texto2"_s);
    muestra(u"K_Formasdepago.rpt"_s, u"texto1 texto2 texto3"_s);
    muestra(u"K_Proveedores.rpt"_s, u"texto1 texto2 texto3 texto4 texto5 texto6 texto7 texto8"_s);
    muestra(u"TC_Talleres.rpt"_s, u"texto1 texto2 texto3 texto4 texto5 texto6 texto7 texto8"_s);
}

TEST(Layouts, ElOrdenElegidoParaLosServiciosSeQueda)
{
    const Layout layout = leeLayout(CarpetaLayouts + u"/K_Servicios.rpt"_s);
    EXPECT_TRUE(layout.orden.empty());
    EXPECT_TRUE(layout.grupos.empty());
}

TEST(Layouts, LasPartesDeFechasYResumenSeEnlazan)
{
    prueba::TiendaDePrueba tienda;
    const QString xml = u"<informe xmlns=\"urn:kestrane:informe\" titulo=\"x\"><usa fichero=\"partes/familia.xml\"/>"
                        "<consulta>select fecha1, fecha2, texto33, texto34, texto35 from informes</consulta>"
                        "<cabecera-pagina><bandas de=\"cabecera-empresa\"/><bandas de=\"periodo-y-tienda\"/><bandas "
                        "de=\"separacion\"/></cabecera-pagina>"
                        "<pie-pagina><bandas de=\"pie-pagina\"/></pie-pagina>"
                        "<pie-informe><bandas de=\"numero-de-registros\"/><bandas de=\"resumen\"/></pie-informe></informe>"_s;
    const Layout layout = leeLayout(xml.toUtf8(), u"K_x.rpt"_s, CarpetaLayouts);
    Enlazador enlazador{layout, tienda.listados()};
    enlazador.enlazaTodo();
    EXPECT_GE(enlazador.enlazadas(), 11);

    const Banda& periodo = layout.cabeceraPagina.at(3);
    const QStringList columnas = {u"Fecha1"_s, u"fecha2"_s};
    const auto fila = prueba::conFila({prueba::dia(2024, 3, 1), prueba::dia(2024, 3, 31)});
    EXPECT_TRUE((ExpresionEnlazada{periodo.mostrar, columnas}.cierto(fila, prueba::es())));
    EXPECT_EQ((ExpresionEnlazada{std::get<Texto>(periodo.elementos.at(0)).valor, columnas}.valor(fila, prueba::es())),
              Valor{u"Del 01/03/2024 al 31/03/2024"_s});
    EXPECT_FALSE((ExpresionEnlazada{periodo.mostrar, columnas}.cierto(prueba::conFila({Nulo{}, Nulo{}}), prueba::es())));
    EXPECT_FALSE((ExpresionEnlazada{periodo.mostrar, columnas}.cierto(prueba::conFila({Fecha{}, Fecha{}}), prueba::es())));
}

} // namespace
} // namespace kestrane::report
