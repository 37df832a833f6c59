#pragma once

#include <QLabel>
#include <QWidget>

namespace kestrane::report {

/// A line below the controls that tells how something went, until it is closed or something else is told. It stands in nobody's
/// way.
class BandaAviso final : public QWidget
{
    Q_OBJECT

public:
    enum class Clase { Noticia, Fallo };

    explicit BandaAviso(QWidget* padre = nullptr);

    void di(Clase clase, const QString& texto);
    [[nodiscard]] QString texto() const { return m_texto->text(); }

private:
    QLabel* m_texto;
};

} // namespace kestrane::report
