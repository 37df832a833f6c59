#pragma once

#include "platform/report/preview/fuente_vista.h"

#include <QFontMetricsF>
#include <QStringList>

#include <functional>
#include <set>

namespace kestrane::report::prueba {

/// A report without rows: each page is a list of lines, whose cells are parted by "|" and may be broken by line ends. It is laid
/// out a page at a time, as far as a test lets it.
class FuenteDePrueba final : public FuenteVista
{
public:
    /// Complete from the start.
    explicit FuenteDePrueba(QList<QStringList> paginas) : hojas{std::move(paginas)}, hechas{int(hojas.size())} {}
    /// `cuantas` pages "Hoja 1" and on, of which `yaHechas` are laid out.
    FuenteDePrueba(int cuantas, int yaHechas) : hechas{yaHechas}
    {
        for (int i = 1; i <= cuantas; ++i)
            hojas += QStringList{QStringLiteral("Hoja %1").arg(i)};
    }

    [[nodiscard]] QString titulo() const override { return nombre; }
    [[nodiscard]] int paginas() const override { return hechas; }
    [[nodiscard]] bool completa() const override { return hechas == hojas.size(); }
    [[nodiscard]] double avance() const override { return hojas.isEmpty() ? 1 : double(hechas) / double(hojas.size()); }
    bool avanza(QDeadlineTimer) override
    {
        if (alAvanzar)
            alAvanzar();
        if (!completa() && hechas < tope)
            ++hechas;
        return completa();
    }
    [[nodiscard]] QSizeF tamano(int pagina) override
    {
        if (alMedir)
            alMedir(pagina);
        return papel;
    }
    [[nodiscard]] PaginaCompuesta pagina(int pagina) override
    {
        pedidas.insert(pagina);
        if (alComponer)
            alComponer(pagina);
        PaginaCompuesta compuesta{papel, {}, estilos};
        for (int linea = 0; linea < hojas[pagina].size(); ++linea)
            anadeLinea(compuesta, hojas[pagina][linea], 20 + 8. * linea);
        anadeLinea(
            compuesta,
            QStringLiteral("Página %1 de %2").arg(pagina + 1).arg(completa() ? QString::number(hechas) : QStringLiteral("...")),
            papel.height() - 15);
        return compuesta;
    }
    void pinta(QPainter& pintor, const PaginaCompuesta& pagina, double porMilimetro) override
    {
        ++pintadas;
        QFont letra{estilos->front().familia};
        letra.setPixelSize(std::max(1, qRound(estilos->front().cuerpo * 25.4 / 72 * porMilimetro)));
        pintor.setFont(letra);
        pintor.setPen(Qt::black);
        for (const Primitiva& primitiva : pagina.primitivas)
            pintor.drawText(std::get<TextoCompuesto>(primitiva).base * porMilimetro, std::get<TextoCompuesto>(primitiva).texto);
    }
    [[nodiscard]] const std::vector<EntradaIndice>& indice() const override { return grupos; }
    void actualiza() override
    {
        if (alActualizar)
            alActualizar();
        ++actualizaciones;
        hechas = std::min(hechas, 1);
    }
    bool exporta(FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance) override
    {
        return alExportar && alExportar(formato, fichero, avance);
    }

    QString nombre = QStringLiteral("Listado de secciones");
    QList<QStringList> hojas;
    int hechas = 0;
    int tope = std::numeric_limits<int>::max(); ///< no more pages than these are laid out
    QSizeF papel{210, 297};
    std::vector<EntradaIndice> grupos;
    std::shared_ptr<const std::vector<Estilo>> estilos = estiloDeDoce();

    std::set<int> pedidas;
    int pintadas = 0;
    int actualizaciones = 0;
    std::function<void()> alAvanzar;
    std::function<void(int)> alComponer;
    std::function<void(int)> alMedir;
    std::function<void()> alActualizar;
    std::function<bool(FormatoExportacion, const QString&, const AvanceExportacion&)> alExportar;

private:
    static std::shared_ptr<const std::vector<Estilo>> estiloDeDoce()
    {
        Estilo estilo;
        estilo.cuerpo = 12;
        return std::make_shared<std::vector<Estilo>>(1, estilo);
    }
    void anadeLinea(PaginaCompuesta& pagina, const QString& linea, double y) const
    {
        QFont letra{estilos->front().familia};
        letra.setPixelSize(100);
        const double milimetros = estilos->front().cuerpo * 25.4 / 72 / 100;
        double x = 20;
        for (const QString& celda : linea.split(u'|')) {
            double baja = 0;
            for (const QString& renglon : celda.split(u'\n')) {
                const double ancho = QFontMetricsF{letra}.horizontalAdvance(renglon) * milimetros;
                pagina.primitivas.emplace_back(TextoCompuesto{{x, y + baja}, ancho, renglon, 0, baja > 0});
                baja += 6;
            }
            x += 60;
        }
    }
};

} // namespace kestrane::report::prueba
