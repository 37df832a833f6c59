#include "platform/report/preview/dialogo_avance.h"

#include "platform/report/preview/estilo_vista.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds EntreEventos{20};

} // namespace

DialogoAvance::DialogoAvance(const QString& que, QWidget* padre) : QDialog{padre}, m_barra{new QProgressBar{this}}
{
    setObjectName(u"dialogoAvance"_s);
    setWindowTitle(que);
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(380);
    m_barra->setObjectName(u"barraAvance"_s);
    m_barra->setAccessibleName(que);
    m_barra->setRange(0, 100);
    auto* cancela = new QPushButton{u"Cancelar"_s, this};
    cancela->setObjectName(u"cancelaAvance"_s);
    cancela->setMinimumSize(120, LadoBoton);
    connect(cancela, &QPushButton::clicked, this, &DialogoAvance::reject);
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(24, 20, 24, 20);
    columna->setSpacing(14);
    columna->addWidget(new QLabel{que, this});
    columna->addWidget(m_barra);
    columna->addWidget(cancela, 0, Qt::AlignRight);
}

bool DialogoAvance::haz(const Trabajo& trabajo)
{
    show();
    if (!avanza(0))
        return false;
    return trabajo([this](double parte) { return avanza(parte); });
}

bool DialogoAvance::avanza(double parte)
{
    m_barra->setValue(qRound(parte * 100));
    // Work that tells of every row would spend its time on the window.
    if (m_entreEventos.hasExpired()) {
        QCoreApplication::processEvents();
        m_entreEventos.setRemainingTime(EntreEventos);
    }
    return !m_cancelado;
}

} // namespace kestrane::report
