#include "dialogs/boton_dibujado.h"

#include "dialogs/rotulo_pulsable.h"
#include "platform/controls/boton_menu.h"

#include <QVBoxLayout>

namespace kestrane {

namespace {

constexpr int LadoDibujo = 96;
constexpr int LadoBoton = 124;

} // namespace

BotonDibujado::BotonDibujado(const QString& objetoBoton, const QString& objetoRotulo, const QIcon& dibujo, QWidget* padre)
    : QWidget{padre}
    , m_boton{new QPushButton{this}}
    , m_rotulo{new RotuloPulsable{this}}
{
    m_boton->setObjectName(objetoBoton);
    m_boton->setIconSize({LadoDibujo, LadoDibujo});
    m_boton->setIcon(dibujo);
    m_boton->setMinimumSize(LadoBoton, LadoBoton);
    m_boton->setAutoDefault(false);
    m_rotulo->setObjectName(objetoRotulo);
    m_rotulo->setAlignment(Qt::AlignCenter);
    m_rotulo->setWordWrap(true);
    m_rotulo->setMinimumHeight(LadoTactil);
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(6, 0, 6, 0);
    columna->addStretch(1);
    columna->addWidget(m_boton, 0, Qt::AlignHCenter);
    columna->addWidget(m_rotulo);
    columna->addStretch(1);
    setFocusProxy(m_boton);
    connect(m_boton, &QPushButton::clicked, this, &BotonDibujado::pulsado);
    connect(m_rotulo, &RotuloPulsable::pulsado, this, &BotonDibujado::pulsado);
}

void BotonDibujado::ponLeyenda(const QString& leyenda)
{
    m_rotulo->setText(leyenda);
    m_boton->setAccessibleName(leyenda);
}

} // namespace kestrane
