#include "platform/report/preview/texto_pagina.h"

#include "platform/report/preview/forma_texto.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace kestrane::report {

namespace {

constexpr double MilimetrosPorPunto = 25.4 / 72;
constexpr double MismaLinea = 0.8; ///< millimetres by which base lines of one line may differ
constexpr int AltoLetra = 100;

QFont letraDe(const Estilo& estilo)
{
    QFont letra{estilo.familia};
    letra.setPixelSize(AltoLetra);
    letra.setBold(estilo.negrita);
    letra.setItalic(estilo.cursiva);
    return letra;
}

double distancia(double valor, double desde, double hasta)
{
    return std::max({desde - valor, valor - hasta, 0.});
}

} // namespace

TextoPagina::TextoPagina(const PaginaCompuesta& pagina)
{
    for (const Primitiva& primitiva : pagina.primitivas) {
        const auto* texto = std::get_if<TextoCompuesto>(&primitiva);
        if (!texto || texto->texto.isEmpty())
            continue;
        m_tramos.push_back(tramoDe(*texto, pagina.estilos->at(texto->estilo)));
        m_tramos.back().pintado = int(m_tramos.size()) - 1;
    }
    ordena();
    enlaza();
}

TextoPagina::Tramo TextoPagina::tramoDe(const TextoCompuesto& texto, const Estilo& estilo)
{
    const double cuerpo = estilo.cuerpo * MilimetrosPorPunto;
    const QRectF caja{texto.base.x(), texto.base.y() - 0.93 * cuerpo, texto.ancho, 1.16 * cuerpo}; // lines touch and do not overlap
    Tramo tramo{.texto = texto.texto, .caja = caja, .letra = letraDe(estilo), .base = texto.base.y()};
    tramo.sigue = texto.sigue;
    return tramo;
}

void TextoPagina::ordena()
{
    std::stable_sort(m_tramos.begin(), m_tramos.end(), [](const Tramo& a, const Tramo& b) { return a.base < b.base; });
    int linea = 0;
    double base = m_tramos.empty() ? 0 : m_tramos.front().base;
    for (Tramo& tramo : m_tramos) {
        if (tramo.base - base > MismaLinea) {
            ++linea;
            base = tramo.base;
        }
        tramo.linea = linea;
    }
    std::stable_sort(m_tramos.begin(), m_tramos.end(), [](const Tramo& a, const Tramo& b) {
        return a.linea != b.linea ? a.linea < b.linea : a.caja.left() < b.caja.left();
    });
}

void TextoPagina::enlaza()
{
    // The lines of a cell are painted one after the other.
    std::vector<int> lugares(m_tramos.size());
    for (int tramo = 0; tramo < tramos(); ++tramo)
        lugares[m_tramos[tramo].pintado] = tramo;
    for (std::size_t i = 1; i < lugares.size(); ++i) {
        if (m_tramos[lugares[i]].sigue)
            m_tramos[lugares[i - 1]].siguiente = lugares[i];
    }
    if (!lugares.empty())
        m_tramos[lugares.front()].sigue = false;
}

void TextoPagina::anadeCajas(const Tramo& tramo, int desde, int hasta, std::vector<QRectF>& destino)
{
    for (const auto& [izquierda, derecha] : FormaTexto{tramo.texto, tramo.letra}.franjas(desde, hasta)) {
        QRectF caja = tramo.caja;
        caja.setLeft(tramo.caja.left() + izquierda * tramo.caja.width());
        caja.setRight(tramo.caja.left() + derecha * tramo.caja.width());
        destino.push_back(caja);
    }
}

std::vector<QRectF> TextoPagina::cajas(int tramo, int desde, int hasta) const
{
    std::vector<QRectF> todas;
    for (int linea = tramo; linea >= 0 && hasta > 0; linea = m_tramos[linea].siguiente) {
        anadeCajas(m_tramos[linea], desde, hasta, todas);
        const int largo = int(m_tramos[linea].texto.size());
        desde = std::max(desde - largo, 0);
        hasta -= largo;
    }
    return todas;
}

QRectF TextoPagina::caja(int tramo, int desde, int hasta) const
{
    const std::vector<QRectF> todas = cajas(tramo, desde, hasta);
    return std::accumulate(todas.begin(), todas.end(), QRectF{}, std::bit_or<>{});
}

int TextoPagina::tramoCercaDe(QPointF punto) const
{
    // Height counts for more: whoever drags beside a line means that line.
    const auto lejania = [punto](const Tramo& tramo) {
        return 1000 * distancia(punto.y(), tramo.caja.top(), tramo.caja.bottom()) +
               distancia(punto.x(), tramo.caja.left(), tramo.caja.right());
    };
    const auto cercano = std::min_element(m_tramos.begin(), m_tramos.end(),
                                          [&lejania](const Tramo& a, const Tramo& b) { return lejania(a) < lejania(b); });
    return int(cercano - m_tramos.begin());
}

LugarTexto TextoPagina::lugarEn(QPointF punto) const
{
    if (m_tramos.empty())
        return {};
    const int elegido = tramoCercaDe(punto);
    const Tramo& tramo = m_tramos[elegido];
    const double parte = tramo.caja.width() <= 0 ? 0 : (punto.x() - tramo.caja.left()) / tramo.caja.width();
    return {elegido, FormaTexto{tramo.texto, tramo.letra}.caracterEn(parte)};
}

bool TextoPagina::hayTextoEn(QPointF punto) const
{
    return std::any_of(m_tramos.begin(), m_tramos.end(), [punto](const Tramo& tramo) { return tramo.caja.contains(punto); });
}

LugarTexto TextoPagina::final() const
{
    return m_tramos.empty() ? LugarTexto{} : LugarTexto{tramos() - 1, int(m_tramos.back().texto.size())};
}

QString TextoPagina::entre(LugarTexto desde, LugarTexto hasta) const
{
    QString todo;
    for (int i = desde.tramo; i <= hasta.tramo && i < tramos(); ++i) {
        const int primero = i == desde.tramo ? desde.caracter : 0;
        const int ultimo = i == hasta.tramo ? hasta.caracter : int(m_tramos[i].texto.size());
        if (i > desde.tramo)
            todo += m_tramos[i].linea == m_tramos[i - 1].linea ? u'\t' : u'\n';
        todo += QStringView{m_tramos[i].texto}.mid(primero, ultimo - primero);
    }
    return todo;
}

} // namespace kestrane::report
