#pragma once

#include "platform/report/preview/fuente_de_prueba.h"
#include "platform/report/preview/lienzo.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>

namespace kestrane::report::prueba {

/// A canvas of 900 by 700 points, shown, on a report of `hojas`.
class LienzoDePrueba : public testing::Test
{
protected:
    explicit LienzoDePrueba(QList<QStringList> hojas = {{QStringLiteral("Peluquería|12,50")},
                                                        {QStringLiteral("Corte|8,00")},
                                                        {QStringLiteral("Tinte|30,00")}})
        : fuente{std::move(hojas)}
    {
        lienzo.resize(900, 700);
        lienzo.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&lienzo));
    }
    [[nodiscard]] QPoint enTexto(int pagina, int tramo, int desde, int hasta)
    {
        return lienzo.cajaDeTexto(pagina, tramo, {desde, hasta}).center().toPoint();
    }
    /// The canvas as it is painted now.
    [[nodiscard]] QImage foto() { return lienzo.viewport()->grab().toImage(); }

    FuenteDePrueba fuente;
    PaginasVista paginas{fuente, [](const QString&) {}};
    Buscador buscador{paginas};
    Lienzo lienzo{paginas, buscador};
};

} // namespace kestrane::report::prueba
