#include "platform/report/medidor_bandas.h"

#include "platform/runtime/conversiones.h"

#include <algorithm>

namespace kestrane::report {

namespace {

/// Bands of a sub-report between two places that are remembered.
constexpr int PasoMarcas = 16;

/// A box for one line: what grows stands below it, so that the first line stays beside the texts that do not grow.
bool esDeUnRenglon(const Texto& texto, double altoRenglon)
{
    return texto.caja.height() < 2 * altoRenglon;
}

double altoDeCaja(const Texto& texto, const TextoMedido& medido)
{
    if (medido.renglones.size() < 2)
        return texto.caja.height();
    const double deMas = medido.alto() - medido.altoRenglon;
    return esDeUnRenglon(texto, medido.altoRenglon) ? texto.caja.height() + deMas : std::max(texto.caja.height(), medido.alto());
}

double arribaDeRenglones(const Texto& texto, Vertical vertical, const TextoMedido& medido)
{
    const double libre = altoDeCaja(texto, medido) - medido.alto();
    if (vertical == Vertical::Arriba)
        return texto.caja.top();
    return texto.caja.top() + (vertical == Vertical::Centro ? libre / 2 : libre);
}

} // namespace

int estiloDe(const ElementoEnlazado& elemento, const AmbitoExpresion& ambito, const ConfiguracionRegional& regional)
{
    for (size_t i = 0; i < elemento.condiciones.size(); ++i) {
        if (elemento.condiciones[i].cierto(ambito, regional))
            return elemento.estilos[i + 1];
    }
    return elemento.estilos.front();
}

std::optional<BandaMedida> MedidorBandas::mide(const InformeEnlazado& informe, const BandaEnlazada& banda,
                                               const Contexto& contexto) const
{
    const Contexto sinTotal{contexto.fila, contexto.pagina, 0};
    if (!banda.mostrar.vacia() && !banda.mostrar.usaPaginas() &&
        !banda.mostrar.cierto(AmbitoFila{informe.filas(), sinTotal}, m_regional))
        return std::nullopt;
    BandaMedida medida{&banda, banda.banda->alto, {}, {}, false};
    if (banda.deAltoFijo)
        return medida;
    medida.textos.resize(banda.elementos.size());
    medida.visibles.resize(banda.elementos.size());
    for (size_t i = 0; i < banda.elementos.size(); ++i) {
        const ElementoEnlazado& elemento = banda.elementos[i];
        if (!elemento.mostrar.usaPaginas() && !elemento.mostrar.cierto(AmbitoFila{informe.filas(), sinTotal}, m_regional))
            continue;
        medida.visibles[i] = true;
        if (elemento.subinforme)
            mideSubinforme(elemento, medida);
        else
            mideTexto(informe, elemento, sinTotal, medida, medida.textos[i]);
    }
    medida.seParteEnSubinforme = medida.alto > m_altoDeUnaPieza + Holgura;
    return medida;
}

std::vector<Renglon> MedidorBandas::renglonesDe(const ElementoEnlazado& elemento, int estilo, const AmbitoExpresion& ambito) const
{
    const auto& texto = std::get<Texto>(*elemento.elemento);
    const QString escrito = escribeValor(elemento.valor.valor(ambito, m_regional), texto.formato, m_regional);
    return parteEnRenglones(m_estilos.medida(estilo), escrito, texto.caja.width());
}

TextoMedido MedidorBandas::conNumeros(const TextoMedido& medido, const ElementoEnlazado& elemento,
                                      const AmbitoExpresion& ambito) const
{
    TextoMedido nuevo = medido;
    nuevo.renglones = renglonesDe(elemento, medido.estilo, ambito);
    const size_t caben = medido.renglones.size();
    if (caben == 0 || nuevo.renglones.size() <= caben)
        return nuevo;
    QString resto;
    for (size_t i = caben - 1; i < nuevo.renglones.size(); ++i)
        resto += nuevo.renglones[i].texto + u' ';
    nuevo.renglones.resize(caben);
    nuevo.renglones.back() =
        cortaRenglon(m_estilos.medida(medido.estilo), resto.trimmed(), std::get<Texto>(*elemento.elemento).caja.width());
    return nuevo;
}

void MedidorBandas::mideTexto(const InformeEnlazado& informe, const ElementoEnlazado& elemento, const Contexto& contexto,
                              BandaMedida& medida, TextoMedido& destino) const
{
    const auto* const texto = std::get_if<Texto>(elemento.elemento);
    if (!texto || !texto->crece)
        return;
    const AmbitoFila ambito{informe.filas(), contexto};
    destino.estilo = estiloDe(elemento, ambito, m_regional);
    const MedidaEstilo& letras = m_estilos.medida(destino.estilo);
    destino.renglones = renglonesDe(elemento, destino.estilo, ambito);
    destino.altoRenglon = letras.altoRenglon();
    destino.arriba = arribaDeRenglones(*texto, m_estilos.estilo(destino.estilo).vertical, destino);
    // What stands below the box goes down with its bottom.
    const double margen = std::max(0.0, medida.banda->banda->alto - texto->caja.bottom());
    medida.alto = std::max(medida.alto, texto->caja.top() + altoDeCaja(*texto, destino) + margen);
}

void MedidorBandas::mideSubinforme(const ElementoEnlazado& elemento, BandaMedida& medida) const
{
    const double arriba = std::get<Subinforme>(*elemento.elemento).caja.top();
    medida.alto = std::max(medida.alto, arriba + subinforme(*elemento.subinforme).alto);
}

double MedidorBandas::alto(const InformeEnlazado& informe, const SeccionEnlazada& seccion, const Contexto& contexto) const
{
    double suma = 0;
    for (const BandaEnlazada& banda : seccion) {
        if (const auto medida = mide(informe, banda, contexto))
            suma += medida->alto;
    }
    return suma;
}

CorteBanda MedidorBandas::corta(const BandaMedida& banda, double hecho, double hasta) const
{
    constexpr double Lejos = 1e12;
    double ultimo = hecho;
    CorteBanda corte{false, hasta, Lejos, Lejos};
    recorreUnidades(banda, hecho, hasta, 0, [&](double arriba, double abajo) {
        corte.primero = std::min(corte.primero, abajo);
        if (abajo > hasta + Holgura) {
            corte.siguiente = std::min(corte.siguiente, arriba);
            return;
        }
        corte.cabeAlgo = true;
        ultimo = std::max(ultimo, abajo);
    });
    corte.cabeAlgo = corte.cabeAlgo || (corte.primero == Lejos && hasta > hecho); // nothing but blank is there
    if (corte.siguiente == Lejos)
        corte.siguiente = hasta;
    else
        corte.hasta = std::max(corte.siguiente, ultimo);
    return corte;
}

/// Calls `visita` for the lines and bands of sub-reports that end below `hecho` and begin above `hasta`.
void MedidorBandas::recorreUnidades(const BandaMedida& banda, double hecho, double hasta, double origen, const Unidad& visita) const
{
    for (const TextoMedido& texto : banda.textos) {
        for (size_t i = 0; i < texto.renglones.size(); ++i) {
            const double arriba = origen + texto.arriba + static_cast<double>(i) * texto.altoRenglon;
            if (arriba >= hasta)
                break;
            if (arriba + texto.altoRenglon > hecho + Holgura)
                visita(arriba, arriba + texto.altoRenglon);
        }
    }
    for (size_t i = 0; i < banda.visibles.size(); ++i) {
        const ElementoEnlazado& elemento = banda.banda->elementos[i];
        if (!elemento.subinforme || !banda.visibles[i])
            continue;
        const double suyo = origen + std::get<Subinforme>(*elemento.elemento).caja.top();
        recorreSubinforme(*elemento.subinforme, hecho - suyo, hasta - suyo, [&](const BandaMedida& una, qsizetype, double arriba) {
            if (una.seParteEnSubinforme)
                recorreUnidades(una, hecho, hasta, suyo + arriba, visita);
            else
                visita(suyo + arriba, suyo + arriba + una.alto);
        });
    }
}

QString MedidorBandas::texto(const ExpresionEnlazada& expresion, const AmbitoExpresion& ambito) const
{
    return aTexto(expresion.valor(ambito, m_regional), m_regional);
}

const SubinformeMedido& MedidorBandas::subinforme(const InformeEnlazado& informe) const
{
    if (const auto conocido = m_subinformes.find(&informe); conocido != m_subinformes.end())
        return conocido->second;
    SubinformeMedido medido;
    const Recorrido recorrido{informe};
    int bandas = 0;
    for (Paso paso = recorrido.primero(); paso.parte != Parte::Fin; recorrido.avanza(paso)) {
        if (paso.parte == Parte::AbreGrupos)
            continue;
        if (bandas++ % PasoMarcas == 0)
            medido.marcas.push_back({paso, medido.alto});
        if (const auto medida = mide(informe, recorrido.banda(paso), {paso.fila}))
            medido.alto += medida->alto;
    }
    return m_subinformes.emplace(&informe, std::move(medido)).first->second;
}

} // namespace kestrane::report
