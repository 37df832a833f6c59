#include "platform/report/documento.h"

#include "platform/report/filas_agrupadas.h"
#include "platform/report/interior_documento.h"
#include "platform/runtime/error_ejecucion.h"

using namespace Qt::StringLiterals;

namespace kestrane::report {

Documento::Interior::Interior(Layout layout, database::EntornoDatos& entorno) : m_regional{entorno.regional()}
{
    m_maquetado = std::make_unique<Maquetado>(
        std::move(layout),
        [&](const Layout& parte) { return std::make_unique<FilasAgrupadas>(parte, m_copias.de(parte, &entorno), m_regional); },
        m_regional);
}

void Documento::Interior::cambia(Layout layout)
{
    // The report's own rows stay those of its first statement, whatever the layout says now.
    const Layout& primero = m_maquetado->layout();
    const bool esOtra = layout.dsn != primero.dsn || layout.sentencia != primero.sentencia;
    layout.dsn = primero.dsn;
    layout.sentencia = primero.sentencia;
    try {
        m_maquetado = std::make_unique<Maquetado>(
            std::move(layout),
            [this](const Layout& parte) {
                return std::make_unique<FilasAgrupadas>(parte, m_copias.de(parte, nullptr), m_regional);
            },
            m_regional);
    } catch (const ErrorEjecucion& error) {
        const QString consejo = u"Vuelva a sacar el informe."_s;
        if (!esOtra || error.descripcion().contains(consejo))
            throw;
        throw error.conContexto(consejo); // the rows may lack what the new statement gives
    }
}

Documento::Documento(Layout layout, database::EntornoDatos& entorno)
    : m_interior{std::make_unique<Interior>(std::move(layout), entorno)}
{
}

Documento::~Documento() = default;

const Layout& Documento::layout() const
{
    return m_interior->maquetado().layout();
}

const FilasInforme& Documento::filas() const
{
    return m_interior->maquetado().filas();
}

const ConfiguracionRegional& Documento::regional() const
{
    return m_interior->regional();
}

std::vector<DatosSubinforme> Documento::subinformes() const
{
    return m_interior->maquetado().subinformes();
}

bool Documento::avanza(QDeadlineTimer plazo)
{
    Maquetado& maquetado = m_interior->maquetado();
    do
        maquetado.avanza();
    while (!maquetado.completo() && !plazo.hasExpired());
    return maquetado.completo();
}

void Documento::completa()
{
    while (!completo())
        m_interior->maquetado().avanza();
}

bool Documento::completo() const
{
    return m_interior->maquetado().completo();
}

double Documento::avance() const
{
    return m_interior->maquetado().avance();
}

int Documento::paginas() const
{
    return m_interior->maquetado().paginas();
}

PaginaCompuesta Documento::pagina(int indice)
{
    Maquetado& maquetado = m_interior->maquetado();
    while (maquetado.paginas() <= indice && !maquetado.completo())
        maquetado.avanza();
    return indice >= 0 && indice < maquetado.paginas() ? maquetado.pagina(indice) : PaginaCompuesta{};
}

const std::vector<EntradaIndice>& Documento::indice() const
{
    return m_interior->maquetado().indice();
}

void Documento::actualiza(Layout layout)
{
    m_interior->cambia(std::move(layout));
}

} // namespace kestrane::report
