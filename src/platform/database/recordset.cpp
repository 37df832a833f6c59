#include "platform/database/recordset.h"

#include "platform/database/conexion.h"
#include "platform/database/conversion_columna.h"
#include "platform/database/sesion.h"
#include "platform/runtime/error_ejecucion.h"

using namespace Qt::StringLiterals;

namespace kestrane::database {

namespace {

[[noreturn]] void rechaza(const QString& descripcion)
{
    throw ErrorEjecucion(ErrorEjecucion::SentenciaRechazada, descripcion);
}

} // namespace

Recordset::Recordset() = default;

Recordset::~Recordset()
{
    if (m_porEnviar && m_sesion)
        m_sesion->base().enviaSinError();
    suelta();
}

void Recordset::Open(const QString& texto, Conexion& conexion, CursorType tipo, LockType)
{
    Close();
    Sesion& sesion = conexion.sesion();
    const Sesion::Abierta abierta = tipo == CursorType::Static ? sesion.abre(texto) : sesion.preparada(texto);
    m_plan = abierta.plan;
    m_cursor = abierta.cursor;
    m_sesion = &sesion;
    m_texto = !m_cursor || sesion.recuerda() ? texto : QString{};
    m_plan->usa();
    m_fila = Fila::PorLeer;
    entraAntesDe(sesion.recordsets());
}

void Recordset::Close()
{
    // Closed it is, whether or not the rows can be sent: they wait on.
    BaseCompartida* const base = m_porEnviar && m_sesion ? &m_sesion->base() : nullptr;
    suelta();
    if (base)
        base->envia();
}

void Recordset::suelta() noexcept
{
    if (!m_sesion)
        return;
    m_sesion->retiraAnuncios(this);
    if (m_cursor)
        m_sesion->cierra(*m_plan, *m_cursor, m_texto);
    m_plan->deja();
    m_cursor = nullptr;
    m_plan = nullptr;
    m_sesion = nullptr;
    m_edicion.reset();
    m_anadidas = m_borradas = 0;
    m_porEnviar = false;
    sale();
}

void Recordset::cierraTodos(Enlace<EtiquetaRecordset>& abiertos) noexcept
{
    while (!abiertos.solo())
        static_cast<Recordset*>(abiertos.siguiente())->suelta();
}

void Recordset::exigeAbierto() const
{
    if (!m_plan)
        rechaza(u"El conjunto de filas no está abierto."_s);
}

std::span<const jet::ColumnaResultado> Recordset::columnas() const
{
    exigeAbierto();
    return m_plan->traduccion().columnas;
}

int Recordset::columna(QStringView nombre) const
{
    exigeAbierto();
    const int columna = m_plan->columna(nombre);
    if (columna < 0)
        throw ErrorEjecucion(ErrorEjecucion::CampoInexistente).conContexto(u"Campo \"%1\"."_s.arg(nombre));
    return columna;
}

int Recordset::columna(int indice) const
{
    exigeAbierto();
    if (indice < 0 || indice >= m_plan->columnas())
        throw ErrorEjecucion(ErrorEjecucion::CampoInexistente).conContexto(u"Campo número %1."_s.arg(indice));
    return indice;
}

int Recordset::columnaDeTabla(int columna) const
{
    return m_plan->tabla() ? m_plan->traduccion().columnaDeTabla[static_cast<size_t>(columna)] : -1;
}

/// The rows, asked of the engine when they have not been yet.
Cursor& Recordset::leido()
{
    exigeAbierto();
    if (!m_cursor) {
        m_cursor = &m_sesion->consulta(m_sesion->prepara(m_texto), m_texto);
        m_anadidas = 0;
        m_texto.clear(); // appending recordsets are not remembered
    }
    return *m_cursor;
}

/// Makes the first row the current one when none was asked for yet.
void Recordset::situa()
{
    if (m_fila == Fila::PorLeer)
        m_fila = leido().avanza() ? Fila::Leida : Fila::Ninguna;
}

void Recordset::exigeFila()
{
    exigeAbierto();
    situa();
    if (m_fila == Fila::Ninguna || m_fila == Fila::Borrada)
        throw ErrorEjecucion(ErrorEjecucion::SinRegistroActual);
}

bool Recordset::Eof()
{
    exigeAbierto();
    situa();
    return m_fila == Fila::Ninguna;
}

void Recordset::MoveNext()
{
    exigeAbierto();
    Update();
    situa();
    if (m_fila == Fila::Ninguna)
        throw ErrorEjecucion(ErrorEjecucion::SinRegistroActual);
    avanza();
}

void Recordset::avanza()
{
    if (m_edicion)
        m_edicion->vacia();
    // A row added stands behind all others.
    const bool hayOtra = m_fila != Fila::Anadida && leido().avanza();
    m_fila = hayOtra ? Fila::Leida : Fila::Ninguna;
}

bool Recordset::hay(qsizetype filas)
{
    Cursor& cursor = leido();
    return cursor.hay(filas - m_anadidas + m_borradas);
}

qint32 Recordset::cuenta()
{
    Cursor& cursor = leido();
    cursor.completa();
    return static_cast<qint32>(cursor.leidas() + m_anadidas - m_borradas);
}

Valor Recordset::lee(int columna)
{
    if (m_fila == Fila::PorLeer || m_fila == Fila::Ninguna || m_fila == Fila::Borrada)
        exigeFila();
    if (m_edicion) {
        const int enTabla = columnaDeTabla(columna);
        const Valor* const asignado = enTabla < 0 ? nullptr : m_edicion->valor(enTabla);
        if (asignado)
            return *asignado;
        if (m_fila != Fila::Leida)
            return {};
    }
    return m_cursor->lector().valor(columna);
}

Edicion& Recordset::edicion()
{
    if (!m_plan->tabla())
        rechaza(u"Las filas de esta consulta no se pueden cambiar: no son las de una sola tabla."_s);
    if (!m_edicion)
        m_edicion = std::make_unique<Edicion>(*m_plan->tabla());
    return *m_edicion;
}

void Recordset::escribe(int columna, const Valor& valor)
{
    if (m_fila != Fila::Nueva)
        exigeFila();
    if (m_fila == Fila::Anadida)
        rechaza(u"La fila añadida ya está escrita: ábrala de nuevo para cambiarla."_s);
    Edicion& edicion = this->edicion();
    const int enTabla = columnaDeTabla(columna);
    if (enTabla < 0)
        rechaza(u"El campo \"%1\" no se puede escribir: no es una columna de la tabla."_s.arg(
            m_plan->traduccion().columnas[static_cast<size_t>(columna)].nombre));
    // Written even when the row was read with that very value: another program may have changed it since.
    edicion.pon(enTabla, valorParaColumna(valor, m_plan->tabla()->columnas[static_cast<size_t>(enTabla)], m_sesion->regional()));
}

void Recordset::AddNew()
{
    exigeAbierto();
    Update();
    Edicion& nueva = edicion();
    nueva.vacia();
    m_fila = Fila::Nueva;
}

void Recordset::Update()
{
    exigeAbierto();
    if (m_fila == Fila::Nueva)
        anadeNueva();
    else if (m_edicion && m_edicion->pendiente())
        modificaActual();
}

void Recordset::anadeNueva()
{
    m_porEnviar = true;
    m_sesion->anade(*m_plan->tabla(), *m_edicion);
    m_edicion->escrita();
    m_fila = Fila::Anadida;
    ++m_anadidas;
    m_sesion->enviaSiHayMuchas(); // the row is there, whatever comes of it
}

Valor Recordset::identidad() const
{
    if (m_plan->tabla()->identidad.isEmpty())
        rechaza(u"La tabla \"%1\" no tiene con qué distinguir sus filas: no se pueden cambiar ni borrar una a una."_s.arg(
            m_plan->tabla()->nombre));
    return m_cursor->lector().valor(m_plan->columnaIdentidad());
}

void Recordset::modificaActual()
{
    m_sesion->modifica(*m_plan->tabla(), *m_edicion, identidad());
    m_edicion->escrita();
}

void Recordset::Delete()
{
    if (m_fila == Fila::Nueva || m_fila == Fila::Anadida)
        rechaza(u"La fila añadida no se puede borrar: ábrala de nuevo para borrarla."_s);
    exigeFila();
    edicion().vacia();
    m_sesion->borra(*m_plan->tabla(), identidad());
    m_fila = Fila::Borrada;
    ++m_borradas;
}

void Recordset::Anticipa(const QString& cabeza, const QString& campo, const QString& cola)
{
    const int clave = columna(campo);
    m_sesion->anticipa(this, leido(), clave, cabeza, cola);
}

Valor Campo::valor() const
{
    return m_filas.lee(m_columna);
}

Campo& Campo::operator=(const Valor& valor)
{
    m_filas.escribe(m_columna, valor);
    return *this;
}

qint32 Recuento::exacto() const
{
    return m_filas.cuenta();
}

bool Recuento::alMenos(qint64 filas) const
{
    return filas <= 0 || m_filas.hay(filas);
}

} // namespace kestrane::database
