#include "platform/report/layout/soporte.h"
#include "platform/report/layout/vocabulario.h"

#include <QFile>
#include <QRegularExpression>

#include <map>
#include <set>

// docs/layouts.md tells every attribute that the reader takes, and no other; its example is one.

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

QString documento()
{
    QFile fichero{QStringLiteral(KESTRANE_DOCS) + u"/layouts.md"_s};
    if (!fichero.open(QIODevice::ReadOnly))
        throw std::runtime_error{"no document"};
    return QString::fromUtf8(fichero.readAll());
}

/// Attributes by the heading under which their table stands; "!" behind the required ones.
std::map<QString, std::set<QString>> atributosDelDocumento()
{
    static const QRegularExpression Titulo{u"^### `([^`]+)`$"_s};
    static const QRegularExpression Fila{u"^\\| `([^`]+)` \\|.*\\| ([^|]*) \\|$"_s};
    std::map<QString, std::set<QString>> todos;
    QString seccion;
    for (const QString& linea : documento().split(u'\n')) {
        if (linea.startsWith(u'#'))
            seccion = Titulo.match(linea).captured(1);
        const auto fila = Fila.match(linea);
        if (!seccion.isEmpty() && fila.hasMatch())
            todos[seccion].insert(fila.captured(1) + (fila.captured(2) == u"required" ? u"!"_s : QString{}));
    }
    return todos;
}

QString tituloDe(const TipoElemento& tipo)
{
    if (tipo.tipo == u"elementoTexto")
        return u"texto"_s;
    if (tipo.tipo == u"bandasComunes")
        return u"bandas nombre"_s;
    return tipo.tipo == u"usaBandas" ? u"bandas de"_s : tipo.tipo.toString();
}

TEST(DocumentoLayouts, CuentaTodosLosAtributos)
{
    const auto contados = atributosDelDocumento();
    for (const TipoElemento& tipo : tiposDeElemento()) {
        if (tipo.atributos.empty())
            continue;
        std::set<QString> suyos;
        for (const AtributoVocabulario& atributo : tipo.atributos)
            suyos.insert(atributo.nombre.toString() + (atributo.presencia == Presencia::Obligatorio ? u"!"_s : QString{}));
        const auto hallados = contados.find(tituloDe(tipo));
        ASSERT_NE(hallados, contados.end()) << tituloDe(tipo).toStdString();
        EXPECT_EQ(hallados->second, suyos) << tituloDe(tipo).toStdString();
    }
}

TEST(DocumentoLayouts, SuEjemploSeLee)
{
    static const QRegularExpression Ejemplo{u"```xml\\n(<\\?xml.*?)```"_s, QRegularExpression::DotMatchesEverythingOption};
    const QString xml = Ejemplo.match(documento()).captured(1);
    const Layout layout = leeLayout(xml.toUtf8(), u"K_MiInforme.rpt"_s, QStringLiteral(KESTRANE_LAYOUTS));
    EXPECT_EQ(layout.titulo, u"Ventas por empleado"_s);
    EXPECT_EQ(layout.grupos.size(), 1U);
    EXPECT_EQ(layout.columnas.size(), 5U);
    EXPECT_EQ(layout.agregados.size(), 4U);
}

} // namespace
} // namespace kestrane::report
