#pragma once

#include "cash/tienda_generada.h"
#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <optional>

namespace kestrane::prueba {

/// What one run of a builder is drawn from a seed.
struct Sorteo
{
    quint32 semilla = 0;
    size_t constructor = 0;
    QString tipoPrograma;
    QString tienda;
    bool multiTienda = false;
    bool completa = false;
    int dias = 1;

    [[nodiscard]] std::string nombre() const
    {
        return QStringLiteral("seed %1, builder %2, %3, store \"%4\"%5%6, %7 days")
            .arg(semilla)
            .arg(constructor)
            .arg(tipoPrograma, tienda, multiTienda ? QStringLiteral(", chain") : QString{},
                 completa ? QStringLiteral(", complete") : QString{})
            .arg(dias)
            .toStdString();
    }
};

/// Both staging tables and how the run ended: each row as its columns that are not Null, with the class of their value.
struct InformeHecho
{
    QStringList informes;
    QStringList subinformes;
    int error = 0;

    friend bool operator==(const InformeHecho&, const InformeHecho&) = default;
};

/// A generated shop on an engine.
class TiendaComparada
{
public:
    TiendaComparada(jet::Motor motor, quint32 semilla) : m_bases{motor}
    {
        for (const QString& sentencia : tiendaGenerada(semilla))
            m_bases.ejecuta(sentencia);
        m_contexto.ConexionTienda.Open(QStringLiteral("dsn=TiendaKestrane"));
        m_contexto.ConexionListados.Open(QStringLiteral("dsn=ListKestrane"));
        m_contexto.NombreEmpresa = QStringLiteral("Empresa");
        m_contexto.CifEmpresa = QStringLiteral("B12");
    }

    enum class Lectura { UnaAUna, DeInforme };
    /// `DeInforme`: in a report's scope, as the menu runs it.
    InformeHecho construye(Constructor constructor, const Sorteo& sorteo, Lectura lectura)
    {
        m_contexto.TipoPrograma = sorteo.tipoPrograma;
        m_contexto.TiendaSeleccionada = sorteo.tienda;
        m_contexto.MultiTienda = sorteo.multiTienda;
        m_contexto.CajaCompleta = sorteo.completa;
        m_contexto.FechaDesde = *Fecha::deCalendario(2024, 3, 16 - sorteo.dias);
        m_contexto.FechaHasta = *Fecha::deCalendario(2024, 3, 15);
        InformeHecho hecho;
        {
            std::optional<database::AmbitoInforme> ambito;
            if (lectura == Lectura::DeInforme)
                ambito.emplace(m_contexto.ConexionTienda.EmpiezaInforme());
            try {
                constructor(m_listados);
            } catch (const ErrorEjecucion& error) {
                hecho.error = error.numero();
            }
        }
        hecho.informes = filas(QStringLiteral("informes"));
        hecho.subinformes = filas(QStringLiteral("subinformes"));
        return hecho;
    }

private:
    QStringList filas(const QString& tabla)
    {
        QStringList todas;
        Recordset rs;
        rs.Open(tabla, m_contexto.ConexionListados);
        for (Recordset& fila : rs) {
            QStringList valores;
            for (const jet::ColumnaResultado& columna : fila.columnas()) {
                if (const Valor valor = fila.Fields(columna.nombre); !valor.esNulo())
                    valores += columna.nombre.toLower() + u'=' + exacto(valor);
            }
            valores.sort();
            todas += valores.join(QStringLiteral("; "));
        }
        return todas;
    }
    /// Doubles to the last bit.
    QString exacto(const Valor& valor) const
    {
        return valor.clase() == Valor::Clase::Doble ? QString::number(valor.doble(), 'g', 17) : m_listados.texto(valor);
    }

    TiendaDePrueba m_bases;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15, 12)};
    ProgresoContado m_progreso;
    ContextoEjecucion m_contexto{m_bases.entorno()};
    Listados m_listados{m_contexto, m_progreso, m_reloj};
};

} // namespace kestrane::prueba
