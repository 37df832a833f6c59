#include "instalacion/demo/maestros.h"

#include "instalacion/demo/maestros_productos.h"
#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <optional>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView talleres[] = {u"Taller de Costura Remedios", u"Arreglos Dedal de Oro", u"Reparación Rápida Martillo"};

struct FormaDePago
{
    int codigo;
    QStringView nombre;
    QStringView observaciones;
    bool borrada;
};

constexpr FormaDePago formas[] = {{1, u"Contado", u"", false},
                                  {2, u"Tarjeta", u"Datáfono del mostrador", false},
                                  {3, u"Contado y Tarjeta", u"Se indican los dos importes", false},
                                  {4, u"Depósito", u"A cuenta del dinero del cliente", false},
                                  {5, u"Bizum", u"Comprobar el aviso en el móvil", false},
                                  {6, u"Transferencia", u"Solo empresas", false},
                                  {7, u"Cheque", u"", true}};

/// The colour of a panel element, as the cards hold it: the flag and the colour. A flag without a colour is white, no flag is a
/// colour of the theme.
struct ColorDePanel
{
    std::optional<QStringView> marca;
    std::optional<QStringView> color;
};

constexpr ColorDePanel coloresDePanel[] = {{u"-1", u"16744576"}, {u"-1", {}}, {{}, {}}, {u"", u"8454016"}, {u"0", u"16777088"}};

Valor oNulo(std::optional<QStringView> texto)
{
    return texto ? Valor{*texto} : Valor{};
}

const ColorDePanel& colorDePanel(int codigo)
{
    return coloresDePanel[static_cast<std::size_t>(codigo) % std::size(coloresDePanel)];
}

/// Pictures of panel elements; some have none.
Valor imagen(QLatin1StringView clase, int codigo)
{
    return codigo % 3 == 0 ? Valor{} : Valor{QString{clase + QString::number(codigo) + u".png"_s}};
}

/// Places in the panels, which people have changed since the cards were made.
int posicion(int codigo)
{
    return codigo * 37 % 101;
}

qint16 seMuestra(int codigo)
{
    return codigo % 9 == 0 ? qint16{0} : codigo % 4 == 0 ? qint16{1} : qint16{-1};
}

QString codigoVisible(QChar letra, int codigo)
{
    return letra + QString::number(codigo).rightJustified(3, u'0');
}

void escribeSecciones(const Negocio& negocio)
{
    int codigo = 1;
    const auto fila = [&](const Valor& nombre, bool borrada) {
        negocio.destino.fila(tablas::Seccion, {{codigo, nombre.esNulo() ? Valor{} : Valor{codigoVisible(u'S', codigo)}, nombre,
                                                oNulo(colorDePanel(codigo).marca), oNulo(colorDePanel(codigo).color),
                                                imagen("secciones/seccion"_L1, codigo), posicion(codigo), borrada}});
        ++codigo;
    };
    for (const QStringView nombre : negocio.sabor.secciones)
        fila(nombre, false);
    fila(u"Varios"_s, true);
    fila(Nulo{}, false); // made for the reserved service, and never named
}

void escribeServicios(const Negocio& negocio)
{
    const auto fila = [&](int codigo, QStringView nombre, int seccion, qint16 mostrar, int minutos, double precio, double iva,
                          bool borrado = false) {
        negocio.destino.fila(tablas::Servicios, {{codigo, codigoVisible(u'V', codigo), nombre, seccion, posicion(codigo), mostrar,
                                                  static_cast<qint16>(minutos), precio, iva, borrado}});
    };
    const int sinNombre = static_cast<int>(negocio.sabor.secciones.size()) + 2;
    for (const Servicio& servicio : negocio.catalogo.servicios()) {
        fila(servicio.codigo, servicio.nombre, servicio.datos->seccion, seMuestra(servicio.codigo), servicio.datos->minutos,
             servicio.precio.enEuros(), servicio.datos->iva);
        if (servicio.codigo + 1 == CodigoIngresoDeposito)
            fila(CodigoIngresoDeposito, u"Ingreso en Depósito", sinNombre, 0, 0, 0, 0);
    }
    const Servicio& ultimo = negocio.catalogo.servicios().back();
    fila(ultimo.codigo + 1, u"Servicio que ya no se ofrece", ultimo.datos->seccion, -1, 30, 12.5, 21, true);
}

/// A pack that is sold no more, with its service: the last code of its table.
void escribePackBorrado(const Negocio& negocio, const TablaDemo& tabla, QChar letra, const std::vector<Pack>& packs)
{
    const int codigo = static_cast<int>(packs.size()) + 1;
    const int seccion = negocio.catalogo.servicios().front().datos->seccion;
    negocio.destino.fila(tabla, {{codigo, codigoVisible(letra, codigo), u"Pack de otra temporada"_s, seccion, posicion(codigo),
                                  qint16{-1}, 25.0, 21.0, true}});
}

void escribePacks(const Negocio& negocio)
{
    for (const Pack& pack : negocio.catalogo.packs()) {
        negocio.destino.fila(tablas::Familias, {{pack.codigo, codigoVisible(u'F', pack.codigo), pack.nombre, pack.datos->seccion,
                                                 posicion(pack.codigo), seMuestra(pack.codigo), pack.precio.enEuros(),
                                                 static_cast<double>(pack.datos->iva), false}});
        for (const int servicio : pack.servicios)
            negocio.destino.fila(tablas::DetalleFamilia,
                                 {{pack.codigo, negocio.catalogo.servicios()[static_cast<std::size_t>(servicio)].codigo}});
    }
    escribePackBorrado(negocio, tablas::Familias, u'F', negocio.catalogo.packs());
    negocio.destino.fila(tablas::DetalleFamilia, {{static_cast<int>(negocio.catalogo.packs().size()) + 1, 1}});
}

