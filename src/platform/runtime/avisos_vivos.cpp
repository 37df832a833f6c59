#include "platform/runtime/avisos_vivos.h"

#include <QElapsedTimer>

namespace kestrane {

namespace {

constexpr std::chrono::milliseconds CadaLatido{200};

Avisos::Cronometro cronometro()
{
    QElapsedTimer desde;
    desde.start();
    return [desde] { return desde.elapsed(); };
}

} // namespace

AvisosVivos::AvisosVivos(const QString& programa, QIODevice& errores, DestinoErrores destino)
    : m_avisos{programa, errores, destino, cronometro()}
{
    if (destino != DestinoErrores::Fichero)
        m_latido.emplace(CadaLatido, [this] { m_avisos.late(); });
}

} // namespace kestrane
