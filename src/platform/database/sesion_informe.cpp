// What a session does differently while a report is built: answers without asking the database, and asks ahead of need.

#include "platform/database/estado_informe.h"
#include "platform/database/sesion.h"
#include "platform/runtime/error_ejecucion.h"

namespace kestrane::database {

namespace {

/// Rows that are read at closing to see whether an answer is whole: the usual look-up reads one row of one.
constexpr qsizetype FilasPorSaber = 4;

/// Keeps a plan in the cache while others are put there.
class PlanEnUso
{
public:
    explicit PlanEnUso(PlanSentencia& plan) : m_plan{plan} { m_plan.usa(); }
    ~PlanEnUso() { m_plan.deja(); }
    PlanEnUso(const PlanEnUso&) = delete;
    PlanEnUso& operator=(const PlanEnUso&) = delete;

private:
    PlanSentencia& m_plan;
};

} // namespace

Sesion::Abierta Sesion::abre(const QString& sentencia)
{
    if (m_informe->activo()) {
        m_base->antesDeLeer();
        m_informe->alDia(m_base->escrituras());
        if (const Abierta conocida = recordada(sentencia); conocida.plan)
            return conocida;
    }
    PlanSentencia& plan = prepara(sentencia);
    if (!plan.esConsulta())
        sinFilas();
    const PlanEnUso enUso{plan};
    if (!m_informe->anticipaciones().empty()) {
        if (const Abierta leida = adelantada(sentencia, plan); leida.plan)
            return leida;
        static_cast<void>(prepara(sentencia)); // the literals again
    }
    return {&plan, &consulta(plan, sentencia)};
}

bool Sesion::recuerda() const
{
    return m_informe->activo();
}

Sesion::Abierta Sesion::deMemoria(PlanSentencia& plan, std::shared_ptr<const AlmacenFilas> filas)
{
    Cursor& cursor = plan.toma(*m_motor, m_entorno.opciones().limiteFilas);
    cursor.recuerda(std::move(filas));
    cursor.anotaEscrituras(m_base->escrituras());
    return {&plan, &cursor};
}

Sesion::Abierta Sesion::recordada(const QString& sentencia)
{
    const Respuestas::Respuesta* const respuesta = m_informe->respuestas().busca(sentencia);
    return respuesta ? deMemoria(*respuesta->plan, respuesta->filas) : Abierta{};
}

Sesion::Abierta Sesion::adelantada(const QString& sentencia, PlanSentencia& plan)
{
    for (const auto& anticipacion : m_informe->anticipaciones()) {
        const auto clave = anticipacion->clave(sentencia);
        if (!clave)
            continue;
        auto filas = anticipacion->servida(*clave);
        if (!filas)
            filas = leeAdelantado(*anticipacion, *clave, plan);
        if (filas)
            return deMemoria(plan, std::move(filas));
    }
    return {};
}

std::shared_ptr<const AlmacenFilas> Sesion::leeAdelantado(Anticipacion& anticipacion, QStringView clave, PlanSentencia& plan)
{
    const std::vector<QString> claves = anticipacion.siguientes(clave, m_entorno.opciones().clavesPorLote);
    if (claves.size() < 2)
        return nullptr;
    std::vector<QString> sentencias;
    sentencias.reserve(claves.size());
    for (const QString& una : claves)
        sentencias.push_back(anticipacion.sentencia(una));
    try {
        anticipacion.olvida();
        auto respuestas =
            m_adelanto.lee(sentencias, plan, m_base->aMedias(), m_entorno.opciones().limiteFilas, m_informe->bytesParaAdelantar());
        if (respuestas) {
            anticipacion.guarda(claves, std::move(*respuestas));
            return anticipacion.servida(clave);
        }
    } catch (const ErrorEjecucion&) {
        // Sent alone, each statement meets its own error, or none.
    }
    anticipacion.fallo(claves.size() - 1);
    return nullptr;
}

void Sesion::cierra(PlanSentencia& plan, Cursor& cursor, const QString& sentencia) noexcept
{
    try {
        const bool vale = cursor.escrituras() == m_base->escrituras();
        if (vale && !sentencia.isEmpty() && m_informe->activo() && m_informe->respuestas().repetida(sentencia)) {
            static_cast<void>(cursor.hay(cursor.leidas() + FilasPorSaber));
            const bool cabe = cursor.completo() && cursor.filas().bytes() < m_informe->respuestas().bytesMaximos() / 4;
            if (cabe && !cursor.filas().usaFichero())
                m_informe->respuestas().guarda(sentencia, plan, cursor.comparte());
        }
    } catch (...) {
        // An answer that cannot be kept is asked for again.
    }
    plan.devuelve(cursor);
}

void Sesion::anticipa(const void* duenio, Cursor& cabeceras, int columna, const QString& cabeza, const QString& cola)
{
    if (!m_informe->activo())
        return;
    cabeceras.completa();
    m_informe->anuncia(std::make_unique<Anticipacion>(duenio, cabeceras, columna, cabeza, cola, m_entorno.regional()));
}

void Sesion::retiraAnuncios(const void* duenio) noexcept
{
    if (!m_informe->anticipaciones().empty())
        m_informe->retira(duenio);
}

} // namespace kestrane::database
