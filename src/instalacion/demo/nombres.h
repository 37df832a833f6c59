#pragma once

#include "instalacion/demo/azar.h"

#include <QString>
#include <QStringView>

#include <span>

/// Names of persons and places, and the numbers that go with them. Tax numbers bear a wrong control letter, e-mail addresses end in
/// a domain that cannot exist: nobody real is meant.
namespace kestrane::demo {

struct Poblacion
{
    QStringView nombre;
    QStringView provincia;
    QStringView cp;
    QStringView prefijo; // of telephone numbers
};

[[nodiscard]] std::span<const QStringView> nombresDeMujer();
[[nodiscard]] std::span<const QStringView> nombresDeHombre();
[[nodiscard]] std::span<const QStringView> apellidos();
[[nodiscard]] std::span<const QStringView> calles();
/// The shop's own town first.
[[nodiscard]] std::span<const Poblacion> poblaciones();
/// Names of stores, in order of foundation. Some end like others: a filter by the end of a name finds both.
[[nodiscard]] std::span<const QStringView> nombresDeTienda();

/// Two names with a blank between them.
[[nodiscard]] QString juntos(QStringView primero, QStringView segundo);

[[nodiscard]] QString direccion(Azar& azar);
[[nodiscard]] QString nif(Azar& azar);
[[nodiscard]] QString cif(Azar& azar);
[[nodiscard]] QString telefonoFijo(QStringView prefijo, Azar& azar);
[[nodiscard]] QString telefonoMovil(Azar& azar);
[[nodiscard]] QString correo(QStringView nombre, QStringView apellido);
/// A thirteen-digit barcode with its control digit, of the series for use inside a shop.
[[nodiscard]] QString codigoDeBarras(int numero);

} // namespace kestrane::demo
