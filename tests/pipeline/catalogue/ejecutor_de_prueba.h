#pragma once

#include "pipeline/catalogue/catalogo.h"
#include "pipeline/catalogue/ejecutor.h"
#include "pipeline/catalogue/pantalla_grabada.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {

/// Builders and a collector that the recording screen sees at work: the second builder twice.
inline void construye(Listados& listados)
{
    listados.progreso.IncrementaBarra();
}

inline void construyeDosVeces(Listados& listados)
{
    construye(listados);
    construye(listados);
}

inline MatrizGrafico recoge(Listados& listados)
{
    construye(listados);
    return {{QStringLiteral("mar 24"), QStringLiteral("12,5")}};
}

/// A row of the catalogue with all that it may lack.
inline catalogue::FilaCatalogo fila(QStringView control)
{
    catalogue::FilaCatalogo copia = *catalogue::busca(control);
    copia.constructores[0].constructor = construye;
    copia.constructores[1].constructor = construyeDosVeces;
    copia.grafico.recolector = recoge;
    return copia;
}

/// Presses buttons before a recording screen, in a shop that nothing was read of: 15 March 2024, half past six.
class EjecutorTest : public testing::Test
{
protected:
    EjecutorTest()
    {
        m_contexto.PermiteListadoVariosDias = true;
        m_contexto.ImpresoraListados = QStringLiteral("Laser");
        m_contexto.ImpresoraTicket = QStringLiteral("Tira");
    }

    void enServidorCon(const QStringList& tiendas)
    {
        m_contexto.NombreTienda = QStringLiteral("Servidor");
        m_contexto.MultiTienda = true;
        if (tiendas.isEmpty())
            return;
        m_contexto.Tiendas.reserva(static_cast<int>(tiendas.size()) + 1);
        m_contexto.Tiendas[0].Texto = QStringLiteral("Todas");
        for (int i = 0; i < tiendas.size(); ++i)
            m_contexto.Tiendas[i + 1].Texto = tiendas[i];
    }

    /// Presses a button; what the screen was asked for.
    QStringList ejecuta(const catalogue::FilaCatalogo& elegida)
    {
        m_pantalla.sucesos.clear();
        m_ejecutor.ejecuta(elegida);
        return m_pantalla.sucesos;
    }
    QStringList ejecuta(QStringView control) { return ejecuta(fila(control)); }

    /// The same with the row as the program has it.
    QStringList ejecutaComoEsta(QStringView control) { return ejecuta(*catalogue::busca(control)); }

    /// The stores for which a button's report is built.
    QStringList construidas(QStringView control) { return ejecuta(control).filter(QStringLiteral("construye")); }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
    PantallaGrabada m_pantalla{m_contexto};
    RelojFijo m_reloj{dia(2024, 3, 15, 18, 30)};
    catalogue::Ejecutor m_ejecutor{m_contexto, m_pantalla.pantalla(), m_reloj};
};

} // namespace kestrane::prueba
