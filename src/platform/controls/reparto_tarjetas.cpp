#include "platform/controls/reparto_tarjetas.h"

#include <algorithm>
#include <array>
#include <limits>

namespace kestrane {

namespace {

constexpr int MasColumnas = 8;      ///< wider ones read better than more of them
constexpr int MasColumnasDeUna = 3; ///< of one card
constexpr int AnchoGrato = 230;     ///< a column wider than that only draws captions apart
constexpr double PesoDesborde = 1000;
constexpr double PesoHuecos = 20;

bool compartenColumna(const QRect& una, const QRect& otra)
{
    return una.left() <= otra.right() && otra.left() <= una.right();
}

/// Where the card may end: above the next one below it, or at the lower edge.
int finDe(const std::vector<SitioTarjeta>& sitios, const QRect& caja, int borde, int separacion)
{
    int fin = borde;
    for (const SitioTarjeta& otra : sitios) {
        if (otra.caja.top() > caja.top() && compartenColumna(caja, otra.caja))
            fin = std::min(fin, otra.caja.top() - separacion);
    }
    return fin;
}

/// The cards that have something to show, tried in columns of one width.
class Intento
{
public:
    Intento(std::span<const Tarjeta> tarjetas, QSize lugar, const MedidasReparto& medidas, int columnas)
        : m_lugar{lugar}
        , m_separacion{medidas.separacion}
        , m_columnas{columnas}
        , m_ancho{(lugar.width() - (columnas - 1) * medidas.separacion) / columnas}
    {
        for (const Tarjeta& tarjeta : tarjetas) {
            std::vector<int> altos;
            const int hasta = std::min({tarjeta.columnas, columnas, MasColumnasDeUna});
            for (int tramo = 1; tramo <= hasta; ++tramo)
                altos.push_back(tarjeta.alto(anchoDe(tramo), tramo));
            m_altos.push_back(std::move(altos));
        }
    }

    /// Tries every choice of columns per card and keeps the best.
    void prueba()
    {
        std::vector<int> tramos(m_altos.size(), 1);
        do
            compara(tramos);
        while (siguiente(tramos));
    }

    [[nodiscard]] double nota() const { return m_nota; }
    [[nodiscard]] const std::vector<SitioTarjeta>& sitios() const { return m_sitios; }
    [[nodiscard]] int alto() const { return m_alto; }

private:
    using Suelo = std::array<int, MasColumnas>; ///< of each column, how far down it is taken

    [[nodiscard]] int anchoDe(int tramo) const { return tramo * m_ancho + (tramo - 1) * m_separacion; }
    /// The columns part the whole width, so that some are a point wider than others.
    [[nodiscard]] int izquierda(int columna) const { return columna * (m_lugar.width() + m_separacion) / m_columnas; }

    /// The next choice, as one counts; false behind the last.
    [[nodiscard]] bool siguiente(std::vector<int>& tramos) const
    {
        for (size_t i = 0; i < tramos.size(); ++i) {
            if (tramos[i] < static_cast<int>(m_altos[i].size())) {
                ++tramos[i];
                return true;
            }
            tramos[i] = 1;
        }
        return false;
    }

    void compara(const std::vector<int>& tramos)
    {
        Suelo suelo{};
        m_probados.clear();
        double cubierto = 0;
        for (size_t i = 0; i < tramos.size(); ++i) {
            m_probados.push_back(pon(suelo, tramos[i], m_altos[i][static_cast<size_t>(tramos[i] - 1)]));
            const QRect& caja = m_probados.back().caja;
            cubierto += static_cast<double>(caja.width()) * (caja.height() + m_separacion);
        }
        const int alto = *std::max_element(suelo.begin(), suelo.end()) - m_separacion;
        double nota = notaDe(alto, cubierto);
        if (nota < m_nota)
            nota += PesoHuecos * huecos(m_probados, alto);
        if (nota >= m_nota)
            return;
        m_nota = nota;
        m_alto = alto;
        m_sitios = m_probados;
    }

    /// Puts a card where it stands highest, more to the left before more to the right.
    [[nodiscard]] SitioTarjeta pon(Suelo& suelo, int tramo, int alto) const
    {
        int donde = 0;
        int arriba = std::numeric_limits<int>::max();
        for (int columna = 0; columna + tramo <= m_columnas; ++columna) {
            const int aqui = *std::max_element(suelo.begin() + columna, suelo.begin() + columna + tramo);
            if (aqui < arriba) {
                arriba = aqui;
                donde = columna;
            }
        }
        std::fill_n(suelo.begin() + donde, tramo, arriba + alto + m_separacion);
        const int ancho = izquierda(donde + tramo) - m_separacion - izquierda(donde);
        return {QRect{izquierda(donde), arriba, ancho, alto}, tramo};
    }

