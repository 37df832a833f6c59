#include "instalacion/carga/carga.h"

#include "platform/database/sentencias_fila.h"
#include "platform/runtime/error_ejecucion.h"

#include <algorithm>

namespace kestrane::instalacion {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype FilasPorEnvio = 5000;

int lugarDe(const jet::Tabla& tabla, QLatin1StringView columna)
{
    const auto es = [columna](const jet::Columna& una) { return una.nombre.compare(columna, Qt::CaseInsensitive) == 0; };
    return static_cast<int>(std::ranges::find_if(tabla.columnas, es) - tabla.columnas.begin());
}

struct Ligador
{
    database::Ligado operator()(bool valor) const { return valor ? -1 : 0; }
    database::Ligado operator()(qint16 valor) const { return qint32{valor}; }
    database::Ligado operator()(const QString& valor) const { return QStringView{valor}; }
    template<class Dato>
    database::Ligado operator()(const Dato& valor) const
    {
        return valor;
    }
};

} // namespace

bool Carga::tiene(const demo::TablaDemo& tabla)
{
    return m_motor.catalogo().tabla(QString{tabla.nombre}) != nullptr;
}

Carga::Entrada& Carga::entrada(const demo::TablaDemo& tabla)
{
    Entrada& suya = m_entradas[&tabla];
    if (suya.tabla != nullptr)
        return suya;
    const jet::Tabla* hallada = m_motor.catalogo().tabla(QString{tabla.nombre});
    if (hallada == nullptr)
        throw ErrorEjecucion{ErrorEjecucion::SentenciaRechazada, u"Falta la tabla \"%1\"."_s.arg(tabla.nombre)};
    for (const QLatin1StringView columna : tabla.columnas)
        suya.columnas.push_back(lugarDe(*hallada, columna));
    suya.tabla = hallada;
    prepara(suya);
    return suya;
}

void Carga::prepara(Entrada& suya)
{
    if (m_motor.clase() != jet::Motor::Sqlite) {
        suya.pendientes = std::make_unique<database::AlmacenFilas>(static_cast<int>(suya.columnas.size()));
        return;
    }
    std::vector<jet::TipoColumna> tipos;
    tipos.reserve(suya.columnas.size());
    for (const int columna : suya.columnas)
        tipos.push_back(suya.tabla->columnas[static_cast<std::size_t>(columna)].tipo);
    suya.insercion = m_motor.prepara(database::sqlInsercion(m_motor.clase(), *suya.tabla, suya.columnas), tipos, {});
}

void Carga::fila(const demo::TablaDemo& tabla, std::span<const Valor> valores)
{
    Entrada& suya = entrada(tabla);
    if (suya.insercion != nullptr) {
        inserta(suya, valores);
        return;
    }
    suya.pendientes->empiezaFila();
    for (const Valor& valor : valores)
        suya.pendientes->ponValor(valor);
    suya.pendientes->terminaFila();
    if (suya.pendientes->filas() >= FilasPorEnvio)
        envia(suya);
}

void Carga::inserta(Entrada& suya, std::span<const Valor> valores)
{
    m_ligados.clear();
    for (const Valor& valor : valores)
        m_ligados.push_back(std::visit(Ligador{}, valor.dato()));
    suya.insercion->ejecuta(m_ligados);
    suya.insercion->reinicia();
}

void Carga::envia(Entrada& suya)
{
    suya.pendientes->alPrincipio();
    m_motor.insertaFilas(*suya.tabla, suya.columnas, *suya.pendientes);
    suya.pendientes = std::make_unique<database::AlmacenFilas>(static_cast<int>(suya.columnas.size()));
}

void Carga::envia()
{
    for (auto& [tabla, suya] : m_entradas) {
        if (suya.pendientes != nullptr && suya.pendientes->filas() > 0)
            envia(suya);
    }
}

void Reparto::fila(const demo::TablaDemo& tabla, std::span<const Valor> valores)
{
    Carga*& suya = m_suyas[&tabla];
    if (suya == nullptr)
        suya = m_tienda.tiene(tabla) ? &m_tienda : &m_listados;
    suya->fila(tabla, valores);
}

} // namespace kestrane::instalacion
