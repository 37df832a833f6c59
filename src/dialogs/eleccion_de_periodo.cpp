#include "dialogs/eleccion_de_periodo.h"

#include "pipeline/filtros/periodos_rapidos.h"
#include "platform/controls/boton_menu.h"
#include "platform/suite/windows/aspecto_ventanas.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <cmath>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr double AltoDeVentanaCorriente = 11085; ///< twips, as the next
constexpr double AltoDeCalendarioBajo = 3810;

} // namespace

EleccionDePeriodo::EleccionDePeriodo(const Reloj& reloj, QWidget* padre) : QWidget{padre}, m_reloj{reloj}
{
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins({});
    columna->addWidget(calendarios());
    columna->addWidget(periodosRapidos());
    setFocusProxy(m_desde);
}

QWidget* EleccionDePeriodo::calendarios()
{
    auto* fila = new QWidget{this};
    auto* lados = new QGridLayout{fila};
    lados->setContentsMargins({});
    int columna = 0;
    for (const auto& [nombre, leyenda, calendario] :
         {std::tuple{u"cld_Desde"_s, u"Desde"_s, &m_desde}, {u"cld_Hasta"_s, u"Hasta"_s, &m_hasta}}) {
        *calendario = new Calendario{nombre, fila};
        auto* const suRotulo = new QLabel{leyenda, fila};
        suRotulo->setObjectName(nombre + u"_rotulo"_s);
        suRotulo->setBuddy(*calendario);
        (*calendario)->escrita().setAccessibleName(leyenda);
        lados->addWidget(suRotulo, 0, columna);
        lados->addWidget(*calendario, 1, columna++);
    }
    return fila;
}

QWidget* EleccionDePeriodo::periodosRapidos()
{
    auto* fila = new QWidget{this};
    auto* lados = new QHBoxLayout{fila};
    lados->setContentsMargins({});
    for (const PeriodoRapido& rapido : kestrane::periodosRapidos()) {
        auto* const suyo = new QPushButton{rapido.leyenda.toString(), fila};
        suyo->setObjectName(u"periodo "_s + rapido.leyenda.toString());
        suyo->setMinimumSize(2 * LadoTactil, LadoTactil);
        suyo->setAutoDefault(false);
        connect(suyo, &QPushButton::clicked, this, [this, en = rapido.en] {
            const Periodo periodo = en(m_reloj.hoy());
            m_desde->pon(periodo.desde);
            m_hasta->pon(periodo.hasta);
        });
        lados->addWidget(suyo);
    }
    return fila;
}

void EleccionDePeriodo::carga()
{
    for (Calendario* const calendario : {m_desde, m_hasta}) {
        calendario->pon(m_reloj.hoy());
        calendario->ponHoy(m_reloj.hoy());
    }
}

void EleccionDePeriodo::ajustaAlto(double altoVentana)
{
    if (altoVentana >= AltoDeVentanaCorriente)
        return;
    for (Calendario* const calendario : {m_desde, m_hasta})
        calendario->ponAlto(static_cast<int>(std::lround(puntosDeTwips(AltoDeCalendarioBajo))));
}

} // namespace kestrane
