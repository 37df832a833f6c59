#include "layouts/listado_de_prueba.h"
#include "platform/report/export/exportacion.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>

#include <cmath>

// Every listing as a spreadsheet, read back by another program: texts are texts, figures are figures with their format.

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::Clase;
using prueba::Columna;
using prueba::Forma;
using prueba::Listado;

QString casilla(size_t columna, int fila)
{
    return QChar{static_cast<char16_t>(u'A' + columna)} + QString::number(fila);
}

/// As the reader tells a cell, without what is bold.
QString contenido(const Valor& valor, Clase clase)
{
    if (clase != Clase::Entero && clase != Clase::Importe)
        return u"str\t%1\tGeneral\t"_s.arg(valor.texto());
    const QString formato = clase == Clase::Entero ? u"#,##0;-#,##0;"_s : u"#,##0.00"_s;
    const double cifra = valor.doble();
    const QString tipo = std::floor(cifra) == cifra ? u"int"_s : u"float"_s;
    return u"%1\t%2\t%3\t"_s.arg(tipo, QString::number(cifra, 'g', 15), formato);
}

class HojaDeListado : public testing::TestWithParam<std::tuple<int, int>>
{
protected:
    [[nodiscard]] static const Listado& listado()
    {
        return prueba::listadosEntregados()[static_cast<size_t>(std::get<0>(GetParam()))];
    }
    [[nodiscard]] static int filas() { return std::get<1>(GetParam()); }

    QStringList exportada()
    {
        const QString xlsx = QDir{m_tienda.carpeta()}.filePath(u"a.xlsx"_s);
        Documento documento{QStringLiteral(KESTRANE_LAYOUTS) + u'/' + listado().fichero, m_tienda.entorno()};
        EXPECT_TRUE(exporta(documento, FormatoExportacion::Xlsx, xlsx));
        QProcess lector;
        lector.start(u"/usr/bin/python3"_s, {QStringLiteral(KESTRANE_LEE_XLSX), xlsx});
        EXPECT_TRUE(lector.waitForFinished(-1));
        EXPECT_EQ(lector.exitCode(), 0) << lector.readAllStandardError().toStdString();
        return QString::fromUtf8(lector.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts).mid(3);
    }

    /// Which of the test's rows stands at that place: the days of a pack are turned round.
    [[nodiscard]] static int filaEn(int lugar)
    {
        if (listado().forma != Forma::PacksPorDias)
            return lugar;
        const int primera = lugar - lugar % prueba::ServiciosPorPack;
        const int ultima = std::min(primera + prueba::ServiciosPorPack, filas()) - 1;
        return ultima - (lugar - primera);
    }

    [[nodiscard]] static QStringList esperada()
    {
        QStringList lineas;
        const auto& columnas = listado().columnas;
        for (size_t i = 0; i < columnas.size(); ++i)
            lineas << casilla(i, 1) + u"\tstr\t"_s + columnas[i].titulo + u"\tGeneral\tbold"_s;
        int enHoja = 1;
        for (int lugar = 0; lugar < filas(); ++lugar) {
            const int fila = filaEn(lugar);
            if (listado().conPacks() && lugar % prueba::ServiciosPorPack == 0)
                lineas << casilla(0, ++enHoja) + u"\tstr\t"_s + valorDe(listado(), fila, u"texto2"_s).texto() +
                              u"\tGeneral\tbold"_s;
            ++enHoja;
            for (size_t i = 0; i < columnas.size(); ++i) {
                const Valor valor = valorDe(listado(), fila, columnas[i].campo);
                if (!valor.esNulo())
                    lineas << casilla(i, enHoja) + u'\t' + contenido(valor, columnas[i].clase);
            }
        }
        return lineas;
    }

    prueba::TiendaDePrueba m_tienda;
};

TEST_P(HojaDeListado, EachCellHasItsValueAndItsKind)
{
    prueba::llena(m_tienda, listado(), filas());
    const QStringList leida = exportada();
    const QStringList lineas = esperada();
    ASSERT_EQ(leida.size(), lineas.size());
    for (qsizetype i = 0; i < lineas.size(); ++i)
        ASSERT_EQ(leida[i].toStdString(), lineas[i].toStdString());
}

INSTANTIATE_TEST_SUITE_P(Listados, HojaDeListado, testing::Combine(testing::Range(0, 12), testing::Values(0, 1, 3, 5000)),
                         [](const auto& caso) {
                             const Listado& uno = prueba::listadosEntregados()[static_cast<size_t>(std::get<0>(caso.param))];
                             return uno.fichero.chopped(4).toStdString() + "_" + std::to_string(std::get<1>(caso.param));
                         });

} // namespace
} // namespace kestrane::report
