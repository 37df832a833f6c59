// Look-ups, large results and added rows on a server, against the bare ODBC interface sending the same text.
// The servers' data sources come from tests/servidores/con_servidores.sh.

#include "bench/base_de_banco.h"
#include "bench/catalogo_de_esquema.h"
#include "bench/odbc_desnudo.h"
#include "instalacion/ddl.h"
#include "platform/database/recordset.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace kestrane::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr int Clientes = 5'000;
constexpr int Ventas = 20'000;
constexpr int Filas = 5'000;
constexpr SQLULEN Bloque = 200;

/// One server with a shop and a reports database, seen from both sides.
class Servidor
{
public:
    Servidor(jet::Motor motor, const QString& nombre)
        : m_motor{motor}
        , m_desnudaTienda{u"Kestrane%1Tienda"_s.arg(nombre).toStdString()}
        , m_desnudaListados{u"Kestrane%1Listados"_s.arg(nombre).toStdString()}
    {
        crea(m_desnudaTienda, instalacion::baseTienda());
        crea(m_desnudaListados, instalacion::baseListados());
        m_tienda.Open(u"dsn=Kestrane%1Tienda"_s.arg(nombre));
        m_listados.Open(u"dsn=Kestrane%1Listados"_s.arg(nombre));
        llena();
    }

    [[nodiscard]] const ConexionDesnuda& desnudaTienda() const { return m_desnudaTienda; }
    [[nodiscard]] const ConexionDesnuda& desnudaListados() const { return m_desnudaListados; }
    [[nodiscard]] Conexion& tienda() { return m_tienda; }
    [[nodiscard]] Conexion& listados() { return m_listados; }
    /// The text that the project sends for `sentencia`.
    [[nodiscard]] QString texto(const QString& sentencia) const
    {
        CatalogoDeEsquema catalogo{u"orden_"_s};
        return QString::fromUtf8(
            jet::Traductor{catalogo, m_motor, ConfiguracionRegional::espania()}.traduce(sentencia).valor().sql);
    }

private:
    void crea(const ConexionDesnuda& base, const instalacion::BaseEsquema& esquema) const
    {
        for (const QString& sentencia : instalacion::sentenciasDeBorrado(esquema, m_motor))
            base.ejecuta(sentencia);
        for (const QString& sentencia : instalacion::sentenciasDeCreacion(esquema, m_motor))
            base.ejecuta(sentencia);
    }

    void llena() const
    {
        const QString serie =
            m_motor == jet::Motor::PostgreSql ? u"generate_series(1, %1) as s(n)"_s : u"(select seq as n from seq_1_to_%1) as s"_s;
        m_desnudaTienda.ejecuta(
            u"insert into clientes (codigo,nombre,apellidos,tienda) select n, 'María', 'Núñez Peña', 'Centro' from "_s +
            serie.arg(Clientes));
        m_desnudaTienda.ejecuta(u"insert into cabecera_factura (numero,fechaventa,tienda,cliente,empleado,pago,total)"
                                " select n, '2024-03-15', 'Centro', 7, 3, 1, 20.25 from "_s +
                                serie.arg(Ventas));
    }

    jet::Motor m_motor;
    ConexionDesnuda m_desnudaTienda;
    ConexionDesnuda m_desnudaListados;
    EntornoDatos m_entorno{database::OpcionesDatos{}};
    Conexion m_tienda{m_entorno};
    Conexion m_listados{m_entorno};
};

Servidor& servidor(jet::Motor motor)
{
    static std::array<std::unique_ptr<Servidor>, 2> servidores;
    std::unique_ptr<Servidor>& uno = servidores.at(motor == jet::Motor::PostgreSql ? 0 : 1);
    if (!uno)
        uno = std::make_unique<Servidor>(motor, motor == jet::Motor::PostgreSql ? u"Pg"_s : u"Maria"_s);
    return *uno;
}

QString busqueda(int codigo)
{
    return u"Select Nombre,Apellidos from clientes where codigo = "_s + QString::number(codigo);
}

QString textoAncho(const SQLWCHAR* letras, SQLLEN bytes)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(letras), bytes / 2);
}

/// A bound text column of a row.
struct Texto
{
    std::array<SQLWCHAR, 256> letras{};
    SQLLEN bytes = 0;

    void liga(const SentenciaOdbc& sentencia, SQLUSMALLINT columna)
    {
        sentencia.exige(SQLBindCol(sentencia.mango(), columna, SQL_C_WCHAR, letras.data(), sizeof letras, &bytes));
    }
    [[nodiscard]] QString texto() const { return textoAncho(letras.data(), bytes); }
};

