#pragma once

#include "lote/escritor_informes.h"

#include <QStringList>

namespace kestrane::lote {

/// One table of all rows, for spreadsheets: UTF-8 with its mark, ";" between fields, lines that end in CR LF. In front of the
/// columns of the staging tables stand the store and the table of the row. Numbers and dates are written by the regional settings;
/// Null is nothing at all, the empty text `""`.
class InformesCsv final : public EscritorInformes
{
public:
    InformesCsv();
    void escribe(const InformeMostrado& informe, Conexion& listados, QIODevice& cuerpo) override;
    [[nodiscard]] QByteArray principio() const override;
    [[nodiscard]] QByteArray separador() const override { return {}; }
    [[nodiscard]] QByteArray final() const override { return {}; }

private:
    void escribeFilas(const QString& tienda, const QString& tabla, Conexion& listados, QIODevice& cuerpo);

    QStringList m_columnas; ///< of `informes`, in lower case; `subinformes` has the same
};

} // namespace kestrane::lote
