#include "platform/controls/calendario.h"

#include "platform/controls/boton_menu.h"
#include "platform/controls/fechas_de_ventana.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTextCharFormat>
#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int DiasPorSemana = 7;
constexpr int FilasDelMes = 8; ///< the head, the names of the days, six weeks

QCalendarWidget* mesEn(QWidget* padre)
{
    auto* mes = new QCalendarWidget{padre};
    mes->setLocale(QLocale{QLocale::Spanish, QLocale::Spain});
    mes->setFirstDayOfWeek(Qt::Monday);
    mes->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    mes->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    mes->setMinimumSize(DiasPorSemana * LadoTactil, FilasDelMes * (LadoTactil - 6));
    return mes;
}

} // namespace

Calendario::Calendario(const QString& objeto, QWidget* padre) : QWidget{padre}, m_escrita{new QDateEdit{this}}, m_mes{mesEn(this)}
{
    setObjectName(objeto);
    m_escrita->setLocale(m_mes->locale());
    m_escrita->setDisplayFormat(u"dd/MM/yyyy"_s);
    m_escrita->setDateRange({Fecha::PrimerAnio, 1, 1}, {Fecha::UltimoAnio, 12, 31});
    m_escrita->setMinimumHeight(LadoTactil);
    m_escrita->setAlignment(Qt::AlignCenter);
    m_escrita->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_mes->setDateRange(m_escrita->minimumDate(), m_escrita->maximumDate());
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins({});
    columna->addWidget(m_escrita);
    columna->addWidget(m_mes, 1);
    setFocusProxy(m_escrita);
    for (auto* const dias : m_mes->findChildren<QAbstractItemView*>())
        dias->installEventFilter(this);
    connect(m_escrita, &QDateEdit::dateChanged, m_mes, &QCalendarWidget::setSelectedDate);
    connect(m_mes, &QCalendarWidget::selectionChanged, this, [this] {
        m_escrita->setDate(m_mes->selectedDate());
        emit cambiada();
    });
}

bool Calendario::eventFilter(QObject* objeto, QEvent* suceso)
{
    if (suceso->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(suceso)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            QCoreApplication::sendEvent(parentWidget(), suceso);
            return true;
        }
    }
    return QWidget::eventFilter(objeto, suceso);
}

Fecha Calendario::fecha() const
{
    return fechaDe(m_escrita->date());
}

void Calendario::pon(Fecha fecha)
{
    m_escrita->setDate(diaDe(fecha));
    m_mes->setSelectedDate(diaDe(fecha));
}

void Calendario::ponHoy(Fecha hoy)
{
    QTextCharFormat marcado;
    marcado.setFontWeight(QFont::Bold);
    marcado.setFontUnderline(true);
    m_mes->setDateTextFormat(diaDe(hoy), marcado);
}

void Calendario::ponAlto(int puntos)
{
    m_mes->setMinimumHeight(0);
    m_mes->setMaximumHeight(puntos);
    setMaximumHeight(puntos + std::max(m_escrita->minimumHeight(), m_escrita->sizeHint().height()) + layout()->spacing());
}

} // namespace kestrane
