#pragma once

#include <QString>

namespace kestrane {

/// An element of a button panel: a store, an employee, a section, a supplier.
struct ElementoPanel
{
    QString Texto;      ///< what the button shows
    QString ColorFondo; ///< decimal text of a colour, "16777215" is white
    QString Imagen;     ///< path of a picture, "" when none
    QString Nombre;
    QString Codigo; ///< of a store its name, else the record's code

    friend bool operator==(const ElementoPanel&, const ElementoPanel&) = default;
};

} // namespace kestrane
