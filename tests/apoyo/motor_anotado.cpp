#include "apoyo/motor_anotado.h"

#include "platform/database/motor.h"
#include "platform/runtime/conversiones.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

namespace {

using database::AlmacenFilas;
using database::Ligado;

QString textoDe(const Ligado& ligado)
{
    if (const auto* texto = std::get_if<QStringView>(&ligado))
        return u'\'' + texto->toString() + u'\'';
    const auto comoValor = [](const auto& dato) { return Valor{dato}; };
    return aTexto(std::visit(comoValor, ligado), ConfiguracionRegional::espania());
}

/// What the renderers add to every statement beside quotes: names for the tables, the collation, the rows' own order.
const QRegularExpression& anadidos()
{
    static const QRegularExpression expresion{
        u"(,| ORDER BY) (t\\d+\\.)?(rowid|orden_)\\b|\\bt\\d+\\.| AS t\\d+\\b| COLLATE ESPANOL"_s};
    return expresion;
}

/// A value whose type the renderer names.
const QRegularExpression& conTipo()
{
    static const QRegularExpression expresion{u"CAST\\(\\? AS [a-z ]+\\)"_s};
    return expresion;
}

QString conValores(const QByteArray& sql, std::span<const Ligado> valores)
{
    QString texto = QString::fromUtf8(sql).remove(u'"').remove(u'`').remove(anadidos()).replace(conTipo(), u"?"_s).simplified();
    for (const Ligado& valor : valores)
        texto.replace(texto.indexOf(u'?'), 1, textoDe(valor));
    return texto;
}

class SentenciaAnotada final : public database::SentenciaMotor
{
public:
    SentenciaAnotada(std::unique_ptr<SentenciaMotor> sentencia, QByteArray sql, QString dsn, QStringList& anotaciones)
        : m_sentencia{std::move(sentencia)}
        , m_sql{std::move(sql)}
        , m_dsn{std::move(dsn)}
        , m_anotaciones{anotaciones}
    {
    }

    void ejecuta(std::span<const Ligado> parametros) override
    {
        m_anotaciones += m_dsn + u": "_s + conValores(m_sql, parametros);
        m_sentencia->ejecuta(parametros);
    }
    [[nodiscard]] bool siguiente(AlmacenFilas& destino) override { return m_sentencia->siguiente(destino); }
    [[nodiscard]] qint64 afectadas() const override { return m_sentencia->afectadas(); }
    void reinicia() noexcept override { m_sentencia->reinicia(); }

private:
    std::unique_ptr<SentenciaMotor> m_sentencia;
    QByteArray m_sql;
    QString m_dsn;
    QStringList& m_anotaciones;
};

class MotorAnotado final : public database::MotorBase
{
public:
    MotorAnotado(std::unique_ptr<MotorBase> motor, QString dsn, QStringList& anotaciones)
        : m_motor{std::move(motor)}
        , m_dsn{std::move(dsn)}
        , m_anotaciones{anotaciones}
    {
        m_anotaciones += u"abre "_s + m_dsn;
    }
    ~MotorAnotado() override { m_anotaciones += u"cierra "_s + m_dsn; }

    [[nodiscard]] jet::Motor clase() const override { return m_motor->clase(); }
    [[nodiscard]] jet::Catalogo& catalogo() override { return m_motor->catalogo(); }
    [[nodiscard]] std::unique_ptr<database::SentenciaMotor> prepara(const QByteArray& sql,
                                                                    std::span<const jet::TipoColumna> parametros,
                                                                    std::span<const jet::TipoColumna> resultado) override
    {
        return std::make_unique<SentenciaAnotada>(m_motor->prepara(sql, parametros, resultado), sql, m_dsn, m_anotaciones);
    }
    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) override
    {
        m_anotaciones += m_dsn + u": filas en "_s + tabla.nombre;
        m_motor->insertaFilas(tabla, columnas, filas);
    }
    [[nodiscard]] bool perdida() const override { return m_motor->perdida(); }

private:
    std::unique_ptr<MotorBase> m_motor;
    QString m_dsn;
    QStringList& m_anotaciones;
};

} // namespace

Envoltura anotaEn(QStringList& anotaciones)
{
    return [&anotaciones](std::unique_ptr<database::MotorBase> motor, const QString& dsn) {
        return std::make_unique<MotorAnotado>(std::move(motor), dsn, anotaciones);
    };
}

} // namespace kestrane::prueba
