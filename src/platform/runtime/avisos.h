#pragma once

#include "platform/runtime/terminal.h"

#include <QIODevice>
#include <QString>

#include <functional>
#include <mutex>

namespace kestrane {

/// What the operator is told on the standard error: sentences, and on a terminal that a run takes long. From its second second on,
/// a line there names the work and counts its steps; whatever else is said wipes it first, and so does the end. Safe to beat from
/// another thread.
class Avisos
{
public:
    /// Milliseconds since any moment in the past.
    using Cronometro = std::function<qint64()>;

    /// `programa` is the name that sentences bear; `errores` outlives the object.
    Avisos(QString programa, QIODevice& errores, DestinoErrores destino, Cronometro cronometro);
    ~Avisos();
    Avisos(const Avisos&) = delete;
    Avisos& operator=(const Avisos&) = delete;

    /// A sentence behind the program's name, on a line of its own.
    void di(const QString& frase);

    /// The work that the line names from now on, its steps at 0.
    void empieza(const QString& trabajo);
    /// One step further.
    void avanza();
    /// A sign of life: writes the line anew where it is time.
    void late();
    /// Wipes the line, which comes back with the next work.
    void borra();
    /// The results go out: a terminal that shows them has no line any more.
    void empiezanLosResultados();

private:
    void escribeLinea();
    void borraLinea();

    QString m_programa;
    QIODevice& m_errores;
    DestinoErrores m_destino;
    Cronometro m_cronometro;
    std::mutex m_cerrojo;
    qint64 m_siguiente; ///< when the line is written next
    QString m_trabajo;  ///< "" while there is nothing to tell
    qint64 m_pasos = 0;
    bool m_escrita = false;
};

} // namespace kestrane
