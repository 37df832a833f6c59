#pragma once

#include "apoyo/tienda_de_prueba.h"
#include "dialogs/forma_filtro.h"
#include "pipeline/forms/aspecto_anotado.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace kestrane::prueba {

/// A dialog on an empty shop, on 15 March 2024 at half past six.
class FormaTest : public testing::Test
{
protected:
    class Mensajeria final : public Mensajes
    {
    public:
        void Informa(const QString& texto, const QString& titulo) override { dichos += titulo + QStringLiteral(": ") + texto; }
        void Critico(const QString& texto, const QString& titulo) override { dichos += titulo + QStringLiteral("! ") + texto; }
        QStringList dichos;
    };

    FormaTest()
    {
        m_contexto.ConexionTienda.Open(QStringLiteral("dsn=TiendaKestrane"));
        m_contexto.AnchoVentana = m_contexto.AnchoDiseno = 15360;
        m_contexto.AltoVentana = m_contexto.AltoDiseno = 11085;
    }

    void enServidorCon(const QStringList& tiendas)
    {
        m_contexto.NombreTienda = QStringLiteral("Servidor");
        m_contexto.MultiTienda = true;
        m_contexto.Tiendas.reserva(static_cast<int>(tiendas.size()) + 1);
        m_contexto.Tiendas[0].Texto = QStringLiteral("Todas");
        for (int i = 0; i < tiendas.size(); ++i)
            m_contexto.Tiendas[i + 1].Texto = tiendas[i];
    }
    static Fecha dia(int dia) { return *Fecha::deCalendario(2024, 3, dia); }

    template<class Control = QWidget>
    static Control& control(const QWidget& forma, const QString& nombre)
    {
        auto* const hallado = forma.findChild<Control*>(nombre);
        if (!hallado)
            throw std::runtime_error{"no control " + nombre.toStdString()};
        return *hallado;
    }

    TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
    AspectoAnotado m_aspecto;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15, 18, 30)};
    Mensajeria m_mensajes;
    ServiciosDialogo m_servicios{m_contexto, m_aspecto, m_reloj, m_mensajes};
};

} // namespace kestrane::prueba
