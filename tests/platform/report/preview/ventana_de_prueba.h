#pragma once

#include "platform/report/preview/fuente_de_prueba.h"
#include "platform/report/preview/impresion_de_prueba.h"
#include "platform/report/preview/ventana_vista.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QScrollBar>
#include <QTest>

namespace kestrane::report::prueba {

/// A preview, shown, as a person has it in front of them.
class VentanaDePrueba : public testing::Test
{
protected:
    /// Opens a window on `nueva`.
    void abre(std::unique_ptr<FuenteDePrueba> nueva)
    {
        fuente = nueva.get();
        ServiciosVista servicios{&impresion,
                                 [this](QWidget*, FormatoExportacion, const QString& nombre) {
                                     propuesto = nombre;
                                     return elegido;
                                 },
                                 [this](QWidget*, const QString& cuales) {
                                     preguntados += cuales;
                                     return reemplaza;
                                 }};
        ventana = std::make_unique<VentanaVista>(std::move(nueva), QStringLiteral("INFORMES:"), impresora, servicios, recuerdo);
        ventana->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    }
    void abre(int cuantas, int yaHechas) { abre(std::make_unique<FuenteDePrueba>(cuantas, yaHechas)); }
    /// The same, but for now only `tope` pages can be laid out.
    void abreConTope(int cuantas, int tope)
    {
        auto nueva = std::make_unique<FuenteDePrueba>(cuantas, 1);
        nueva->tope = tope;
        abre(std::move(nueva));
    }
    void abre(QList<QStringList> hojas) { abre(std::make_unique<FuenteDePrueba>(std::move(hojas))); }

    template<typename Control>
    [[nodiscard]] Control* control(const char16_t* nombre) const
    {
        return ventana->findChild<Control*>(QString::fromUtf16(nombre));
    }
    [[nodiscard]] Lienzo& lienzo() const { return *ventana->findChild<Lienzo*>(); }
    [[nodiscard]] QString texto(const char16_t* rotulo) const { return control<QLabel>(rotulo)->text(); }
    /// What the window tells; "" when it tells nothing.
    [[nodiscard]] QString aviso() const { return control<QWidget>(u"banda")->isVisible() ? texto(u"textoAviso") : QString{}; }
    void pulsa(const char16_t* boton) { QTest::mouseClick(control<QAbstractButton>(boton), Qt::LeftButton); }
    void exporta(FormatoExportacion formato) { control<QToolButton>(u"exportar")->menu()->actions().at(int(formato))->trigger(); }
    void tecla(Qt::Key cual, Qt::KeyboardModifiers con = {})
    {
        QWidget* foco = ventana->focusWidget();
        QTest::keyClick(foco ? foco : ventana.get(), cual, con);
    }
    [[nodiscard]] bool esperaCompleta()
    {
        return QTest::qWaitFor([this] { return fuente->completa() && !control<QProgressBar>(u"avance")->isVisible(); });
    }

    ImpresionDePrueba impresion;
    RecuerdoVista recuerdo;
    QString impresora;
    QString elegido;
    QString propuesto;
    QStringList preguntados; ///< files about whose replacement the window asked
    bool reemplaza = true;
    FuenteDePrueba* fuente = nullptr; ///< the window's
    std::unique_ptr<VentanaVista> ventana;
};

} // namespace kestrane::report::prueba
