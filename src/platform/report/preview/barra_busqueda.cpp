#include "platform/report/preview/barra_busqueda.h"

#include "platform/report/preview/estilo_vista.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include <chrono>

namespace kestrane::report {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto Respiro = 200ms;

} // namespace

BarraBusqueda::BarraBusqueda(Buscador& buscador, QWidget* padre)
    : QWidget{padre}
    , m_buscador{buscador}
    , m_texto{new QLineEdit{this}}
    , m_cuenta{new QLabel{this}}
{
    setObjectName(u"barraBusqueda"_s);
    setAttribute(Qt::WA_StyledBackground);
    m_texto->setObjectName(u"textoBuscado"_s);
    m_texto->setAccessibleName(u"Texto que se busca"_s);
    m_texto->setPlaceholderText(u"Buscar en el informe"_s);
    m_texto->setClearButtonEnabled(true);
    m_texto->setMaximumWidth(420);
    m_texto->installEventFilter(this);
    m_cuenta->setObjectName(u"cuentaAciertos"_s);
    m_cuenta->setAccessibleName(u"Número de aciertos"_s);
    m_cuenta->setMinimumWidth(150);
    auto* anterior = botonVista(Icono::Arriba, u"anteriorAcierto"_s, u"Acierto anterior (Mayús+F3)"_s, this);
    auto* siguiente = botonVista(Icono::Abajo, u"siguienteAcierto"_s, u"Acierto siguiente (F3)"_s, this);
    auto* cierre = botonVista(Icono::Cerrar, u"cierraBusqueda"_s, u"Cerrar la búsqueda (Esc)"_s, this);
    auto* fila = new QHBoxLayout{this};
    fila->setContentsMargins(10, 4, 6, 4);
    fila->addWidget(m_texto, 1);
    fila->addWidget(anterior);
    fila->addWidget(siguiente);
    fila->addWidget(m_cuenta);
    fila->addStretch();
    fila->addWidget(cierre);
    m_respiro.setSingleShot(true);
    m_respiro.setInterval(Respiro);
    connect(&m_respiro, &QTimer::timeout, this, &BarraBusqueda::busca);
    connect(m_texto, &QLineEdit::textChanged, &m_respiro, qOverload<>(&QTimer::start));
    connect(anterior, &QToolButton::clicked, this, &BarraBusqueda::alAnterior);
    connect(siguiente, &QToolButton::clicked, this, &BarraBusqueda::alSiguiente);
    connect(cierre, &QToolButton::clicked, this, &BarraBusqueda::cierra);
    connect(&m_buscador, &Buscador::haCambiado, this, &BarraBusqueda::cuenta);
    connect(&m_buscador, &Buscador::actualCambiado, this, &BarraBusqueda::cuenta);
    hide();
}

void BarraBusqueda::abre()
{
    show();
    m_texto->setFocus();
    m_texto->selectAll();
}

void BarraBusqueda::cierra()
{
    hide();
    m_respiro.stop();
    m_buscado.clear();
    emit busquedaPedida({});
    emit cerrada();
}

void BarraBusqueda::repite()
{
    if (isVisible())
        emit busquedaPedida(m_buscado);
}

void BarraBusqueda::busca()
{
    m_respiro.stop();
    m_buscado = m_texto->text();
    emit busquedaPedida(m_buscado);
}

void BarraBusqueda::alSiguiente()
{
    if (m_texto->text() != m_buscado)
        busca();
    else
        m_buscador.siguiente();
}

void BarraBusqueda::alAnterior()
{
    if (m_texto->text() != m_buscado)
        busca();
    else
        m_buscador.anterior();
}

bool BarraBusqueda::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress)
        return QWidget::eventFilter(objeto, evento);
    const auto& tecla = static_cast<const QKeyEvent&>(*evento);
    if (tecla.key() != Qt::Key_Return && tecla.key() != Qt::Key_Enter)
        return QWidget::eventFilter(objeto, evento);
    if (tecla.modifiers().testFlag(Qt::ShiftModifier))
        alAnterior();
    else
        alSiguiente();
    return true;
}

void BarraBusqueda::cuenta()
{
    m_cuenta->setText(textoCuenta());
}

QString BarraBusqueda::textoCuenta() const
{
    if (!m_buscador.activo())
        return {};
    if (m_buscador.cuenta() == 0)
        return m_buscador.definitivo() ? u"Ningún acierto"_s : u"Buscando…"_s;
    const bool demasiados = m_buscador.cuenta() >= Buscador::MaximoAciertos;
    const QString puntos = demasiados || m_buscador.definitivo() ? u""_s : u"…"_s;
    const QString total = demasiados ? u"más de %1"_s.arg(Buscador::MaximoAciertos) : QString::number(m_buscador.cuenta());
    return m_buscador.actual() < 0 ? total + puntos : u"%1 de %2%3"_s.arg(m_buscador.actual() + 1).arg(total, puntos);
}

} // namespace kestrane::report
