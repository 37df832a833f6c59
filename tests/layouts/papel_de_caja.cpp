#include "layouts/papel_de_caja.h"

#include "platform/report/export/exportacion.h"

#include <QDir>
#include <QFile>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

/// Whole words only: "1,00" is not found within "21,00".
bool tiene(const QString& texto, const QString& palabras)
{
    return (u' ' + texto + u' ').contains(u' ' + palabras.simplified() + u' ');
}

} // namespace

testing::AssertionResult PapelDeCaja::dice(const QString& palabras) const
{
    if (tiene(texto(), palabras))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "«" << palabras.toStdString() << "» is not in: " << texto().toStdString();
}

testing::AssertionResult PapelDeCaja::calla(const QString& palabras) const
{
    if (!tiene(texto(), palabras))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "«" << palabras.toStdString() << "» is in: " << texto().toStdString();
}

testing::AssertionResult PapelDeCaja::diceEnOrden(const QStringList& trozos) const
{
    const QString todo = u' ' + texto() + u' ';
    qsizetype desde = 0;
    for (const QString& trozo : trozos) {
        const QString buscado = u' ' + trozo.simplified() + u' ';
        const qsizetype hallado = todo.indexOf(buscado, desde);
        if (hallado < 0)
            return testing::AssertionFailure() << "«" << trozo.toStdString() << "» does not come next in: " << todo.toStdString();
        desde = hallado + buscado.size() - 1;
    }
    return testing::AssertionSuccess();
}

PapelDeCaja imprimeCaja(TiendaDePrueba& tienda, const QString& layout)
{
    const QString pdf = QDir{tienda.carpeta()}.filePath(u"caja.pdf"_s);
    report::Documento documento{QStringLiteral(KESTRANE_LAYOUTS) + u'/' + layout, tienda.entorno()};
    EXPECT_TRUE(report::exporta(documento, report::FormatoExportacion::Pdf, pdf));
    PapelDeCaja papel{leePapel(pdf), {}, documento.pagina(0).tamano.width(), {}};
    for (const report::DatosSubinforme& uno : documento.subinformes())
        papel.filasDe[uno.titulo] = uno.filas.filas();
    for (const PaginaLeida& pagina : papel.paginas) {
        QStringList palabras;
        for (const Palabra& palabra : pagina)
            palabras << palabra.texto;
        papel.textos << palabras.join(u' ');
    }
    return papel;
}

QString datosDeCaja(TiendaDePrueba& tienda, const QString& layout)
{
    const QString html = QDir{tienda.carpeta()}.filePath(u"caja.html"_s);
    report::Documento documento{QStringLiteral(KESTRANE_LAYOUTS) + u'/' + layout, tienda.entorno()};
    EXPECT_TRUE(report::exporta(documento, report::FormatoExportacion::Html, html));
    QFile fichero{html};
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
    return QString::fromUtf8(fichero.readAll());
}

std::vector<std::string> nombresDeCaja(qsizetype desde, qsizetype cuantos)
{
    static const QStringList Todos{u"K_caja_diariageneral2"_s, u"T_caja_diariageneral2"_s, u"K_caja_diariaResumido"_s,
                                   u"T_caja_diariaResumido"_s, u"K_caja_general"_s,        u"K_caja_general_ticket"_s,
                                   u"T_caja_general_ticket"_s, u"K_caja_tickets"_s,        u"K_porservicios"_s,
                                   u"K_porservicios_ticket"_s, u"K_formapago"_s,           u"T_Albaranes"_s};
    std::vector<std::string> nombres;
    for (const QString& uno : Todos.mid(desde, cuantos))
        nombres.push_back(uno.toStdString() + ".rpt");
    return nombres;
}

bool vaEnRollo(const QString& layout)
{
    return layout.contains(u"ticket"_s);
}

std::string nombreDePrueba(const testing::TestParamInfo<std::string>& caso)
{
    return caso.param.substr(0, caso.param.find('.'));
}

} // namespace kestrane::prueba