    /// What no stretching covers: below a card over several columns, where another begins under one of them alone.
    [[nodiscard]] double huecos(const std::vector<SitioTarjeta>& sitios, int alto) const
    {
        double area = 0;
        for (const SitioTarjeta& sitio : sitios) {
            if (sitio.columnas == 1)
                continue;
            const int fin = finDe(sitios, sitio.caja, alto, m_separacion);
            const int primera = sitio.caja.left();
            for (int i = 0; i < sitio.columnas; ++i) {
                const QRect tira{primera + i * (m_ancho + m_separacion), sitio.caja.top(), m_ancho, sitio.caja.height()};
                area += static_cast<double>(finDe(sitios, tira, alto, m_separacion) - fin) * m_ancho;
            }
        }
        return area / (static_cast<double>(m_lugar.width()) * alto);
    }

    /// Less is better: what runs over the edge first, then what is not covered, then columns wider than they are pleasant.
    [[nodiscard]] double notaDe(int alto, double cubierto) const
    {
        const int desborde = std::max(0, alto - m_lugar.height());
        const double vacio = 1 - cubierto / (static_cast<double>(m_lugar.width()) * (alto + m_separacion));
        const double anchura = std::max(0, m_ancho - AnchoGrato) / static_cast<double>(AnchoGrato);
        return PesoDesborde * desborde + 2 * vacio + anchura;
    }

    QSize m_lugar;
    int m_separacion;
    int m_columnas;
    int m_ancho;
    std::vector<std::vector<int>> m_altos; ///< of each card with 1, 2, ... columns
    double m_nota = std::numeric_limits<double>::max();
    int m_alto = 0;
    std::vector<SitioTarjeta> m_probados; ///< by the choice of the moment
    std::vector<SitioTarjeta> m_sitios;
};

Intento probado(std::span<const Tarjeta> tarjetas, QSize lugar, const MedidasReparto& medidas, int columnas)
{
    Intento intento{tarjetas, lugar, medidas, columnas};
    intento.prueba();
    return intento;
}

Intento mejor(std::span<const Tarjeta> tarjetas, QSize lugar, const MedidasReparto& medidas)
{
    Intento elegido = probado(tarjetas, lugar, medidas, 1);
    for (int columnas = 2; columnas <= MasColumnas; ++columnas) {
        const int ancho = (lugar.width() - (columnas - 1) * medidas.separacion) / columnas;
        if (ancho < medidas.anchoColumna)
            break;
        Intento intento = probado(tarjetas, lugar, medidas, columnas);
        if (intento.nota() < elegido.nota())
            elegido = std::move(intento);
    }
    return elegido;
}

/// Draws all apart until the place is full, or as far as cards may be stretched, and closes the gaps.
void estira(std::vector<SitioTarjeta>& sitios, int alto, int lugar, const MedidasReparto& medidas)
{
    const int borde = std::max(alto, std::min(lugar, static_cast<int>(alto * medidas.estira)));
    const double factor = static_cast<double>(borde + medidas.separacion) / (alto + medidas.separacion);
    for (SitioTarjeta& sitio : sitios)
        sitio.caja.moveTop(static_cast<int>(sitio.caja.top() * factor));
    const std::vector<SitioTarjeta> movidos = sitios;
    for (SitioTarjeta& sitio : sitios)
        sitio.caja.setHeight(finDe(movidos, sitio.caja, borde, medidas.separacion) - sitio.caja.top());
}

} // namespace

std::vector<SitioTarjeta> reparteTarjetas(std::span<const Tarjeta> tarjetas, QSize lugar, const MedidasReparto& medidas)
{
    std::vector<Tarjeta> llenas;
    std::copy_if(tarjetas.begin(), tarjetas.end(), std::back_inserter(llenas),
                 [](const Tarjeta& tarjeta) { return tarjeta.columnas > 0; });
    std::vector<SitioTarjeta> sitios(tarjetas.size(), SitioTarjeta{{}, 0});
    if (llenas.empty())
        return sitios;
    const Intento intento = mejor(llenas, lugar, medidas);
    std::vector<SitioTarjeta> suyos = intento.sitios();
    estira(suyos, intento.alto(), lugar.height(), medidas);
    auto siguiente = suyos.begin();
    for (size_t i = 0; i < tarjetas.size(); ++i) {
        if (tarjetas[i].columnas > 0)
            sitios[i] = *siguiente++;
    }
    return sitios;
}

} // namespace kestrane
