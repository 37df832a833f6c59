#include "platform/report/medidor_bandas.h"

#include "platform/runtime/conversiones.h"

#include <algorithm>
#include <cmath>

namespace kestrane::report {

namespace {

/// Bands of a sub-report between two places that are remembered.
constexpr int PasoMarcas = 16;

/// Where the first of `alto` millimetres of lines stands. A box for one line that grows keeps the blank above its first line, so
/// that it stands beside the texts that did not grow.
double arribaDeRenglones(const Texto& texto, double alto, double altoRenglon)
{
    const bool deUnRenglon = texto.caja.height() < 2 * altoRenglon;
    const double libre = texto.caja.height() - (deUnRenglon ? altoRenglon : alto);
    if (texto.estilo.vertical == Vertical::Arriba || libre <= 0)
        return texto.caja.top();
    return texto.caja.top() + (texto.estilo.vertical == Vertical::Centro ? libre / 2 : libre);
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
    if (!banda.mostrar.vacia() && !banda.mostrar.usaPaginas() &&
        !banda.mostrar.cierto(AmbitoFila{informe.filas(), contexto}, m_regional))
        return std::nullopt;
    BandaMedida medida{&banda, banda.banda->alto, {}, {}};
    if (banda.deAltoFijo)
        return medida;
    medida.textos.resize(banda.elementos.size());
    medida.visibles.resize(banda.elementos.size());
    for (size_t i = 0; i < banda.elementos.size(); ++i) {
        const ElementoEnlazado& elemento = banda.elementos[i];
        if (!elemento.mostrar.cierto(AmbitoFila{informe.filas(), contexto}, m_regional))
            continue;
        medida.visibles[i] = true;
        if (elemento.subinforme)
            mideSubinforme(elemento, medida);
        else
            mideTexto(informe, elemento, contexto, medida, medida.textos[i]);
    }
    return medida;
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
    const QString escrito = escribeValor(elemento.valor.valor(ambito, m_regional), texto->formato, m_regional);
    destino.renglones = parteEnRenglones(letras, escrito, texto->caja.width());
    destino.altoRenglon = letras.altoRenglon();
    const double alto = static_cast<double>(destino.renglones.size()) * destino.altoRenglon;
    destino.arriba = arribaDeRenglones(*texto, alto, destino.altoRenglon);
    // The blank below the box stays below the text.
    const double margen = std::max(0.0, medida.banda->banda->alto - texto->caja.bottom());
    const double relleno = destino.renglones.size() > 1 ? destino.arriba - texto->caja.top() : 0;
    medida.alto = std::max(medida.alto, destino.arriba + alto + relleno + margen);
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

double MedidorBandas::corte(const BandaMedida& banda, double desde, double hasta) const
{
    // Going up out of one line may lead into another's middle: until nothing moves any more.
    double corte = hasta;
    for (double anterior = corte + 1; corte > desde && corte < anterior - Holgura;) {
        anterior = corte;
        corte = corteDeSubinformes(banda, corteDeTextos(banda, corte));
    }
    return std::max(corte, desde);
}

double MedidorBandas::corteDeTextos(const BandaMedida& banda, double hasta) const
{
    double corte = hasta;
    for (const TextoMedido& texto : banda.textos) {
        if (texto.renglones.empty())
            continue;
        const double enteros = std::floor((hasta - texto.arriba) / texto.altoRenglon + Holgura);
        const bool dentro = enteros >= 0 && enteros < static_cast<double>(texto.renglones.size());
        if (dentro)
            corte = std::min(corte, std::min(hasta, texto.arriba + enteros * texto.altoRenglon));
    }
    return corte;
}

double MedidorBandas::corteDeSubinformes(const BandaMedida& banda, double hasta) const
{
    double corte = hasta;
    for (size_t i = 0; i < banda.visibles.size(); ++i) {
        const ElementoEnlazado& elemento = banda.banda->elementos[i];
        if (!elemento.subinforme || !banda.visibles[i])
            continue;
        const double origen = std::get<Subinforme>(*elemento.elemento).caja.top();
        const double dentro = hasta - origen;
        recorreSubinforme(*elemento.subinforme, dentro - Holgura, dentro, [&](const BandaMedida& una, qsizetype, double arriba) {
            if (arriba + una.alto > dentro + Holgura)
                corte = std::min(corte, arriba > 0 ? origen + arriba : 0); // no heading above it stays behind alone
        });
    }
    return corte;
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
