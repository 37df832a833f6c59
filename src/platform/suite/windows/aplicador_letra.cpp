#include "platform/suite/windows/aplicador_letra.h"

#include "platform/suite/apariencia.h"
#include "platform/suite/windows/letra_ventana.h"

namespace kestrane {

void AplicadorLetra::AplicarLetra(QWidget& ventana, qint32 tamanoLetra) const
{
    LetraVentana{ventana}.ponTamano(tamanoLetra > 0 ? tamanoLetra : Apariencia{}.letra);
}

} // namespace kestrane