void clienteDesnudo(benchmark::State& estado, jet::Motor motor)
{
    Servidor& base = servidor(motor);
    const SentenciaOdbc sentencia{base.desnudaTienda(), base.texto(busqueda(1))};
    SQLINTEGER codigo = 0;
    sentencia.exige(SQLBindParameter(sentencia.mango(), 1, SQL_PARAM_INPUT, SQL_C_SLONG, SQL_INTEGER, 0, 0, &codigo, 0, nullptr));
    Texto nombre;
    Texto apellidos;
    nombre.liga(sentencia, 1);
    apellidos.liga(sentencia, 2);
    Codigos codigos{Clientes};
    for (auto _ : estado) {
        codigo = codigos.siguiente();
        sentencia.exige(SQLExecute(sentencia.mango()));
        sentencia.exige(SQLFetch(sentencia.mango()));
        benchmark::DoNotOptimize(nombre.texto() + u' ' + apellidos.texto());
        sentencia.exige(SQLFreeStmt(sentencia.mango(), SQL_CLOSE));
    }
}

void clienteNuestro(benchmark::State& estado, jet::Motor motor)
{
    Servidor& base = servidor(motor);
    Codigos codigos{Clientes};
    for (auto _ : estado) {
        Recordset rs;
        rs.Open(busqueda(codigos.siguiente()), base.tienda());
        if (rs.RecordCount() > 0)
            benchmark::DoNotOptimize(rs.Fields(u"Nombre").texto() + u' ' + rs.Fields(u"Apellidos").texto());
    }
    estado.SetLabel("at most 1.3");
}

const QString Cabeceras = u"Select numero,fechaventa,tienda,total from cabecera_factura"_s;

/// A block of rows of `Cabeceras`, column by column.
struct BloqueCabeceras
{
    std::array<SQLINTEGER, Bloque> numero{};
    std::array<SQL_TIMESTAMP_STRUCT, Bloque> fecha{};
    std::array<std::array<SQLWCHAR, 51>, Bloque> tienda{};
    std::array<double, Bloque> total{};
    std::array<std::array<SQLLEN, Bloque>, 4> largo{};
    SQLULEN filas = 0;
};

void resultadoDesnudo(benchmark::State& estado, jet::Motor motor)
{
    Servidor& base = servidor(motor);
    const SentenciaOdbc sentencia{base.desnudaTienda(), base.texto(Cabeceras)};
    const auto bloque = std::make_unique<BloqueCabeceras>();
    SQLHSTMT mango = sentencia.mango();
    SQLSetStmtAttr(mango, SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(Bloque), 0);
    SQLSetStmtAttr(mango, SQL_ATTR_ROWS_FETCHED_PTR, &bloque->filas, 0);
    SQLBindCol(mango, 1, SQL_C_SLONG, bloque->numero.data(), 0, bloque->largo[0].data());
    SQLBindCol(mango, 2, SQL_C_TYPE_TIMESTAMP, bloque->fecha.data(), 0, bloque->largo[1].data());
    SQLBindCol(mango, 3, SQL_C_WCHAR, bloque->tienda.data(), sizeof bloque->tienda[0], bloque->largo[2].data());
    SQLBindCol(mango, 4, SQL_C_DOUBLE, bloque->total.data(), 0, bloque->largo[3].data());
    for (auto _ : estado) {
        double suma = 0;
        sentencia.exige(SQLExecute(mango));
        while (SQL_SUCCEEDED(SQLFetch(mango))) {
            for (SQLULEN fila = 0; fila < bloque->filas; ++fila) {
                suma += bloque->total.at(fila) + bloque->numero.at(fila);
                benchmark::DoNotOptimize(textoAncho(bloque->tienda.at(fila).data(), bloque->largo[2].at(fila)));
            }
        }
        sentencia.exige(SQLFreeStmt(mango, SQL_CLOSE));
        benchmark::DoNotOptimize(suma);
    }
}

void resultadoNuestro(benchmark::State& estado, jet::Motor motor)
{
    Servidor& base = servidor(motor);
    for (auto _ : estado) {
        double suma = 0;
        Recordset rs;
        rs.Open(Cabeceras, base.tienda());
        for (Recordset& fila : rs) {
            suma += fila.Fields(u"total").doble() + fila.Fields(u"numero").entero32();
            benchmark::DoNotOptimize(fila.Fields(u"tienda").texto());
        }
        benchmark::DoNotOptimize(suma);
    }
    estado.SetLabel("at most 1.5");
}

/// The parameters of the bare array insert, column by column.
struct BloqueAltas
{
    std::array<double, Bloque> numerico1{};
    std::array<double, Bloque> numerico2{};
    std::array<std::array<std::array<SQLWCHAR, 32>, Bloque>, 6> textos{};
    std::array<std::array<SQLLEN, Bloque>, 6> largos{};
};

