#pragma once

#include "apoyo/motor_anotado.h"
#include "platform/runtime/soporte.h"
#include "run_context/principal.h"

#include <QStringList>

#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace kestrane::prueba {

/// Appearance that is made up; writes down which operations are called, and on which connection.
class PreferenciasFijas final : public PreferenciasTerminal
{
public:
    explicit PreferenciasFijas(QStringList& anotaciones) : m_anotaciones{anotaciones} {}

    QString identificador = QStringLiteral("PC");

    QString DarIdentificador() override
    {
        m_anotaciones += QStringLiteral("DarIdentificador");
        return identificador;
    }
    qint32 DarTema(Conexion& conexion) override { return anota(u"DarTema", conexion, 3); }
    qint32 SiguienteTema(Conexion& conexion) override { return anota(u"SiguienteTema", conexion, 4); }
    qint32 DarLetra(Conexion& conexion) override { return anota(u"DarLetra", conexion, 12); }
    qint32 SiguienteLetra(Conexion& conexion) override { return anota(u"SiguienteLetra", conexion, 14); }
    double DarAncho(Conexion& conexion) override { return anota(u"DarAncho", conexion, 19200.0); }
    bool SiguienteTamano(Conexion& conexion, double&, double&) override { return anota(u"SiguienteTamano", conexion, true); }
    double DarAlto(Conexion& conexion) override { return anota(u"DarAlto", conexion, 14400.0); }

private:
    template<class T>
    T anota(QStringView operacion, const Conexion& conexion, T resultado)
    {
        m_anotaciones += QStringLiteral("%1 %2").arg(operacion, conexion.ConnectionString());
        return resultado;
    }

    QStringList& m_anotaciones;
};

/// A machine on which the program runs already, or not.
class CopiaFija final : public CopiaUnica
{
public:
    CopiaFija(bool libre, QStringList& anotaciones) : m_libre{libre}, m_anotaciones{anotaciones} {}
    bool ocupa() override
    {
        m_anotaciones += QStringLiteral("ocupa");
        return m_libre;
    }

private:
    bool m_libre;
    QStringList& m_anotaciones;
};

/// Opens as the suite does and writes down the text that it is given.
class ConectorAnotado final : public ConectorTienda
{
public:
    explicit ConectorAnotado(QStringList& anotaciones) : m_anotaciones{anotaciones} {}
    void AbrirConexion(const QString& texto, Conexion& conexion) override
    {
        m_anotaciones += QStringLiteral("AbrirConexion '%1'").arg(texto);
        m_conector.AbrirConexion(texto, conexion);
    }

private:
    ConectorTiendaDsn m_conector;
    QStringList& m_anotaciones;
};

/// A shop whose option tables are all empty, and runs of the program on it. Today is 14/06/2024.
class Arranque : public testing::Test
{
protected:
    Arranque() { empieza(); }

    /// Forgets the run that was, its values and what was written down of it.
    void empieza()
    {
        m_principal.reset();
        m_contexto.emplace(m_entorno).CarpetaPrograma = m_carpetaPrograma;
        m_principal.emplace(*m_contexto, m_conector, m_preferencias, m_reloj);
        m_anotaciones.clear();
        m_pedidas.clear();
    }
    /// The whole start of a new run on a free machine.
    const ContextoEjecucion& arranca()
    {
        empieza();
        EXPECT_EQ(principal(Libre), Principal::Inicio::EnMarcha);
        return contexto();
    }
    /// The number of the error with which such a start ends.
    int errorAlArrancar()
    {
        empieza();
        return numeroDeError([this] { return principal(Libre); });
    }
    [[nodiscard]] ContextoEjecucion& contexto() { return *m_contexto; }

    static constexpr bool Libre = true;
    Principal::Inicio principal(bool maquinaLibre)
    {
        CopiaFija copia{maquinaLibre, m_anotaciones};
        return principal(copia);
    }
    Principal::Inicio principal(CopiaUnica& copia)
    {
        return m_principal->Main(copia, [this] { m_anotaciones += QStringLiteral("menu"); });
    }

    /// From now on nobody answers behind the data source `dsn`.
    void derriba(const QString& dsn) { m_caidas += dsn; }

    QStringList m_anotaciones;                         ///< of the run, in the order in which things happened
    std::vector<database::DestinoConexion> m_pedidas;  ///< what the run asked to open, in its order
    std::function<void(const QString& dsn)> m_alPedir; ///< called before a data source is opened
    QStringList m_caidas;
    TiendaDePrueba m_tienda;
    QString m_carpetaPrograma = m_tienda.carpeta();
    EntornoDatos m_entorno{anotadas()};
    ConectorAnotado m_conector{m_anotaciones};
    PreferenciasFijas m_preferencias{m_anotaciones};
    RelojFijo m_reloj{dia(2024, 6, 14, 9, 30)};
    std::optional<ContextoEjecucion> m_contexto;
    std::optional<Principal> m_principal;

private:
    static QString fuenteCaida(jet::Motor motor)
    {
        switch (motor) {
        case jet::Motor::PostgreSql:
            return QStringLiteral("KestranePgCaido");
        case jet::Motor::MariaDb:
            return QStringLiteral("KestraneMariaCaido");
        case jet::Motor::Sqlite:
            break;
        }
        return QStringLiteral("FicheroQueNoEsta");
    }

    database::OpcionesDatos anotadas()
    {
        database::OpcionesDatos opciones = m_tienda.opciones(anotaEn(m_anotaciones));
        opciones.abreMotor = [this, abre = opciones.abreMotor](const database::DestinoConexion& destino) {
            m_pedidas.push_back(destino);
            if (m_alPedir)
                m_alPedir(destino.dsn);
            if (!m_caidas.contains(destino.dsn))
                return abre(destino);
            database::OpcionesDatos llanas;
            llanas.carpeta = m_tienda.carpeta();
            return EntornoDatos{llanas}.abre({.dsn = fuenteCaida(motorDePrueba()), .usuario = {}, .clave = {}});
        };
        return opciones;
    }
};

} // namespace kestrane::prueba
