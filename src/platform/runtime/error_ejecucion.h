#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace kestrane {

/// What ends a run: the platform's run-time error, with the number and the Spanish description that the operator is shown.
///
/// Thrown anywhere below the programs, caught in one place per program. Layers that know more add it with `conContexto` while the
/// error rises (the statement, the file, the line).
class ErrorEjecucion : public std::exception
{
public:
    enum Numero : qint32 {
        Desbordamiento = 6,
        IndiceFueraDeIntervalo = 9,
        DivisionPorCero = 11,
        TiposNoCoinciden = 13,
        UsoNoValidoDeNull = 94,
        SinRegistroActual = 3021,
        CampoInexistente = 3265,
        ConexionImposible = -2147467259,
        LayoutIncorrecto = 20001, ///< a report layout that is missing or broken
        SentenciaRechazada = -2147217900,
    };

    /// With the platform's own description of `numero`.
    explicit ErrorEjecucion(Numero numero);
    ErrorEjecucion(Numero numero, QString descripcion);

    [[nodiscard]] qint32 numero() const { return m_numero; }
    /// Spanish, whole sentences, for the operator.
    [[nodiscard]] const QString& descripcion() const { return m_descripcion; }
    /// The same error with `contexto` on a line of its own behind the description.
    [[nodiscard]] ErrorEjecucion conContexto(const QString& contexto) const;

    /// "ERROR 13: No coinciden los tipos." in UTF-8, for logs and test output.
    [[nodiscard]] const char* what() const noexcept override { return m_enUtf8.constData(); }

    /// The same number and the same description.
    friend bool operator==(const ErrorEjecucion& a, const ErrorEjecucion& b)
    {
        return a.m_numero == b.m_numero && a.m_descripcion == b.m_descripcion;
    }

private:
    qint32 m_numero;
    QString m_descripcion;
    QByteArray m_enUtf8;
};

} // namespace kestrane
