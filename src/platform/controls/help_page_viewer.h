#pragma once

#include <QFrame>
#include <QPushButton>
#include <QTextBrowser>

namespace kestrane {

/// A panel that shows a page of help. It stands where it is put; its own close control only tells that it was used.
class HelpPageViewer final : public QFrame
{
    Q_OBJECT

public:
    HelpPageViewer(const QString& objeto, QWidget* padre);

    /// The page's path, formed with "\".
    void ponRuta(const QString& ruta) { m_ruta = ruta; }
    /// Shows the page from its beginning. One that cannot be read says so in its place.
    void abre();

    [[nodiscard]] QTextBrowser& pagina() { return *m_pagina; }

signals:
    /// The close control was used; `cerrar` tells whether the panel should go.
    void cierre(bool cerrar);

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QString m_ruta;
    QPushButton* m_cierre;
    QTextBrowser* m_pagina;
};

} // namespace kestrane
