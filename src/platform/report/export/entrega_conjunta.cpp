#include "platform/report/export/entrega_conjunta.h"

#include "platform/runtime/fichero_destino.h"
#include "platform/runtime/motivo_sistema.h"

namespace kestrane::report {

using namespace Qt::StringLiterals;

EntregaConjunta::~EntregaConjunta()
{
    std::error_code sinRemedio; // nobody is left to be told
    for (const Entregado& uno : m_entregados) {
        if (uno.anterior.isEmpty())
            std::filesystem::remove(comoRuta(uno.lugar), sinRemedio);
        else
            std::filesystem::rename(comoRuta(uno.anterior), comoRuta(uno.lugar), sinRemedio);
    }
}

void EntregaConjunta::entrega(const QString& nombre, const QString& destino)
{
    const QString lugar = destinoDeEscritura(destino);
    Entregado nuevo{lugar, aparta(nombre, lugar)};
    m_carpeta.entrega(nombre, destino);
    m_entregados.push_back(std::move(nuevo));
}

/// Keeps what lies at `lugar` under a second name, where there are none as a copy.
QString EntregaConjunta::aparta(const QString& nombre, const QString& lugar) const
{
    std::error_code error;
    if (!std::filesystem::exists(comoRuta(lugar), error))
        return {};
    QString anterior = m_carpeta.ruta(nombre + u".anterior"_s);
    std::filesystem::create_hard_link(comoRuta(lugar), comoRuta(anterior), error);
    if (error)
        std::filesystem::copy_file(comoRuta(lugar), comoRuta(anterior), error);
    if (error)
        noSePuedeEscribir(lugar, motivoDe(error));
    return anterior;
}

} // namespace kestrane::report
