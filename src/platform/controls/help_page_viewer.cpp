#include "platform/controls/help_page_viewer.h"

#include "platform/controls/boton_menu.h"
#include "platform/runtime/ruta.h"

#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

namespace kestrane {

using namespace Qt::StringLiterals;

HelpPageViewer::HelpPageViewer(const QString& objeto, QWidget* padre)
    : QFrame{padre}
    , m_cierre{new QPushButton{u"Cerrar"_s, this}}
    , m_pagina{new QTextBrowser{this}}
{
    setObjectName(objeto);
    setFrameShape(QFrame::StyledPanel);
    setProperty("tarjeta", true); // which paints its ground, round corners and all
    auto* titulo = new QLabel{u"Ayuda"_s, this};
    titulo->setProperty("letraRelativa", 1.2);
    m_cierre->setObjectName(u"cierreAyuda"_s);
    m_cierre->setMinimumHeight(LadoTactil);
    m_cierre->setMinimumWidth(2 * LadoTactil);
    m_pagina->setObjectName(u"paginaAyuda"_s);
    m_pagina->setAccessibleName(u"Página de ayuda"_s);
    m_pagina->setOpenExternalLinks(false);
    auto* cabeza = new QHBoxLayout;
    cabeza->addWidget(titulo, 1);
    cabeza->addWidget(m_cierre);
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(12, 8, 12, 12);
    columna->addLayout(cabeza);
    columna->addWidget(m_pagina, 1);
    connect(m_cierre, &QPushButton::clicked, this, [this] { emit cierre(true); });
}

void HelpPageViewer::abre()
{
    QFile fichero{rutaDeMaquina(m_ruta)};
    if (fichero.open(QIODevice::ReadOnly))
        m_pagina->setHtml(QString::fromUtf8(fichero.readAll()));
    else
        m_pagina->setPlainText(u"No se puede leer la página de ayuda %1: %2"_s.arg(fichero.fileName(), fichero.errorString()));
    m_pagina->setFocus();
}

void HelpPageViewer::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape)
        emit cierre(true);
    else
        QFrame::keyPressEvent(evento);
}

} // namespace kestrane
