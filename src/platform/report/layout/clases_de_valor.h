#pragma once

#include "platform/report/layout/vocabulario.h"

namespace kestrane::report::clases {

inline constexpr ClaseValor Texto{u"texto", u"", u"un texto"};
inline constexpr ClaseValor Expresion{u"expresion", u"", u"una expresión"};
inline constexpr ClaseValor Nombre{u"nombre", u"[A-Za-z][A-Za-z0-9_-]{0,39}", u"un nombre de letras sin acento, cifras y guiones"};
inline constexpr ClaseValor Palabra{u"palabra", u"[A-Za-z][A-Za-z0-9_]{0,39}", u"una palabra de letras sin acento y cifras"};
inline constexpr ClaseValor Letra{u"letra", u"[A-Za-z0-9][A-Za-z0-9 _-]{0,59}", u"el nombre de un tipo de letra"};
inline constexpr ClaseValor SiNo{u"siNo", u"si|no", u"«si» o «no»"};
inline constexpr ClaseValor Medida{u"medida", u"[0-9]{1,4}(\\.[0-9]{1,3})?", u"una medida en milímetros, como 12.5"};
inline constexpr ClaseValor Largo{u"largo", u"[0-9]{1,3}(\\.[0-9]{1,3})?|[1-4][0-9]{3}(\\.[0-9]{1,3})?|5000",
                                  u"una medida en milímetros hasta 5000"};
inline constexpr ClaseValor Ancho{u"ancho", u"\\*|[0-9]{1,4}(\\.[0-9]{1,3})?", u"una medida en milímetros, como 12.5, o «*»"};
inline constexpr ClaseValor Cuerpo{u"cuerpo", u"[1-9][0-9]{0,2}(\\.[0-9]{1,2})?", u"un cuerpo de letra en puntos, como 8.5"};
inline constexpr ClaseValor Columnas{u"columnas", u"[1-9]|1[0-9]|20", u"un número de 1 a 20"};
inline constexpr ClaseValor Decimales{u"decimales", u"[0-6]", u"un número de 0 a 6"};
inline constexpr ClaseValor Color{u"color", u"#[0-9A-Fa-f]{6}", u"un color, como #1f3a5f"};
inline constexpr ClaseValor Fondo{u"fondo", u"ninguno|#[0-9A-Fa-f]{6}", u"un color, como #1f3a5f, o «ninguno»"};
inline constexpr ClaseValor Horizontal{u"horizontal", u"izquierda|centro|derecha", u"«izquierda», «centro» o «derecha»"};
inline constexpr ClaseValor Vertical{u"vertical", u"arriba|centro|abajo", u"«arriba», «centro» o «abajo»"};
inline constexpr ClaseValor Sentido{u"sentido", u"ascendente|descendente", u"«ascendente» o «descendente»"};
inline constexpr ClaseValor Orientacion{u"orientacion", u"vertical|apaisada", u"«vertical» o «apaisada»"};
inline constexpr ClaseValor Cero{u"cero", u"blanco", u"«blanco»"};
inline constexpr ClaseValor Formato{u"formato", u"general|entero|numero|moneda|porcentaje|fecha|fecha-hora|hora",
                                    u"«general», «entero», «numero», «moneda», «porcentaje», «fecha», «fecha-hora» u «hora»"};
inline constexpr ClaseValor Total{u"total", u"suma|cuenta|media|minimo|maximo", u"«suma», «cuenta», «media», «minimo» o «maximo»"};
inline constexpr ClaseValor Papel{u"papel", u"A3|A4|A5|carta|[1-9][0-9]{1,3}(\\.[0-9]{1,2})?x[1-9][0-9]{1,3}(\\.[0-9]{1,2})?",
                                  u"«A3», «A4», «A5», «carta» o ANCHOxALTO en milímetros, como 100x150"};
inline constexpr ClaseValor Margenes{u"margenes", u"[0-9]{1,3}(\\.[0-9]{1,3})?( [0-9]{1,3}(\\.[0-9]{1,3})?){3}",
                                     u"cuatro medidas: izquierda, arriba, derecha y abajo, como «12 10 12 10»"};
inline constexpr ClaseValor FicheroPartes{u"ficheroPartes", u"([A-Za-z0-9_-]+/){0,3}[A-Za-z0-9_-]+\\.xml",
                                          u"un fichero .xml de la carpeta de los informes, como partes/familia.xml"};
inline constexpr ClaseValor FicheroImagen{u"ficheroImagen", u"([^/\\\\:*?.][^/\\\\:*?]*/){0,3}[^/\\\\:*?.][^/\\\\:*?]*",
                                          u"un fichero de la carpeta del programa, como fotos/logo.png"};

} // namespace kestrane::report::clases
