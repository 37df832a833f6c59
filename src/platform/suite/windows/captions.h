#pragma once

#include <QList>
#include <QString>
#include <QWidget>

namespace kestrane {

/// One text of a window that an operator reads: a property of a control.
struct Caption
{
    QWidget* control;
    const char* propiedad;

    [[nodiscard]] QString texto() const { return control->property(propiedad).toString(); }
    void pon(const QString& texto) const { control->setProperty(propiedad, texto); }
};

/// The captions of a window that are not empty: its title, texts of labels and buttons, titles of groups, tool tips, place-holders,
/// and what is read aloud. What the operator types and what Qt's own parts say is none.
[[nodiscard]] QList<Caption> captionsDe(QWidget& ventana);

/// The caption as it was written in Spanish, whatever stands there now; a text that the program changed since is a new one.
[[nodiscard]] QString original(const Caption& caption);
/// Puts `texto` for the original that the caption has now.
void ponTraducido(const Caption& caption, const QString& texto);

} // namespace kestrane
