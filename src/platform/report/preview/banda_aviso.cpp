#include "platform/report/preview/banda_aviso.h"

#include "platform/report/preview/estilo_vista.h"

#include <QHBoxLayout>
#include <QStyle>

namespace kestrane::report {

using namespace Qt::StringLiterals;

BandaAviso::BandaAviso(QWidget* padre) : QWidget{padre}, m_texto{new QLabel{this}}
{
    setObjectName(u"banda"_s);
    setAttribute(Qt::WA_StyledBackground);
    m_texto->setObjectName(u"textoAviso"_s);
    m_texto->setWordWrap(true);
    m_texto->setTextFormat(Qt::PlainText);
    m_texto->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* cierre = botonVista(Icono::Cerrar, u"cierraAviso"_s, u"Cerrar el aviso"_s, this);
    cierre->setIcon(icono(Icono::Cerrar, QColor{0x4d, 0x3b, 0x00}));
    connect(cierre, &QToolButton::clicked, this, &QWidget::hide);
    auto* fila = new QHBoxLayout{this};
    fila->setContentsMargins(16, 2, 6, 2);
    fila->addWidget(m_texto, 1);
    fila->addWidget(cierre);
    hide();
}

void BandaAviso::di(Clase clase, const QString& texto)
{
    setProperty("fallo", clase == Clase::Fallo);
    m_texto->setText(texto);
    setAccessibleName(texto);
    style()->unpolish(this);
    style()->polish(this);
    style()->polish(m_texto);
    show();
}

} // namespace kestrane::report
