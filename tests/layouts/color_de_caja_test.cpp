#include "layouts/papel_de_caja.h"
#include "platform/report/documento.h"

#include <QRegularExpression>

// Negative amounts catch the eye on sheets; rolls are black, for their printer has no other ink.

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

struct TextoPintado
{
    QString texto;
    QColor color;
};

std::vector<TextoPintado> pinta(TiendaDePrueba& tienda, const QString& layout)
{
    report::Documento documento{QStringLiteral(KESTRANE_LAYOUTS) + u'/' + layout, tienda.entorno()};
    documento.completa();
    std::vector<TextoPintado> textos;
    for (int i = 0; i < documento.paginas(); ++i) {
        const report::PaginaCompuesta pagina = documento.pagina(i);
        for (const report::Primitiva& una : pagina.primitivas) {
            if (const auto* texto = std::get_if<report::TextoCompuesto>(&una))
                textos.push_back({texto->texto, pagina.estilos->at(static_cast<size_t>(texto->estilo)).color});
        }
    }
    return textos;
}

class ColorDeCaja : public testing::TestWithParam<std::string>
{
protected:
    [[nodiscard]] static QString layout() { return QString::fromStdString(GetParam()); }

    void ponLinea(double importe)
    {
        FilaDeCaja fila{{u"texto20"_s, u"Ana P"_s}, {u"texto22"_s, u"2"_s}, {u"texto23"_s, u"1"_s}, {u"texto24"_s, u"7"_s}};
        for (const int columna : {1, 2, 3, 4, 5, 8, 9, 13, 14, 19, 22})
            fila.emplace_back(u"numerico%1"_s.arg(columna), importe);
        ponInforme(m_tienda, fila);
        pon(m_tienda, u"subinformes"_s, {{u"texto1"_s, u"Gastos del Dia:"_s}, {u"numerico1"_s, importe}});
    }

    TiendaDePrueba m_tienda;
};

class ColorDeHoja : public ColorDeCaja
{
protected:
    /// How many figures there are, and whether each is painted in red or none.
    void cuentaCifras(bool enRojo)
    {
        static const QRegularExpression Cifra{u"^-?[0-9.]*[0-9](,[0-9]+)?$"_s};
        static const QColor Rojo{0xb3, 0x26, 0x1e};
        int cifras = 0;
        for (const TextoPintado& uno : pinta(m_tienda, layout())) {
            if (!Cifra.match(uno.texto).hasMatch() || uno.texto.startsWith(u'-') != enRojo)
                continue;
            ++cifras;
            EXPECT_EQ(uno.color == Rojo, enRojo) << uno.texto.toStdString();
        }
        EXPECT_GT(cifras, 4);
    }
};

TEST_P(ColorDeHoja, IsRedWhereAnAmountIsNegative)
{
    ponLinea(-12.5);
    cuentaCifras(true);
}

TEST_P(ColorDeHoja, IsNeverRedWhereAnAmountIsNot)
{
    ponLinea(12.5);
    cuentaCifras(false);
}

class ColorDeRollo : public ColorDeCaja
{
};

TEST_P(ColorDeRollo, IsBlack)
{
    ponLinea(-12.5);
    for (const TextoPintado& uno : pinta(m_tienda, layout()))
        EXPECT_TRUE(uno.color == Qt::black) << uno.texto.toStdString();
}

std::vector<std::string> losQueVan(bool enRollo)
{
    auto suyos = nombresDeCaja();
    std::erase_if(suyos, [&](const std::string& layout) { return vaEnRollo(QString::fromStdString(layout)) != enRollo; });
    return suyos;
}

INSTANTIATE_TEST_SUITE_P(Hojas, ColorDeHoja, testing::ValuesIn(losQueVan(false)), nombreDePrueba);
INSTANTIATE_TEST_SUITE_P(Rollos, ColorDeRollo, testing::ValuesIn(losQueVan(true)), nombreDePrueba);

} // namespace
} // namespace kestrane::prueba
