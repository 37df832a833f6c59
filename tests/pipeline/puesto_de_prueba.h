#pragma once

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/listados.h"
#include "platform/database/recordset.h"

#include <QStringList>

namespace kestrane::prueba {

/// Counts what a builder tells it.
class ProgresoContado final : public Progreso
{
public:
    void Muestra() override { ++muestras; }
    void IncrementaBarra() override { ++pasos; }
    void cerrar() override { ++cierres; }

    int muestras = 0;
    int pasos = 0;
    int cierres = 0;
};

/// All that a builder needs, on a shop of its own: 15 March 2024, noon.
struct PuestoDePrueba
{
    PuestoDePrueba()
    {
        contexto.ConexionTienda.Open(QStringLiteral("dsn=TiendaKestrane"));
        contexto.ConexionListados.Open(QStringLiteral("dsn=ListKestrane"));
        contexto.NombreEmpresa = QStringLiteral("Peluquería Ñandú");
        contexto.DireccionEmpresa = QStringLiteral("Calle Mayor, 1");
    }

    /// The columns of all rows of a staging table, in stored order: values as joined texts between "|", Null as "nulo".
    [[nodiscard]] QStringList filas(const QString& columnas, const QString& tabla = QStringLiteral("informes"))
    {
        Recordset rs;
        rs.Open(QStringLiteral("Select * from ") + tabla, contexto.ConexionListados);
        QStringList todas;
        for (Recordset& fila : rs) {
            QStringList valores;
            for (const QString& columna : columnas.split(u','))
                valores += fila.Fields(columna).esNulo() ? QStringLiteral("nulo") : listados.texto(fila.Fields(columna));
            todas += valores.join(u'|');
        }
        return todas;
    }

    /// The columns of the staging row at `fila` (from 0) that are not Null, in lower case, as the table has them.
    [[nodiscard]] QStringList escritas(int fila)
    {
        Recordset rs;
        rs.Open(QStringLiteral("Select * from informes"), contexto.ConexionListados);
        for (int i = 0; i < fila; ++i)
            rs.MoveNext();
        QStringList nombres;
        for (const jet::ColumnaResultado& columna : rs.columnas()) {
            if (!rs.Fields(columna.nombre).esNulo())
                nombres += columna.nombre.toLower();
        }
        return nombres;
    }

    TiendaDePrueba tienda;
    ContextoEjecucion contexto{tienda.entorno()};
    ProgresoContado progreso;
    RelojFijo reloj{*Fecha::deCalendario(2024, 3, 15, 12)};
    Listados listados{contexto, progreso, reloj};
};

} // namespace kestrane::prueba
