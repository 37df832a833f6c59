#include "platform/runtime/lector_dia.h"

#include <QString>

#include <algorithm>

namespace kestrane {

namespace {

/// Digits alone: reading a number would let blanks and signs pass.
std::optional<int> numeroDe(QStringView texto)
{
    if (!std::ranges::all_of(texto, [](QChar signo) { return signo >= u'0' && signo <= u'9'; }))
        return {};
    return texto.toInt();
}

} // namespace

std::optional<Fecha> leeDia(QStringView texto)
{
    if (texto.size() != 10 || texto[4] != u'-' || texto[7] != u'-')
        return {};
    const auto anio = numeroDe(texto.first(4));
    const auto mes = numeroDe(texto.sliced(5, 2));
    const auto dia = numeroDe(texto.last(2));
    if (!anio || !mes || !dia)
        return {};
    return Fecha::deCalendario(*anio, *mes, *dia);
}

} // namespace kestrane
