#pragma once

#include "apoyo/tienda_de_prueba.h"
#include "corpus/corpus.h"

#include <set>
#include <string>
#include <vector>

namespace kestrane::prueba {

/// What came of a statement.
struct Respuesta
{
    std::string error;    ///< "" when it ran
    qint64 afectadas = 0; ///< of a statement that writes
    std::vector<std::string>
        filas; ///< of a query, one text each; of a statement that writes, what its database's tables hold after it

    friend bool operator==(const Respuesta&, const Respuesta&) = default;
};

/// The small shop on one engine, on which the statements of the corpus run.
class TiendaCorpus
{
public:
    enum class Contenido { Vacia, Llena };

    TiendaCorpus(jet::Motor motor, Contenido contenido);

    /// Runs a statement; what an earlier one wrote has been undone before.
    [[nodiscard]] Respuesta ejecuta(const SentenciaCorpus& sentencia);
    /// How often an engine has run a statement since the object was made.
    [[nodiscard]] int ejecucionesDelMotor() const { return *m_ejecuciones; }

private:
    [[nodiscard]] Conexion& conexion(SentenciaCorpus::Base base);
    void llena(SentenciaCorpus::Base base);
    void deshaz(SentenciaCorpus::Base base);
    [[nodiscard]] std::vector<std::string> filasDe(const QString& consulta, SentenciaCorpus::Base base);
    [[nodiscard]] std::vector<std::string> estadoDe(SentenciaCorpus::Base base);

    Contenido m_contenido;
    std::shared_ptr<int> m_ejecuciones = std::make_shared<int>(0);
    TiendaDePrueba m_bases;
    EntornoDatos m_entorno;
    Conexion m_tienda{m_entorno};
    Conexion m_listados{m_entorno};
    std::set<SentenciaCorpus::Base> m_cambiadas;
};

} // namespace kestrane::prueba
