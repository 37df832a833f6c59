#include "platform/report/layout/lector_layout.h"

#include "platform/report/layout/lector_informe.h"

#include <QFileInfo>

namespace kestrane::report {

Layout leeLayout(const QString& ruta)
{
    const QFileInfo info{ruta};
    return leeLayout(bytesDeFichero(ruta, {info.fileName(), 0}), info.fileName(), info.absolutePath());
}

Layout leeLayout(const QByteArray& xml, const QString& fichero, const QString& carpeta)
{
    Layout layout;
    layout.fichero = fichero;
    layout.carpeta = carpeta;
    const ElementoXml raiz = leeArbol(xml, fichero, u"informe");
    HojaEstilos estilos;
    const PartesComunes partes{raiz, carpeta, estilos};
    estilos.anade(raiz);
    MesaLectura mesa{estilos, partes};
    leeInforme(raiz, mesa, layout);
    return layout;
}

} // namespace kestrane::report