void altasDesnudas(benchmark::State& estado, jet::Motor motor)
{
    Servidor& base = servidor(motor);
    const SentenciaOdbc sentencia{base.desnudaListados(),
                                  u"INSERT INTO informes (numerico1,numerico2,texto35,texto34,texto2,texto3,texto22,texto21)"
                                  " VALUES (?,?,?,?,?,?,?,?)"_s};
    const auto bloque = std::make_unique<BloqueAltas>();
    SQLHSTMT mango = sentencia.mango();
    SQLSetStmtAttr(mango, SQL_ATTR_PARAMSET_SIZE, reinterpret_cast<SQLPOINTER>(Bloque), 0);
    SQLBindParameter(mango, 1, SQL_PARAM_INPUT, SQL_C_DOUBLE, SQL_DOUBLE, 0, 0, bloque->numerico1.data(), 0, nullptr);
    SQLBindParameter(mango, 2, SQL_PARAM_INPUT, SQL_C_DOUBLE, SQL_DOUBLE, 0, 0, bloque->numerico2.data(), 0, nullptr);
    const std::array<QString, 6> textos = {
        u"Peluquería Núñez"_s, u"Calle Mayor 1"_s, u"María García"_s, u"1 X Corte y peinado"_s, u"2"_s, u"Ventas Generales"_s};
    for (size_t columna = 0; columna < textos.size(); ++columna) {
        for (size_t fila = 0; fila < Bloque; ++fila) {
            std::transform(textos.at(columna).begin(), textos.at(columna).end(), bloque->textos.at(columna).at(fila).begin(),
                           [](QChar letra) { return letra.unicode(); });
            bloque->largos.at(columna).at(fila) = textos.at(columna).size() * 2;
        }
        SQLBindParameter(mango, static_cast<SQLUSMALLINT>(columna + 3), SQL_PARAM_INPUT, SQL_C_WCHAR, SQL_WVARCHAR, 255, 0,
                         bloque->textos.at(columna).data(), sizeof bloque->textos[0][0], bloque->largos.at(columna).data());
    }
    SQLSetConnectAttr(base.desnudaListados().mango(), SQL_ATTR_AUTOCOMMIT, reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_OFF), 0);
    for (auto _ : estado) {
        estado.PauseTiming();
        base.desnudaListados().ejecuta(u"delete from informes"_s);
        SQLEndTran(SQL_HANDLE_DBC, base.desnudaListados().mango(), SQL_COMMIT);
        estado.ResumeTiming();
        for (int fila = 0; fila < Filas; fila += static_cast<int>(Bloque))
            sentencia.exige(SQLExecute(mango));
        SQLEndTran(SQL_HANDLE_DBC, base.desnudaListados().mango(), SQL_COMMIT);
    }
    SQLSetConnectAttr(base.desnudaListados().mango(), SQL_ATTR_AUTOCOMMIT, reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_ON), 0);
}

void altasNuestras(benchmark::State& estado, jet::Motor motor)
{
    Servidor& base = servidor(motor);
    for (auto _ : estado) {
        estado.PauseTiming();
        base.listados().Execute(u"Delete * from informes"_s);
        estado.ResumeTiming();
        Recordset rs;
        rs.Open(u"Select * from informes"_s, base.listados(), CursorType::Keyset);
        for (int fila = 0; fila < Filas; ++fila) {
            rs.AddNew();
            rs.Fields(u"numerico1") = 1.0;
            rs.Fields(u"numerico2") = 16.5;
            rs.Fields(u"TEXTO35") = u"Peluquería Núñez"_s;
            rs.Fields(u"TEXTO34") = u"Calle Mayor 1"_s;
            rs.Fields(u"texto2") = u"María García"_s;
            rs.Fields(u"texto3") = u"1 X Corte y peinado"_s;
            rs.Fields(u"texto22") = u"2"_s;
            rs.Fields(u"texto21") = u"Ventas Generales"_s;
            rs.Update();
        }
        rs.Close();
        base.listados().entorno().enviaPendientes();
    }
    estado.SetLabel("at most 2");
}

void registra(const std::string& grupo, jet::Motor motor)
{
    const auto par = [&](const std::string& caso, auto desnuda, auto nuestra, benchmark::TimeUnit unidad) {
        benchmark::RegisterBenchmark((grupo + caso + "/desnuda").c_str(), desnuda, motor)->Unit(unidad)->UseRealTime();
        benchmark::RegisterBenchmark((grupo + caso + "/nuestra").c_str(), nuestra, motor)->Unit(unidad)->UseRealTime();
    };
    par("nombre de un cliente", clienteDesnudo, clienteNuestro, benchmark::kMicrosecond);
    par("20000 cabeceras", resultadoDesnudo, resultadoNuestro, benchmark::kMillisecond);
    par("5000 filas de informe", altasDesnudas, altasNuestras, benchmark::kMillisecond);
}

} // namespace
} // namespace kestrane::bench

int main(int argc, char** argv)
{
    kestrane::bench::registra("postgresql/", kestrane::jet::Motor::PostgreSql);
    kestrane::bench::registra("mariadb/", kestrane::jet::Motor::MariaDb);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
