#pragma once

#include "platform/report/export/paginas_informe.h"

#include <QFont>

namespace kestrane::prueba {

/// Pages of these sizes in millimetres; each says which it is and has a black square in its corner.
[[nodiscard]] inline report::PaginasInforme paginasDePrueba(const std::vector<QSizeF>& tamanos)
{
    using namespace Qt::StringLiterals;
    const auto pagina = [tamanos](int indice) {
        report::PaginaCompuesta nueva{.tamano = tamanos.at(static_cast<size_t>(indice)), .primitivas = {}, .estilos = {}};
        nueva.primitivas.emplace_back(
            report::TextoCompuesto{.base = {20, 30}, .ancho = 100, .texto = u"página %1 señalada"_s.arg(indice + 1)});
        return nueva;
    };
    const auto pinta = [](QPainter& lienzo, const report::PaginaCompuesta& compuesta, double porMilimetro) {
        lienzo.fillRect(QRectF{0, 0, 10 * porMilimetro, 10 * porMilimetro}, Qt::black);
        lienzo.setFont(QFont{u"DejaVu Sans"_s, 12});
        const auto& texto = std::get<report::TextoCompuesto>(compuesta.primitivas.at(0));
        lienzo.drawText(texto.base * porMilimetro, texto.texto);
    };
    return {.titulo = u"Servicios"_s, .paginas = static_cast<int>(tamanos.size()), .pagina = pagina, .pinta = pinta};
}

} // namespace kestrane::prueba
