#pragma once

#include "platform/database/entorno_datos.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace kestrane::lote {

/// A reports database of this run's own, so that it works beside the program and beside others of its kind: the staging tables are
/// empty, `listadostemporal` holds what it holds in the original.
///
/// It lies in a folder that goes with the object, unless it is kept.
class CopiaListados
{
public:
    /// `originales` leads to the original, which is read and not touched. `destino` is the folder in which the copy is to be kept,
    /// "" when it is not; it is made when it is not there. ErrorEjecucion when the original lacks a table or cannot be opened, when
    /// the copy cannot be written, and when `destino` is the original's folder or holds a shop's database, whose reports database
    /// would be lost.
    CopiaListados(const database::OpcionesDatos& originales, QString destino);

    /// Where it lies while it is worked with.
    [[nodiscard]] QString carpeta() const { return m_carpeta->path(); }
    /// The original's options, with the reports database led to the copy.
    [[nodiscard]] database::OpcionesDatos opciones() const;

    /// Puts it in the folder in which it is to be kept, in the place of an older one, which lies there untouched until then;
    /// nothing without such a folder. All connections to it are closed. ErrorEjecucion when the folder does not take it.
    void conserva() const;

private:
    [[nodiscard]] std::unique_ptr<QTemporaryDir> haceCarpeta() const;
    void compruebaDestino() const;
    void creaFichero() const;
    void creaTablas() const;
    void copia() const;

    database::OpcionesDatos m_originales;
    QString m_destino;
    std::unique_ptr<QTemporaryDir> m_carpeta;
    database::OpcionesDatos m_copia; ///< lead to the copy alone
};

} // namespace kestrane::lote
