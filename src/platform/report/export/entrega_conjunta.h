#pragma once

#include "platform/report/export/fichero_provisional.h"

#include <vector>

namespace kestrane::report {

/// Files of a provisional folder that take their names together: as long as they are not confirmed, the object's end takes them
/// back and gives the files that lay there their places again.
class EntregaConjunta
{
public:
    explicit EntregaConjunta(const CarpetaProvisional& carpeta) : m_carpeta{carpeta} {}
    ~EntregaConjunta();
    EntregaConjunta(const EntregaConjunta&) = delete;
    EntregaConjunta& operator=(const EntregaConjunta&) = delete;

    /// As CarpetaProvisional::entrega. ErrorDeSalida.
    void entrega(const QString& nombre, const QString& destino);
    /// All have been handed over, for good.
    void confirma() { m_entregados.clear(); }

private:
    struct Entregado
    {
        QString lugar;
        QString anterior; ///< what lay there, in the folder; "" when nothing did
    };

    [[nodiscard]] QString aparta(const QString& nombre, const QString& lugar) const;

    const CarpetaProvisional& m_carpeta;
    std::vector<Entregado> m_entregados;
};

} // namespace kestrane::report
