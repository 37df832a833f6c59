#pragma once

#include "platform/database/cache_formas.h"
#include "platform/database/ligador.h"
#include "platform/jet/forma.h"
#include "platform/jet/traductor.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace kestrane::database {

/// Answers several announced statements, which differ in one number, by one that asks for all of them.
class Adelanto
{
public:
    /// All must outlive it.
    Adelanto(MotorBase& motor, const jet::Traductor& traductor, CacheFormas& formas, Ligador& ligador)
        : m_motor{motor}
        , m_traductor{traductor}
        , m_formas{formas}
        , m_ligador{ligador}
    {
    }

    using Respuestas = std::vector<std::shared_ptr<const AlmacenFilas>>;

    /// The rows of each of `sentencias` (at least two, of one shape), as each would give them; nothing when they cannot be asked
    /// for together or take more than `bytesMaximos` of memory. `plan` is theirs; `aMedias` and `limite` as for any cursor. Errors
    /// of the engine rise.
    [[nodiscard]] std::optional<Respuestas> lee(const std::vector<QString>& sentencias, const PlanSentencia& plan,
                                                Cursor::Anillo& aMedias, qsizetype limite, qsizetype bytesMaximos);

private:
    [[nodiscard]] bool extraeClaves(const std::vector<QString>& sentencias);
    [[nodiscard]] bool buscaLiteral();
    [[nodiscard]] bool anadeClave(const QString& sentencia);
    [[nodiscard]] PlanSentencia* planDe(const QString& sentencia, int marcas);
    [[nodiscard]] std::span<const Ligado> liga(const PlanSentencia& varias);
    [[nodiscard]] std::optional<Respuestas> reparte(Cursor& cursor, const PlanSentencia& varias, const PlanSentencia& plan,
                                                    qsizetype bytesMaximos) const;

    MotorBase& m_motor;
    const jet::Traductor& m_traductor;
    CacheFormas& m_formas;
    Ligador& m_ligador;
    jet::ExtractorDeForma m_extractor;
    QString m_forma;
    std::vector<jet::Literal> m_literales; ///< of the first statement, then the keys
    std::vector<double> m_claves;
    int m_literal = 0; ///< which one is the key
    size_t m_comunes = 0;
    std::vector<jet::Parametro> m_marcas;
};

} // namespace kestrane::database
