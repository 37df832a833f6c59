#include "corpus/tienda_corpus.h"

#include "instalacion/esquema.h"
#include "lote/escritor_json.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

namespace {

/// Counts what reaches the engine.
class SentenciaContada : public database::SentenciaMotor
{
public:
    SentenciaContada(std::unique_ptr<SentenciaMotor> sentencia, std::shared_ptr<int> ejecuciones)
        : m_sentencia{std::move(sentencia)}
        , m_ejecuciones{std::move(ejecuciones)}
    {
    }
    void ejecuta(std::span<const database::Ligado> parametros) override
    {
        ++*m_ejecuciones;
        m_sentencia->ejecuta(parametros);
    }
    bool siguiente(database::AlmacenFilas& destino) override { return m_sentencia->siguiente(destino); }
    [[nodiscard]] qint64 afectadas() const override { return m_sentencia->afectadas(); }
    void reinicia() noexcept override { m_sentencia->reinicia(); }

private:
    std::unique_ptr<SentenciaMotor> m_sentencia;
    std::shared_ptr<int> m_ejecuciones;
};

class MotorContado : public database::MotorBase
{
public:
    MotorContado(std::unique_ptr<MotorBase> motor, std::shared_ptr<int> ejecuciones)
        : m_motor{std::move(motor)}
        , m_ejecuciones{std::move(ejecuciones)}
    {
    }
    [[nodiscard]] jet::Motor clase() const override { return m_motor->clase(); }
    [[nodiscard]] jet::Catalogo& catalogo() override { return m_motor->catalogo(); }
    [[nodiscard]] std::unique_ptr<database::SentenciaMotor> prepara(const QByteArray& sql,
                                                                    std::span<const jet::TipoColumna> parametros,
                                                                    std::span<const jet::TipoColumna> resultado) override
    {
        return std::make_unique<SentenciaContada>(m_motor->prepara(sql, parametros, resultado), m_ejecuciones);
    }
    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, database::AlmacenFilas& filas) override
    {
        m_motor->insertaFilas(tabla, columnas, filas);
    }
    [[nodiscard]] bool perdida() const override { return m_motor->perdida(); }

private:
    std::unique_ptr<MotorBase> m_motor;
    std::shared_ptr<int> m_ejecuciones;
};

Envoltura contadora(const std::shared_ptr<int>& ejecuciones)
{
    return [ejecuciones](std::unique_ptr<database::MotorBase> motor, const QString&) -> std::unique_ptr<database::MotorBase> {
        return std::make_unique<MotorContado>(std::move(motor), ejecuciones);
    };
}

const instalacion::BaseEsquema& esquemaDe(SentenciaCorpus::Base base)
{
    return base == SentenciaCorpus::Base::Tienda ? instalacion::baseTienda() : instalacion::baseListados();
}

std::string textoDeFila(Recordset& fila)
{
    QByteArray texto;
    for (const jet::ColumnaResultado& columna : fila.columnas()) {
        texto.append(texto.isEmpty() ? "" : ",");
        lote::anadeValorJson(texto, fila.Fields(static_cast<int>(&columna - fila.columnas().data())));
    }
    return texto.toStdString();
}

} // namespace

TiendaCorpus::TiendaCorpus(jet::Motor motor, Contenido contenido)
    : m_contenido{contenido}
    , m_bases{motor}
    , m_entorno{m_bases.opciones(contadora(m_ejecuciones))}
{
    for (const auto base : {SentenciaCorpus::Base::Tienda, SentenciaCorpus::Base::Listados}) {
        conexion(base).Open(u"dsn="_s + esquemaDe(base).dsn);
        llena(base);
    }
}

Respuesta TiendaCorpus::ejecuta(const SentenciaCorpus& sentencia)
{
    deshaz(sentencia.base);
    Respuesta respuesta;
    try {
        if (!sentencia.escribe()) {
            respuesta.filas = filasDe(sentencia.texto, sentencia.base);
            return respuesta;
        }
        respuesta.afectadas = conexion(sentencia.base).Execute(sentencia.texto);
        m_cambiadas.insert(sentencia.base);
        respuesta.filas = estadoDe(sentencia.base);
    } catch (const ErrorEjecucion& error) {
        respuesta.error = error.what();
    }
    return respuesta;
}

Conexion& TiendaCorpus::conexion(SentenciaCorpus::Base base)
{
    return base == SentenciaCorpus::Base::Tienda ? m_tienda : m_listados;
}

void TiendaCorpus::llena(SentenciaCorpus::Base base)
{
    if (m_contenido == Contenido::Vacia)
        return;
    for (const QString& alta : altasDe(base))
        conexion(base).Execute(alta);
}

void TiendaCorpus::deshaz(SentenciaCorpus::Base base)
{
    if (m_cambiadas.erase(base) == 0)
        return;
    for (const instalacion::TablaEsquema& tabla : esquemaDe(base).tablas)
        conexion(base).Execute(u"delete from "_s + tabla.nombre);
    llena(base);
}

std::vector<std::string> TiendaCorpus::filasDe(const QString& consulta, SentenciaCorpus::Base base)
{
    std::vector<std::string> filas;
    Recordset rs;
    rs.Open(consulta, conexion(base));
    for (Recordset& fila : rs)
        filas.push_back(textoDeFila(fila));
    return filas;
}

std::vector<std::string> TiendaCorpus::estadoDe(SentenciaCorpus::Base base)
{
    std::vector<std::string> filas;
    for (const instalacion::TablaEsquema& tabla : esquemaDe(base).tablas) {
        const std::vector<std::string> suyas = filasDe(QString{tabla.nombre}, base);
        filas.insert(filas.end(), suyas.begin(), suyas.end());
    }
    return filas;
}

} // namespace kestrane::prueba
