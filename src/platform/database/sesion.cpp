#include "platform/database/sesion.h"

#include "platform/database/error_motor.h"
#include "platform/database/estado_informe.h"
#include "platform/database/recordset.h"
#include "platform/database/sentencias_fila.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::database {

namespace {

/// Where a name was looked for and what to do, which the place in the statement does not say.
QString remedioDe(jet::ErrorSql::Clase clase, const QString& base)
{
    if (clase != jet::ErrorSql::Clase::TablaDesconocida && clase != jet::ErrorSql::Clase::ColumnaDesconocida)
        return {};
    return u"\nBase de datos \"%1\": compruebe que es la que corresponde y que está completa; \"crear-tienda\" hace una nueva."_s
        .arg(base);
}

QString contextoDe(const QString& sentencia)
{
    constexpr qsizetype Maximo = 500;
    return u"Sentencia: "_s + (sentencia.size() > Maximo ? sentencia.first(Maximo) + u'…' : sentencia);
}

/// A value as a mark takes it; texts are borrowed.
Ligado ligadoDe(const Valor& valor)
{
    switch (valor.clase()) {
    case Valor::Clase::Nulo:
        return Nulo{};
    case Valor::Clase::Logico:
    case Valor::Clase::Entero16:
    case Valor::Clase::Entero32:
        return valor.entero32();
    case Valor::Clase::Doble:
        return valor.doble();
    case Valor::Clase::Fecha:
        return valor.fecha();
    case Valor::Clase::Texto:
        break;
    }
    return QStringView{valor.texto()};
}

bool faltaObligatoria(const jet::Tabla& tabla, const Edicion& fila)
{
    for (size_t i = 0; i < tabla.columnas.size(); ++i) {
        if (!tabla.columnas[i].admiteNulo && !fila.valor(static_cast<int>(i)))
            return true;
    }
    return false;
}

} // namespace

Sesion::Sesion(EntornoDatos& entorno, std::shared_ptr<BaseCompartida> base, std::unique_ptr<MotorBase> motor,
               std::shared_ptr<EstadoInforme> informe)
    : m_entorno{entorno}
    , m_base{std::move(base)}
    , m_motor{std::move(motor)}
    , m_informe{std::move(informe)}
    , m_traductor{m_motor->catalogo(), m_motor->clase(), entorno.regional()}
    , m_ligador{entorno.regional()}
    , m_formas{entorno.opciones().formas, entorno.opciones().bytesFormas}
    , m_adelanto{*m_motor, m_traductor, m_formas, m_ligador}
{
    m_base->entra(*m_motor);
}

Sesion::~Sesion()
{
    Recordset::cierraTodos(m_recordsets);
    m_informe->vacia();
    m_base->enviaSinError();
    m_base->sale(*m_motor);
}

PlanSentencia& Sesion::prepara(const QString& sentencia)
{
    if (!m_extractor.extrae(sentencia))
        sinForma(sentencia);
    if (PlanSentencia* const plan = m_formas.busca(m_extractor.forma(), m_extractor.hash()))
        return *plan;
    return planNuevo(sentencia);
}

void Sesion::sinForma(const QString& sentencia) const
{
    const auto traduccion = m_traductor.traduce(sentencia);
    if (!traduccion)
        rechaza(traduccion.error(), sentencia);
    throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada, contextoDe(sentencia));
}

void Sesion::sinFilas()
{
    throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada, u"La sentencia no devuelve filas: ejecútela en vez de abrirla."_s);
}

PlanSentencia& Sesion::planNuevo(const QString& sentencia)
{
    auto traduccion = m_traductor.traduce(sentencia);
    if (!traduccion)
        rechaza(traduccion.error(), sentencia);
    const QString& editable = traduccion.valor().tablaEditable;
    const jet::Tabla* const tabla = editable.isEmpty() ? nullptr : m_motor->catalogo().tabla(editable);
    return m_formas.inserta(m_extractor.forma(), m_extractor.hash(),
                            std::make_unique<PlanSentencia>(std::move(traduccion).valor(), tabla));
}

void Sesion::rechaza(const jet::ErrorSql& error, const QString& sentencia) const
{
    throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada,
                         jet::describe(error, sentencia) + remedioDe(error.clase, m_base->nombre()));
}

