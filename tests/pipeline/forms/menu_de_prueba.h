#pragma once

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/forms/aspecto_anotado.h"
#include "pipeline/forms/frm_listados.h"
#include "platform/suite/conector_tienda.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <optional>

namespace kestrane::prueba {

/// Message boxes that are only written down.
class MensajesAnotados final : public Mensajes
{
public:
    void Informa(const QString& texto, const QString& titulo) override { dichos += titulo + QStringLiteral(": ") + texto; }
    void Critico(const QString& texto, const QString& titulo) override { dichos += titulo + QStringLiteral("! ") + texto; }

    QStringList dichos;
};

/// Preferences that go where the test says.
class PreferenciasDePrueba final : public PreferenciasTerminal
{
public:
    [[nodiscard]] QString DarIdentificador() override { return QStringLiteral("MOSTRADOR"); }
    [[nodiscard]] qint32 DarTema(Conexion&) override { return 1; }
    qint32 SiguienteTema(Conexion&) override { return 3; }
    [[nodiscard]] qint32 DarLetra(Conexion&) override { return 10; }
    qint32 SiguienteLetra(Conexion&) override { return 14; }
    [[nodiscard]] double DarAncho(Conexion&) override { return 15360; }
    bool SiguienteTamano(Conexion&, double& ancho, double& alto) override
    {
        if (!cambia)
            return false;
        ancho = 19200;
        alto = 14400;
        return true;
    }
    [[nodiscard]] double DarAlto(Conexion&) override { return 11085; }

    bool cambia = true;
};

/// A menu on an empty shop: what it does to itself is written down, and what its buttons would start.
class MenuTest : public testing::Test
{
protected:
    MenuTest()
    {
        ConectorTiendaDsn{}.AbrirConexion({}, m_contexto.ConexionTienda);
        m_contexto.IdentificadorEquipo = QStringLiteral("MOSTRADOR");
        m_contexto.TipoPrograma = QStringLiteral("PELUQUERIA");
        m_contexto.AnchoVentana = m_contexto.AnchoDiseno = 15360;
        m_contexto.AltoVentana = m_contexto.AltoDiseno = 11085;
    }

    FrmListados& construye()
    {
        m_menu.emplace(ServiciosMenu{.contexto = m_contexto,
                                     .aspecto = m_aspecto,
                                     .preferencias = m_preferencias,
                                     .reloj = m_reloj,
                                     .mensajes = m_mensajes,
                                     .ObtenerList1 = [this] { return m_list1; },
                                     .pulsa = [this](const auto& fila) { m_pulsados += fila.control.toString(); },
                                     .termina = [this] { ++m_finales; }});
        return *m_menu;
    }
    /// Built, loaded and on the screen.
    FrmListados& abre()
    {
        construye().carga();
        m_menu->show();
        asienta();
        return *m_menu;
    }
    /// Lets windows lay themselves out: hiding asks for a new layout, which asks for a new place.
    static void asienta()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
    template<class Control = QWidget>
    Control& control(const QString& nombre)
    {
        auto* const hallado = m_menu->findChild<Control*>(nombre);
        if (!hallado)
            throw std::runtime_error{"no control " + nombre.toStdString()};
        return *hallado;
    }

    TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
    AspectoAnotado m_aspecto;
    PreferenciasDePrueba m_preferencias;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15, 18, 30)};
    MensajesAnotados m_mensajes;
    QString m_list1;
    QStringList m_pulsados;
    int m_finales = 0;
    std::optional<FrmListados> m_menu;
};

} // namespace kestrane::prueba
