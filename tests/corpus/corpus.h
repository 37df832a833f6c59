#pragma once

#include <QString>

#include <vector>

/// The statements of tests/corpus, as README.md there describes their files.
namespace kestrane::prueba {

struct SentenciaCorpus
{
    enum class Base { Tienda, Listados };
    enum class Veredicto { Corre, Rehusada };

    QString area;
    Base base = Base::Tienda;
    Veredicto veredicto = Veredicto::Corre;
    QString nombre;
    QString texto;

    /// True when it is no query: it may change rows.
    [[nodiscard]] bool escribe() const;
    /// "caja_diaria: ListadoCajaDiaria.ventas", for messages.
    [[nodiscard]] QString rotulo() const { return area + QStringLiteral(": ") + nombre; }
};

/// A statement on the shop that stands in no file.
[[nodiscard]] inline SentenciaCorpus consultaDe(const QString& texto)
{
    SentenciaCorpus sentencia;
    sentencia.texto = texto;
    return sentencia;
}

/// The names of the corpus files, without folder and ending, in order.
[[nodiscard]] std::vector<std::string> areasDelCorpus();

/// The statements of one area. Throws std::runtime_error, naming the line, for a file that is not as it should be.
[[nodiscard]] std::vector<SentenciaCorpus> sentenciasDe(const std::string& area);

/// Those of all areas.
[[nodiscard]] std::vector<SentenciaCorpus> todasLasSentencias();

/// The inserts that fill the small shop or its reports database.
[[nodiscard]] std::vector<QString> altasDe(SentenciaCorpus::Base base);

} // namespace kestrane::prueba
