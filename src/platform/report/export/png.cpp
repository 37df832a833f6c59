#include "platform/report/export/png.h"

#include "platform/report/export/avance_exportacion.h"
#include "platform/report/export/entrega_conjunta.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/fichero_destino.h"

#include <QBuffer>
#include <QFileInfo>
#include <QStringList>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr double MilimetrosPorMetro = 1000;

QByteArray comoPng(const QImage& imagen)
{
    QByteArray bytes;
    QBuffer destino{&bytes};
    destino.open(QIODevice::WriteOnly);
    if (!imagen.save(&destino, "PNG"))
        throw ErrorDeSalida{u"la página es demasiado grande para una imagen"_s};
    return bytes;
}

/// Where each page ends up: known before the first one is painted, so that what is in the way of one keeps all of them off.
QStringList destinosDe(const QString& fichero, int paginas)
{
    QStringList destinos;
    for (int indice = 0; indice < paginas; ++indice)
        destinos += destinoDeEscritura(ficheroDePagina(fichero, indice, paginas));
    return destinos;
}

} // namespace

QImage dibujaPagina(const PaginasInforme& paginas, int indice, int puntosPorPulgada)
{
    const PaginaCompuesta pagina = paginas.pagina(indice);
    const double porMilimetro = puntosPorPulgada / MilimetrosPorPulgada;
    QImage imagen{(pagina.tamano * porMilimetro).toSize(), QImage::Format_RGB32};
    if (imagen.isNull())
        throw ErrorDeSalida{u"la página es demasiado grande para una imagen"_s};
    imagen.setDotsPerMeterX(qRound(porMilimetro * MilimetrosPorMetro));
    imagen.setDotsPerMeterY(qRound(porMilimetro * MilimetrosPorMetro));
    imagen.fill(Qt::white);
    QPainter lienzo{&imagen};
    lienzo.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    paginas.pinta(lienzo, pagina, porMilimetro);
    return imagen;
}

QString ficheroDePagina(const QString& fichero, int indice, int paginas)
{
    if (paginas == 1)
        return fichero;
    const QString ending = QFileInfo{fichero}.suffix().isEmpty() ? QString{} : u'.' + QFileInfo{fichero}.suffix();
    return fichero.chopped(ending.size()) + u"_%1"_s.arg(indice + 1, 3, 10, QChar{u'0'}) + ending;
}

bool escribePng(const PaginasInforme& paginas, const QString& fichero, const AvanceExportacion& avance, int puntosPorPulgada)
{
    const QStringList destinos = destinosDe(fichero, paginas.paginas);
    const CarpetaProvisional carpeta{destinos.value(0, fichero)};
    for (int indice = 0; indice < paginas.paginas; ++indice) {
        if (!sigue(avance, indice, paginas.paginas))
            return false;
        const QByteArray imagen = comoPng(dibujaPagina(paginas, indice, puntosPorPulgada));
        carpeta.escribe(QString::number(indice), fichero, [&imagen](QFile& destino) { escribeTodo(destino, imagen); });
    }
    if (!sigue(avance, 1, 1))
        return false;
    EntregaConjunta entrega{carpeta};
    for (int indice = 0; indice < paginas.paginas; ++indice)
        entrega.entrega(QString::number(indice), destinos[indice]);
    entrega.confirma();
    return true;
}

} // namespace kestrane::report
