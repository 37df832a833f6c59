#pragma once

#include "lote/escritor_informes.h"

namespace kestrane::lote {

/// An array with one object per report: `{"control":..,"tienda":..,"layout":..,"impresora":..,"datos":..,"informes":[..],
/// "subinformes":[..]}`. Columns in lower case, Null ones left out.
class InformesJson final : public EscritorInformes
{
public:
    [[nodiscard]] QStringList escribe(const InformeMostrado& informe, Conexion& listados, const QString& base) override;
    /// The body alone, its rows read from the staging tables in stored order. ErrorDeSalida when `cuerpo` does not take it.
    static void escribeCuerpo(const InformeMostrado& informe, Conexion& listados, QIODevice& cuerpo);
    [[nodiscard]] Juntos juntos() const override { return Juntos::Si; }
    [[nodiscard]] QByteArray principio() const override { return "["; }
    [[nodiscard]] QByteArray separador() const override { return ",\n "; }
    [[nodiscard]] QByteArray final() const override { return "]\n"; }
};

} // namespace kestrane::lote
