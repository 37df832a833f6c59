#pragma once

#include <utility>
#include <variant>

namespace kestrane {

/// A value or the reason why there is none, for failures that the caller handles (C++20 has no std::expected).
///
/// E is a plain value that describes the failure. Reading the side that is not there throws std::bad_variant_access: a defect of
/// the caller, not an outcome.
template<class T, class E>
class [[nodiscard]] Resultado
{
public:
    Resultado(T valor) : m_contenido{std::in_place_index<0>, std::move(valor)} {}
    Resultado(E error) : m_contenido{std::in_place_index<1>, std::move(error)} {}

    [[nodiscard]] bool bien() const { return m_contenido.index() == 0; }
    explicit operator bool() const { return bien(); }

    [[nodiscard]] T& valor() & { return std::get<0>(m_contenido); }
    [[nodiscard]] const T& valor() const& { return std::get<0>(m_contenido); }
    [[nodiscard]] T&& valor() && { return std::get<0>(std::move(m_contenido)); }
    [[nodiscard]] const E& error() const& { return std::get<1>(m_contenido); }
    [[nodiscard]] E&& error() && { return std::get<1>(std::move(m_contenido)); }

private:
    std::variant<T, E> m_contenido;
};

} // namespace kestrane
