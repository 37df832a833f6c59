#include "platform/report/imagenes.h"

#include "platform/runtime/ruta.h"

#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace kestrane::report {

namespace {

/// Pictures are let go of beyond that many bytes: a report with a photo in each row must not keep them all.
constexpr qsizetype BytesRecordados = qsizetype{32} * 1024 * 1024;
/// More pixels than that on one side are of no use on paper.
constexpr int LadoMayor = 4000;

} // namespace

QImage Imagenes::imagen(const QString& fichero)
{
    if (const auto conocida = m_leidas.constFind(fichero); conocida != m_leidas.constEnd())
        return *conocida;
    QImage leida = lee(fichero);
    if (m_bytes + leida.sizeInBytes() > BytesRecordados) {
        m_leidas.clear();
        m_bytes = 0;
    }
    m_bytes += leida.sizeInBytes();
    m_leidas.insert(fichero, leida);
    return leida;
}

QImage Imagenes::lee(const QString& fichero) const
{
    // What a row names must not lead out of the program's folder.
    const QString ruta = rutaDeMaquina(fichero, m_carpeta);
    const QString dentro = QFileInfo{m_carpeta}.canonicalFilePath() + u'/';
    if (fichero.isEmpty() || m_carpeta.isEmpty() || !QFileInfo{ruta}.canonicalFilePath().startsWith(dentro))
        return {};
    QImageReader lector{ruta};
    lector.setAutoTransform(true);
    if (const QSize lados = lector.size(); lados.width() > LadoMayor || lados.height() > LadoMayor)
        lector.setScaledSize(lados.scaled(LadoMayor, LadoMayor, Qt::KeepAspectRatio));
    return lector.read();
}

QRectF encaja(const QSizeF& proporciones, const QRectF& caja)
{
    const QSizeF tamano = proporciones.scaled(caja.size(), Qt::KeepAspectRatio);
    QRectF dentro{{}, tamano};
    dentro.moveCenter(caja.center());
    return dentro;
}

} // namespace kestrane::report
