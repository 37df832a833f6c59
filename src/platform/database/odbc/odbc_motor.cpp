#include "platform/database/odbc/odbc_motor.h"

#include "platform/database/odbc/odbc_altas.h"
#include "platform/database/odbc/odbc_catalogo.h"
#include "platform/database/odbc/odbc_conexion.h"
#include "platform/database/odbc/odbc_sentencia.h"
#include "platform/database/sentencias_fila.h"

#include <sqlucode.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

class OdbcMotor final : public MotorBase
{
public:
    explicit OdbcMotor(std::shared_ptr<OdbcConexion> conexion) : m_conexion{std::move(conexion)}, m_catalogo{m_conexion} {}

    [[nodiscard]] jet::Motor clase() const override { return m_conexion->motor(); }
    [[nodiscard]] jet::Catalogo& catalogo() override { return m_catalogo; }
    void ponEspera(std::chrono::milliseconds espera) override { m_conexion->ponEspera(espera); }
    [[nodiscard]] bool perdida() const override { return m_conexion->perdida(); }

    [[nodiscard]] std::unique_ptr<SentenciaMotor> prepara(const QByteArray& sql, std::span<const jet::TipoColumna> parametros,
                                                          std::span<const jet::TipoColumna> resultado) override
    {
        return std::make_unique<OdbcSentencia>(m_conexion, sql, parametros, resultado);
    }

    void insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas) override
    {
        if (columnas.empty())
            return insertaFilasVacias(tabla, filas.filas());
        altas(tabla, columnas).inserta(filas);
    }

private:
    /// Ready inserts for the tables written last: a report writes two.
    static constexpr size_t MaximoAltas = 8;
    struct Preparadas
    {
        QString tabla;
        std::vector<int> columnas;
        std::unique_ptr<OdbcAltas> altas;
    };

    OdbcAltas& altas(const jet::Tabla& tabla, std::span<const int> columnas);
    void insertaFilasVacias(const jet::Tabla& tabla, qsizetype filas);

    std::shared_ptr<OdbcConexion> m_conexion;
    OdbcCatalogo m_catalogo;
    std::vector<Preparadas> m_altas; ///< the one used last stands last
};

OdbcAltas& OdbcMotor::altas(const jet::Tabla& tabla, std::span<const int> columnas)
{
    const auto conocida = std::ranges::find_if(m_altas, [&](const Preparadas& preparadas) {
        return preparadas.tabla == tabla.nombre && std::ranges::equal(preparadas.columnas, columnas);
    });
    if (conocida != m_altas.end()) {
        std::rotate(conocida, conocida + 1, m_altas.end());
        return *m_altas.back().altas;
    }
    if (m_altas.size() == MaximoAltas)
        m_altas.erase(m_altas.begin());
    m_altas.push_back({tabla.nombre, {columnas.begin(), columnas.end()}, altasDe(m_conexion, tabla, columnas)});
    return *m_altas.back().altas;
}

void OdbcMotor::insertaFilasVacias(const jet::Tabla& tabla, qsizetype filas)
{
    const auto sentencia = prepara(sqlInsercion(clase(), tabla, {}), {}, {});
    Transaccion transaccion{*m_conexion};
    for (qsizetype i = 0; i < filas; ++i) {
        sentencia->ejecuta({});
        sentencia->reinicia();
    }
    transaccion.confirma();
}

} // namespace

bool defineDsn(const QString& nombre)
{
    const ManejadorEntorno entorno = entornoOdbc3();
    std::array<SQLWCHAR, 256> fuente{};
    std::array<SQLWCHAR, 256> descripcion{};
    SQLSMALLINT largo = 0;
    SQLUSMALLINT direccion = SQL_FETCH_FIRST;
    while (SQL_SUCCEEDED(SQLDataSourcesW(entorno.get(), direccion, fuente.data(), fuente.size(), &largo, descripcion.data(),
                                         descripcion.size(), nullptr))) {
        if (nombre.compare(QStringView{reinterpret_cast<const char16_t*>(fuente.data())}, Qt::CaseInsensitive) == 0)
            return true;
        direccion = SQL_FETCH_NEXT;
    }
    return false;
}

std::unique_ptr<MotorBase> abre(const QString& cadena, const QString& usuario, const QString& clave, const OpcionesOdbc& opciones)
{
    const bool conMarca = cadena.startsWith("dsn="_L1, Qt::CaseInsensitive);
    const QString dsn = conMarca ? cadena.mid(4) : cadena;
    return std::make_unique<OdbcMotor>(std::make_shared<OdbcConexion>(dsn.trimmed(), usuario, clave, opciones));
}

} // namespace kestrane::database::odbc
