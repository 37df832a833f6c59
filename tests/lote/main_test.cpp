#include "apoyo/tienda_de_prueba.h"
#include "lote/estado_de_salida.h"
#include "platform/database/recordset.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <unistd.h>
#include <vector>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

class ListadosLote : public testing::Test
{
protected:
    [[nodiscard]] QStringList completos(const QStringList& argumentos) const
    {
        return QStringList{u"--datos"_s, m_tienda.carpeta(), u"--regional"_s, u"es_ES"_s} + argumentos;
    }
    [[nodiscard]] std::unique_ptr<QProcess> arranca(const QStringList& argumentos) const
    {
        auto proceso = std::make_unique<QProcess>();
        proceso->start(Programa, completos(argumentos));
        return proceso;
    }
    static int estado(QProcess& proceso)
    {
        EXPECT_TRUE(proceso.waitForFinished(120000)) << proceso.errorString().toStdString();
        EXPECT_EQ(proceso.exitStatus(), QProcess::NormalExit);
        return proceso.exitCode();
    }
    static std::string errores(QProcess& proceso) { return proceso.readAllStandardError().toStdString(); }

    const QString Programa = QStringLiteral(KESTRANE_LISTADOS_LOTE);
    TiendaDePrueba m_tienda;
};

TEST_F(ListadosLote, AnOutputThatIsFullIsAnError)
{
    for (const QStringList& argumentos :
         {QStringList{u"cmd_Marcas"_s}, QStringList{u"--lista"_s}, QStringList{u"--sql"_s, u"select * from marcas"_s}}) {
        QProcess proceso;
        proceso.setStandardOutputFile(u"/dev/full"_s);
        proceso.start(Programa, completos(argumentos));
        EXPECT_EQ(estado(proceso), SalidaError) << argumentos.join(u' ').toStdString();
        const std::string dicho = errores(proceso);
        EXPECT_NE(dicho.find("no se puede escribir en la salida estándar (no queda sitio en el disco).\n"), std::string::npos)
            << dicho;
    }
}

TEST_F(ListadosLote, AnOutputThatIsClosedIsToldBeforeTheWork)
{
    QProcess proceso;
    proceso.start(u"/bin/sh"_s, QStringList{u"-c"_s, u"exec \"$0\" \"$@\" >&-"_s, Programa} + completos({u"--lista"_s}));
    EXPECT_EQ(estado(proceso), SalidaError);
    EXPECT_EQ(errores(proceso), "listados-lote: no se puede escribir en la salida estándar (está cerrada).\n");
}

TEST_F(ListadosLote, WithoutAFolderForTemporaryFilesItSaysSo)
{
    QProcess proceso;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    for (const QString& nombre : {u"/nada"_s, u"/TiendaKestrane.db"_s}) {
        entorno.insert(u"TMPDIR"_s, m_tienda.carpeta() + nombre);
        proceso.setProcessEnvironment(entorno);
        proceso.start(Programa, completos({u"cmd_Marcas"_s}));
        EXPECT_EQ(estado(proceso), SalidaError);
        const std::string dicho = errores(proceso);
        EXPECT_NE(dicho.find("no se puede escribir en la carpeta \""), std::string::npos) << dicho;
        EXPECT_EQ(std::ranges::count(dicho, '\n'), 1) << dicho;
        EXPECT_EQ(proceso.readAllStandardOutput(), "");
    }
}

TEST_F(ListadosLote, TheProgramEndsWithItsStatusAndKeepsErrorsApart)
{
    const auto proceso = arranca({u"cmd_Marcas"_s, u"--mes"_s, u"3"_s});
    EXPECT_EQ(estado(*proceso), SalidaSinDatos);
    EXPECT_EQ(errores(*proceso),
              "listados-lote: No hay datos para ser mostrados.\nlistados-lote: cmd_Marcas no ofrece --mes, que se ignora.\n");
    EXPECT_TRUE(proceso->readAllStandardOutput().endsWith("}]\n"));
}

/// A shop with a brand, and the program, which finds its layouts beside itself.
class ListadosLoteEnPapel : public ListadosLote
{
protected:
    ListadosLoteEnPapel() { m_tienda.ejecuta(u"insert into marcas (codigo, nombre) values (7, 'Ñandú y Cía')"_s); }

    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }
    [[nodiscard]] QStringList nombres() const
    {
        return QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QString textoDePdf(const QString& fichero)
    {
        QProcess lector;
        lector.start(u"pdftotext"_s, {fichero, u"-"_s});
        EXPECT_EQ(estado(lector), 0);
        return QString::fromUtf8(lector.readAllStandardOutput());
    }

    QTemporaryDir m_carpeta;
};

TEST_F(ListadosLoteEnPapel, ADiskWithoutTheFolderIsAnErrorBeforeTheWork)
{
    const auto proceso = arranca({u"cmd_Marcas"_s, u"--formato"_s, u"pdf"_s, u"--salida"_s, ruta(u"nada/a.pdf"_s)});
    EXPECT_EQ(estado(*proceso), SalidaError);
    EXPECT_EQ(
        errores(*proceso),
        u"listados-lote: no se puede escribir el resultado (\"%1\": no existe).\n"_s.arg(ruta(u"nada/a.pdf"_s)).toStdString());
}

