#include "lote/pantalla_de_lote.h"

namespace kestrane::lote {

namespace {

constexpr qint64 PrimeraEspera = 1000;
constexpr qint64 EntreLineas = 200;

} // namespace

void MensajesDeLote::Informa(const QString& texto, const QString&)
{
    m_errores.write("listados-lote: " + texto.toUtf8() + '\n');
}

void MensajesDeLote::Critico(const QString& texto, const QString& titulo)
{
    m_errores.write("listados-lote: error " + titulo.toUtf8() + ": " + texto.toUtf8() + '\n');
}

ProgresoDeLote::ProgresoDeLote(QIODevice& errores, Cronometro cronometro) : m_errores{errores}, m_cronometro{std::move(cronometro)}
{
}

void ProgresoDeLote::Muestra()
{
    m_pasos = 0;
    m_siguiente = m_cronometro() + PrimeraEspera;
}

void ProgresoDeLote::IncrementaBarra()
{
    ++m_pasos;
    const qint64 ahora = m_cronometro();
    if (ahora < m_siguiente)
        return;
    m_siguiente = ahora + EntreLineas;
    m_escrito = true;
    m_errores.write("\rGenerando Reporte: " + QByteArray::number(m_pasos));
}

void ProgresoDeLote::cerrar()
{
    if (m_escrito)
        m_errores.write("\r\x1b[K");
    m_escrito = false;
}

} // namespace kestrane::lote
