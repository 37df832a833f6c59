#include "platform/report/informe_enlazado.h"

#include "platform/report/codigo39.h"
#include "platform/runtime/error_ejecucion.h"

using namespace Qt::StringLiterals;

namespace kestrane::report {

namespace {

constexpr int NivelesDeSubinforme = 4;

} // namespace

/// Turns the parts of a layout into bound ones.
class InformeEnlazado::Enlazador
{
public:
    Enlazador(const QStringList& columnas, const FilasDeLayout& filas, TablaEstilos& estilos, int nivel)
        : m_columnas{columnas}
        , m_filas{filas}
        , m_estilos{estilos}
        , m_nivel{nivel}
    {
    }

    [[nodiscard]] SeccionEnlazada seccion(const Seccion& seccion) const
    {
        SeccionEnlazada enlazada;
        enlazada.reserve(seccion.size());
        for (const Banda& una : seccion)
            enlazada.push_back(banda(una));
        return enlazada;
    }

    [[nodiscard]] GrupoEnlazado grupo(const Grupo& grupo) const
    {
        return {&grupo, enlaza(grupo.titulo), seccion(grupo.cabecera), seccion(grupo.pie)};
    }

private:
    [[nodiscard]] ExpresionEnlazada enlaza(const Expresion& expresion) const { return ExpresionEnlazada{expresion, m_columnas}; }

    [[nodiscard]] BandaEnlazada banda(const Banda& banda) const
    {
        BandaEnlazada enlazada;
        enlazada.banda = &banda;
        enlazada.mostrar = enlaza(banda.mostrar);
        for (const Elemento& uno : banda.elementos) {
            enlazada.elementos.push_back(elemento(uno));
            const auto* const texto = std::get_if<Texto>(&uno);
            const bool esSubinforme = std::holds_alternative<Subinforme>(uno);
            enlazada.deAltoFijo = enlazada.deAltoFijo && !esSubinforme && !(texto && texto->crece);
            enlazada.subinformes += esSubinforme ? 1 : 0;
        }
        return enlazada;
    }

    [[nodiscard]] ElementoEnlazado elemento(const Elemento& elemento) const
    {
        ElementoEnlazado enlazado;
        enlazado.elemento = &elemento;
        enlazado.mostrar = std::visit([this](const auto& uno) { return enlaza(uno.mostrar); }, elemento);
        std::visit([&](const auto& uno) { completa(enlazado, uno); }, elemento);
        return enlazado;
    }

    void completa(ElementoEnlazado& enlazado, const Texto& texto) const
    {
        enlazado.valor = enlaza(texto.valor);
        enlazado.estilos.push_back(m_estilos.indice(texto.estilo));
        for (const EstiloCondicional& variante : texto.variantes) {
            enlazado.condiciones.push_back(enlaza(variante.condicion));
            enlazado.estilos.push_back(m_estilos.indice(variante.estilo));
        }
    }
    void completa(ElementoEnlazado& enlazado, const Imagen& imagen) const
    {
        enlazado.valor = enlaza(imagen.fichero);
        enlazado.estilos.push_back(m_estilos.indice(Estilo{}));
    }
    void completa(ElementoEnlazado& enlazado, const Codigo39& codigo) const
    {
        enlazado.valor = enlaza(codigo.valor);
        enlazado.estilos.push_back(m_estilos.indice(codigo.estilo));
        if (codigo.leyenda) // whether the machine has that font is asked when it paints
            enlazado.estilos.push_back(m_estilos.indice(estiloCodigo39(codigo.caja.height())));
    }
    void completa(ElementoEnlazado& enlazado, const Subinforme& subinforme) const
    {
        enlazado.subinforme = std::make_unique<InformeEnlazado>(*subinforme.layout, m_filas, m_estilos, m_nivel + 1);
    }
    static void completa(ElementoEnlazado&, const Linea&) {}
    static void completa(ElementoEnlazado&, const Marco&) {}

    const QStringList& m_columnas;
    const FilasDeLayout& m_filas;
    TablaEstilos& m_estilos;
    int m_nivel;
};

InformeEnlazado::InformeEnlazado(const Layout& layout, const FilasDeLayout& filas, TablaEstilos& estilos, int nivel)
    : m_layout{layout}
    , m_nivel{nivel}
{
    if (nivel > NivelesDeSubinforme)
        throw ErrorEjecucion(ErrorEjecucion::LayoutIncorrecto,
                             u"%1, línea %2: hay más de %3 subinformes uno dentro de otro."_s.arg(layout.fichero)
                                 .arg(layout.lineaSentencia)
                                 .arg(NivelesDeSubinforme));
    m_filas = filas(layout);
    const Enlazador enlazador{m_filas->columnas(), filas, estilos, nivel};
    for (const Grupo& grupo : layout.grupos)
        m_grupos.push_back(enlazador.grupo(grupo));
    m_cabeceraInforme = enlazador.seccion(layout.cabeceraInforme);
    m_cabeceraPagina = enlazador.seccion(layout.cabeceraPagina);
    m_detalle = enlazador.seccion(layout.detalle);
    m_piePagina = enlazador.seccion(layout.piePagina);
    m_pieInforme = enlazador.seccion(layout.pieInforme);
}

InformeEnlazado::~InformeEnlazado() = default;

} // namespace kestrane::report
