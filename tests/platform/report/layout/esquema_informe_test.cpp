#include "platform/report/layout/arbol_xml.h"
#include "platform/report/layout/soporte.h"
#include "platform/report/layout/vocabulario.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <map>
#include <set>

// layouts/informe.xsd and the reader's tables say the same, and refuse the same.

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

const QString CarpetaLayouts = QStringLiteral(KESTRANE_LAYOUTS);

/// What a schema says of one kind of element: "@titulo texto obligatorio", "banda seccion", "texto".
using Dichos = std::set<QString>;

struct Esquema
{
    std::map<QString, Dichos> tipos;
    std::map<QString, QString> patrones;
};

Esquema delEsquema()
{
    QFile fichero{CarpetaLayouts + u"/informe.xsd"_s};
    if (!fichero.open(QIODevice::ReadOnly))
        throw std::runtime_error{"no schema"};
    QXmlStreamReader xml{&fichero};
    Esquema esquema;
    QString tipo;
    QString clase;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto dice = [&](const QString& cual) { return xml.attributes().value(cual).toString(); };
        if (xml.name() == u"complexType") {
            tipo = dice(u"name"_s);
            esquema.tipos[tipo] = dice(u"mixed"_s) == u"true" ? Dichos{u"texto propio"_s} : Dichos{};
        } else if (xml.name() == u"simpleType") {
            clase = dice(u"name"_s);
            esquema.patrones[clase] = QString{};
        } else if (xml.name() == u"pattern") {
            esquema.patrones[clase] = dice(u"value"_s);
        } else if (xml.name() == u"element" && !tipo.isEmpty()) {
            esquema.tipos[tipo].insert(dice(u"name"_s) + u' ' + dice(u"type"_s));
        } else if (xml.name() == u"attribute") {
            const QString obligatorio = dice(u"use"_s) == u"required" ? u" obligatorio"_s : QString{};
            esquema.tipos[tipo].insert(u'@' + dice(u"name"_s) + u' ' + dice(u"type"_s) + obligatorio);
        }
    }
    return esquema;
}

Esquema deLasTablas()
{
    Esquema esquema;
    for (const TipoElemento& tipo : tiposDeElemento()) {
        Dichos& dichos = esquema.tipos[tipo.tipo.toString()];
        if (tipo.texto == TextoPropio::Si)
            dichos.insert(u"texto propio"_s);
        for (const HijoVocabulario& hijo : tipo.hijos)
            dichos.insert(hijo.nombre.toString() + u' ' + hijo.tipo.toString());
        for (const AtributoVocabulario& atributo : tipo.atributos)
            dichos.insert(u'@' + atributo.nombre.toString() + u' ' + atributo.clase->nombre.toString() +
                          (atributo.presencia == Presencia::Obligatorio ? u" obligatorio"_s : QString{}));
    }
    for (const ClaseValor& clase : clasesDeValor())
        esquema.patrones[clase.nombre.toString()] = clase.patron.toString();
    return esquema;
}

/// Whether xmllint finds the file valid.
bool esValido(const QString& ruta)
{
    QProcess xmllint;
    xmllint.start(u"xmllint"_s, {u"--noout"_s, u"--schema"_s, CarpetaLayouts + u"/informe.xsd"_s, ruta});
    if (!xmllint.waitForFinished() || xmllint.exitStatus() != QProcess::NormalExit)
        throw std::runtime_error{"xmllint does not run"};
    constexpr int NoEsValido = 3;
    if (xmllint.exitCode() != 0 && xmllint.exitCode() != NoEsValido)
        throw std::runtime_error{xmllint.readAllStandardError().toStdString()};
    return xmllint.exitCode() == 0;
}

bool loLeeElLector(const QByteArray& xml)
{
    return prueba::numeroDeError([&] { return leeArbol(xml, u"K_x.rpt"_s, u"informe").nombre; }) == 0;
}

