#pragma once

#include <QStringList>
#include <QTranslator>
#include <QWidget>

namespace kestrane {

/// The suite's object for captions. They are written in Spanish; each further language is a Qt translation file, whose contexts
/// are the names of the windows and whose sources are the Spanish captions.
class TraductorCaptions
{
public:
    /// Captions as they are written.
    TraductorCaptions() = default;
    /// The first of the operator's languages ("ca-ES", "en") that is Spanish or has a file "listados_<language>.qm" in the folder.
    /// A file that cannot be read counts as none.
    TraductorCaptions(const QString& carpeta, const QStringList& idiomas);

    /// Puts the captions of the window and of its controls into the operator's language; one without a translation stays Spanish.
    /// Does no harm when it is done again.
    void TraducirForm(QWidget& ventana) const;
    /// Records the Spanish captions of the window for translation in a Qt Linguist file, which is made where there is none.
    /// Translations that it has stay. Empty, or a Spanish sentence that says why not.
    [[nodiscard]] QString GenerarCaptions(QWidget& ventana, const QString& fichero) const;

private:
    [[nodiscard]] QString traducido(const QString& ventana, const QString& original) const;

    QTranslator m_traductor;
};

} // namespace kestrane
