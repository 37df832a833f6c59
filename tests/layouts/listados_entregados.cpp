#include "layouts/listado_de_prueba.h"

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

// Columns of what is sold.
const Columna Codigo{u"texto1"_s, u"Código"_s};
const Columna Posicion{u"texto4"_s, u"Posición"_s, Clase::TextoALaDerecha};
const Columna EnCaja{u"texto5"_s, u"En caja"_s, Clase::Centrado};
const Columna Minutos{u"numerico6"_s, u"Minutos"_s, Clase::Entero};
const Columna Iva{u"numerico3"_s, u"IVA %"_s, Clase::Importe};
const Columna Precio{u"numerico2"_s, u"Precio"_s, Clase::Importe};

std::vector<Columna> dePacks()
{
    return {Codigo, {u"texto2"_s, u"Pack"_s}, {u"texto21"_s, u"Sección"_s}, Posicion, EnCaja, Iva, Precio};
}

std::vector<Columna> con(std::vector<Columna> columnas, const std::vector<Columna>& mas)
{
    columnas.insert(columnas.end(), mas.begin(), mas.end());
    return columnas;
}

Listado empleados()
{
    return {u"K_Empleados.rpt"_s,
            u"Empleados"_s,
            Forma::Fichas,
            {Codigo,
             {u"texto2"_s, u"Nombre"_s},
             {u"texto3"_s, u"Apellidos"_s},
             {u"texto14"_s, u"Categoría"_s},
             {u"texto6"_s, u"Dirección"_s},
             {u"texto16"_s, u"C.P."_s},
             {u"texto4"_s, u"Localidad"_s},
             {u"texto5"_s, u"Provincia"_s},
             {u"texto7"_s, u"Teléfono"_s},
             {u"texto8"_s, u"Otro teléfono"_s},
             {u"texto12"_s, u"DNI"_s},
             {u"texto13"_s, u"Seguridad Social"_s},
             {u"texto9"_s, u"Fecha de nacimiento"_s},
             {u"texto10"_s, u"Fecha de alta"_s},
             {u"texto11"_s, u"Fecha de baja"_s},
             {u"texto17"_s, u"Sueldo base"_s},
             {u"texto18"_s, u"Tramo 1"_s},
             {u"texto19"_s, u"Tramo 2"_s},
             {u"texto20"_s, u"Tramo 3"_s},
             {u"texto21"_s, u"Tramo 4"_s},
             {u"texto22"_s, u"Observaciones"_s}}};
}

Listado servicios()
{
    return {u"K_Servicios.rpt"_s,
            u"Servicios"_s,
            Forma::Tabla,
            {Codigo, {u"texto2"_s, u"Servicio"_s}, {u"texto21"_s, u"Sección"_s}, Posicion, EnCaja, Minutos, Iva, Precio}};
}

Listado arreglos()
{
    return {
        u"TC_Arreglos.rpt"_s,
        u"Arreglos"_s,
        Forma::Tabla,
        {Codigo, {u"texto2"_s, u"Arreglo"_s}, EnCaja, Minutos, Iva, Precio, {u"numerico7"_s, u"Pago al taller"_s, Clase::Importe}}};
}

/// Suppliers and workshops: what they differ in is the name of their last columns.
Listado direcciones(const QString& fichero, const QString& titulo, const QString& nif, const QString& fax, const QString& contacto)
{
    return {fichero,
            titulo,
            Forma::Tabla,
            {Codigo,
             {u"texto2"_s, u"Nombre"_s},
             {u"texto8"_s, nif},
             {u"texto3"_s, u"Dirección"_s},
             {u"texto4"_s, u"C.P."_s},
             {u"texto5"_s, u"Teléfono"_s},
             {u"texto6"_s, fax},
             {u"texto7"_s, contacto}}};
}

Listado deDos(const QString& fichero, const QString& titulo, const QString& primera, const QString& segunda)
{
    return {fichero, titulo, Forma::Tabla, {{u"texto1"_s, primera}, {u"texto2"_s, segunda}}};
}

} // namespace

const std::vector<Listado>& listadosEntregados()
{
    static const std::vector<Listado> todos{
        empleados(),
        servicios(),
        arreglos(),
        direcciones(u"K_Proveedores.rpt"_s, u"Proveedores"_s, u"NIF"_s, u"Fax"_s, u"Contacto"_s),
        direcciones(u"TC_Talleres.rpt"_s, u"Talleres"_s, u"CIF"_s, u"Correo electrónico"_s, u"Contactos"_s),
        deDos(u"K_Secciones.rpt"_s, u"Secciones"_s, u"Código"_s, u"Sección"_s),
        deDos(u"TC_Tallas.rpt"_s, u"Tallas"_s, u"Abreviatura"_s, u"Talla"_s),
        {u"K_Formasdepago.rpt"_s,
         u"Formas de pago"_s,
         Forma::Tabla,
         {{u"texto1"_s, u"Código"_s}, {u"texto2"_s, u"Forma de pago"_s}, {u"texto3"_s, u"Observaciones"_s}}},
        {u"TC_Marcas.rpt"_s, u"Marcas"_s, Forma::TresColumnas, {{u"texto2"_s, u"Marca"_s}}},
        {u"TC_colores.rpt"_s, u"Colores"_s, Forma::TresColumnas, {{u"texto2"_s, u"Color"_s}}},
        {u"K_PackServicios.rpt"_s, u"Packs de servicios"_s, Forma::Packs, con(dePacks(), {{u"texto7"_s, u"Servicio"_s}})},
        {u"K_PackSpa.rpt"_s, u"Packs de spa"_s, Forma::PacksPorDias,
         con(dePacks(), {{u"texto8"_s, u"Día"_s}, {u"texto7"_s, u"Servicio"_s}})},
    };
    return todos;
}

} // namespace kestrane::prueba
