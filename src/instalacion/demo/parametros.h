#pragma once

#include "instalacion/demo/sabor.h"
#include "platform/runtime/fecha.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kestrane::demo {

/// How much there is: one full day, one month, one year, or a chain of fifty stores. What lies before is kept as a thin history.
enum class Tamano { Dia, Mes, Anio, Cadena };

/// What makes one demo shop; equal parameters make equal shops, to the row.
struct Parametros
{
    TipoTienda tipo = TipoTienda::Peluqueria;
    Tamano tamano = Tamano::Mes;
    quint64 semilla = 1;
    /// The last day with sales. The default is a Friday.
    Fecha hoy = *Fecha::deCalendario(2024, 6, 14);
    /// Identifier of the terminal that gets an employee, printers and a tariff.
    QString terminal = QStringLiteral("mostrador");
    /// The store whose terminal reads the data; empty: the central installation, "Servidor".
    QString tiendaDelTerminal{};
    /// Share of the usual number of tickets and clients, for quick tests of the large sizes.
    double proporcion = 1.0;

    friend bool operator==(const Parametros&, const Parametros&) = default;
};

/// "dia", "mes", "anio", "cadena"; nothing for another word.
[[nodiscard]] std::optional<Tamano> tamanoDeTexto(QStringView texto);
/// "PELUQUERIA", "SPA" and so on, exactly as the option table stores it; nothing for another word.
[[nodiscard]] std::optional<TipoTienda> tipoDeTexto(QStringView texto);

/// How many stores such a shop has.
[[nodiscard]] int cuantasTiendas(const Parametros& parametros);
/// Their names; none for a shop that is alone, whose store has no name.
[[nodiscard]] QStringList nombresDeTiendas(const Parametros& parametros);
/// One of them, spelled as it is; nothing for another word.
[[nodiscard]] std::optional<QString> tiendaDeTexto(QStringView texto, const Parametros& parametros);

} // namespace kestrane::demo
