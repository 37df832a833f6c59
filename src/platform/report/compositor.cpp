#include "platform/report/compositor.h"

#include "platform/report/codigo39.h"
#include "platform/runtime/conversiones.h"

#include <algorithm>
#include <utility>

namespace kestrane::report {

namespace {

constexpr double Holgura = 0.01;
constexpr double GrosorHueco = 0.1;

} // namespace

void Compositor::compone(const InformeEnlazado& informe, const BandaMedida& banda, const Contexto& contexto,
                         const TramoBanda& tramo, PaginaCompuesta& pagina)
{
    const AmbitoFila ambito{informe.filas(), contexto};
    if (banda.banda->mostrar.usaPaginas() && !banda.banda->mostrar.cierto(ambito, m_regional))
        return;
    const Obra obra{informe, banda, contexto, ambito, tramo, pagina};
    for (size_t i = 0; i < banda.banda->elementos.size(); ++i) {
        if (banda.banda->elementos[i].mostrar.cierto(ambito, m_regional))
            pon(obra, banda.banda->elementos[i], i);
    }
}

void Compositor::pon(const Obra& obra, const ElementoEnlazado& elemento, size_t indice)
{
    std::visit([&](const auto& uno) { pon(obra, uno, elemento, indice); }, *elemento.elemento);
}

void Compositor::pon(const Obra& obra, const Texto& texto, const ElementoEnlazado& elemento, size_t indice)
{
    if (texto.crece) {
        const TextoMedido& medido = obra.banda.textos[indice];
        ponFondo(obra, texto, m_estilos.estilo(medido.estilo).fondo);
        const bool conNumeros = elemento.valor.usaPagina() || elemento.valor.usaPaginas();
        return ponCrecido(obra, texto, conNumeros ? m_medidor.conNumeros(medido, elemento, obra.ambito) : medido);
    }
    const int estilo = estiloDe(elemento, obra.ambito, m_regional);
    ponFondo(obra, texto, m_estilos.estilo(estilo).fondo);
    if (!obra.tramo.empiezaAqui(texto.caja.top()))
        return;
    const QString escrito = escribeValor(elemento.valor.valor(obra.ambito, m_regional), texto.formato, m_regional);
    if (escrito.isEmpty())
        return;
    const MedidaEstilo& letras = m_estilos.medida(estilo);
    const QRectF caja = enPagina(obra, texto.caja);
    const double libre = caja.height() - letras.altoRenglon();
    const Vertical vertical = m_estilos.estilo(estilo).vertical;
    const double baja = vertical == Vertical::Arriba ? 0 : vertical == Vertical::Centro ? libre / 2 : libre;
    ponRenglon(obra.pagina, cortaRenglon(letras, escrito, caja.width()), caja, caja.top() + baja,
               m_estilos.estilo(estilo).horizontal, estilo);
}

/// The ground of a cell that is as high as its band grows with it.
void Compositor::ponFondo(const Obra& obra, const Texto& texto, const QColor& fondo)
{
    if (!fondo.isValid())
        return;
    const bool hastaElFondo = texto.crece || texto.caja.bottom() >= obra.banda.banda->banda->alto - Holgura;
    const QRectF caja = recortada(obra, texto.caja, hastaElFondo);
    if (!caja.isEmpty())
        obra.pagina.primitivas.emplace_back(MarcoCompuesto{caja, 0, {}, fondo});
}

void Compositor::ponCrecido(const Obra& obra, const Texto& texto, const TextoMedido& medido) const
{
    const QRectF caja{obra.tramo.lugar.x() + texto.caja.left(), 0, texto.caja.width(), 0};
    double arriba = medido.arriba;
    bool sigue = false; // the first one on this page begins
    for (const Renglon& renglon : medido.renglones) {
        if (obra.tramo.terminaAqui(arriba + medido.altoRenglon) && !renglon.texto.isEmpty()) {
            ponRenglon(obra.pagina, renglon, caja, obra.tramo.enPagina(arriba), m_estilos.estilo(medido.estilo).horizontal,
                       medido.estilo);
            std::get<TextoCompuesto>(obra.pagina.primitivas.back()).sigue = std::exchange(sigue, true);
        }
        arriba += medido.altoRenglon;
    }
}

void Compositor::ponRenglon(PaginaCompuesta& pagina, Renglon renglon, const QRectF& caja, double arriba, Horizontal horizontal,
                            int estilo) const
{
    const double libre = caja.width() - renglon.ancho;
    const double x = horizontal == Horizontal::Izquierda ? 0 : horizontal == Horizontal::Centro ? libre / 2 : libre;
    const QPointF base{caja.left() + x, arriba + m_estilos.medida(estilo).ascendente()};
    pagina.primitivas.emplace_back(TextoCompuesto{base, renglon.ancho, std::move(renglon.texto), estilo});
}

void Compositor::ponCentrado(PaginaCompuesta& pagina, const QString& texto, const QRectF& caja, int estilo) const
{
    const MedidaEstilo& letras = m_estilos.medida(estilo);
    ponRenglon(pagina, cortaRenglon(letras, texto, caja.width()), caja, caja.center().y() - letras.altoRenglon() / 2,
               Horizontal::Centro, estilo);
}

void Compositor::pon(const Obra& obra, const Linea& linea, const ElementoEnlazado&, size_t)
{
    // A level line stands where its top is; one that goes down is cut with its band.
    const bool baja = linea.hastaElFondo || linea.caja.height() > 0;
    if (!baja && !obra.tramo.empiezaAqui(linea.caja.top()))
        return;
    QRectF caja = enPagina(obra, linea.caja);
    if (baja)
        caja = recortada(obra, linea.caja, linea.hastaElFondo);
    if (!baja || caja.height() > 0)
        obra.pagina.primitivas.emplace_back(TrazoCompuesto{{caja.topLeft(), caja.bottomRight()}, linea.grosor, linea.color});
}

void Compositor::pon(const Obra& obra, const Marco& marco, const ElementoEnlazado&, size_t)
{
    const QRectF caja = recortada(obra, marco.caja, marco.hastaElFondo);
    if (!caja.isEmpty())
        obra.pagina.primitivas.emplace_back(MarcoCompuesto{caja, marco.grosor, marco.color, marco.relleno});
}

void Compositor::pon(const Obra& obra, const Imagen& imagen, const ElementoEnlazado& elemento, size_t)
{
    const QString fichero = textoDe(obra, elemento);
    if (fichero.isEmpty() || !obra.tramo.empiezaAqui(imagen.caja.top()))
        return;
    const QRectF caja = enPagina(obra, imagen.caja);
    if (const QImage leida = m_imagenes.imagen(fichero); !leida.isNull()) {
        obra.pagina.primitivas.emplace_back(ImagenCompuesta{encaja(leida.size(), caja), leida});
        return;
    }
    obra.pagina.primitivas.emplace_back(MarcoCompuesto{caja, GrosorHueco, Qt::gray, {}});
    const qsizetype barra = std::max(fichero.lastIndexOf(u'/'), fichero.lastIndexOf(u'\\'));
    ponCentrado(obra.pagina, fichero.sliced(barra + 1), caja, elemento.estilos.front());
}

void Compositor::pon(const Obra& obra, const Codigo39& codigo, const ElementoEnlazado& elemento, size_t)
{
    const QString valor = textoDe(obra, elemento).trimmed();
    if (valor.isEmpty() || !obra.tramo.empiezaAqui(codigo.caja.top()))
        return;
    const QRectF caja = enPagina(obra, codigo.caja);
    const int estilo = elemento.estilos.front();
    const double leyenda = codigo.leyenda ? m_estilos.medida(estilo).altoRenglon() : 0;
    if (ponConLetra(obra, valor, caja, elemento))
        return;
    auto barras = barrasCodigo39(valor, caja.adjusted(0, 0, 0, -leyenda));
    if (barras.empty()) {
        obra.pagina.primitivas.emplace_back(MarcoCompuesto{caja, GrosorHueco, Qt::black, {}});
        return ponCentrado(obra.pagina, valor, caja, estilo);
    }
    obra.pagina.primitivas.emplace_back(BarrasCompuestas{std::move(barras), Qt::black});
    if (codigo.leyenda)
        ponCentrado(obra.pagina, valor, {caja.left(), caja.bottom() - leyenda, caja.width(), leyenda}, estilo);
}

/// With the machine's bar code font, which always writes the legend, when the code is not wider than its box.
bool Compositor::ponConLetra(const Obra& obra, const QString& valor, const QRectF& caja, const ElementoEnlazado& elemento) const
{
    if (elemento.estilos.size() < 2 || !esCodigo39(valor) || !hayLetraCodigo39())
        return false;
    const int estilo = elemento.estilos[1];
    Renglon renglon{textoCodigo39(valor), 0};
    renglon.ancho = m_estilos.medida(estilo).ancho(renglon.texto);
    if (renglon.ancho > caja.width())
        return false;
    ponRenglon(obra.pagina, std::move(renglon), caja, caja.top(), Horizontal::Centro, estilo);
    return true;
}

void Compositor::pon(const Obra& obra, const Subinforme& subinforme, const ElementoEnlazado& elemento, size_t)
{
    const InformeEnlazado& informe = *elemento.subinforme;
    const TramoBanda tramo = obra.tramo.dentro(subinforme.caja.left(), subinforme.caja.top());
    m_medidor.recorreSubinforme(informe, tramo.hecho, tramo.hasta, [&](const BandaMedida& banda, qsizetype fila, double arriba) {
        const Contexto contexto{fila, obra.contexto.pagina, obra.contexto.paginas};
        if (banda.seParteEnSubinforme)
            compone(informe, banda, contexto, tramo.dentro(0, arriba), obra.pagina);
        else if (tramo.terminaAqui(arriba + banda.alto))
            compone(informe, banda, contexto, {{tramo.lugar.x(), tramo.enPagina(arriba)}}, obra.pagina);
    });
}

QRectF Compositor::enPagina(const Obra& obra, const QRectF& caja)
{
    return {obra.tramo.lugar.x() + caja.left(), obra.tramo.enPagina(caja.top()), caja.width(), caja.height()};
}

QRectF Compositor::recortada(const Obra& obra, const QRectF& caja, bool hastaElFondo)
{
    const double arriba = std::max(caja.top(), obra.tramo.desde);
    const double fondo = hastaElFondo ? obra.banda.alto : caja.bottom();
    const double abajo = std::min(fondo, obra.tramo.hasta);
    return {obra.tramo.lugar.x() + caja.left(), obra.tramo.enPagina(arriba), caja.width(), abajo - arriba};
}

QString Compositor::textoDe(const Obra& obra, const ElementoEnlazado& elemento) const
{
    return aTexto(elemento.valor.valor(obra.ambito, m_regional), m_regional);
}

} // namespace kestrane::report
