#pragma once

#include "pipeline/catalogue/nombres.h"
#include "run_context/contexto_ejecucion.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <utility>

namespace kestrane::prueba {

/// A screen that writes down what it is asked for.
class PantallaGrabada final : public Menu, public Dialogos, public Progreso, public Salida, public Mensajes
{
public:
    explicit PantallaGrabada(ContextoEjecucion& contexto) : m_contexto{contexto} {}

    /// What the operator does in a dialog; without it every dialog is accepted.
    std::function<void(Dialogo)> alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = true; };
    /// What else happens while a builder or collector is at work.
    std::function<void()> alConstruir = [] {};
    /// What a chart's window does with its data.
    std::function<void()> alRecoger = [] {};
    /// What the operator does when events are drained next: once.
    std::function<void()> alDrenar;
    /// Dialogs that are not there yet.
    QList<Dialogo> faltan;
    QStringList sucesos;
    QString ultimoTitulo;
    MatrizGrafico ultimaMatriz;

    [[nodiscard]] Pantalla pantalla() { return {*this, *this, *this, *this, *this}; }

    [[nodiscard]] QString Leyenda(QStringView control) const override { return u'<' + control.toString() + u'>'; }
    void Haz(AccionMenu accion) override { anota(QStringLiteral("abre ") + nombre(accion)); }
    void Repinta() override { anota(QStringLiteral("repinta")); }
    void MuestraInfo() override { anota(QStringLiteral("aviso")); }
    void OcultaInfo() override { anota(QStringLiteral("sin aviso")); }

    [[nodiscard]] bool Existe(Dialogo dialogo) const override { return !faltan.contains(dialogo); }
    void Muestra(Dialogo dialogo, const QString& titulo) override
    {
        anota(nombre(dialogo));
        ultimoTitulo = titulo;
        alMostrar(dialogo);
    }

    void Muestra() override { anota(QStringLiteral("parar")); }
    /// The builders of these tests show themselves by it.
    void IncrementaBarra() override
    {
        anota(QStringLiteral("construye[") + m_contexto.TiendaSeleccionada + u']');
        alConstruir();
    }
    void cerrar() override { anota(QStringLiteral("cerrar")); }

    void DrenaEventos() override
    {
        anota(QStringLiteral("drena"));
        if (const auto pulsacion = std::exchange(alDrenar, nullptr))
            pulsacion();
    }
    void DarImpresora(const QString& nombre) override { anota(QStringLiteral("impresora ") + nombre); }
    void ImprimirReport(const QString& nombre) override { anota(QStringLiteral("imprime ") + nombre); }
    void MostrarGrafico(const QString& nombre, const DatosDeGrafico& datos) override
    {
        anota(QStringLiteral("grafico ") + nombre);
        ultimaMatriz = datos();
        alRecoger();
    }

    void Informa(const QString& texto, const QString& titulo) override { anota(titulo + QStringLiteral(": ") + texto); }
    void Critico(const QString& texto, const QString& titulo) override { anota(titulo + QStringLiteral("! ") + texto); }

private:
    void anota(const QString& suceso) { sucesos += suceso; }

    ContextoEjecucion& m_contexto;
};

} // namespace kestrane::prueba
