#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/plan_sentencia.h"

#include <QString>

#include <list>
#include <memory>
#include <unordered_map>
#include <vector>

namespace kestrane::database {

/// The answers of statements that were met before, by their text, within a bound of bytes: the ones used longest ago go first. A
/// text is worth keeping from its second time on, since most are sent once.
class Respuestas
{
public:
    struct Respuesta
    {
        PlanSentencia* plan = nullptr;
        std::shared_ptr<const AlmacenFilas> filas;
    };

    explicit Respuestas(qsizetype bytesMaximos) : m_bytesMaximos{bytesMaximos} {}
    ~Respuestas() { vacia(); }
    Respuestas(const Respuestas&) = delete;
    Respuestas& operator=(const Respuestas&) = delete;

    /// The answer of that text, nullptr when it is not known. Holds until the next change.
    [[nodiscard]] const Respuesta* busca(const QString& sentencia);
    /// True when the text has been asked about before; from now on it has.
    [[nodiscard]] bool repetida(const QString& sentencia);
    /// Keeps all rows of a statement. The plan counts as in use meanwhile.
    void guarda(const QString& sentencia, PlanSentencia& plan, std::shared_ptr<const AlmacenFilas> filas);
    void vacia();
    [[nodiscard]] qsizetype bytes() const { return m_bytes; }
    [[nodiscard]] qsizetype bytesMaximos() const { return m_bytesMaximos; }

private:
    struct Entrada
    {
        QString sentencia;
        Respuesta respuesta;
        qsizetype bytes = 0;
    };
    struct Hash
    {
        size_t operator()(const QString& texto) const { return qHash(texto); }
    };

    void recorta();

    qsizetype m_bytesMaximos;
    qsizetype m_bytes = 0;
    std::list<Entrada> m_entradas; ///< used last in front
    std::unordered_map<QString, std::list<Entrada>::iterator, Hash> m_porTexto;
    std::vector<size_t> m_vistas; ///< hashes met, one in each place: a later one displaces an earlier one
};

} // namespace kestrane::database
