#include "platform/report/export/png.h"

#include "platform/report/export/avance_exportacion.h"
#include "platform/report/export/fichero_provisional.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/motivo_sistema.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

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

void escribeFichero(const QString& ruta, const QByteArray& bytes, const QString& destino)
{
    QFile fichero{ruta};
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(bytes) != bytes.size() || !fichero.flush())
        noSePuedeEscribir(destino, motivoDe(fichero));
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
    const CarpetaProvisional carpeta{fichero};
    for (int indice = 0; indice < paginas.paginas; ++indice) {
        if (!sigue(avance, indice, paginas.paginas))
            return false;
        const QByteArray imagen = comoPng(dibujaPagina(paginas, indice, puntosPorPulgada));
        escribeFichero(carpeta.ruta(QString::number(indice)), imagen, fichero);
    }
    if (!sigue(avance, 1, 1))
        return false;
    for (int indice = 0; indice < paginas.paginas; ++indice)
        carpeta.entrega(QString::number(indice), ficheroDePagina(fichero, indice, paginas.paginas));
    return true;
}

} // namespace kestrane::report
