#include "platform/report/layout/lector_informe.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lector_pagina.h"
#include "platform/report/layout/lector_secciones.h"
#include "platform/report/layout/lector_tabla.h"
#include "platform/report/layout/lectura_atributos.h"
#include "platform/report/layout/limites.h"

#include <algorithm>
#include <span>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

struct SeccionConocida
{
    QStringView nombre;
    Seccion Layout::*seccion;
};

/// What stands on each page is read first: the others have the room that it leaves.
constexpr SeccionConocida DeCadaPagina[] = {
    {u"cabecera-pagina", &Layout::cabeceraPagina},
    {u"pie-pagina", &Layout::piePagina},
};
constexpr SeccionConocida DelInforme[] = {
    {u"cabecera-informe", &Layout::cabeceraInforme},
    {u"pie-informe", &Layout::pieInforme},
};

class LectorInforme
{
public:
    LectorInforme(const ElementoXml& xml, MesaLectura& mesa, Layout& layout) : m_xml{xml}, m_mesa{mesa}, m_layout{layout} {}

    void lee()
    {
        leeConsulta();
        leeGrupos();
        leeOrden();
        const double ancho = m_layout.pagina.anchoUtil();
        leeSecciones(DeCadaPagina, ancho);
        reservaCabeceraDeTabla();
        leeSecciones(DelInforme, ancho);
        m_layout.detalle = leeSeccion(m_xml.unico(u"detalle"), ambito(anchoDeColumna(m_layout.pagina)));
        leeSeccionesDeGrupos(ancho);
        if (const ElementoXml* tabla = m_xml.unico(u"tabla"))
            anadeTabla(*tabla, m_xml, ambito(ancho));
        if (const ElementoXml* datos = m_xml.unico(u"datos"))
            m_layout.columnas = leeColumnasDeDatos(*datos, ambito(ancho));
    }

private:
    [[nodiscard]] AmbitoSeccion ambito(double ancho, int nivel = 0) const { return {m_mesa, m_layout, ancho, nivel, m_reservado}; }

    void leeSecciones(std::span<const SeccionConocida> secciones, double ancho)
    {
        for (const SeccionConocida& conocida : secciones)
            m_layout.*conocida.seccion = leeSeccion(m_xml.unico(conocida.nombre), ambito(ancho));
    }

    /// A sub-report's headings stand among its bands and take no room of each page.
    void reservaCabeceraDeTabla()
    {
        const ElementoXml* tabla = m_xml.unico(u"tabla");
        if (tabla != nullptr && m_xml.nombre == u"informe")
            m_reservado = altoDeTabla(*tabla);
    }

    void leeConsulta()
    {
        const ElementoXml* consulta = m_xml.unico(u"consulta");
        if (consulta == nullptr || consulta->texto.isEmpty())
            fallaLayout(consulta == nullptr ? m_xml.lugar : consulta->lugar,
                        u"a <"_s + m_xml.nombre + u"> le falta la consulta."_s);
        m_layout.sentencia = consulta->texto.simplified();
        m_layout.lineaSentencia = consulta->lugar.linea;
    }

    [[nodiscard]] bool hayGrupo(const QString& nombre) const
    {
        return std::ranges::any_of(m_layout.grupos,
                                   [&](const Grupo& g) { return g.nombre.compare(nombre, Qt::CaseInsensitive) == 0; });
    }

    /// All names are there before the first expression that may ask for one.
    void leeGrupos()
    {
        for (const ElementoXml& xml : m_xml.hijos) {
            if (xml.nombre != u"grupo")
                continue;
            if (m_layout.grupos.size() == limites::Grupos)
                fallaLayout(xml.lugar, u"hay demasiados grupos: se admiten %1."_s.arg(limites::Grupos));
            Grupo grupo;
            grupo.nombre = textoDe(xml, u"nombre");
            if (hayGrupo(grupo.nombre) || grupo.nombre.compare(u"informe", Qt::CaseInsensitive) == 0)
                fallaLayout(xml.lugar, u"el nombre de grupo «"_s + grupo.nombre + u"» ya se usa."_s);
            grupo.por = ambito(0).clave(xml, u"por");
            grupo.descendente = esDescendente(xml);
            grupo.ordena = siNoDe(xml, u"ordena", grupo.ordena);
            grupo.saltoDePagina = siNoDe(xml, u"salto", grupo.saltoDePagina);
            grupo.juntoALaPrimera = siNoDe(xml, u"junto", grupo.juntoALaPrimera);
            grupo.repiteCabecera = siNoDe(xml, u"repite", grupo.repiteCabecera);
            m_layout.grupos.push_back(std::move(grupo));
        }
    }

    void leeOrden()
    {
        for (const ElementoXml& xml : m_xml.hijos)
            if (xml.nombre == u"orden")
                m_layout.orden.push_back({ambito(0).clave(xml, u"por"), esDescendente(xml)});
    }

    void leeSeccionesDeGrupos(double ancho)
    {
        int nivel = 0;
        for (const ElementoXml& xml : m_xml.hijos) {
            if (xml.nombre != u"grupo")
                continue;
            Grupo& grupo = m_layout.grupos[static_cast<size_t>(nivel)];
            const AmbitoSeccion dentro = ambito(ancho, ++nivel);
            grupo.titulo = dentro.expresion(xml, u"titulo");
            grupo.cabecera = leeSeccion(xml.unico(u"cabecera"), dentro);
            grupo.pie = leeSeccion(xml.unico(u"pie"), dentro);
        }
    }

    const ElementoXml& m_xml;
    MesaLectura& m_mesa;
    Layout& m_layout;
    double m_reservado = 0;
};

} // namespace

void leeInforme(const ElementoXml& raiz, MesaLectura& mesa, Layout& layout)
{
    layout.titulo = textoDe(raiz, u"titulo");
    layout.dsn = textoDe(raiz, u"dsn", layout.dsn);
    layout.pagina = leePagina(raiz);
    LectorInforme{raiz, mesa, layout}.lee();
}

Layout leeSubinforme(const ElementoXml& xml, const AmbitoSeccion& fuera, double ancho)
{
    Layout layout;
    layout.fichero = fuera.layout.fichero;
    layout.carpeta = fuera.layout.carpeta;
    layout.titulo = fuera.layout.titulo;
    layout.dsn = fuera.layout.dsn;
    layout.pagina.tamano = {ancho, 0};
    layout.pagina.margenes = {};
    layout.pagina.largoMaximo = fuera.altoDeCuerpo();
    LectorInforme{xml, fuera.mesa, layout}.lee();
    return layout;
}

} // namespace kestrane::report
