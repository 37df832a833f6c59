#include "instalacion/demo/maestros.h"

#include "instalacion/demo/maestros_productos.h"
#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView colores[] = {u"16744576", u"8454143", u"8454016", u"16777088", u"12615935"};

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

/// The three ways in which a panel element has a colour of its own or none.
Valor marcaDeColor(int codigo)
{
    constexpr std::array marcas{u"", u"0", u"-1", u"-1"};
    return codigo % 5 == 0 ? Valor{} : Valor{QStringView{marcas[static_cast<std::size_t>(codigo % 4)]}};
}

Valor color(int codigo)
{
    return codigo % 5 == 0 ? Valor{} : Valor{colores[static_cast<std::size_t>(codigo % 5)]};
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
    for (const QStringView nombre : negocio.sabor.secciones) {
        negocio.destino.fila(tablas::Seccion, {{codigo, codigoVisible(u'S', codigo), nombre, marcaDeColor(codigo), color(codigo),
                                                Nulo{}, codigo * 10, false}});
        ++codigo;
    }
    negocio.destino.fila(tablas::Seccion, {{codigo, Nulo{}, u"Varios"_s, Nulo{}, Nulo{}, Nulo{}, codigo * 10, true}});
}

void escribeServicios(const Negocio& negocio)
{
    const auto fila = [&](int codigo, const QString& nombre, int seccion, qint16 mostrar, int minutos, double precio, double iva) {
        negocio.destino.fila(tablas::Servicios, {{codigo, codigoVisible(u'V', codigo), nombre, seccion, codigo, mostrar,
                                                  static_cast<qint16>(minutos), precio, iva, false}});
    };
    for (const Servicio& servicio : negocio.catalogo.servicios()) {
        fila(servicio.codigo, servicio.nombre, servicio.datos->seccion, seMuestra(servicio.codigo), servicio.datos->minutos,
             servicio.precio.enEuros(), servicio.datos->iva);
        if (servicio.codigo + 1 == CodigoIngresoDeposito)
            fila(CodigoIngresoDeposito, u"Ingreso en Depósito"_s, servicio.datos->seccion, 0, 0, 0, 0);
    }
}

void escribePacks(const Negocio& negocio)
{
    for (const Pack& pack : negocio.catalogo.packs()) {
        negocio.destino.fila(tablas::Familias,
                             {{pack.codigo, codigoVisible(u'F', pack.codigo), pack.nombre, pack.datos->seccion, pack.codigo,
                               seMuestra(pack.codigo), pack.precio.enEuros(), static_cast<double>(pack.datos->iva), false}});
        for (const int servicio : pack.servicios)
            negocio.destino.fila(tablas::DetalleFamilia,
                                 {{pack.codigo, negocio.catalogo.servicios()[static_cast<std::size_t>(servicio)].codigo}});
    }
}

void escribePacksSpa(const Negocio& negocio)
{
    for (const Pack& pack : negocio.catalogo.packsSpa()) {
        negocio.destino.fila(tablas::CabeceraPackSpa,
                             {{pack.codigo, codigoVisible(u'K', pack.codigo), pack.nombre, pack.datos->seccion, pack.codigo,
                               seMuestra(pack.codigo), pack.precio.enEuros(), static_cast<double>(pack.datos->iva), false}});
        qint16 dia = 1;
        for (const int servicio : pack.servicios)
            negocio.destino.fila(tablas::DetallePackSpa,
                                 {{pack.codigo, negocio.catalogo.servicios()[static_cast<std::size_t>(servicio)].codigo, dia++}});
    }
    const int seccion = negocio.catalogo.servicios().front().datos->seccion;
    negocio.destino.fila(tablas::Pack, {{1, seccion}});
    negocio.destino.fila(tablas::Servicepack, {{1, u"P001"_s, u"Pack antiguo"_s, false}});
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
              azar.porCien(70) ? Valor{telefonoFijo(poblacion.prefijo, azar)} : Valor{}, contacto, cif(azar), marcaDeColor(codigo),
              color(codigo), Nulo{}, codigo, false}});
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
