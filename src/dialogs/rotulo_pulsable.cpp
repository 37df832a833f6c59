#include "dialogs/rotulo_pulsable.h"

#include <QMouseEvent>

namespace kestrane {

void RotuloPulsable::mouseReleaseEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::LeftButton && rect().contains(evento->pos()))
        emit pulsado();
}

} // namespace kestrane
