#include "platform/suite/paleta.h"

#include "platform/suite/apariencia.h"

namespace kestrane {

namespace {

constexpr Paleta Claro{
    .fondo = 0xf3f6f8,
    .fondoPequeno = 0xe9eff3,
    .tarjeta = 0xffffff,
    .campo = 0xffffff,
    .filaAlterna = 0xf5f8fa,
    .texto = 0x1b2a36,
    .textoSuave = 0x4f6270,
    .borde = 0x728491,
    .bordeSuave = 0xd3dde4,
    .boton = 0xe8eef2,
    .textoBoton = 0x1b2a36,
    .acento = 0x115b70,
    .textoAcento = 0xffffff,
    .seleccion = 0x115b70,
    .textoSeleccion = 0xffffff,
    .resalte = 0xffe9a8,
    .foco = 0x0b5cad,
    .aviso = 0xa3260f,
    .listados = 0xc9e1ea,
    .paneles = {0xd3e6f5, 0xd9eed6, 0xfbe6c4, 0xe9dbf2},
};

constexpr Paleta Calido{
    .fondo = 0xfaf6f0,
    .fondoPequeno = 0xf4ece1,
    .tarjeta = 0xfffdfa,
    .campo = 0xffffff,
    .filaAlterna = 0xfbf6ee,
    .texto = 0x33261c,
    .textoSuave = 0x6b5647,
    .borde = 0x8c7766,
    .bordeSuave = 0xe3d6c6,
    .boton = 0xf1e6d7,
    .textoBoton = 0x33261c,
    .acento = 0x8a4b1f,
    .textoAcento = 0xffffff,
    .seleccion = 0x8a4b1f,
    .textoSeleccion = 0xffffff,
    .resalte = 0xffe08a,
    .foco = 0x1f5f8b,
    .aviso = 0x9e1b1b,
    .listados = 0xf3d5b5,
    .paneles = {0xf6d9c2, 0xe1e7c5, 0xf9e6a8, 0xe8d4dd},
};

constexpr Paleta Oscuro{
    .fondo = 0x1a2129,
    .fondoPequeno = 0x222b35,
    .tarjeta = 0x27313c,
    .campo = 0x161c23,
    .filaAlterna = 0x1d242c,
    .texto = 0xe6edf3,
    .textoSuave = 0xa9b8c6,
    .borde = 0x8093a3,
    .bordeSuave = 0x3d4a57,
    .boton = 0x364350,
    .textoBoton = 0xe6edf3,
    .acento = 0x7cc4e0,
    .textoAcento = 0x0e1a22,
    .seleccion = 0x2b6a8a,
    .textoSeleccion = 0xffffff,
    .resalte = 0x5c4b14,
    .foco = 0x8fd3ff,
    .aviso = 0xff9e8a,
    .listados = 0x27566a,
    .paneles = {0x2b4a63, 0x2f5138, 0x5b4a22, 0x4e3b61},
};

constexpr Paleta AltoContraste{
    .fondo = 0x000000,
    .fondoPequeno = 0x000000,
    .tarjeta = 0x000000,
    .campo = 0x000000,
    .filaAlterna = 0x1a1a1a,
    .texto = 0xffffff,
    .textoSuave = 0xe0e0e0,
    .borde = 0xffffff,
    .bordeSuave = 0xffffff,
    .boton = 0x1a1a1a,
    .textoBoton = 0xffffff,
    .acento = 0xffff00,
    .textoAcento = 0x000000,
    .seleccion = 0xffff00,
    .textoSeleccion = 0x000000,
    .resalte = 0x4d4d00,
    .foco = 0x00ffff,
    .aviso = 0xffb000,
    .listados = 0x003c33,
    .paneles = {0x003366, 0x004225, 0x5a3800, 0x4b0055},
};

constexpr std::array<const Paleta*, Temas.size()> Paletas{&Claro, &Calido, &Oscuro, &AltoContraste};
static_assert(Temas[TemaAltoContraste - 1] == TemaAltoContraste && Paletas[TemaAltoContraste - 1] == &AltoContraste);

} // namespace

const Paleta& paletaDe(qint32 tema)
{
    for (std::size_t i = 0; i < Temas.size(); ++i) {
        if (Temas[i] == tema)
            return *Paletas[i];
    }
    return *Paletas.front();
}

} // namespace kestrane
