#pragma once

namespace kestrane::lote {

/// What --ayuda shows.
inline constexpr auto TextoDeAyuda = uR"(Uso: listados-lote --lista
     listados-lote CONTROL [opciones del listado] [opciones]
     listados-lote --sql TEXTO | --sql-fichero FICHERO [opciones de SQL] [opciones]

Hace sin pantalla cualquier listado de Kestrane Listados. CONTROL es el nombre de su botón, por ejemplo cmd_Caja1.

  --lista                      escribe todos los listados: su control, su grupo y título y si está disponible

Opciones del listado, las mismas que ofrecen sus diálogos (las demás se ignoran y se dice):
  --desde AAAA-MM-DD           primer día; si no se indica, hoy
  --hasta AAAA-MM-DD           último día; si no se indica, hoy
  --tienda NOMBRE              una tienda; en el servidor, si no se indica, un informe por cada tienda
  --completa                   la caja completa; salvo en los listados por meses, donde está el módulo de facturas
  --ticket                     el formato para la impresora de tickets
  --cliente N, --factura N     el cliente y la factura
  --empleado N, --proveedor N, --seccion N
                               uno de los que ofrece el programa; -1, o si no se indica, todos
  --solo productos|servicios   solo unos u otros
  --clase V|CI|A               productos de venta, de consumo interno o ambos
  --bajo-minimos               productos bajo mínimos
  --orden COLUMNA              columna por la que se ordena
  --solo-email                 solo clientes con correo
  --totalizado                 el listado totalizado
  --mes N, --anio N            mes y año; si no se indican, los de hoy
  --formato json|csv|pdf|xlsx|png|html
                               si no se indica, json; los demás salen como el informe en papel, y sin datos no hay fichero
  --salida FICHERO             si no se indica, la salida estándar; con varios informes se añade el nombre de la tienda, salvo
                               que sea una tubería o un dispositivo; png añade la página si hay varias
  --listados CARPETA           conserva en CARPETA la base de datos de listados con la que se ha trabajado
  --hoy AAAA-MM-DD             la fecha del sistema; si no se indica, la del equipo

Opciones de SQL, para ejecutar sentencias y escribir una línea de JSON por cada una:
  --sql TEXTO                  ejecuta la sentencia TEXTO
  --sql-fichero FICHERO        ejecuta las sentencias de FICHERO, una por línea (\r, \n y \\ con escape)
  --conexion tienda|listados   base de datos; si no se indica, tienda
  --dsn NOMBRE                 origen de datos; si no se indica, TiendaKestrane o ListKestrane
  --escribir                   admite también INSERT, UPDATE y DELETE

Opciones:
  --datos CARPETA              carpeta de las bases de datos; si no se indica, "datos" junto al programa
  --regional NOMBRE            configuración regional, por ejemplo es_ES; si no se indica, la del equipo
  -h, --ayuda, --help          muestra esta ayuda

Los avisos salen por la salida de errores, también "No hay datos para ser mostrados." por cada informe sin datos.

Estado de salida: 0 hecho, 1 error (su número y su descripción salen por la salida de errores), 2 uso incorrecto, 3 ningún
informe tenía datos.
)";

} // namespace kestrane::lote
