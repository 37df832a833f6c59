#include "platform/report/preview/texto_pagina.h"

#include <QFont>
#include <QFontMetricsF>

#include <algorithm>

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
        if (texto && !texto->texto.isEmpty())
            m_tramos.push_back(tramoDe(*texto, pagina.estilos->at(texto->estilo)));
    }
    ordena();
}

TextoPagina::Tramo TextoPagina::tramoDe(const TextoCompuesto& texto, const Estilo& estilo)
{
    const double cuerpo = estilo.cuerpo * MilimetrosPorPunto;
    const QRectF caja{texto.base.x(), texto.base.y() - 0.95 * cuerpo, texto.ancho, 1.2 * cuerpo};
    return {texto.texto, caja, letraDe(estilo), texto.base.y(), 0};
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

double TextoPagina::avanceHasta(const Tramo& tramo, int caracter)
{
    if (caracter <= 0)
        return 0;
    if (caracter >= tramo.texto.size())
        return tramo.caja.width();
    const QFontMetricsF medidas{tramo.letra};
    const double total = medidas.horizontalAdvance(tramo.texto);
    return total <= 0 ? 0 : tramo.caja.width() * medidas.horizontalAdvance(tramo.texto, caracter) / total;
}

QRectF TextoPagina::caja(int tramo, int desde, int hasta) const
{
    const Tramo& elegido = m_tramos[tramo];
    QRectF caja = elegido.caja;
    caja.setLeft(elegido.caja.left() + avanceHasta(elegido, desde));
    caja.setRight(elegido.caja.left() + avanceHasta(elegido, hasta));
    return caja;
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
    const double x = punto.x() - tramo.caja.left();
    int desde = 0;
    int hasta = int(tramo.texto.size());
    while (desde < hasta) {
        const int medio = (desde + hasta) / 2;
        const double mitad = (avanceHasta(tramo, medio) + avanceHasta(tramo, medio + 1)) / 2;
        if (mitad < x)
            desde = medio + 1;
        else
            hasta = medio;
    }
    return {elegido, desde};
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
