#include "platform/report/informe_de_prueba.h"

#include "platform/report/filas_agrupadas.h"

#include <cmath>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;
using namespace report;

namespace {

constexpr double Margen = 10;
constexpr double AnchoUtil = 190;

QString redondo(double valor)
{
    return QString::number(std::round(valor * 100) / 100);
}

template<class Escribe>
QStringList recorreTextos(const PaginaCompuesta& pagina, Escribe escribe)
{
    QStringList textos;
    for (const Primitiva& primitiva : pagina.primitivas) {
        const auto* const texto = std::get_if<TextoCompuesto>(&primitiva);
        if (!texto)
            continue;
        const Estilo& estilo = (*pagina.estilos)[static_cast<size_t>(texto->estilo)];
        textos << escribe(*texto, texto->base - QPointF{0, MedidaEstilo{estilo}.ascendente()});
    }
    return textos;
}

} // namespace

LayoutDePrueba::LayoutDePrueba()
{
    layout.fichero = u"prueba.rpt"_s;
    layout.titulo = u"Prueba"_s;
    layout.pagina.margenes = {Margen, Margen, Margen, Margen};
}

Expresion LayoutDePrueba::expresion(const QString& texto, int nivel)
{
    ContextoAnalisis contexto{{}, nivel, layout.agregados};
    for (const Grupo& grupo : layout.grupos)
        contexto.grupos << grupo.nombre;
    return analizaExpresion(texto, {layout.fichero, 1}, contexto);
}

Texto LayoutDePrueba::texto(const QString& valor, int nivel)
{
    Texto texto;
    texto.caja = {0, 0, AnchoUtil, 4};
    texto.valor = expresion(valor, nivel);
    texto.estilo.cuerpo = 10;
    texto.estilo.vertical = Vertical::Arriba;
    return texto;
}

Texto LayoutDePrueba::crece(const QString& valor, double ancho)
{
    Texto uno = texto(valor);
    uno.caja.setWidth(ancho);
    uno.crece = true;
    return uno;
}

Banda LayoutDePrueba::banda(double alto, const QString& valor, int nivel)
{
    Banda banda;
    banda.alto = alto;
    banda.elementos.emplace_back(texto(valor, nivel));
    return banda;
}

Grupo& LayoutDePrueba::grupo(const QString& columna, double altoCabecera, const QString& pie)
{
    layout.grupos.emplace_back();
    const auto nivel = static_cast<int>(layout.grupos.size());
    layout.grupos.back().nombre = columna;
    const Expresion por = expresion(columna);
    const Banda cabecera = banda(altoCabecera, u"'%1 ' & %1"_s.arg(columna), nivel);
    Grupo& grupo = layout.grupos.back();
    grupo.por = por;
    grupo.cabecera.push_back(cabecera);
    if (!pie.isEmpty())
        grupo.pie.push_back(banda(10, pie, nivel));
    return grupo;
}

void LayoutDePrueba::altoUtil(double alto)
{
    layout.pagina.tamano.setHeight(alto + 2 * Margen);
}

CopiaFilas copiaDe(const QStringList& columnas, const std::vector<std::vector<Valor>>& filas)
{
    auto almacen = std::make_shared<database::AlmacenFilas>(static_cast<int>(columnas.size()));
    for (const auto& fila : filas) {
        almacen->empiezaFila();
        for (const Valor& valor : fila)
            almacen->ponValor(valor);
        almacen->terminaFila();
    }
    return {columnas, almacen};
}

CopiaFilas copiaNumerada(int cuantas)
{
    std::vector<std::vector<Valor>> filas;
    for (int i = 1; i <= cuantas; ++i)
        filas.push_back({i});
    return copiaDe({u"n"_s}, filas);
}

PaginasDePrueba::PaginasDePrueba(const Layout& layout, const CopiaFilas& filas, const QHash<QString, CopiaFilas>& deSubinformes)
    : m_maquetado{layout,
                  [&](const Layout& parte) {
                      const bool esPrincipal = !deSubinformes.contains(parte.sentencia);
                      return std::make_unique<FilasAgrupadas>(parte, esPrincipal ? filas : deSubinformes[parte.sentencia],
                                                              m_regional);
                  },
                  m_regional}
{
}

std::vector<PaginaCompuesta> PaginasDePrueba::paginas()
{
    while (!m_maquetado.completo())
        m_maquetado.avanza();
    std::vector<PaginaCompuesta> paginas;
    for (int i = 0; i < m_maquetado.paginas(); ++i)
        paginas.push_back(m_maquetado.pagina(i));
    return paginas;
}

std::vector<QStringList> PaginasDePrueba::textos()
{
    std::vector<QStringList> textos;
    for (const PaginaCompuesta& pagina : paginas())
        textos.push_back(textosConAltura(pagina));
    return textos;
}

QStringList textosDe(const PaginaCompuesta& pagina)
{
    return recorreTextos(pagina, [](const TextoCompuesto& texto, QPointF) { return texto.texto; });
}

QStringList textosConAltura(const PaginaCompuesta& pagina)
{
    return recorreTextos(pagina,
                         [](const TextoCompuesto& texto, QPointF lugar) { return texto.texto + u'@' + redondo(lugar.y()); });
}

QStringList textosConLugar(const PaginaCompuesta& pagina)
{
    return recorreTextos(pagina, [](const TextoCompuesto& texto, QPointF lugar) {
        return u"%1@%2,%3"_s.arg(texto.texto, redondo(lugar.x()), redondo(lugar.y()));
    });
}

} // namespace kestrane::prueba