void escribePacksSpa(const Negocio& negocio)
{
    for (const Pack& pack : negocio.catalogo.packsSpa()) {
        negocio.destino.fila(tablas::CabeceraPackSpa, {{pack.codigo, codigoVisible(u'K', pack.codigo), pack.nombre,
                                                        pack.datos->seccion, posicion(pack.codigo), seMuestra(pack.codigo),
                                                        pack.precio.enEuros(), static_cast<double>(pack.datos->iva), false}});
        qint16 dia = 1;
        for (const int servicio : pack.servicios)
            negocio.destino.fila(tablas::DetallePackSpa,
                                 {{pack.codigo, negocio.catalogo.servicios()[static_cast<std::size_t>(servicio)].codigo, dia++}});
    }
    if (!negocio.catalogo.packsSpa().empty()) {
        escribePackBorrado(negocio, tablas::CabeceraPackSpa, u'K', negocio.catalogo.packsSpa());
        negocio.destino.fila(tablas::DetallePackSpa, {{static_cast<int>(negocio.catalogo.packsSpa().size()) + 1, 1, qint16{1}}});
    }
    const int seccion = negocio.catalogo.servicios().front().datos->seccion;
    negocio.destino.fila(tablas::Pack, {{1, seccion}});
    negocio.destino.fila(tablas::Servicepack, {{1, u"P001"_s, u"Pack antiguo"_s, false}});
    negocio.destino.fila(tablas::Servicepack, {{2, u"P002"_s, u"Pack antiguo de verano"_s, true}});
}

void escribeProveedores(const Negocio& negocio, Azar& azar)
{
    int codigo = 1;
    for (const QStringView nombre : negocio.sabor.proveedores) {
        const Poblacion& poblacion = azar.elige(poblaciones());
        const QString contacto = juntos(azar.elige(nombresDeHombre()), azar.elige(apellidos()));
        negocio.destino.fila(
            tablas::Proveedores,
            {{codigo, codigoVisible(u'P', codigo), nombre, direccion(azar), poblacion.cp, telefonoFijo(poblacion.prefijo, azar),
              azar.porCien(70) ? Valor{telefonoFijo(poblacion.prefijo, azar)} : Valor{}, contacto, cif(azar),
              oNulo(colorDePanel(codigo).marca), oNulo(colorDePanel(codigo).color), imagen("proveedores/proveedor"_L1, codigo),
              posicion(codigo), false}});
        ++codigo;
    }
    negocio.destino.fila(tablas::Proveedores, {{codigo, Nulo{}, u"Proveedor de baja S.L."_s, Nulo{}, Nulo{}, Nulo{}, Nulo{}, Nulo{},
                                                Nulo{}, Nulo{}, Nulo{}, Nulo{}, codigo, true}});
}

void escribeArreglos(const Negocio& negocio)
{
    int codigo = 1;
    for (const DatosArreglo& arreglo : negocio.sabor.arreglos) {
        negocio.destino.fila(tablas::Arreglos,
                             {{codigo, codigoVisible(u'A', codigo), arreglo.nombre, seMuestra(codigo + 3),
                               static_cast<qint16>(arreglo.minutos), arreglo.precio, arreglo.pagoTaller, 21.0, false}});
        ++codigo;
    }
    if (codigo > 1)
        negocio.destino.fila(tablas::Arreglos, {{codigo, codigoVisible(u'A', codigo), u"Arreglo que ya no se hace"_s, qint16{-1},
                                                 qint16{30}, 10.0, 5.0, 21.0, true}});
}

void escribeTalleres(const Negocio& negocio, Azar& azar)
{
    if (negocio.sabor.arreglos.empty())
        return;
    int codigo = 1;
    for (const QStringView nombre : talleres) {
        const QString primero = codigo == 2 ? u""_s : juntos(azar.elige(nombresDeMujer()), azar.elige(apellidos()));
        const QString segundo = codigo == 1 ? azar.elige(nombresDeHombre()).toString() : u""_s;
        negocio.destino.fila(tablas::Talleres,
                             {{codigo, codigoVisible(u'T', codigo), nombre, direccion(azar), poblaciones().front().cp,
                               telefonoFijo(poblaciones().front().prefijo, azar),
                               u"taller"_s + QString::number(codigo) + u"@correo.example"_s, primero, segundo, cif(azar), false}});
        ++codigo;
    }
    negocio.destino.fila(tablas::Talleres, {{codigo, codigoVisible(u'T', codigo), u"Taller cerrado por jubilación"_s, Nulo{},
                                             Nulo{}, Nulo{}, Nulo{}, Nulo{}, Nulo{}, Nulo{}, true}});
}

void escribeFormasDePago(Destino& destino)
{
    for (const FormaDePago& forma : formas)
        destino.fila(tablas::Formapago, {{forma.codigo, codigoVisible(u'C', forma.codigo), forma.nombre,
                                          forma.observaciones.isEmpty() ? Valor{} : Valor{forma.observaciones}, forma.borrada}});
}

} // namespace

void escribeMaestros(const Negocio& negocio, Azar azar)
{
    escribeSecciones(negocio);
    escribeServicios(negocio);
    escribePacks(negocio);
    escribePacksSpa(negocio);
    escribeProductos(negocio, azar);
    escribeProveedores(negocio, azar);
    escribeArreglos(negocio);
    escribeTalleres(negocio, azar);
    escribeFormasDePago(negocio.destino);
}

} // namespace kestrane::demo
