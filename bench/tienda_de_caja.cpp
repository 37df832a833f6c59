#include "bench/tienda_de_caja.h"

#include "instalacion/programa.h"
#include "platform/runtime/error_ejecucion.h"

#include <QBuffer>
#include <QFile>

#include <algorithm>
#include <cmath>

namespace kestrane::bench {

using namespace Qt::StringLiterals;

namespace {

void creaTienda(const QString& carpeta, const QString& tamano, const QString& dsn)
{
    QStringList orden{u"crear-tienda"_s, u"--datos"_s, carpeta,          u"--tamano"_s, tamano,
                      u"--terminal"_s,   u"caja"_s,    u"--reemplazar"_s};
    if (!dsn.isEmpty())
        orden << u"--motor"_s << u"postgresql"_s << u"--dsn"_s << dsn;
    QBuffer salida;
    QBuffer errores;
    salida.open(QIODevice::WriteOnly);
    errores.open(QIODevice::WriteOnly);
    if (instalacion::ejecutaPrograma(orden, carpeta, salida, errores) != instalacion::SalidaBien)
        throw std::runtime_error{errores.data().toStdString()};
}

/// One cell of two rows.
bool mismaCelda(sqlite3_stmt* uno, sqlite3_stmt* otro, int columna)
{
    const auto esNumero = [](int tipo) { return tipo == SQLITE_INTEGER || tipo == SQLITE_FLOAT; };
    if (esNumero(sqlite3_column_type(uno, columna)) && esNumero(sqlite3_column_type(otro, columna))) {
        const double a = sqlite3_column_double(uno, columna);
        const double b = sqlite3_column_double(otro, columna);
        return std::abs(a - b) <= 1E-9 * std::max(1.0, std::abs(a));
    }
    return sqlite3_column_type(uno, columna) == sqlite3_column_type(otro, columna) &&
           textoDesnudo(uno, columna) == textoDesnudo(otro, columna);
}

[[noreturn]] void difieren(const char* tabla, int fila, const char* columna, const QString& uno, const QString& otro)
{
    throw std::runtime_error{u"%1, row %2, %3: ours \"%4\", bare \"%5\""_s.arg(QLatin1StringView{tabla})
                                 .arg(fila)
                                 .arg(QLatin1StringView{columna}, uno, otro)
                                 .toStdString()};
}

void exigeTablasIguales(sqlite3* uno, sqlite3* otro, const char* tabla)
{
    const QByteArray sql = QByteArray{"SELECT * FROM "} + tabla + " ORDER BY rowid";
    const auto de = preparaDesnuda(uno, sql.constData());
    const auto con = preparaDesnuda(otro, sql.constData());
    for (int fila = 1;; ++fila) {
        const bool hay = sqlite3_step(de.get()) == SQLITE_ROW;
        const bool mas = sqlite3_step(con.get()) == SQLITE_ROW;
        if (hay != mas)
            difieren(tabla, fila, "whole", QString::number(hay), QString::number(mas));
        if (!hay)
            return;
        for (int columna = 0; columna < sqlite3_column_count(de.get()); ++columna) {
            if (!mismaCelda(de.get(), con.get(), columna))
                difieren(tabla, fila, sqlite3_column_name(de.get(), columna), textoDesnudo(de.get(), columna),
                         textoDesnudo(con.get(), columna));
        }
    }
}

} // namespace

TiendaDeCaja::TiendaDeCaja(const QString& tamano, const QString& dsn) : m_dsn{dsn.isEmpty() ? u"TiendaKestrane"_s : dsn}
{
    creaTienda(m_carpeta.path(), tamano, dsn);
    const QString listados = m_carpeta.filePath(u"ListKestrane.db"_s);
    const QString desnudos = m_carpeta.filePath(u"Desnudos.db"_s);
    QFile::copy(listados, desnudos);
    database::OpcionesDatos opciones;
    opciones.carpeta = m_carpeta.path();
    m_entorno = std::make_unique<EntornoDatos>(conCuenta(opciones, m_cuentas));
    m_contexto = std::make_unique<ContextoEjecucion>(*m_entorno);
    m_contexto->ConexionTienda.Open(u"dsn="_s + m_dsn);
    m_contexto->ConexionListados.Open(u"dsn=ListKestrane"_s);
    m_contexto->NombreEmpresa = Empresa;
    m_contexto->DireccionEmpresa = Direccion;
    m_contexto->CifEmpresa = Cif;
    m_contexto->TipoPrograma = u"PELUQUERIA"_s;
    m_contexto->MultiTienda = true;
    m_contexto->CajaCompleta = true;
    m_listados = abreDesnuda(listados);
    m_desnudos = abreDesnuda(desnudos);
    ejecutaDesnuda(m_desnudos.get(), "PRAGMA journal_mode = wal"); // as the project keeps its own
    ejecutaDesnuda(m_desnudos.get(), "PRAGMA synchronous = off");
}

void TiendaDeCaja::construye(Constructor constructor, const PeriodoDeCaja& periodo)
{
    m_contexto->FechaDesde = PeriodoDeCaja::dia(periodo.desde);
    m_contexto->FechaHasta = PeriodoDeCaja::dia(periodo.hasta);
    Listados listados{*m_contexto, m_progreso, m_reloj};
    {
        const auto ambito = m_contexto->ConexionTienda.EmpiezaInforme();
        constructor(listados);
    }
    m_entorno->termina();
}

bool TiendaDeCaja::cabe(Constructor constructor, const PeriodoDeCaja& periodo)
{
    try {
        construye(constructor, periodo);
        return true;
    } catch (const ErrorEjecucion& error) {
        if (error.numero() != ErrorEjecucion::Desbordamiento)
            throw;
        return false;
    }
}

void exigeIguales(sqlite3* uno, sqlite3* otro)
{
    exigeTablasIguales(uno, otro, "informes");
    exigeTablasIguales(uno, otro, "subinformes");
}

} // namespace kestrane::bench
