#include "platform/report/preview/ventanas_vista.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace kestrane::report {

namespace {

constexpr int Escalon = 32; ///< by which a window stands below the one before, so that the titles of all are seen

} // namespace

VentanasVista::~VentanasVista()
{
    for (const QPointer<VentanaVista>& ventana : m_ventanas)
        delete ventana.data();
}

VentanaVista& VentanasVista::abre(std::unique_ptr<FuenteVista> fuente, const QString& titulo, const QString& impresora)
{
    if (fuente->paginas() == 0 && !fuente->completa())
        fuente->avanza(QDeadlineTimer{0});
    std::erase_if(m_ventanas, [](const QPointer<VentanaVista>& ventana) { return ventana.isNull(); });
    const QPoint lugar = lugarDeLaSiguiente();
    auto nueva = std::make_unique<VentanaVista>(std::move(fuente), titulo, impresora, m_servicios, m_recuerdo);
    VentanaVista& ventana = *nueva;
    ventana.setAttribute(Qt::WA_DeleteOnClose);
    m_ventanas.emplace_back(nueva.release());
    ventana.move(lugar);
    ventana.show();
    return ventana;
}

std::vector<VentanaVista*> VentanasVista::abiertas() const
{
    std::vector<VentanaVista*> abiertas;
    for (const QPointer<VentanaVista>& ventana : m_ventanas) {
        if (ventana && ventana->isVisible())
            abiertas.push_back(ventana.data());
    }
    return abiertas;
}

QPoint VentanasVista::lugarDeLaSiguiente() const
{
    const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
    const int pasos = int(abiertas().size()) % 8;
    return pantalla.topLeft() + QPoint{Escalon, Escalon} * (1 + pasos);
}

} // namespace kestrane::report
