#pragma once

#include "platform/runtime/reloj.h"
#include "platform/suite/conector_tienda.h"
#include "platform/suite/copia_unica.h"
#include "platform/suite/preferencias_terminal.h"
#include "run_context/contexto_ejecucion.h"

#include <QString>

#include <functional>

namespace kestrane {

/// The start of the program: opens the two connections and fills the run context from the option tables. Missing rows leave a
/// value's default; every failure is an ErrorEjecucion, which nothing here catches.
class Principal
{
public:
    enum class Inicio {
        OtraCopia, ///< a copy runs already: nothing was opened, the program ends at once and without a word
        EnMarcha,
    };

    /// `contexto.CarpetaPrograma` is set before the start. `preferencias` is the one object of the run, which the menu goes on
    /// with: in a shop that has no table for them it alone knows the changes. All four outlive the object.
    Principal(ContextoEjecucion& contexto, ConectorTienda& conector, PreferenciasTerminal& preferencias, const Reloj& reloj);

    /// The whole start, when `copia` finds no other one. `muestraMenu` shows the main form and comes last.
    [[nodiscard]] Inicio Main(CopiaUnica& copia, const std::function<void()>& muestraMenu);

    // The two steps of the start that a program without windows takes too, in this order.

    /// Opens the shop database and the reports database. Error -2147467259 when one cannot be opened.
    void AbreConexiones();
    /// Fills the values that are read at the start, in a run context that holds nothing but its open connections. Error -2147217900
    /// for a table that is missing, 94 for a null number.
    void Inicializa();

    /// The first row's text of `listadostemporal`, "" when there is none: a fresh reading, on a connection of its own.
    [[nodiscard]] QString ObtenerList1() const { return LeerList1(); }

private:
    // The lookups of `Inicializa`, each a statement of its own.
    [[nodiscard]] QString LeerList1() const;
    void LeerApariencia();
    void LeerRutaBandera();
    void LeerNombreRegional();
    void LeerMigracionVentas();
    void LeerFechaMigracionVentas();
    void LeerTerminal();
    void LeerImpresoras();
    void LeerOpciones();
    void LeerIdentificacionFiscal();
    void LeerMultiTienda();
    void CargarListaTiendas();
    void LeerPermiteListadoVariosDias();
    void LeerModuloFacturas();
    [[nodiscard]] QString impresora(QChar tipo);

    ContextoEjecucion& m_contexto;
    ConectorTienda& m_conector;
    PreferenciasTerminal& m_preferencias;
    const Reloj& m_reloj;
};

} // namespace kestrane
