#include "bench/base_de_banco.h"

#include "instalacion/ddl.h"

#include <array>

namespace kestrane::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char*, 8> Nombres = {"María", "JOSÉ", "Íñigo", "Ana", "begoña", "Luis", "Ángel", "Zoe"};
constexpr std::array<const char*, 6> Apellidos = {"Núñez Peña", "García", "Ibáñez Ruiz", "PÉREZ", "Oñate", "Zubiri"};
constexpr std::array<const char*, 5> Poblaciones = {"Madrid", "Coruña", "CÁDIZ", "Sevilla", "Alcañiz"};

BaseDesnuda creaBase(const QString& fichero, const instalacion::BaseEsquema& esquema)
{
    BaseDesnuda base = abreDesnuda(fichero);
    ejecutaDesnuda(base.get(), "PRAGMA synchronous=OFF");
    for (const QString& sentencia : instalacion::sentenciasDeCreacion(esquema, jet::Motor::Sqlite))
        ejecutaDesnuda(base.get(), sentencia.toUtf8().constData());
    return base;
}

void ligaTexto(sqlite3_stmt* sentencia, int marca, const char* texto)
{
    sqlite3_bind_text(sentencia, marca, texto, -1, SQLITE_STATIC);
}

void da(sqlite3_stmt* sentencia)
{
    if (sqlite3_step(sentencia) != SQLITE_DONE)
        throw std::runtime_error{"insert"};
    sqlite3_reset(sentencia);
}

void llenaClientes(sqlite3* base)
{
    const auto alta =
        preparaDesnuda(base, "INSERT INTO clientes (codigo,nombre,apellidos,poblacion,tienda) VALUES (?,?,?,?,'Centro')");
    for (int codigo = 1; codigo <= BaseDeBanco::Clientes; ++codigo) {
        const auto i = static_cast<size_t>(codigo);
        sqlite3_bind_int(alta.get(), 1, codigo);
        ligaTexto(alta.get(), 2, Nombres[i % Nombres.size()]);
        ligaTexto(alta.get(), 3, Apellidos[i / 7 % Apellidos.size()]);
        ligaTexto(alta.get(), 4, Poblaciones[i / 3 % Poblaciones.size()]);
        da(alta.get());
    }
}

void llenaVentas(sqlite3* base)
{
    const auto cabecera =
        preparaDesnuda(base, "INSERT INTO cabecera_factura (numero,fechaventa,hora,tienda,cliente,empleado,pago,total)"
                             " VALUES (?,date('2023-06-15','+'||(?/165)||' days'),'1899-12-30 10:30:00','Centro',?,3,1,60)");
    const auto linea =
        preparaDesnuda(base, "INSERT INTO detalle_factura (num_factura,codigo,tipo_venta,producto,unidades,precio,precio_unit,"
                             "impuesto,impuesto_2,tipoimpuesto,descuento,nombreempleado,codempleado,tienda)"
                             " VALUES (?,?,'S','Corte y peinado',1,20,20,3.5,0,21,0,'Ana Ruiz',3,'Centro')");
    for (int numero = 1; numero <= BaseDeBanco::Ventas; ++numero) {
        sqlite3_bind_int(cabecera.get(), 1, numero);
        sqlite3_bind_int(cabecera.get(), 2, numero);
        sqlite3_bind_int(cabecera.get(), 3, numero % BaseDeBanco::Clientes + 1);
        da(cabecera.get());
        for (int codigo = 3; codigo < 6; ++codigo) {
            sqlite3_bind_int(linea.get(), 1, numero);
            sqlite3_bind_int(linea.get(), 2, codigo);
            da(linea.get());
        }
    }
}

database::OpcionesDatos opciones(const QString& carpeta)
{
    database::OpcionesDatos opciones;
    opciones.carpeta = carpeta;
    return opciones;
}

} // namespace

BaseDeBanco::BaseDeBanco()
    : m_tienda{creaBase(m_carpeta.filePath(u"TiendaKestrane.db"_s), instalacion::baseTienda())}
    , m_listados{creaBase(m_carpeta.filePath(u"ListKestrane.db"_s), instalacion::baseListados())}
    , m_entorno{opciones(m_carpeta.path())}
{
    ejecutaDesnuda(m_tienda.get(), "BEGIN");
    llenaClientes(m_tienda.get());
    llenaVentas(m_tienda.get());
    ejecutaDesnuda(m_tienda.get(), "COMMIT");
    m_conexionTienda.Open(u"dsn=TiendaKestrane"_s);
    m_conexionListados.Open(u"dsn=ListKestrane"_s);
}

BaseDeBanco& baseDeBanco()
{
    static BaseDeBanco base;
    return base;
}

} // namespace kestrane::bench