TEST_F(ListadosLoteEnPapel, PagesAndPicturesNeedNoScreenAndSayNothing)
{
    for (const QString& formato : {u"pdf"_s, u"png"_s}) {
        QProcess proceso;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        for (const QString& nombre : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"XDG_RUNTIME_DIR"_s, u"QT_QPA_PLATFORM"_s})
            entorno.remove(nombre);
        proceso.setProcessEnvironment(entorno);
        proceso.start(Programa, completos({u"cmd_Marcas"_s, u"--formato"_s, formato, u"--salida"_s, ruta(u"a."_s + formato)}));
        EXPECT_EQ(estado(proceso), SalidaBien);
        EXPECT_EQ(errores(proceso), "");
        EXPECT_EQ(proceso.readAllStandardOutput(), "");
    }
    EXPECT_EQ(nombres(), (QStringList{u"a.pdf"_s, u"a.png"_s}));
    EXPECT_TRUE(textoDePdf(ruta(u"a.pdf"_s)).contains(u"Ñandú y Cía"_s));
}

TEST_F(ListadosLoteEnPapel, APageGoesThroughAPipe)
{
    const auto proceso = arranca({u"cmd_Marcas"_s, u"--formato"_s, u"pdf"_s});
    EXPECT_EQ(estado(*proceso), SalidaBien);
    QFile fichero{ruta(u"a.pdf"_s)};
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write(proceso->readAllStandardOutput());
    fichero.close();
    EXPECT_TRUE(textoDePdf(fichero.fileName()).contains(u"Ñandú y Cía"_s));
}

TEST_F(ListadosLoteEnPapel, PicturesOfSeveralPagesNeedAPlace)
{
    for (int marca = 100; marca < 300; ++marca)
        m_tienda.ejecuta(u"insert into marcas (codigo, nombre) values (%1, 'Marca %1')"_s.arg(marca));
    const auto alTubo = arranca({u"cmd_Marcas"_s, u"--formato"_s, u"png"_s});
    EXPECT_EQ(estado(*alTubo), SalidaUso);
    EXPECT_TRUE(errores(*alTubo).ends_with(" ficheros: indique dónde con --salida FICHERO.\n"));
    EXPECT_EQ(alTubo->readAllStandardOutput(), "");
    const auto aFicheros = arranca({u"cmd_Marcas"_s, u"--formato"_s, u"png"_s, u"--salida"_s, ruta(u"a.png"_s)});
    EXPECT_EQ(estado(*aFicheros), SalidaBien);
    EXPECT_GE(nombres().size(), 2);
    EXPECT_EQ(nombres().constFirst(), u"a_001.png"_s);
}

TEST_F(ListadosLoteEnPapel, WhatIsNoTextIsRefusedOnATerminal)
{
    for (const QString& formato : {u"pdf"_s, u"png"_s, u"xlsx"_s}) {
        const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
        ASSERT_TRUE(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
        QProcess proceso;
        proceso.setStandardOutputFile(QFile::decodeName(ptsname(terminal)));
        proceso.start(Programa, completos({u"cmd_Marcas"_s, u"--formato"_s, formato}));
        EXPECT_EQ(estado(proceso), SalidaUso);
        EXPECT_EQ(errores(proceso), "listados-lote: Ese formato no se lee en un terminal: indique --salida FICHERO.\n");
        close(terminal);
    }
}

TEST_F(ListadosLote, TenAtOnceBesideAProgramThatFillsItsReportsDatabaseWriteTheSame)
{
    for (int i = 0; i < 300; ++i)
        m_tienda.ejecuta(u"insert into marcas (codigo, nombre) values (%1, 'Marca %1')"_s.arg(i));
    std::vector<std::unique_ptr<QProcess>> procesos;
    for (int i = 0; i < 10; ++i)
        procesos.push_back(arranca({u"cmd_Marcas"_s}));
    const auto trabaja = [](const auto& proceso) { return proceso->state() != QProcess::NotRunning; };
    int filas = 0;
    while (std::ranges::any_of(procesos, trabaja)) {
        m_tienda.ejecutaListados(u"insert into informes (texto1) values ('del programa')"_s);
        ++filas;
        for (const auto& proceso : procesos)
            proceso->waitForFinished(0);
    }
    QByteArray primero;
    for (const auto& proceso : procesos) {
        EXPECT_EQ(proceso->exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(proceso->exitCode(), SalidaBien) << errores(*proceso);
        const QByteArray salida = proceso->readAllStandardOutput();
        EXPECT_EQ(salida.count("Marca "), 300);
        EXPECT_FALSE(salida.contains("del programa"));
        EXPECT_TRUE(primero.isEmpty() || salida == primero);
        primero = salida;
    }
    EXPECT_GT(filas, 0);
    Recordset escritas;
    escritas.Open(u"select * from informes"_s, m_tienda.listados());
    EXPECT_EQ(escritas.RecordCount(), filas);
}

} // namespace
} // namespace kestrane::lote