Sesion::Abierta Sesion::preparada(const QString& sentencia)
{
    PlanSentencia& plan = prepara(sentencia);
    if (!plan.esConsulta())
        sinFilas();
    static_cast<void>(m_ligador.liga(plan.traduccion().parametros, m_extractor.literales()));
    return {&plan, nullptr};
}

Cursor& Sesion::consulta(PlanSentencia& plan, const QString& sentencia)
{
    m_base->antesDeLeer(); // the rows that it sends are none of this statement's
    Cursor* cursor = nullptr;
    try {
        const auto valores = m_ligador.liga(plan.traduccion().parametros, m_extractor.literales());
        cursor = &plan.toma(*m_motor, m_entorno.opciones().limiteFilas);
        cursor->ejecuta(valores, m_base->aMedias());
        cursor->anotaEscrituras(m_base->escrituras());
        return *cursor;
    } catch (const ErrorEjecucion& error) {
        if (cursor)
            plan.devuelve(*cursor);
        throw error.conContexto(contextoDe(sentencia));
    }
}

qint64 Sesion::ejecuta(const QString& sentencia)
{
    PlanSentencia& plan = prepara(sentencia);
    if (plan.esConsulta()) {
        cierra(plan, consulta(plan, sentencia));
        return 0;
    }
    m_base->antesDeEscribir();
    try {
        SentenciaMotor& ejecutable = plan.ejecutable(*m_motor);
        ejecutable.ejecuta(m_ligador.liga(plan.traduccion().parametros, m_extractor.literales()));
        ejecutable.reinicia();
        return ejecutable.afectadas();
    } catch (const ErrorEjecucion& error) {
        throw error.conContexto(contextoDe(sentencia));
    }
}

void Sesion::anade(const jet::Tabla& tabla, const Edicion& fila)
{
    if (tabla.tieneClavesUnicas || !fila.pendiente() || faltaObligatoria(tabla, fila))
        return anadeYa(tabla, fila);
    m_base->anade(tabla, fila);
}

void Sesion::enviaSiHayMuchas()
{
    m_base->enviaSiHay(m_entorno.opciones().filasPorEnvio);
}

void Sesion::anadeYa(const jet::Tabla& tabla, const Edicion& fila)
{
    m_base->antesDeEscribir();
    AlmacenFilas una{static_cast<int>(fila.porEscribir().size())};
    una.empiezaFila();
    for (const int columna : fila.porEscribir())
        una.ponValor(*fila.valor(columna));
    una.terminaFila();
    m_motor->insertaFilas(tabla, fila.porEscribir(), una);
}

void Sesion::ejecutaUna(const QByteArray& sql, std::span<const jet::TipoColumna> tipos, std::span<const Ligado> valores)
{
    m_base->antesDeEscribir();
    if (!m_sentenciaFila || m_sqlFila != sql) {
        m_sentenciaFila = m_motor->prepara(sql, tipos, {});
        m_sqlFila = sql;
    }
    m_sentenciaFila->ejecuta(valores);
    m_sentenciaFila->reinicia();
    if (m_sentenciaFila->afectadas() == 0)
        throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada,
                             u"La fila ya no está en la base de datos: otro programa la ha borrado."_s);
}

void Sesion::modifica(const jet::Tabla& tabla, const Edicion& fila, const Valor& identidad)
{
    std::vector<jet::TipoColumna> tipos;
    std::vector<Ligado> valores;
    for (const int columna : fila.porEscribir()) {
        tipos.push_back(tabla.columnas[static_cast<size_t>(columna)].tipo);
        valores.push_back(ligadoDe(*fila.valor(columna)));
    }
    tipos.push_back(tipoDeIdentidad(tabla));
    valores.push_back(ligadoDe(identidad));
    ejecutaUna(sqlModificacion(m_motor->clase(), tabla, fila.porEscribir()), tipos, valores);
}

void Sesion::borra(const jet::Tabla& tabla, const Valor& identidad)
{
    const jet::TipoColumna tipo = tipoDeIdentidad(tabla);
    const Ligado valor = ligadoDe(identidad);
    ejecutaUna(sqlBorrado(m_motor->clase(), tabla), {&tipo, 1}, {&valor, 1});
}

} // namespace kestrane::database
