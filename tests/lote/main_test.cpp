#include "apoyo/tienda_de_prueba.h"
#include "lote/estado_de_salida.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <memory>
#include <vector>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

std::unique_ptr<QProcess> arranca(const TiendaDePrueba& tienda, const QStringList& argumentos)
{
    auto proceso = std::make_unique<QProcess>();
    proceso->start(QStringLiteral(KESTRANE_LISTADOS_LOTE),
                   QStringList{u"--datos"_s, tienda.carpeta(), u"--regional"_s, u"es_ES"_s} + argumentos);
    return proceso;
}

TEST(ListadosLote, TheProgramEndsWithItsStatusAndKeepsErrorsApart)
{
    TiendaDePrueba tienda;
    const auto proceso = arranca(tienda, {u"cmd_Marcas"_s, u"--mes"_s, u"3"_s});
    ASSERT_TRUE(proceso->waitForFinished());
    EXPECT_EQ(proceso->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(proceso->exitCode(), SalidaSinDatos);
    EXPECT_EQ(proceso->readAllStandardError(), "listados-lote: cmd_Marcas no ofrece --mes, que se ignora.\n");
    EXPECT_TRUE(proceso->readAllStandardOutput().endsWith("}]\n"));
}

TEST(ListadosLote, TenAtOnceBesideAnOpenReportsDatabaseWriteTheSame)
{
    TiendaDePrueba tienda;
    for (int i = 0; i < 300; ++i)
        tienda.ejecuta(u"insert into marcas (codigo, nombre) values (%1, 'Marca %1')"_s.arg(i));
    tienda.ejecutaListados(u"insert into informes (texto1) values ('del programa')"_s);
    std::vector<std::unique_ptr<QProcess>> procesos;
    for (int i = 0; i < 10; ++i)
        procesos.push_back(arranca(tienda, {u"cmd_Marcas"_s}));
    QByteArray primero;
    for (const auto& proceso : procesos) {
        ASSERT_TRUE(proceso->waitForFinished(120000)) << proceso->errorString().toStdString();
        EXPECT_EQ(proceso->exitCode(), SalidaBien) << proceso->readAllStandardError().toStdString();
        const QByteArray salida = proceso->readAllStandardOutput();
        EXPECT_EQ(salida.count("Marca "), 300);
        EXPECT_TRUE(primero.isEmpty() || salida == primero);
        primero = salida;
    }
}

} // namespace
} // namespace kestrane::lote
