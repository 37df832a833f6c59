#include "platform/report/hoja.h"

#include <algorithm>

namespace kestrane::report {

namespace {

/// What a band that cannot be cut takes at least of a page on which nothing else stands.
constexpr double AvanceMinimo = 5;

} // namespace

Hoja::Hoja(const InformeEnlazado& informe, const MedidorBandas& medidor, const InicioPagina& inicio, const Contexto& numeros,
           const SalidaHoja& salida)
    : m_informe{informe}
    , m_formato{informe.layout().pagina}
    , m_medidor{medidor}
    , m_recorrido{informe}
    , m_reserva{informe, medidor, numeros}
    , m_lugar{inicio}
    , m_numeros{numeros}
    , m_salida{salida}
    , m_ultimaFila{inicio.paso.fila}
{
}

InicioPagina Hoja::llena()
{
    empieza();
    while (m_lugar.paso.parte != Parte::Fin && sigue()) {
    }
    termina();
    return m_lugar;
}

void Hoja::empieza()
{
    const double largo = m_formato.esRollo() ? m_formato.largoMaximo : m_formato.tamano.height();
    m_y = m_formato.margenes.top();
    m_altoPie = m_medidor.alto(m_informe, m_informe.piePagina(), contexto(m_lugar.paso.fila));
    m_limite = largo - m_formato.margenes.bottom() - m_altoPie;
    m_inicioCuerpo = m_y;
    // The report's own header stands above the first headings.
    m_faltanEncabezados = m_lugar.paso.parte == Parte::CabeceraInforme;
    if (!m_faltanEncabezados)
        ponEncabezados();
}

void Hoja::termina()
{
    cierraCajas();
    if (m_faltanEncabezados && m_lugar.paso.parte == Parte::Fin)
        ponEncabezados();
    if (!m_formato.esRollo())
        m_y = m_limite;
    ponSeccion(m_informe.piePagina(), m_ultimaFila);
    if (m_salida.pagina)
        m_salida.pagina->tamano = {m_formato.tamano.width(),
                                   m_formato.esRollo() ? m_y + m_formato.margenes.bottom() : m_formato.tamano.height()};
}

bool Hoja::sigue()
{
    const Parte parte = m_lugar.paso.parte;
    if (parte != Parte::Detalle)
        cierraCajas();
    if (m_faltanEncabezados && parte != Parte::CabeceraInforme && !encabeza())
        return false;
    if (parte == Parte::AbreGrupos)
        return abreGrupos();
    if (parte == Parte::Detalle && m_formato.columnas > 1)
        return colocaCaja();
    const bool esCabecera = parte == Parte::CabeceraGrupo && m_lugar.paso.banda == 0;
    if (esCabecera && !m_vacia && !cabe(m_reserva.para(m_lugar.paso, altoDeCuerpo())))
        return false;
    if (parte == Parte::Detalle && !empiezaFila())
        return false;
    return colocaBanda();
}

/// The bands of a row stay together when a page has room for them. Below headers that take up its top they go on as they come: the
/// next page would have no more room.
bool Hoja::empiezaFila()
{
    const bool esLaPrimera = m_lugar.paso.banda == 0 && m_lugar.deBandaEntera();
    if (!esLaPrimera || m_soloCabeceras || m_informe.detalle().size() < 2)
        return true;
    const double alto = m_reserva.paraFila(m_lugar.paso.fila, altoDeCuerpo());
    return cabe(alto) || alto > altoDeCuerpo() + Holgura;
}

/// Headings never stand alone at the end of a page.
bool Hoja::encabeza()
{
    const double alto = m_medidor.alto(m_informe, m_informe.cabeceraPagina(), contexto(m_lugar.paso.fila));
    if (!m_vacia && !cabe(alto + m_reserva.para(m_lugar.paso, altoDeCuerpo())))
        return false;
    ponEncabezados();
    return true;
}

bool Hoja::abreGrupos()
{
    Paso& paso = m_lugar.paso;
    const int primero = m_recorrido.primerNivelQueEmpieza(paso.fila);
    const bool salta = m_recorrido.empiezaPagina(paso.fila);
    if (!m_vacia && (salta || !cabe(m_reserva.paraGrupos(primero, paso.fila, altoDeCuerpo()))))
        return false;
    if (m_salida.indice)
        apuntaGrupos(primero);
    m_recorrido.avanza(paso);
    return true;
}

void Hoja::apuntaGrupos(int primero)
{
    const Contexto donde = contexto(m_lugar.paso.fila);
    const AmbitoFila ambito{m_informe.filas(), donde};
    for (int nivel = primero; nivel <= m_informe.niveles(); ++nivel) {
        const ExpresionEnlazada& titulo = m_informe.grupo(nivel).titulo;
        if (titulo.vacia())
            continue;
        m_salida.indice->push_back({m_medidor.texto(titulo, ambito), nivel - 1, m_numeros.pagina - 1, m_y});
    }
}

bool Hoja::colocaBanda()
{
    const BandaEnlazada& banda = m_recorrido.banda(m_lugar.paso);
    const auto medida = m_medidor.mide(m_informe, banda, contexto(m_lugar.paso.fila));
    if (!medida) {
        m_recorrido.avanza(m_lugar.paso);
        return true;
    }
    const bool entera = m_lugar.deBandaEntera();
    if (entera && banda.banda->saltoAntes && !m_vacia)
        return false;
    if (entera && banda.banda->alPieDePagina && !m_formato.esRollo())
        return colocaAlPie(*medida);
    return coloca(*medida);
}

/// Neighbours that stand at the foot of the page stand there together.
bool Hoja::colocaAlPie(const BandaMedida& banda)
{
    const double bloque = m_reserva.bloqueAlPie(m_lugar.paso);
    if (cabe(bloque))
        m_y = std::max(m_y, m_limite - bloque);
    else if (!m_vacia)
        return false;
    return coloca(banda);
}

bool Hoja::coloca(const BandaMedida& banda)
{
    const double falta = banda.alto - m_lugar.desde;
    if (!cabe(falta)) {
        const bool cabeEnOtra = banda.alto <= altoDeCuerpo() + Holgura;
        if (!m_vacia && (!banda.esDivisible() || (cabeEnOtra && !banda.fluye())))
            return false;
        if (banda.esDivisible())
            return parte(banda);
    }
    pon(banda, m_lugar.paso.fila, {{m_formato.margenes.left(), m_y}, m_lugar.desde, m_lugar.hecho});
    m_soloCabeceras = m_soloCabeceras && m_lugar.paso.parte == Parte::CabeceraGrupo;
    m_y += falta;
    aLaSiguiente();
    return true;
}

/// Puts what fits of a band that goes on on the next page.
bool Hoja::parte(const BandaMedida& banda)
{
    const double resto = m_limite - m_y;
    double hasta = m_lugar.desde + std::max(resto, 0.0);
    CorteBanda corte = m_medidor.corta(banda, m_lugar.hecho, hasta);
    if (!corte.cabeAlgo) {
        if (!m_vacia)
            return false;
        hasta = std::max({hasta, m_lugar.desde + AvanceMinimo, std::min(corte.primero, banda.alto)});
        corte = m_medidor.corta(banda, m_lugar.hecho, hasta);
    }
    pon(banda, m_lugar.paso.fila, {{m_formato.margenes.left(), m_y}, m_lugar.desde, m_lugar.hecho, corte.hasta});
    m_soloCabeceras = false;
    m_y += corte.hasta - m_lugar.desde;
    m_lugar.desde = corte.siguiente;
    m_lugar.hecho = corte.hasta;
    if (corte.siguiente < banda.alto)
        return false;
    aLaSiguiente();
    return true;
}

void Hoja::ponEncabezados()
{
    m_faltanEncabezados = false;
    const qsizetype fila = m_lugar.paso.fila;
    ponSeccion(m_informe.cabeceraPagina(), fila);
    for (int nivel = 1; nivel <= m_recorrido.nivelesAbiertos(m_lugar.paso); ++nivel) {
        if (m_informe.grupo(nivel).grupo->repiteCabecera)
            ponSeccion(m_informe.grupo(nivel).cabecera, fila);
    }
    m_inicioCuerpo = m_y;
}

void Hoja::ponSeccion(const SeccionEnlazada& seccion, qsizetype fila)
{
    const bool vacia = m_vacia;
    for (const BandaEnlazada& banda : seccion) {
        if (const auto medida = m_medidor.mide(m_informe, banda, contexto(fila))) {
            pon(*medida, fila, {{m_formato.margenes.left(), m_y}});
            m_y += medida->alto;
        }
    }
    m_vacia = vacia;
}

void Hoja::pon(const BandaMedida& banda, qsizetype fila, const TramoBanda& tramo)
{
    if (m_salida.compositor)
        m_salida.compositor->compone(m_informe, banda, contexto(fila), tramo, *m_salida.pagina);
    m_vacia = false;
    m_ultimaFila = fila;
}

} // namespace kestrane::report
