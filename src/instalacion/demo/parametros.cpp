#include "instalacion/demo/parametros.h"

#include "instalacion/demo/nombres.h"

namespace kestrane::demo {

namespace {

constexpr int TiendasDeCadena = 50;

} // namespace

std::optional<Tamano> tamanoDeTexto(QStringView texto)
{
    if (texto == u"dia")
        return Tamano::Dia;
    if (texto == u"mes")
        return Tamano::Mes;
    if (texto == u"anio")
        return Tamano::Anio;
    if (texto == u"cadena")
        return Tamano::Cadena;
    return std::nullopt;
}

std::optional<TipoTienda> tipoDeTexto(QStringView texto)
{
    for (const TipoTienda tipo : TodosLosTipos) {
        if (sabor(tipo).tipoPrograma == texto)
            return tipo;
    }
    return std::nullopt;
}

int cuantasTiendas(const Parametros& parametros)
{
    const Ritmo& ritmo = sabor(parametros.tipo).ritmo;
    switch (parametros.tamano) {
    case Tamano::Dia:
        return 1;
    case Tamano::Mes:
        return ritmo.tiendasMes;
    case Tamano::Anio:
        return ritmo.tiendasAnio;
    case Tamano::Cadena:
        return TiendasDeCadena;
    }
    return 1;
}

QStringList nombresDeTiendas(const Parametros& parametros)
{
    const int cuantas = cuantasTiendas(parametros);
    QStringList nombres;
    for (int i = 0; i < cuantas && cuantas > 1; ++i)
        nombres << nombresDeTienda()[static_cast<std::size_t>(i)].toString();
    return nombres;
}

std::optional<QString> tiendaDeTexto(QStringView texto, const Parametros& parametros)
{
    const QStringList nombres = nombresDeTiendas(parametros);
    return nombres.contains(texto) ? std::optional{texto.toString()} : std::nullopt;
}

} // namespace kestrane::demo
