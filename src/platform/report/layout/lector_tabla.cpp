#include "platform/report/layout/lector_tabla.h"

#include "platform/report/layout/agregados_expresion.h"
#include "platform/report/layout/columna_tabla.h"
#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lector_elementos.h"
#include "platform/report/layout/lector_secciones.h"
#include "platform/report/layout/lectura_atributos.h"
#include "platform/report/layout/limites.h"
#include "platform/report/layout/nodo_expresion.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

const QString FilaPar = u"fila - 2 * entero(fila / 2) = 0"_s;

Estilo sinFondo(Estilo estilo)
{
    estilo.fondo = QColor{}; // Braces alone would be the colour number 0, which is white.
    return estilo;
}

class LectorTabla
{
public:
    LectorTabla(const ElementoXml& tabla, const ElementoXml& informe, const AmbitoSeccion& ambito)
        : m_tabla{tabla}
        , m_informe{informe}
        , m_ambito{ambito}
        , m_columnas{columnasDe(tabla, ambito.ancho)}
        , m_alto{altoDeTabla(tabla)}
        , m_celda{estilo(u"celda")}
        , m_celdaPar{conCeldaAjena(tabla) ? m_celda : ambito.mesa.estilos.de(tabla, u"celda-par", u"celda-par"_s, m_celda)}
    {
        compruebaAlto(m_alto, u"las filas de la tabla son más altas"_s, tabla.lugar, ambito);
        ambito.mesa.elementos += static_cast<int>(m_columnas.size() * (2 + ambito.layout.grupos.size() + 1));
        if (ambito.mesa.elementos > limites::Elementos)
            fallaLayout(tabla.lugar, u"el informe tiene demasiados elementos: se admiten %1."_s.arg(limites::Elementos));
    }

    void anade() const
    {
        Layout& layout = m_ambito.layout;
        const bool esSubinforme = m_informe.nombre == u"subinforme";
        (esSubinforme ? layout.cabeceraInforme : layout.cabeceraPagina).push_back(cabecera());
        layout.detalle.push_back(fila());
        if (!siNoDe(m_tabla, u"totales", true) || std::ranges::none_of(m_columnas, &ColumnaTabla::tieneTotal))
            return;
        anadeTotalesDeGrupos();
        layout.pieInforme.insert(layout.pieInforme.begin(), totales(m_ambito, u"informe"_s, u"'Total'"_s));
    }

private:
    /// A cell's style of the layout's own choice goes without the family's second one.
    static bool conCeldaAjena(const ElementoXml& tabla)
    {
        return tabla.atributo(u"celda") != nullptr && tabla.atributo(u"celda-par") == nullptr;
    }

    [[nodiscard]] Estilo estilo(QStringView cual) const { return m_ambito.mesa.estilos.de(m_tabla, cual, cual.toString()); }

    [[nodiscard]] Banda banda() const
    {
        Banda nueva;
        nueva.alto = m_alto;
        nueva.linea = m_tabla.lugar.linea;
        return nueva;
    }

    /// The ground of a whole row, as high as the row grows.
    void anadeFondo(Banda& banda, const QColor& color, const Expresion& mostrar = {}) const
    {
        if (!color.isValid())
            return;
        auto fondo = elementoEn<Marco>({{0, 0, anchoTotal(), m_alto}, mostrar});
        fondo.grosor = 0;
        fondo.relleno = color;
        fondo.hastaElFondo = true;
        banda.elementos.emplace_back(fondo);
    }

    [[nodiscard]] double anchoTotal() const { return m_columnas.back().x + m_columnas.back().ancho; }

    [[nodiscard]] Banda cabecera() const
    {
        Banda nueva = banda();
        const Estilo cabecera = estilo(u"cabecera");
        anadeFondo(nueva, cabecera.fondo);
        for (const ColumnaTabla& columna : m_columnas) {
            auto titulo = elementoEn<Texto>({columna.caja(m_alto), {}});
            titulo.valor = expresionLiteral(textoDe(*columna.xml, u"titulo"), columna.xml->lugar);
            titulo.estilo = sinFondo(columna.alineado(cabecera));
            titulo.crece = true;
            nueva.elementos.emplace_back(titulo);
        }
        return nueva;
    }

    [[nodiscard]] Banda fila() const
    {
        Banda nueva = banda();
        const Expresion par = m_ambito.analiza(FilaPar, m_tabla.lugar);
        if (m_celda.fondo != m_celdaPar.fondo)
            anadeFondo(nueva, m_celdaPar.fondo, par);
        anadeFondo(nueva, m_celda.fondo, m_celda.fondo != m_celdaPar.fondo ? impar() : Expresion{});
        for (const ColumnaTabla& columna : m_columnas)
            nueva.elementos.emplace_back(celda(columna, par));
        return nueva;
    }

    [[nodiscard]] Expresion impar() const { return m_ambito.analiza(u"no ("_s + FilaPar + u')', m_tabla.lugar); }

    [[nodiscard]] Texto celda(const ColumnaTabla& columna, const Expresion& par) const
    {
        const ElementoXml& xml = *columna.xml;
        const bool propio = xml.atributo(u"estilo") != nullptr;
        auto nueva = elementoEn<Texto>({columna.caja(m_alto), m_ambito.expresion(xml, u"mostrar")});
        nueva.valor = m_ambito.expresion(xml, u"valor");
        nueva.formato = columna.formato;
        nueva.estilo = columna.alineado(propio ? m_ambito.mesa.estilos.de(xml, u"estilo", {}) : sinFondo(m_celda));
        nueva.variantes = leeVariantes(xml, m_ambito);
        for (EstiloCondicional& variante : nueva.variantes)
            variante.estilo.horizontal = nueva.estilo.horizontal;
        if (!propio && sinFondo(m_celda) != sinFondo(m_celdaPar))
            nueva.variantes.push_back({par, columna.alineado(sinFondo(m_celdaPar))});
        nueva.crece = siNoDe(xml, u"crece", false);
        return nueva;
    }

