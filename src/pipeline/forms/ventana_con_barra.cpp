#include "pipeline/forms/ventana_con_barra.h"

#include "platform/suite/color_decimal.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

QLabel* rotulo(const QString& nombre, const QString& texto, QWidget* padre)
{
    auto* nuevo = new QLabel{texto, padre};
    nuevo->setObjectName(nombre);
    nuevo->setAlignment(Qt::AlignCenter);
    return nuevo;
}

QProgressBar* barraDeVida(QWidget* padre)
{
    auto* barra = new QProgressBar{padre};
    barra->setObjectName(u"ProgressBar1"_s);
    barra->setRange(0, 100);
    barra->setValue(0);
    barra->setTextVisible(false);
    barra->setAccessibleName(u"Generando Reporte"_s);
    barra->setMinimumHeight(22);
    return barra;
}

} // namespace

VentanaConBarra::VentanaConBarra(const QString& nombre, const ContextoEjecucion& contexto, AspectoVentanas& aspecto,
                                 QWidget* principal)
    : QDialog{principal, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint}
    , m_barra{barraDeVida(this)}
{
    setObjectName(nombre);
    setWindowTitle(u"Listados"_s);
    setMinimumSize(380, 110);
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(24, 20, 24, 24);
    columna->setSpacing(14);
    columna->addWidget(rotulo(u"Label1"_s, u"Generando Reporte"_s, this));
    columna->addWidget(m_barra);
    move(esquinaDeVentanaPequena(aspecto));
    viste(aspecto);
    escala(contexto, aspecto);
}

void VentanaConBarra::anadeRotuloOculto(const QString& texto)
{
    auto* oculto = rotulo(u"Label2"_s, texto, this);
    layout()->addWidget(oculto);
    oculto->hide();
}

void VentanaConBarra::keyPressEvent(QKeyEvent* evento)
{
    evento->ignore();
}

void VentanaConBarra::viste(AspectoVentanas& aspecto)
{
    aspecto.TraducirForm(*this);
    aspecto.PintarForm(*this);
    const std::optional<Rgb> fondo = rgbDeDecimal(aspecto.DarColorFondo());
    if (!fondo)
        return;
    QPalette colores = palette();
    colores.setColor(QPalette::Window, QColor::fromRgb(*fondo));
    setPalette(colores);
}

void VentanaConBarra::escala(const ContextoEjecucion& contexto, AspectoVentanas& aspecto)
{
    const TamanoVentana diseno{contexto.AnchoDiseno, contexto.AltoDiseno};
    aspecto.EscalarForm(*this, diseno, TamanoDeDiseno);
    aspecto.EscalarForm(*this, {contexto.AnchoVentana, contexto.AltoVentana}, diseno);
}

} // namespace kestrane
