#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace kestrane::prueba {

/// A job as a queue of the server's gave it to its device.
struct TrabajoSalido
{
    QString cola;
    QString titulo;
    int copias = 0;
    QString fichero; ///< what was sent
};

/// The words of each page of a job, line after line, with single blanks between them. std::runtime_error when it cannot be read.
[[nodiscard]] QStringList paginasDe(const TrabajoSalido& salido);

/// A print server of the test's own on the loopback: its configuration, its spool and its queues lie in a folder that goes with the
/// object. This process and its children talk to it alone. Works for root and for a plain user.
class ServidorCups
{
public:
    /// std::runtime_error with what the server said when it does not come up.
    ServidorCups();
    ~ServidorCups();
    ServidorCups(const ServidorCups&) = delete;
    ServidorCups& operator=(const ServidorCups&) = delete;

    /// A queue whose device keeps each job as a file.
    void anadeCola(const QString& nombre, const QString& lugar = {});
    void quitaCola(const QString& nombre);
    void eligePredeterminada(const QString& nombre);

    /// The job of that number, from 1, once its queue has given it to the device. std::runtime_error when it does not come.
    [[nodiscard]] TrabajoSalido trabajo(int numero);
    /// How many jobs were ever sent to it.
    [[nodiscard]] int trabajos() const;

private:
    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }
    void preparaCarpetas() const;
    void escribeConfiguracion(int puerto) const;
    bool arranca();
    void administra(const QStringList& argumentos);
    [[nodiscard]] std::string registro() const;

    QTemporaryDir m_carpeta;
    QProcess m_servidor;
};

} // namespace kestrane::prueba
