#include "lote/salida_de_lote.h"

#include "pipeline/hay_datos.h"
#include "platform/runtime/error_ejecucion.h"

#include <QDir>

#include <algorithm>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

SalidaDeLote::SalidaDeLote(ContextoEjecucion& contexto, QStringView control, EscritorInformes& escritor, Mensajes& mensajes,
                           QString carpeta)
    : m_contexto{contexto}
    , m_control{control.toString()}
    , m_escritor{escritor}
    , m_mensajes{mensajes}
    , m_carpeta{std::move(carpeta)}
{
}

void SalidaDeLote::ImprimirReport(const QString& nombre)
{
    escribe(nombre);
    m_impresora.clear();
    if (!m_informes.back().datos)
        m_mensajes.Informa(u"No hay datos para ser mostrados."_s, u"Listados"_s);
}

void SalidaDeLote::MostrarGrafico(const QString&, const DatosDeGrafico&)
{
    throw ErrorEjecucion{ErrorEjecucion::SentenciaRechazada, AvisoNoDisponible.toString()};
}

void SalidaDeLote::termina()
{
    if (m_informes.empty())
        escribe({});
}

bool SalidaDeLote::sinDatos() const
{
    return std::none_of(m_informes.begin(), m_informes.end(), [](const CuerpoInforme& informe) { return informe.datos; });
}

void SalidaDeLote::escribe(const QString& layout)
{
    CuerpoInforme informe{.tienda = m_contexto.TiendaSeleccionada, .datos = HayDatos(m_contexto.ConexionListados), .partes = {}};
    informe.partes = m_escritor.escribe(
        {.control = m_control, .tienda = informe.tienda, .layout = layout, .impresora = m_impresora, .datos = informe.datos},
        m_contexto.ConexionListados, QDir{m_carpeta}.filePath(u"informe-%1"_s.arg(m_informes.size())));
    m_informes.push_back(std::move(informe));
}

} // namespace kestrane::lote
