#pragma once

#include "pipeline/catalogue/fila_catalogo.h"

namespace kestrane::catalogue {

/// Does what a button of the menu does. It keeps nothing between two presses, and a press inside another is served.
class Ejecutor
{
public:
    /// What it is given outlives it.
    Ejecutor(ContextoEjecucion& contexto, const Pantalla& pantalla, const Reloj& reloj);

    /// Dialogs, builder, printer and layout, or dialogs and chart, in the order of the button, once per store where the row says
    /// so. A row whose builder, dialog or chart does not exist yet says so in a message box and does nothing else. Every failure is
    /// an ErrorEjecucion, error 9 among them when the stores are to be gone through and there is no list.
    void ejecuta(const FilaCatalogo& fila);

private:
    void ejecutaInforme(const FilaCatalogo& fila);
    void haz(const FilaCatalogo& fila);
    [[nodiscard]] bool puedeEmpezar(const FilaCatalogo& fila) const;
    [[nodiscard]] bool seSaltaElDialogo(const FilaCatalogo& fila) const;
    [[nodiscard]] bool pideTienda(const FilaCatalogo& fila) const;
    [[nodiscard]] bool pideFiltros(const FilaCatalogo& fila);
    [[nodiscard]] bool muestraDialogos(const FilaCatalogo& fila);
    [[nodiscard]] QString tituloDe(const FilaCatalogo& fila) const;
    void tomaElDiaDeHoy();
    void trabaja(const FilaCatalogo& fila);
    void porCadaTienda(const FilaCatalogo& fila);
    void unaVez(const FilaCatalogo& fila);
    void construyeYMuestra(const FilaCatalogo& fila);
    void construye(Constructor constructor);
    [[nodiscard]] MatrizGrafico recoge(Recolector recolector);
    void muestraGrafico(const OpcionGrafico& grafico);
    void muestra(const Diseno& diseno);

    ContextoEjecucion& m_contexto;
    Pantalla m_pantalla;
    const Reloj& m_reloj;
};

} // namespace kestrane::catalogue
