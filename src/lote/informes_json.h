#pragma once

#include "lote/escritor_informes.h"

namespace kestrane::lote {

/// An array with one object per report: `{"control":..,"tienda":..,"layout":..,"impresora":..,"datos":..,"informes":[..],
/// "subinformes":[..]}`. Columns in lower case, Null ones left out.
class InformesJson final : public EscritorInformes
{
public:
    void escribe(const InformeMostrado& informe, Conexion& listados, QIODevice& cuerpo) override;
    [[nodiscard]] QByteArray principio() const override { return "["; }
    [[nodiscard]] QByteArray separador() const override { return ",\n "; }
    [[nodiscard]] QByteArray final() const override { return "]\n"; }
};

} // namespace kestrane::lote
