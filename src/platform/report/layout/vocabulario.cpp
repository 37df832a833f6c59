#include "platform/report/layout/vocabulario.h"

#include "platform/report/layout/clases_de_valor.h"

#include <algorithm>
#include <stdexcept>

namespace kestrane::report {

namespace {

constexpr auto Obligatorio = Presencia::Obligatorio;

constexpr HijoVocabulario Raices[] = {{u"informe", u"informe"}, {u"partes", u"partes"}};

constexpr AtributoVocabulario DeInforme[] = {{u"titulo", &clases::Texto, Obligatorio}, {u"dsn", &clases::Palabra}};
constexpr HijoVocabulario EnInforme[] = {
    {u"usa", u"usa"},
    {u"pagina", u"pagina"},
    {u"rollo", u"rollo"},
    {u"estilo", u"estilo"},
    {u"consulta", u"consulta"},
    {u"orden", u"orden"},
    {u"grupo", u"grupo"},
    {u"cabecera-informe", u"seccion"},
    {u"cabecera-pagina", u"seccion"},
    {u"detalle", u"seccion"},
    {u"pie-pagina", u"seccion"},
    {u"pie-informe", u"seccion"},
    {u"tabla", u"tabla"},
    {u"datos", u"datos"},
};

constexpr HijoVocabulario EnPartes[] = {{u"estilo", u"estilo"}, {u"bandas", u"bandasComunes"}};
constexpr AtributoVocabulario DeUsa[] = {{u"fichero", &clases::FicheroPartes, Obligatorio}};

constexpr AtributoVocabulario DePagina[] = {
    {u"papel", &clases::Papel},       {u"orientacion", &clases::Orientacion}, {u"margenes", &clases::Margenes},
    {u"columnas", &clases::Columnas}, {u"separacion", &clases::Medida},
};
constexpr AtributoVocabulario DeRollo[] = {
    {u"ancho", &clases::Medida, Obligatorio},
    {u"margenes", &clases::Margenes},
    {u"largo-maximo", &clases::Largo},
};

constexpr AtributoVocabulario DeEstilo[] = {
    {u"nombre", &clases::Nombre, Obligatorio},
    {u"basado-en", &clases::Nombre},
    {u"letra", &clases::Letra},
    {u"cuerpo", &clases::Cuerpo},
    {u"negrita", &clases::SiNo},
    {u"cursiva", &clases::SiNo},
    {u"color", &clases::Color},
    {u"fondo", &clases::Fondo},
    {u"alinea", &clases::Horizontal},
    {u"vertical", &clases::Vertical},
};

constexpr AtributoVocabulario DeOrden[] = {{u"por", &clases::Expresion, Obligatorio}, {u"sentido", &clases::Sentido}};
constexpr AtributoVocabulario DeGrupo[] = {
    {u"nombre", &clases::Palabra, Obligatorio},
    {u"por", &clases::Expresion, Obligatorio},
    {u"sentido", &clases::Sentido},
    {u"ordena", &clases::SiNo},
    {u"salto", &clases::SiNo},
    {u"junto", &clases::SiNo},
    {u"repite", &clases::SiNo},
    {u"titulo", &clases::Expresion},
};
constexpr HijoVocabulario EnGrupo[] = {{u"cabecera", u"seccion"}, {u"pie", u"seccion"}};

constexpr HijoVocabulario EnSeccion[] = {{u"banda", u"banda"}, {u"bandas", u"usaBandas"}};
constexpr AtributoVocabulario DeBandasComunes[] = {{u"nombre", &clases::Nombre, Obligatorio}};
constexpr HijoVocabulario EnBandasComunes[] = {{u"banda", u"banda"}};
constexpr AtributoVocabulario DeUsaBandas[] = {{u"de", &clases::Nombre, Obligatorio}};

constexpr AtributoVocabulario DeBanda[] = {
    {u"alto", &clases::Medida, Obligatorio},
    {u"mostrar", &clases::Expresion},
    {u"salto", &clases::SiNo},
    {u"al-pie", &clases::SiNo},
};
constexpr HijoVocabulario EnBanda[] = {
    {u"texto", u"elementoTexto"}, {u"linea", u"linea"},       {u"marco", u"marco"},
    {u"imagen", u"imagen"},       {u"codigo39", u"codigo39"}, {u"subinforme", u"subinforme"},
};

constexpr AtributoVocabulario DeTexto[] = {
    {u"x", &clases::Medida},
    {u"y", &clases::Medida},
    {u"ancho", &clases::Ancho},
    {u"alto", &clases::Medida},
    {u"valor", &clases::Expresion},
    {u"formato", &clases::Formato},
    {u"decimales", &clases::Decimales},
    {u"cero", &clases::Cero},
    {u"estilo", &clases::Nombre},
    {u"alinea", &clases::Horizontal},
    {u"crece", &clases::SiNo},
    {u"mostrar", &clases::Expresion},
};
constexpr HijoVocabulario ConVariantes[] = {{u"si", u"si"}};
constexpr AtributoVocabulario DeSi[] = {{u"condicion", &clases::Expresion, Obligatorio}, {u"estilo", &clases::Nombre, Obligatorio}};

constexpr AtributoVocabulario DeLinea[] = {
    {u"x", &clases::Medida},      {u"y", &clases::Medida},    {u"ancho", &clases::Ancho},         {u"alto", &clases::Medida},
    {u"grosor", &clases::Medida}, {u"color", &clases::Color}, {u"hasta-el-fondo", &clases::SiNo}, {u"mostrar", &clases::Expresion},
};
constexpr AtributoVocabulario DeMarco[] = {
    {u"x", &clases::Medida},          {u"y", &clases::Medida},    {u"ancho", &clases::Ancho},   {u"alto", &clases::Medida},
    {u"grosor", &clases::Medida},     {u"color", &clases::Color}, {u"relleno", &clases::Fondo}, {u"hasta-el-fondo", &clases::SiNo},
    {u"mostrar", &clases::Expresion},
};
constexpr AtributoVocabulario DeImagen[] = {
    {u"x", &clases::Medida},
    {u"y", &clases::Medida},
    {u"ancho", &clases::Ancho},
    {u"alto", &clases::Medida},
    {u"fichero", &clases::FicheroImagen},
    {u"valor", &clases::Expresion},
    {u"mostrar", &clases::Expresion},
};
constexpr AtributoVocabulario DeCodigo39[] = {
    {u"x", &clases::Medida},
    {u"y", &clases::Medida},
    {u"ancho", &clases::Ancho},
    {u"alto", &clases::Medida},
    {u"valor", &clases::Expresion, Obligatorio},
    {u"leyenda", &clases::SiNo},
    {u"estilo", &clases::Nombre},
    {u"mostrar", &clases::Expresion},
};
constexpr AtributoVocabulario DeSubinforme[] = {
    {u"titulo", &clases::Texto}, {u"x", &clases::Medida},          {u"y", &clases::Medida},
    {u"ancho", &clases::Ancho},  {u"mostrar", &clases::Expresion},
};
constexpr HijoVocabulario EnSubinforme[] = {
    {u"consulta", u"consulta"}, {u"orden", u"orden"},         {u"grupo", u"grupo"}, {u"cabecera-informe", u"seccion"},
    {u"detalle", u"seccion"},   {u"pie-informe", u"seccion"}, {u"tabla", u"tabla"}, {u"datos", u"datos"},
};

constexpr AtributoVocabulario DeTabla[] = {
    {u"cabecera", &clases::Nombre}, {u"celda", &clases::Nombre}, {u"celda-par", &clases::Nombre},
    {u"total", &clases::Nombre},    {u"alto", &clases::Medida},  {u"totales", &clases::SiNo},
};
constexpr HijoVocabulario EnTabla[] = {{u"columna", u"columna"}};
constexpr AtributoVocabulario DeColumna[] = {
    {u"titulo", &clases::Texto, Obligatorio},
    {u"valor", &clases::Expresion, Obligatorio},
    {u"ancho", &clases::Ancho},
    {u"formato", &clases::Formato},
    {u"decimales", &clases::Decimales},
    {u"cero", &clases::Cero},
    {u"alinea", &clases::Horizontal},
    {u"estilo", &clases::Nombre},
    {u"total", &clases::Total},
    {u"crece", &clases::SiNo},
    {u"mostrar", &clases::Expresion},
};

const TipoElemento Tipos[] = {
    {u"informe", DeInforme, EnInforme},
    {u"partes", {}, EnPartes},
    {u"usa", DeUsa, {}},
    {u"pagina", DePagina, {}},
    {u"rollo", DeRollo, {}},
    {u"estilo", DeEstilo, {}},
    {u"consulta", {}, {}, TextoPropio::Si},
    {u"orden", DeOrden, {}},
    {u"grupo", DeGrupo, EnGrupo},
    {u"seccion", {}, EnSeccion},
    {u"bandasComunes", DeBandasComunes, EnBandasComunes},
    {u"usaBandas", DeUsaBandas, {}},
    {u"banda", DeBanda, EnBanda},
    {u"elementoTexto", DeTexto, ConVariantes, TextoPropio::Si},
    {u"si", DeSi, {}},
    {u"linea", DeLinea, {}},
    {u"marco", DeMarco, {}},
    {u"imagen", DeImagen, {}},
    {u"codigo39", DeCodigo39, {}},
    {u"subinforme", DeSubinforme, EnSubinforme},
    {u"tabla", DeTabla, EnTabla},
    {u"columna", DeColumna, ConVariantes},
    {u"datos", {}, EnTabla},
};

} // namespace

std::span<const TipoElemento> tiposDeElemento()
{
    return Tipos;
}

std::span<const HijoVocabulario> raices()
{
    return Raices;
}

const TipoElemento& tipoDeElemento(QStringView tipo)
{
    const auto* hallado = std::ranges::find_if(Tipos, [&](const TipoElemento& t) { return t.tipo == tipo; });
    if (hallado == std::ranges::end(Tipos))
        throw std::logic_error{"no such kind of element: " + tipo.toString().toStdString()};
    return *hallado;
}

} // namespace kestrane::report
