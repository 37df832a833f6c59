#include "platform/database/fichero_filas.h"

#include "platform/runtime/error_ejecucion.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kestrane::database {

namespace {

constexpr qsizetype Tramo = qsizetype{256} * 1024;

[[noreturn]] void sinDisco(const QTemporaryFile& fichero)
{
    throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada,
                         u"No se puede usar el fichero temporal de la carpeta \"%1\" (%2). Libere espacio en el disco."_s.arg(
                             QDir::toNativeSeparators(QDir::tempPath()), fichero.errorString()));
}

} // namespace

FicheroFilas::FicheroFilas()
{
    if (!m_fichero.open())
        sinDisco(m_fichero);
}

void FicheroFilas::escribe(const char* fila, qsizetype bytes)
{
    m_salida.copia(fila, bytes);
    if (m_salida.tamano() >= Tramo)
        vuelca();
}

void FicheroFilas::vuelca()
{
    if (m_salida.tamano() == 0)
        return;
    if (!m_fichero.seek(m_escritos) || m_fichero.write(m_salida.datos(), m_salida.tamano()) != m_salida.tamano() ||
        !m_fichero.flush())
        sinDisco(m_fichero);
    m_escritos += m_salida.tamano();
    m_salida.recorta(0);
}

qsizetype FicheroFilas::lee(qsizetype posicion, BloqueBytes& destino)
{
    quint32 bytes = 0;
    carga(posicion, qsizetype{sizeof bytes});
    std::memcpy(&bytes, m_entrada.datos() + (posicion - m_inicioEntrada), sizeof bytes);
    carga(posicion, bytes);
    destino.recorta(0);
    destino.copia(m_entrada.datos() + (posicion - m_inicioEntrada), bytes);
    return posicion + bytes;
}

void FicheroFilas::carga(qsizetype posicion, qsizetype bytes)
{
    if (posicion >= m_inicioEntrada && posicion + bytes <= m_inicioEntrada + m_entrada.tamano())
        return;
    vuelca();
    const qsizetype pedidos = std::min(std::max(bytes, Tramo), m_escritos - posicion);
    m_entrada.recorta(0);
    m_inicioEntrada = posicion;
    char* const destino = m_entrada.anade(pedidos);
    if (pedidos < bytes || !m_fichero.seek(posicion) || m_fichero.read(destino, pedidos) != pedidos) {
        m_entrada.recorta(0); // nothing of it is good
        sinDisco(m_fichero);
    }
}

} // namespace kestrane::database
