#pragma once

#include "bench/sqlite_desnudo.h"
#include "instalacion/ddl.h"
#include "platform/database/conexion.h"

#include <QDir>
#include <QTemporaryDir>

namespace kestrane::bench {

/// A reports database with that many rows, filled by the bare interface.
class BaseDeInformes
{
public:
    explicit BaseDeInformes(int filas)
    {
        const instalacion::BaseEsquema& esquema = instalacion::baseListados();
        const BaseDesnuda base = abreDesnuda(QDir{m_carpeta.path()}.filePath(QStringLiteral("ListKestrane.db")));
        ejecutaDesnuda(base.get(), "PRAGMA synchronous=OFF");
        for (const QString& sentencia : instalacion::sentenciasDeCreacion(esquema, jet::Motor::Sqlite))
            ejecutaDesnuda(base.get(), sentencia.toUtf8().constData());
        const QString alta =
            QStringLiteral(
                "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < %1) INSERT INTO informes "
                "(texto1,texto2,texto3,texto4,texto5,numerico1,texto6,numerico2) SELECT printf('%06d', i * 7919 % 1000000),"
                "'María Begoña Núñez ' || i % 97, 'Calle de la Constitución, ' || i % 300, 'Alcañiz', '963 000 000',"
                "12.5 * (i % 4000), 'Corte y peinado', i % 7 FROM n")
                .replace(QStringLiteral("%1"), QString::number(filas - 1));
        ejecutaDesnuda(base.get(), alta.toUtf8().constData());
        database::OpcionesDatos opciones;
        opciones.carpeta = m_carpeta.path();
        opciones.origenes = database::Origenes::SoloEmbebidos;
        m_entorno = std::make_unique<EntornoDatos>(opciones);
    }

    [[nodiscard]] EntornoDatos& entorno() { return *m_entorno; }

    /// Made once per run of the program for each size.
    template<int Cuantas>
    static BaseDeInformes& de()
    {
        static BaseDeInformes base{Cuantas};
        return base;
    }

private:
    QTemporaryDir m_carpeta;
    std::unique_ptr<EntornoDatos> m_entorno;
};

} // namespace kestrane::bench
