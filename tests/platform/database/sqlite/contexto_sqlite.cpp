#include "platform/database/conformidad/contexto_motor.h"
#include "platform/database/sqlite/sqlite_recursos.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kestrane::database::conformidad {
namespace {

using namespace Qt::StringLiterals;

QString declarado(const jet::Columna& columna)
{
    if (columna.tipo == jet::TipoColumna::Texto)
        return u"TEXT(%1)"_s.arg(columna.ancho);
    switch (columna.tipo) {
    case jet::TipoColumna::Memo:
        return u"TEXT"_s;
    case jet::TipoColumna::Entero16:
        return u"SMALLINT"_s;
    default:
        return QString{jet::nombreDeTipo(columna.tipo)};
    }
}

QString definicion(const jet::Columna& columna)
{
    const QString nulo = columna.admiteNulo ? QString{} : u" NOT NULL"_s;
    const QString predeterminado = columna.tipo == jet::TipoColumna::SiNo ? u" DEFAULT 0"_s : QString{};
    return u'"' + columna.nombre + u"\" "_s + declarado(columna) + nulo + predeterminado;
}

/// Two embedded files in a folder of their own.
class ContextoSqlite final : public ContextoMotor
{
public:
    ContextoSqlite()
    {
        for (const Base base : {Base::Tienda, Base::Listados})
            ejecuta(base, u"vacuum"_s);
    }

    OpcionesDatos opciones() override
    {
        OpcionesDatos opciones;
        opciones.carpeta = m_carpeta.path();
        opciones.origenes = Origenes::SoloEmbebidos;
        return opciones;
    }

    void crearTabla(Base base, const jet::Tabla& tabla) override
    {
        QStringList columnas;
        for (const jet::Columna& columna : tabla.columnas)
            columnas << definicion(columna);
        ejecuta(base, u"create table \"%1\" (%2)"_s.arg(tabla.nombre, columnas.join(u", "_s)));
        if (tabla.tieneClavesUnicas)
            ejecuta(base,
                    u"create unique index \"clave_%1\" on \"%1\" (\"%2\")"_s.arg(tabla.nombre, tabla.columnas.front().nombre));
    }

    std::shared_ptr<void> bloquea(Base base, const QString&) override
    {
        sqlite3* abierta = nullptr;
        sqlite3_open(m_carpeta.filePath(dsn(base) + u".db"_s).toUtf8().constData(), &abierta);
        auto propia = std::make_shared<sqlite::Base>(abierta);
        EXPECT_EQ(sqlite3_exec(abierta, "begin immediate", nullptr, nullptr, nullptr), SQLITE_OK);
        return propia;
    }

private:
    void ejecuta(Base base, const QString& sql)
    {
        sqlite3* abierta = nullptr;
        sqlite3_open(m_carpeta.filePath(dsn(base) + u".db"_s).toUtf8().constData(), &abierta);
        const sqlite::Base propia{abierta};
        ASSERT_EQ(sqlite3_exec(abierta, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(abierta);
    }

    QTemporaryDir m_carpeta;
};

} // namespace

std::unique_ptr<ContextoMotor> creaContexto()
{
    return std::make_unique<ContextoSqlite>();
}

} // namespace kestrane::database::conformidad
