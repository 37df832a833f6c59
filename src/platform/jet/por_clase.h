#pragma once

namespace kestrane::jet {

/// One visitor made of several functions, one for each alternative of a variant.
template<class... Fs>
struct PorClase : Fs...
{
    using Fs::operator()...;
};

template<class... Fs>
PorClase(Fs...) -> PorClase<Fs...>;

} // namespace kestrane::jet
