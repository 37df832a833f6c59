#pragma once

#include "apoyo/motor_anotado.h"
#include "platform/runtime/soporte.h"
#include "run_context/principal.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kestrane::prueba {

/// Appearance that is made up; writes down which operations are called.
class PreferenciasFijas final : public PreferenciasTerminal
{
public:
    explicit PreferenciasFijas(QStringList& anotaciones) : m_anotaciones{anotaciones} {}

    QString identificador = QStringLiteral("PC");

    QString DarIdentificador() override { return anota(u"DarIdentificador", identificador); }
    qint32 DarTema(Conexion&) override { return anota(u"DarTema", 3); }
    qint32 SiguienteTema(Conexion&) override { return anota(u"SiguienteTema", 4); }
    qint32 DarLetra(Conexion&) override { return anota(u"DarLetra", 12); }
    qint32 SiguienteLetra(Conexion&) override { return anota(u"SiguienteLetra", 14); }
    double DarAncho(Conexion&) override { return anota(u"DarAncho", 19200.0); }
    bool SiguienteTamano(Conexion&, double&, double&) override { return anota(u"SiguienteTamano", false); }
    double DarAlto(Conexion&) override { return anota(u"DarAlto", 14400.0); }

private:
    template<class T>
    T anota(QStringView operacion, T resultado)
    {
        m_anotaciones += operacion.toString();
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

/// A shop whose option tables are all empty, and the start of the program on it. Today is 14/06/2024.
class Arranque : public testing::Test
{
protected:
    Arranque() { m_contexto.CarpetaPrograma = m_tienda.carpeta(); }

    /// The whole start on a free machine.
    const ContextoEjecucion& arranca()
    {
        EXPECT_EQ(principal(Libre), Principal::Inicio::EnMarcha);
        return m_contexto;
    }
    /// The number of the error with which the start ends.
    int errorAlArrancar()
    {
        return numeroDeError([this] { return principal(Libre); });
    }

    static constexpr bool Libre = true;
    Principal::Inicio principal(bool maquinaLibre)
    {
        CopiaFija copia{maquinaLibre, m_anotaciones};
        return m_principal.Main(copia, [this] { m_anotaciones += QStringLiteral("menu"); });
    }

    QStringList m_anotaciones; ///< in the order in which things happened
    TiendaDePrueba m_tienda;
    EntornoDatos m_entorno{m_tienda.opciones(anotaEn(m_anotaciones))};
    ContextoEjecucion m_contexto{m_entorno};
    ConectorAnotado m_conector{m_anotaciones};
    PreferenciasFijas m_preferencias{m_anotaciones};
    RelojFijo m_reloj{dia(2024, 6, 14, 9, 30)};
    Principal m_principal{m_contexto, m_conector, m_preferencias, m_reloj};
};

} // namespace kestrane::prueba
