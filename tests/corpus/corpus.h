#pragma once

#include <QString>

#include <vector>

/// The statements of tests/corpus, as README.md there describes their files.
namespace kestrane::prueba {

struct SentenciaCorpus
{
    enum class Base { Tienda, Listados };
    enum class Veredicto { Corre, Rehusada };

    Base base = Base::Tienda;
    Veredicto veredicto = Veredicto::Corre;
    QString nombre;
    QString texto;

    /// True when it is no query: it may change rows.
    [[nodiscard]] bool escribe() const;
};

/// The names of the corpus files, without folder and ending, in order.
[[nodiscard]] std::vector<std::string> areasDelCorpus();

/// The statements of one area. Throws std::runtime_error, naming the line, for a file that is not as it should be.
[[nodiscard]] std::vector<SentenciaCorpus> sentenciasDe(const std::string& area);

/// The inserts that fill the small shop or its reports database.
[[nodiscard]] std::vector<QString> altasDe(SentenciaCorpus::Base base);

} // namespace kestrane::prueba
