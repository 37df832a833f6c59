#pragma once

#include "apoyo/motor_anotado.h"
#include "listings/puesto_envuelto.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace kestrane::prueba {

/// Engines before a shop that tell what they are asked.
///
/// During a report a statement that was asked twice before, in the very same text, is answered without the engine: of texts that
/// are known to the last blank nothing reaches it.
class Escucha
{
public:
    explicit Escucha(TiendaDePrueba& tienda) : puesto{tienda, anotaEn(m_anotaciones)} {}

    /// What `accion` has the engine of the shop run in a report before which `conocidas` were asked.
    template<class Accion>
    [[nodiscard]] QStringList enviadas(const QStringList& conocidas, Accion accion)
    {
        const auto ambito = puesto.contexto.ConexionTienda.EmpiezaInforme();
        for (const QString& sentencia : conocidas) {
            lee(sentencia);
            lee(sentencia);
        }
        m_anotaciones.clear();
        accion(puesto.listados);
        return m_anotaciones.filter(QStringLiteral("TiendaKestrane: "));
    }

    /// `accion` asks the shop for each of `textos`, and besides for nothing but `siempre`, as an engine is told it: what is sent
    /// however often it was asked before.
    template<class Accion>
    void pruebaTodas(const QStringList& textos, Accion accion, const QStringList& siempre = {})
    {
        EXPECT_EQ(enviadas(textos, accion), siempre);
        for (const QString& texto : textos) {
            QStringList otros = textos;
            otros.removeAll(texto);
            EXPECT_GT(enviadas(otros + QStringList{texto + u' '}, accion).size(), siempre.size()) << texto.toStdString();
        }
    }

    /// How `accion` changes the reports database, in order: rows that are added as "filas en informes", the rest as statements.
    template<class Accion>
    [[nodiscard]] QStringList cambios(Accion accion)
    {
        static const QRegularExpression cambio{QStringLiteral("^ListKestrane: ((?:filas|DELETE|UPDATE|INSERT).*)$"),
                                               QRegularExpression::DotMatchesEverythingOption};
        m_anotaciones.clear();
        accion(puesto.listados);
        return QStringList{m_anotaciones.filter(cambio)}.replaceInStrings(cambio, QStringLiteral("\\1"));
    }

    /// What the engines were asked and given since the last call of `enviadas` began to count, or since the start.
    [[nodiscard]] const QStringList& anotaciones() const { return m_anotaciones; }
    void olvida() { m_anotaciones.clear(); }

private:
    void lee(const QString& sentencia)
    {
        Recordset filas;
        filas.Open(sentencia, puesto.contexto.ConexionTienda);
        while (!filas.Eof())
            filas.MoveNext();
    }

    QStringList m_anotaciones;

public:
    PuestoEnvuelto puesto;
};

struct ConTienda
{
    TiendaDePrueba tienda;
};

/// A shop of its own, listened to.
class TiendaEscuchada : public ConTienda, public Escucha
{
public:
    TiendaEscuchada() : Escucha{tienda} {}
};

} // namespace kestrane::prueba