    void anadeTotalesDeGrupos() const
    {
        AmbitoSeccion dentro = m_ambito;
        for (const ElementoXml& xml : m_informe.hijos) {
            if (xml.nombre != u"grupo")
                continue;
            Grupo& grupo = m_ambito.layout.grupos[static_cast<size_t>(dentro.nivel++)];
            const QString* titulo = xml.atributo(u"titulo");
            const QString rotulo = titulo == nullptr ? u"'Total'"_s : u"'Total ' & ("_s + *titulo + u')';
            grupo.pie.insert(grupo.pie.begin(), totales(dentro, grupo.nombre, rotulo));
        }
    }

    [[nodiscard]] Banda totales(const AmbitoSeccion& dentro, const QString& grupo, const QString& rotulo) const
    {
        Banda nueva = banda();
        const Estilo total = estilo(u"total");
        anadeFondo(nueva, total.fondo);
        auto raya = elementoEn<Linea>({{0, 0, anchoTotal(), 0}, {}});
        raya.color = total.color;
        nueva.elementos.emplace_back(raya);
        anadeRotulo(nueva, dentro.analiza(rotulo, m_tabla.lugar), sinFondo(total));
        for (const ColumnaTabla& columna : m_columnas)
            if (columna.tieneTotal())
                nueva.elementos.emplace_back(textoTotal(columna, dentro, grupo, sinFondo(total)));
        return nueva;
    }

    /// Across the columns in front of the first total; none when there is no room for it.
    void anadeRotulo(Banda& banda, const Expresion& rotulo, const Estilo& estilo) const
    {
        const double hasta = std::ranges::find_if(m_columnas, &ColumnaTabla::tieneTotal)->x;
        if (hasta <= 0)
            return;
        auto nuevo = elementoEn<Texto>({ColumnaTabla{m_columnas.front().xml, 0, hasta, {}}.caja(m_alto), {}});
        nuevo.valor = rotulo;
        nuevo.estilo = estilo;
        banda.elementos.emplace_back(nuevo);
    }

    [[nodiscard]] Texto textoTotal(const ColumnaTabla& columna, const AmbitoSeccion& dentro, const QString& grupo,
                                   const Estilo& estilo) const
    {
        const QString funcion = textoDe(*columna.xml, u"total");
        auto nuevo = elementoEn<Texto>({columna.caja(m_alto), {}});
        const QString cuenta = funcion + u"(("_s + textoDe(*columna.xml, u"valor") + u"); "_s + grupo + u')';
        nuevo.valor = dentro.analiza(cuenta, columna.xml->lugar);
        nuevo.formato = funcion == u"cuenta" ? FormatoValor{Formato::Entero} : columna.formato;
        nuevo.estilo = columna.alineado(estilo);
        return nuevo;
    }

    const ElementoXml& m_tabla;
    const ElementoXml& m_informe;
    const AmbitoSeccion& m_ambito;
    std::vector<ColumnaTabla> m_columnas;
    double m_alto;
    Estilo m_celda;
    Estilo m_celdaPar;
};

ColumnaDatos columnaDeDatos(const ElementoXml& xml, const AmbitoSeccion& ambito)
{
    ColumnaDatos columna;
    const ColumnaTabla tabla{&xml, 0, 0, formatoDe(xml)};
    columna.titulo = textoDe(xml, u"titulo");
    columna.valor = ambito.expresion(xml, u"valor");
    columna.mostrar = ambito.expresion(xml, u"mostrar");
    columna.formato = tabla.formato;
    columna.horizontal = tabla.alineacion(Estilo{});
    columna.ancho = medidaDe(xml, u"ancho", columna.ancho);
    columna.conTotal = tabla.tieneTotal();
    columna.total = agregadoDeNombre(textoDe(xml, u"total")).value_or(FuncionAgregado::Suma);
    return columna;
}

} // namespace

double altoDeTabla(const ElementoXml& tabla)
{
    return medidaDe(tabla, u"alto", 5);
}

void anadeTabla(const ElementoXml& tabla, const ElementoXml& informe, const AmbitoSeccion& ambito)
{
    if (ambito.layout.pagina.columnas > 1)
        fallaLayout(tabla.lugar, u"en una página de varias columnas no puede haber una tabla: ponga bandas en el detalle."_s);
    LectorTabla{tabla, informe, ambito}.anade();
    ambito.layout.columnas = leeColumnasDeDatos(tabla, ambito);
    const std::vector<ColumnaTabla> medidas = columnasDe(tabla, ambito.ancho);
    for (size_t i = 0; i < medidas.size(); ++i)
        ambito.layout.columnas[i].ancho = medidas[i].ancho;
}

std::vector<ColumnaDatos> leeColumnasDeDatos(const ElementoXml& tabla, const AmbitoSeccion& ambito)
{
    std::vector<ColumnaDatos> columnas;
    columnas.reserve(tabla.hijos.size());
    for (const ElementoXml& xml : tabla.hijos)
        columnas.push_back(columnaDeDatos(xml, ambito));
    return columnas;
}

} // namespace kestrane::report
