#include "platform/runtime/avisos.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 PrimeraEspera = 1000;
constexpr qint64 EntreLineas = 200;

} // namespace

Avisos::Avisos(QString programa, QIODevice& errores, DestinoErrores destino, Cronometro cronometro)
    : m_programa{std::move(programa)}
    , m_errores{errores}
    , m_destino{destino}
    , m_cronometro{std::move(cronometro)}
    , m_siguiente{m_cronometro() + PrimeraEspera}
{
}

Avisos::~Avisos()
{
    borraLinea();
}

void Avisos::di(const QString& frase)
{
    const std::lock_guard cerrado{m_cerrojo};
    borraLinea();
    m_errores.write(u"%1: %2\n"_s.arg(m_programa, frase).toUtf8());
}

void Avisos::empieza(const QString& trabajo)
{
    const std::lock_guard cerrado{m_cerrojo};
    if (m_destino == DestinoErrores::Fichero)
        return;
    m_trabajo = trabajo;
    m_pasos = 0;
}

void Avisos::avanza()
{
    const std::lock_guard cerrado{m_cerrojo};
    ++m_pasos;
    escribeLinea();
}

void Avisos::late()
{
    const std::lock_guard cerrado{m_cerrojo};
    escribeLinea();
}

void Avisos::borra()
{
    const std::lock_guard cerrado{m_cerrojo};
    m_trabajo.clear();
    borraLinea();
}

void Avisos::empiezanLosResultados()
{
    const std::lock_guard cerrado{m_cerrojo};
    if (m_destino != DestinoErrores::TerminalConResultados)
        return;
    m_destino = DestinoErrores::Fichero;
    m_trabajo.clear();
    borraLinea();
}

void Avisos::escribeLinea()
{
    if (m_trabajo.isEmpty())
        return;
    const qint64 ahora = m_cronometro();
    if (ahora < m_siguiente)
        return;
    m_siguiente = ahora + EntreLineas;
    borraLinea();
    m_escrita = true;
    m_errores.write((m_pasos > 0 ? u"%1: %2"_s.arg(m_trabajo).arg(m_pasos) : m_trabajo + u"..."_s).toUtf8());
}

void Avisos::borraLinea()
{
    if (m_escrita)
        m_errores.write("\r\x1b[K");
    m_escrita = false;
}

} // namespace kestrane