TEST(EsquemaInforme, ConoceLosMismosElementosYAtributosQueElLector)
{
    const Esquema esquema = delEsquema();
    const Esquema tablas = deLasTablas();
    EXPECT_EQ(esquema.tipos.size(), tablas.tipos.size());
    for (const auto& [tipo, dichos] : tablas.tipos) {
        const auto otro = esquema.tipos.find(tipo);
        ASSERT_NE(otro, esquema.tipos.end()) << tipo.toStdString();
        EXPECT_EQ(otro->second, dichos) << tipo.toStdString();
    }
    EXPECT_EQ(esquema.patrones, tablas.patrones);
}

TEST(EsquemaInforme, TodosLosLayoutsSonValidos)
{
    const QDir carpeta{CarpetaLayouts};
    for (const QString& fichero : carpeta.entryList({u"*.rpt"_s}))
        EXPECT_TRUE(esValido(carpeta.filePath(fichero))) << fichero.toStdString();
    const QDir partes{carpeta.filePath(u"partes"_s)};
    for (const QString& fichero : partes.entryList({u"*.xml"_s}))
        EXPECT_TRUE(esValido(partes.filePath(fichero))) << fichero.toStdString();
}

class AmbosDicen : public testing::Test
{
protected:
    void dicen(bool bien, const QString& contenido)
    {
        const QByteArray xml =
            (u"<informe xmlns=\"urn:kestrane:informe\" titulo=\"x\"><consulta>select a from informes</consulta>"_s + contenido +
             u"</informe>"_s)
                .toUtf8();
        QFile fichero{m_carpeta.filePath(u"K_x.rpt"_s)};
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(xml);
        fichero.close();
        EXPECT_EQ(loLeeElLector(xml), bien) << contenido.toStdString();
        EXPECT_EQ(esValido(fichero.fileName()), bien) << contenido.toStdString();
    }

    QTemporaryDir m_carpeta;
};

TEST_F(AmbosDicen, QueSi)
{
    dicen(true, {});
    dicen(true, u"<pagina papel=\"62.5x29\" margenes=\"1 2 3 4.5\" columnas=\"3\"/>"_s);
    dicen(true,
          u"<detalle><banda alto=\"5\"><texto ancho=\"*\">hola<si condicion=\"1\" estilo=\"a\"/></texto></banda></detalle>"_s);
    dicen(true, u"<detalle><bandas de=\"cabeza-1\"/></detalle><usa fichero=\"partes/familia.xml\"/>"_s);
    dicen(true, u"<detalle><banda alto=\"5\"><imagen fichero=\"fotos/logo de año.png\"/></banda></detalle>"_s);
    dicen(true, u"<estilo nombre=\"a\" letra=\"DejaVu Sans\" cuerpo=\"8.5\" color=\"#A0b1C2\" fondo=\"ninguno\"/>"_s);
}

TEST_F(AmbosDicen, QueNo)
{
    dicen(false, u"<parrafo/>"_s);
    dicen(false, u"<usa/>"_s);
    dicen(false, u"<usa fichero=\"../familia.xml\"/>"_s);
    dicen(false, u"<usa fichero=\"partes/familia.xml\" orden=\"1\"/>"_s);
    dicen(false, u"<detalle>suelto</detalle>"_s);
    dicen(false, u"<detalle><texto>hola</texto></detalle>"_s);
    dicen(false, u"<detalle><banda alto=\"5,5\"/></detalle>"_s);
    dicen(false, u"<detalle><banda alto=\" 5\"/></detalle>"_s);
    dicen(false, u"<detalle><banda/></detalle>"_s);
    dicen(false, u"<pagina orientacion=\"tumbada\"/>"_s);
    dicen(false, u"<pagina margenes=\"1 2 3\"/>"_s);
    dicen(false, u"<estilo nombre=\"a b\"/>"_s);
    dicen(false, u"<estilo nombre=\"a\" negrita=\"sí\"/>"_s);
    dicen(false, u"<estilo nombre=\"a\" color=\"rojo\"/>"_s);
    dicen(false, u"<tabla><columna titulo=\"A\"/></tabla>"_s);
    dicen(false, u"<detalle><banda alto=\"5\"><imagen fichero=\"fotos/../../x.png\"/></banda></detalle>"_s);
    dicen(false, u"<otro:usa xmlns:otro=\"urn:otro\" fichero=\"a.xml\"/>"_s);
}

} // namespace
} // namespace kestrane::report
