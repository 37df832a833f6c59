#include "platform/suite/windows/aplicador_letra.h"

#include "platform/suite/apariencia.h"
#include "platform/suite/windows/letra_ventana.h"

#include <QApplication>
#include <QToolTip>

namespace kestrane {

namespace {

/// What belongs to no window that is set: message boxes, tool tips, lists that drop down.
void ponLetraDelPrograma(qint32 puntos)
{
    const QFont letra{QString{FamiliaLetra}, std::min(puntos, LetraMayor)};
    if (QApplication::font() == letra)
        return;
    QApplication::setFont(letra);
    QToolTip::setFont(letra);
}

} // namespace

void AplicadorLetra::AplicarLetra(QWidget& ventana, qint32 tamanoLetra) const
{
    const qint32 puntos = tamanoLetra > 0 ? tamanoLetra : Apariencia{}.letra;
    ponLetraDelPrograma(puntos);
    LetraVentana{ventana}.ponTamano(puntos);
}

} // namespace kestrane
