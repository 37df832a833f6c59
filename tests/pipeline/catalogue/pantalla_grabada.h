#pragma once

#include "pipeline/pantalla.h"
#include "run_context/contexto_ejecucion.h"

#include <QStringList>

#include <functional>

namespace kestrane::prueba {

/// A screen that writes down what it is asked for.
class PantallaGrabada final : public Menu, public Dialogos, public Progreso, public Salida, public Mensajes
{
public:
    explicit PantallaGrabada(ContextoEjecucion& contexto) : m_contexto{contexto} {}

    /// What the operator does in a dialog; without it every dialog is accepted.
    std::function<void(Dialogo)> alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = true; };
    QStringList sucesos;

    [[nodiscard]] Pantalla pantalla() { return {*this, *this, *this, *this, *this}; }

    void Haz(AccionMenu accion) override { anota(QStringLiteral("accion %1").arg(static_cast<int>(accion))); }
    void Repinta() override { anota(QStringLiteral("repinta")); }
    void MuestraInfo() override { anota(QStringLiteral("aviso")); }
    void OcultaInfo() override { anota(QStringLiteral("sin aviso")); }

    void Muestra(Dialogo dialogo, const QString& titulo) override
    {
        anota(QStringLiteral("dialogo %1").arg(static_cast<int>(dialogo)));
        ultimoTitulo = titulo;
        alMostrar(dialogo);
    }
    QString ultimoTitulo;

    void Muestra() override { anota(QStringLiteral("parar")); }
    /// The builders of these tests show themselves by it.
    void IncrementaBarra() override { anota(QStringLiteral("construye[") + m_contexto.TiendaSeleccionada + u']'); }
    void cerrar() override { anota(QStringLiteral("cerrar")); }

    void DrenaEventos() override { anota(QStringLiteral("drena")); }
    void DarImpresora(const QString& nombre) override { anota(QStringLiteral("impresora ") + nombre); }
    void ImprimirReport(const QString& nombre) override { anota(QStringLiteral("imprime ") + nombre); }
    void MostrarGrafico(const QString& nombre) override
    {
        anota(QStringLiteral("grafico ") + nombre + u'[' + m_contexto.TiendaSeleccionada + u']');
    }

    void Informa(const QString& texto, const QString& titulo) override { anota(titulo + QStringLiteral(": ") + texto); }
    void Critico(const QString& texto, const QString& titulo) override { anota(titulo + QStringLiteral("! ") + texto); }

private:
    void anota(const QString& suceso) { sucesos += suceso; }

    ContextoEjecucion& m_contexto;
};

} // namespace kestrane::prueba
