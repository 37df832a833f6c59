#pragma once

#include <QHash>
#include <QImage>
#include <QRectF>
#include <QString>

namespace kestrane::report {

/// Pictures by their file below a folder, read once while they are in use.
class Imagenes
{
public:
    /// Files are found from `carpeta`; "\" and "/" part folders.
    explicit Imagenes(QString carpeta) : m_carpeta{std::move(carpeta)} {}

    /// The null picture when there is no such file below the folder, or when it is none.
    [[nodiscard]] QImage imagen(const QString& fichero);

private:
    [[nodiscard]] QImage lee(const QString& fichero) const;

    QString m_carpeta;
    QHash<QString, QImage> m_leidas;
    qsizetype m_bytes = 0;
};

/// The largest box of those proportions in the middle of `caja`.
[[nodiscard]] QRectF encaja(const QSizeF& proporciones, const QRectF& caja);

} // namespace kestrane::report
