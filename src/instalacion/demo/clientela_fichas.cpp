#include "instalacion/demo/clientela.h"
#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

/// `valor` so many times in a hundred, else Null.
Valor quiza(int porCien, Valor valor, Azar& azar)
{
    return azar.porCien(porCien) ? std::move(valor) : Valor{};
}

Valor nacimiento(const Cliente& cliente, Azar& azar)
{
    if (cliente.esEmpresa() || azar.porMil(110))
        return Nulo{};
    if (azar.porMil(12))
        return Fecha{}; // the day that an empty date field left behind
    return cliente.ingreso.masDias(-azar.entre(16 * 365, 78 * 365));
}

Valor correoDe(const Cliente& cliente, Azar& azar)
{
    const int caso = azar.hasta(100);
    if (caso < 30)
        return u""_s;
    if (caso < 42)
        return Nulo{};
    return correo(cliente.nombreDePila(), apellidos()[static_cast<std::size_t>(cliente.apellido1)]);
}

Valor etiquetas(Azar& azar)
{
    const int caso = azar.hasta(100);
    if (caso < 12)
        return u"NO"_s;
    return caso < 92 ? Valor{u"SI"_s} : Valor{};
}

/// The card's own memory of the last visit, which older programs kept even for sales that are gone.
Valor ultimaVisita(const Cliente& cliente, Azar& azar)
{
    if (cliente.ultimaVisita != Fecha{})
        return cliente.ultimaVisita;
    return quiza(60, cliente.ingreso.masDias(azar.entre(0, 25)), azar);
}

} // namespace

void Clientela::escribe(Destino& destino, const std::vector<QString>& tiendas) const
{
    for (const Cliente& uno : m_clientes) {
        Azar azar = m_azarFichas.rama(static_cast<quint64>(uno.codigo));
        const Poblacion& poblacion = poblaciones()[static_cast<std::size_t>(azar.porCien(70) ? azar.hasta(3) : azar.hasta(8))];
        const bool nuncaVino = uno.ultimaVisita == Fecha{};
        const bool borrado = uno.deposito == Dinero{} && (nuncaVino ? azar.porCien(12) : uno.codigo % 43 == 17);
        destino.fila(tablas::Clientes,
                     {{uno.codigo, quiza(98, QString::number(uno.codigo).rightJustified(5, u'0'), azar), uno.nombreDePila(),
                       uno.apellidosJuntos(), quiza(uno.profesional ? 100 : 62, uno.esEmpresa() ? cif(azar) : nif(azar), azar),
                       quiza(88, direccion(azar), azar), quiza(92, poblacion.cp, azar), quiza(94, poblacion.nombre, azar),
                       quiza(94, poblacion.provincia, azar), quiza(55, telefonoFijo(poblacion.prefijo, azar), azar),
                       quiza(86, telefonoMovil(azar), azar), correoDe(uno, azar), quiza(97, uno.ingreso, azar),
                       nacimiento(uno, azar), ultimaVisita(uno, azar), uno.deposito.enEuros(), etiquetas(azar), borrado,
                       azar.porMil(20) ? Valor{} : Valor{tiendas[static_cast<std::size_t>(uno.tienda)]}}});
    }
}

} // namespace kestrane::demo
