#include "lote/informe_de_lote.h"

#include "lote/copia_listados.h"
#include "lote/dialogos_de_lote.h"
#include "lote/estado_de_salida.h"
#include "lote/ficheros_salida.h"
#include "lote/informes_exportados.h"
#include "lote/informes_json.h"
#include "lote/pantalla_de_lote.h"
#include "lote/peticion_imposible.h"
#include "lote/tienda_elegida.h"
#include "pipeline/catalogue/catalogo.h"
#include "pipeline/catalogue/descripcion.h"
#include "pipeline/catalogue/ejecutor.h"
#include "platform/runtime/terminal.h"
#include "platform/suite/preferencias_en_tabla.h"
#include "run_context/principal.h"

namespace kestrane::lote {

using namespace Qt::StringLiterals;
using catalogue::Clase;
using catalogue::FilaCatalogo;

namespace {

std::unique_ptr<Reloj> relojDe(const std::optional<Fecha>& hoy)
{
    if (hoy)
        return std::make_unique<RelojFijo>(*hoy);
    return std::make_unique<RelojSistema>();
}

std::unique_ptr<EscritorInformes> escritorDe(Formato formato, const QString& carpetaPrograma)
{
    using report::FormatoExportacion;
    const auto exportados = [&](FormatoExportacion exportado) {
        return std::make_unique<InformesExportados>(exportado, carpetaPrograma);
    };
    switch (formato) {
    case Formato::Csv:
        return exportados(FormatoExportacion::Csv);
    case Formato::Pdf:
        return exportados(FormatoExportacion::Pdf);
    case Formato::Xlsx:
        return exportados(FormatoExportacion::Xlsx);
    case Formato::Png:
        return exportados(FormatoExportacion::Png);
    case Formato::Html:
        return exportados(FormatoExportacion::Html);
    case Formato::Json:
        break;
    }
    return std::make_unique<InformesJson>();
}

void compruebaDestino(const PedidoInforme& pedido, const QIODevice& salida)
{
    if (!pedido.salida.isEmpty())
        return compruebaQueSePuedeEscribir(pedido.salida);
    if (esBinario(pedido.formato) && esTerminal(salida))
        throw PeticionImposible{u"Ese formato no se lee en un terminal: indique --salida FICHERO."_s};
}

/// One run, from the copy of the reports database to the files.
class Carrera
{
public:
    Carrera(const Opciones& opciones, const database::OpcionesDatos& datos, const EntornoDeLote& entorno)
        : m_opciones{opciones}
        , m_entorno{entorno}
        , m_copia{datos, opciones.informe.carpetaListados}
        , m_datos{m_copia.opciones()}
        , m_reloj{relojDe(opciones.hoy)}
        , m_escritor{escritorDe(opciones.informe.formato, entorno.carpetaPrograma)}
    {
    }

    int corre()
    {
        llenaContexto();
        if (const auto& tienda = pedido().tienda)
            eligeTienda(m_contexto, *tienda);
        ejecuta();
        m_salida.termina();
        m_contexto.ConexionListados.Close();
        m_datos.termina();
        entrega();
        m_copia.conserva();
        return m_salida.sinDatos() ? SalidaSinDatos : SalidaBien;
    }

private:
    [[nodiscard]] const PedidoInforme& pedido() const { return m_opciones.informe; }

    void llenaContexto()
    {
        m_contexto.CarpetaPrograma = m_entorno.carpetaPrograma;
        ConectorTiendaDsn conector;
        PreferenciasEnTabla preferencias;
        Principal principal{m_contexto, conector, preferencias, *m_reloj};
        principal.AbreConexiones();
        principal.Inicializa();
    }

    void ejecuta()
    {
        MenuDeLote menu;
        DialogosDeLote dialogos{m_contexto, pedido(), *m_reloj};
        ProgresoDeLote progreso{m_entorno.avisos};
        const Pantalla pantalla{menu, dialogos, progreso, m_salida, m_mensajes};
        catalogue::Ejecutor{m_contexto, pantalla, *m_reloj}.ejecuta(*pedido().fila);
        for (const QString& opcion : dialogos.ignoradas())
            m_mensajes.Informa(u"%1 no ofrece %2, que se ignora."_s.arg(pedido().fila->control, opcion), {});
    }

    void entrega() const
    {
        m_entorno.avisos.empieza(u"Escribiendo el resultado"_s);
        if (!pedido().salida.isEmpty())
            return escribeFicheros(pedido().salida, *m_escritor, m_salida.informes());
        m_entorno.avisos.empiezanLosResultados();
        escribeEn(m_entorno.salida, *m_escritor, m_salida.informes());
    }

    const Opciones& m_opciones;
    const EntornoDeLote& m_entorno;
    CopiaListados m_copia;
    EntornoDatos m_datos;
    ContextoEjecucion m_contexto{m_datos};
    std::unique_ptr<Reloj> m_reloj;
    std::unique_ptr<EscritorInformes> m_escritor;
    MensajesDeLote m_mensajes{m_entorno.avisos};
    SalidaDeLote m_salida{m_contexto, m_opciones.informe.fila->control, *m_escritor, m_mensajes, m_copia.carpeta()};
};

} // namespace

int ejecutaInforme(const Opciones& opciones, const database::OpcionesDatos& datos, const EntornoDeLote& entorno)
{
    const FilaCatalogo& fila = *opciones.informe.fila;
    if (!catalogue::estaDisponible(fila)) {
        entorno.avisos.di(AvisoNoDisponible.toString());
        return SalidaError;
    }
    compruebaDestino(opciones.informe, entorno.salida);
    entorno.avisos.empieza(u"Preparando el listado"_s);
    return Carrera{opciones, datos, entorno}.corre();
}

QByteArray listaDeInformes()
{
    QByteArray lista;
    for (const FilaCatalogo& fila : catalogue::catalogo()) {
        if (fila.clase != Clase::Informe && fila.clase != Clase::Grafico)
            continue;
        lista.append(fila.control.toUtf8()).append('\t').append(catalogue::descripcion(fila).toUtf8());
        lista.append(fila.clase == Clase::Grafico ? "\tgrafico" : "\tinforme");
        lista.append(catalogue::estaDisponible(fila) ? "\n" : "\ttodavía no disponible\n");
    }
    return lista;
}

} // namespace kestrane::lote
