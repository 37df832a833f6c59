#include "platform/database/adelanto.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace kestrane::database {

using jet::Literal;

namespace {

/// Numbers of marks for which statements are prepared; the marks that are too many repeat the last key.
constexpr int NumerosDeMarcas[] = {4, 16, 64, 200, 1000};

int marcasPara(size_t claves)
{
    const auto* const numero = std::lower_bound(std::begin(NumerosDeMarcas), std::end(NumerosDeMarcas), static_cast<int>(claves));
    return numero == std::end(NumerosDeMarcas) ? static_cast<int>(claves) : *numero;
}

bool mismoLiteral(const Literal& a, const Literal& b)
{
    return a.clase == b.clase && a.numero == b.numero && a.fecha == b.fecha && a.texto == b.texto;
}

bool esNumero(const Literal& literal)
{
    return literal.clase == Literal::Clase::Entero || literal.clase == Literal::Clase::Doble;
}

} // namespace

/// Takes the first statement's literals and, behind them, the key of each.
bool Adelanto::extraeClaves(const std::vector<QString>& sentencias)
{
    if (!m_extractor.extrae(sentencias.front()))
        return false;
    m_forma = m_extractor.forma().toString();
    m_literales.assign(m_extractor.literales().begin(), m_extractor.literales().end());
    m_comunes = m_literales.size();
    m_claves.clear();
    // Texts with quotes in them would lie in the extractor's buffer.
    if (std::any_of(m_literales.begin(), m_literales.end(), [](const Literal& literal) { return literal.texto.contains(u'\''); }))
        return false;
    if (!m_extractor.extrae(sentencias[1]) || !buscaLiteral())
        return false;
    return std::all_of(sentencias.begin(), sentencias.end(), [this](const QString& sentencia) { return anadeClave(sentencia); });
}

/// The key is the number in which the statement just extracted differs from the first.
bool Adelanto::buscaLiteral()
{
    const auto otros = m_extractor.literales();
    const auto [distinto, otro] = std::mismatch(m_literales.begin(), m_literales.end(), otros.begin(), otros.end(), mismoLiteral);
    m_literal = static_cast<int>(distinto - m_literales.begin());
    return distinto != m_literales.end() && otro != otros.end() && esNumero(*distinto);
}

bool Adelanto::anadeClave(const QString& sentencia)
{
    if (!m_extractor.extrae(sentencia) || m_extractor.forma() != m_forma)
        return false;
    const auto literales = m_extractor.literales();
    for (size_t i = 0; i < m_comunes; ++i) {
        if (i != static_cast<size_t>(m_literal) && !mismoLiteral(literales[i], m_literales[i]))
            return false;
    }
    m_literales.push_back(literales[static_cast<size_t>(m_literal)]);
    m_claves.push_back(m_literales.back().numero);
    return true;
}

PlanSentencia* Adelanto::planDe(const QString& sentencia, int marcas)
{
    const QString forma = QString::number(marcas) + u'\u0001' + m_forma;
    const size_t hash = qHash(forma);
    if (PlanSentencia* const plan = m_formas.busca(forma, hash))
        return plan;
    auto traduccion = m_traductor.traduceAnticipada(sentencia, m_literal, marcas);
    if (!traduccion)
        return nullptr;
    const QString editable = traduccion->tablaEditable;
    const jet::Tabla* const tabla = editable.isEmpty() ? nullptr : m_motor.catalogo().tabla(editable);
    return &m_formas.inserta(forma, hash, std::make_unique<PlanSentencia>(std::move(*traduccion), tabla));
}

std::span<const Ligado> Adelanto::liga(const PlanSentencia& varias)
{
    m_marcas = varias.traduccion().parametros;
    const size_t claves = m_literales.size() - m_comunes;
    const auto marcas = static_cast<size_t>(marcasPara(claves));
    for (size_t i = 0; i < marcas; ++i)
        m_marcas[m_marcas.size() - marcas + i].literal = static_cast<int>(m_comunes + std::min(i, claves - 1));
    return m_ligador.liga(m_marcas, m_literales);
}

/// Two keys may be one number ("5", "05"): they share its rows.
std::optional<Adelanto::Respuestas> Adelanto::reparte(Cursor& cursor, const PlanSentencia& varias, const PlanSentencia& plan,
                                                      qsizetype bytesMaximos) const
{
    const int visibles = plan.columnas();
    const bool conIdentidad = plan.columnaIdentidad() >= 0;
    std::unordered_map<double, std::shared_ptr<AlmacenFilas>> porClave;
    for (const double clave : m_claves)
        porClave[clave] = std::make_shared<AlmacenFilas>(visibles + (conIdentidad ? 1 : 0), std::numeric_limits<qsizetype>::max());
    while (cursor.avanza()) {
        if (cursor.filas().bytes() > bytesMaximos)
            return std::nullopt;
        const Valor clave = cursor.lector().valor(varias.columnaClave());
        const auto suya = clave.esNulo() ? porClave.end() : porClave.find(clave.doble());
        if (suya == porClave.end())
            return std::nullopt;
        AlmacenFilas& filas = *suya->second;
        filas.empiezaFila();
        for (int i = 0; i < visibles; ++i)
            filas.ponCelda(cursor.lector().celda(i));
        if (conIdentidad)
            filas.ponCelda(cursor.lector().celda(varias.columnaIdentidad()));
        filas.terminaFila();
    }
    Respuestas respuestas;
    for (const double clave : m_claves)
        respuestas.push_back(porClave.at(clave));
    return respuestas;
}

std::optional<Adelanto::Respuestas> Adelanto::lee(const std::vector<QString>& sentencias, const PlanSentencia& plan,
                                                  Cursor::Anillo& aMedias, qsizetype limite, qsizetype bytesMaximos)
{
    if (!extraeClaves(sentencias))
        return std::nullopt;
    PlanSentencia* const varias = planDe(sentencias.front(), marcasPara(sentencias.size()));
    if (!varias || varias->columnas() != plan.columnas())
        return std::nullopt;
    Cursor& cursor = varias->toma(m_motor, limite);
    struct Devuelve
    {
        PlanSentencia& plan;
        Cursor& cursor;
        ~Devuelve() { plan.devuelve(cursor); }
    } const alSalir{*varias, cursor};
    cursor.ejecuta(liga(*varias), aMedias);
    return reparte(cursor, *varias, plan, bytesMaximos);
}

} // namespace kestrane::database
