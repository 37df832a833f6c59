#pragma once

#include "platform/runtime/fecha.h"

#include <QCalendarWidget>
#include <QDateEdit>

namespace kestrane {

/// A month calendar that can be typed into as well (dd/mm/aaaa): weeks begin on Monday, today is marked, days are large enough for
/// a finger.
class Calendario final : public QWidget
{
    Q_OBJECT

public:
    Calendario(const QString& objeto, QWidget* padre);

    /// The chosen day at midnight.
    [[nodiscard]] Fecha fecha() const;
    void pon(Fecha fecha);
    /// Marks the day that is today.
    void ponHoy(Fecha hoy);
    /// The height of the month, screen points: its days shrink with it.
    void ponAlto(int puntos);

    [[nodiscard]] QDateEdit& escrita() { return *m_escrita; }
    [[nodiscard]] QCalendarWidget& mes() { return *m_mes; }

signals:
    void cambiada();

protected:
    /// Enter on a day is Enter in the window: the month would keep it.
    bool eventFilter(QObject* objeto, QEvent* suceso) override;

private:
    QDateEdit* m_escrita;
    QCalendarWidget* m_mes;
};

} // namespace kestrane
