#include "platform/report/preview/buscador.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <tuple>
#include <utility>

namespace kestrane::report {

using namespace std::chrono_literals;

namespace {

constexpr auto Turno = 10ms;

} // namespace

Buscador::Buscador(PaginasVista& paginas, QObject* padre) : QObject{padre}, m_paginas{paginas}
{
    connect(&m_turno, &QTimer::timeout, this, &Buscador::avanza);
}

void Buscador::busca(const QString& texto, int desdePagina)
{
    m_turno.stop();
    m_buscado = pliega(texto.trimmed()).texto;
    m_aciertos.clear();
    m_repasados.clear();
    m_enRepaso = m_sinTotal = false;
    m_siguientePagina = 0;
    m_desdePagina = desdePagina;
    m_actual = -1;
    emit haCambiado();
    sigue();
}

void Buscador::sigue()
{
    if (!activo())
        return;
    if (m_sinTotal && m_paginas.fuente().completa())
        repasa();
    if (!terminado()) {
        if (!m_turno.isActive())
            m_turno.start(0); // begun anew each time pages come it would never be its turn
        return;
    }
    eligePrimero();
    if (definitivo())
        emit haCambiado();
}

void Buscador::repasa()
{
    m_sinTotal = false;
    m_enRepaso = true;
    m_repasados.clear();
    m_siguientePagina = 0;
}

void Buscador::acabaRepaso()
{
    m_enRepaso = false;
    const std::optional<Acierto> antes = m_actual < 0 ? std::nullopt : std::optional{m_aciertos[m_actual]};
    m_aciertos = std::exchange(m_repasados, {});
    if (!antes)
        return;
    // The current hit stays the current one, or the nearest behind it does.
    const auto lugar = std::lower_bound(m_aciertos.begin(), m_aciertos.end(), *antes, [](const Acierto& a, const Acierto& b) {
        return std::tie(a.pagina, a.tramo, a.trecho.desde) < std::tie(b.pagina, b.tramo, b.trecho.desde);
    });
    m_actual = std::min(int(lugar - m_aciertos.begin()), cuenta() - 1);
}

void Buscador::ponIncompleto(bool incompleto)
{
    m_incompleto = incompleto;
    emit haCambiado();
}

bool Buscador::terminado() const
{
    const auto& aciertos = m_enRepaso ? m_repasados : m_aciertos;
    return int(aciertos.size()) >= MaximoAciertos || m_siguientePagina >= m_paginas.fuente().paginas();
}

bool Buscador::definitivo() const
{
    return terminado() && !m_enRepaso && (m_incompleto || (m_paginas.fuente().completa() && !m_sinTotal));
}

std::span<const Acierto> Buscador::enPagina(int pagina) const
{
    const auto [desde, hasta] = std::equal_range(m_aciertos.begin(), m_aciertos.end(), Acierto{pagina, 0, {}},
                                                 [](const Acierto& a, const Acierto& b) { return a.pagina < b.pagina; });
    return {desde, hasta};
}

void Buscador::avanza()
{
    const QDeadlineTimer plazo{Turno};
    const int antes = cuenta();
    do {
        if (terminado())
            break;
        buscaEnPagina(m_siguientePagina++);
    } while (!plazo.hasExpired());
    if (terminado()) {
        m_turno.stop();
        if (m_enRepaso)
            acabaRepaso();
    }
    eligePrimero();
    if (cuenta() != antes || terminado())
        emit haCambiado();
}

void Buscador::buscaEnPagina(int pagina)
{
    auto& aciertos = m_enRepaso ? m_repasados : m_aciertos;
    m_sinTotal = m_sinTotal || !m_paginas.fuente().completa();
    for (const auto& [tramo, trecho] : encuentraEnPagina(m_buscado, TextoPagina{m_paginas.compuesta(pagina)})) {
        if (int(aciertos.size()) >= MaximoAciertos)
            return;
        aciertos.push_back({pagina, tramo, trecho});
    }
}

void Buscador::eligePrimero()
{
    if (m_actual >= 0 || m_aciertos.empty())
        return;
    if (m_aciertos.back().pagina >= m_desdePagina) {
        const auto primero = std::find_if(m_aciertos.begin(), m_aciertos.end(),
                                          [this](const Acierto& acierto) { return acierto.pagina >= m_desdePagina; });
        hazActual(int(primero - m_aciertos.begin()));
    } else if (terminado() && m_paginas.fuente().completa()) {
        hazActual(0);
    }
}

void Buscador::mueve(int pasos)
{
    if (m_aciertos.empty())
        return;
    if (m_actual < 0)
        hazActual(0);
    else
        hazActual((m_actual + pasos + cuenta()) % cuenta());
}

void Buscador::hazActual(int numero)
{
    m_actual = numero;
    emit actualCambiado(numero);
}

} // namespace kestrane::report
