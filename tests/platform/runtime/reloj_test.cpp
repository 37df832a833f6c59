#include "platform/runtime/reloj.h"

#include "platform/runtime/soporte.h"

#include <QDateTime>

namespace kestrane {
namespace {

using prueba::dia;

TEST(RelojFijo, EstaParadoHastaQueSePone)
{
    RelojFijo reloj{dia(2024, 3, 15, 9, 5, 0)};
    EXPECT_EQ(reloj.ahora(), dia(2024, 3, 15, 9, 5, 0));
    EXPECT_EQ(reloj.hoy(), dia(2024, 3, 15));
    reloj.pon(dia(2024, 3, 16));
    EXPECT_EQ(reloj.ahora(), dia(2024, 3, 16));
}

QDateTime comoQt(Fecha fecha)
{
    return {QDate{fecha.anio(), fecha.mes(), fecha.dia()}, QTime{fecha.hora(), fecha.minuto(), fecha.segundo()}};
}

TEST(RelojSistema, DaElDiaYLaHoraLocales)
{
    const RelojSistema reloj;
    const QDateTime antes = QDateTime::currentDateTime();
    const QDateTime ahora = comoQt(reloj.ahora());
    const QDateTime despues = QDateTime::currentDateTime();
    EXPECT_LE(antes.addSecs(-1), ahora); // whole seconds
    EXPECT_LE(ahora, despues);
    EXPECT_TRUE(reloj.hoy().esMedianoche());
}

} // namespace
} // namespace kestrane
