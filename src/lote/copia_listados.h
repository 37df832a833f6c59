#pragma once

#include "platform/database/entorno_datos.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace kestrane::lote {

/// A reports database of this run's own, so that it works beside the program and beside others of its kind: the staging tables are
/// empty, `listadostemporal` holds what it holds in the original.
class CopiaListados
{
public:
    /// Makes it in `carpeta`, over one that lies there, or in a folder that goes with the object when that is "". `originales`
    /// leads to the original, which is read and not touched. ErrorEjecucion when the original lacks a table or cannot be opened,
    /// when the copy cannot be written, and when it would take the original's place.
    CopiaListados(const database::OpcionesDatos& originales, const QString& carpeta);

    [[nodiscard]] const QString& carpeta() const { return m_carpeta; }
    /// The original's options, with the reports database led to the copy.
    [[nodiscard]] database::OpcionesDatos opciones() const;

private:
    [[nodiscard]] QString eligeCarpeta(const QString& carpeta);
    void creaFichero() const;
    void creaTablas() const;
    void copia() const;

    database::OpcionesDatos m_originales;
    std::unique_ptr<QTemporaryDir> m_propia;
    QString m_carpeta;
    database::OpcionesDatos m_copia; ///< lead to the copy alone
};

} // namespace kestrane::lote
