#include "platform/report/pintor.h"

#include "platform/report/letras_pintadas.h"

#include <algorithm>

namespace kestrane::report {

/// The letters of all styles, for the pages of one report at one scale, and the painter they go to.
class PintorPaginas::Glifos
{
public:
    /// Forgets the letters of another report or scale.
    void prepara(const PaginaCompuesta& pagina, double porMilimetro)
    {
        if (m_estilos == pagina.estilos && m_porMilimetro == porMilimetro)
            return;
        m_estilos = pagina.estilos;
        m_porMilimetro = porMilimetro;
        m_letras.clear();
        m_letras.resize(m_estilos ? m_estilos->size() : 0);
    }

    [[nodiscard]] LetrasPintadas& letras(int estilo)
    {
        auto& letras = m_letras[static_cast<size_t>(estilo)];
        if (!letras)
            letras = std::make_unique<LetrasPintadas>((*m_estilos)[static_cast<size_t>(estilo)], m_porMilimetro);
        return *letras;
    }

private:
    std::shared_ptr<const std::vector<Estilo>> m_estilos;
    double m_porMilimetro = 0;
    std::vector<std::unique_ptr<LetrasPintadas>> m_letras;
};

namespace {

/// Paints the parts of one page.
template<class Glifos>
class Pincel
{
public:
    Pincel(QPainter& pintor, Glifos& glifos, double porMilimetro) : m_pintor{pintor}, m_glifos{glifos}, m_escala{porMilimetro} {}

    /// Neighbouring texts of one style are painted at once.
    void operator()(const TextoCompuesto& texto)
    {
        LetrasPintadas& letras = m_glifos.letras(texto.estilo);
        if (&letras != m_abiertas)
            vuelca();
        m_abiertas = &letras;
        if (letras.anade(texto.texto, texto.base * m_escala))
            return;
        vuelca();
        letras.pintaFormado(m_pintor, texto.texto, texto.base * m_escala);
    }
    void operator()(const TrazoCompuesto& trazo)
    {
        vuelca();
        const QLineF linea{trazo.linea.p1() * m_escala, trazo.linea.p2() * m_escala};
        ponPluma(trazo.grosor, trazo.color);
        m_pintor.setRenderHint(QPainter::Antialiasing, linea.dx() != 0 && linea.dy() != 0);
        m_pintor.drawLine(linea);
    }
    void operator()(const MarcoCompuesto& marco)
    {
        vuelca();
        const QRectF caja = enUnidades(marco.caja);
        // Without soft edges, which would leave a seam between neighbours.
        m_pintor.setRenderHint(QPainter::Antialiasing, false);
        if (marco.relleno.isValid())
            m_pintor.fillRect(caja, marco.relleno);
        if (marco.grosor <= 0)
            return;
        ponPluma(marco.grosor, marco.color);
        m_pintor.setBrush(Qt::NoBrush);
        m_pintor.drawRect(caja);
    }
    void operator()(const ImagenCompuesta& imagen)
    {
        vuelca();
        m_pintor.setRenderHint(QPainter::SmoothPixmapTransform);
        m_pintor.drawImage(enUnidades(imagen.caja), imagen.imagen);
    }
    void operator()(const BarrasCompuestas& barras)
    {
        vuelca();
        // Soft edges keep the widths of bars true between pixels.
        m_pintor.setRenderHint(QPainter::Antialiasing);
        for (const QRectF& barra : barras.barras)
            m_pintor.fillRect(enUnidades(barra), barras.color);
    }

    /// Paints the texts that wait.
    void vuelca()
    {
        if (m_abiertas && m_abiertas->hayPendientes())
            m_abiertas->pinta(m_pintor);
        m_abiertas = nullptr;
    }

private:
    [[nodiscard]] QRectF enUnidades(const QRectF& caja) const { return {caja.topLeft() * m_escala, caja.size() * m_escala}; }
    void ponPluma(double grosor, const QColor& color)
    {
        // On a screen the thinnest line is still one pixel.
        m_pintor.setPen(QPen{color, std::max(1.0, grosor * m_escala), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    }

    QPainter& m_pintor;
    Glifos& m_glifos;
    double m_escala;
    LetrasPintadas* m_abiertas = nullptr;
};

} // namespace

PintorPaginas::PintorPaginas() : m_glifos{std::make_unique<Glifos>()} {}

PintorPaginas::~PintorPaginas() = default;

void PintorPaginas::pinta(QPainter& pintor, const PaginaCompuesta& pagina, double porMilimetro)
{
    m_glifos->prepara(pagina, porMilimetro);
    pintor.save();
    pintor.setRenderHint(QPainter::TextAntialiasing);
    Pincel pincel{pintor, *m_glifos, porMilimetro};
    for (const Primitiva& primitiva : pagina.primitivas)
        std::visit(pincel, primitiva);
    pincel.vuelca();
    pintor.restore();
}

} // namespace kestrane::report
