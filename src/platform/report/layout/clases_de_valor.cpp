#include "platform/report/layout/clases_de_valor.h"

#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace kestrane::report {

namespace {

constexpr const ClaseValor* Clases[] = {
    &clases::Texto,    &clases::Expresion, &clases::Nombre,      &clases::Palabra,       &clases::Letra,
    &clases::SiNo,     &clases::Medida,    &clases::Largo,       &clases::Ancho,         &clases::Cuerpo,
    &clases::Columnas, &clases::Decimales, &clases::Color,       &clases::Fondo,         &clases::Horizontal,
    &clases::Vertical, &clases::Sentido,   &clases::Orientacion, &clases::Cero,          &clases::Formato,
    &clases::Total,    &clases::Papel,     &clases::Margenes,    &clases::FicheroPartes, &clases::FicheroImagen,
};

std::vector<ClaseValor> copiaClases()
{
    std::vector<ClaseValor> todas;
    for (const ClaseValor* clase : Clases)
        todas.push_back(*clase);
    return todas;
}

std::vector<QRegularExpression> patrones()
{
    std::vector<QRegularExpression> todos;
    for (const ClaseValor* clase : Clases)
        todos.emplace_back(QRegularExpression::anchoredPattern(clase->patron));
    return todos;
}

} // namespace

std::span<const ClaseValor> clasesDeValor()
{
    static const std::vector<ClaseValor> todas = copiaClases();
    return todas;
}

bool vale(const ClaseValor& clase, const QString& valor)
{
    static const std::vector<QRegularExpression> Patrones = patrones();
    if (clase.patron.isEmpty())
        return true;
    const auto lugar = std::ranges::find(Clases, &clase) - std::ranges::begin(Clases);
    return Patrones.at(static_cast<size_t>(lugar)).match(valor).hasMatch();
}

} // namespace kestrane::report
