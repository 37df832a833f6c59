#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

class OdbcAltas : public Servidor
{
protected:
    static void anade(AlmacenFilas& filas, std::initializer_list<Valor> valores)
    {
        filas.empiezaFila();
        for (const Valor& valor : valores)
            filas.ponValor(valor);
        filas.terminaFila();
    }
    /// Inserts into the named columns of t.
    void inserta(AlmacenFilas& filas, std::initializer_list<QString> nombres) { inserta(motor(), filas, nombres); }
    static void inserta(MotorBase& motor, AlmacenFilas& filas, std::initializer_list<QString> nombres)
    {
        const jet::Tabla* const tabla = motor.catalogo().tabla(u"t");
        std::vector<int> columnas;
        for (const QString& nombre : nombres) {
            const auto columna = std::ranges::find(tabla->columnas, nombre, &jet::Columna::nombre);
            columnas.push_back(static_cast<int>(columna - tabla->columnas.begin()));
        }
        motor.insertaFilas(*tabla, columnas, filas);
    }
    std::string cuantas() { return filas(u"select count(*) from t"_s, {TipoColumna::Entero32}); }
};
KESTRANE_EN_TODOS(OdbcAltas);

TEST_P(OdbcAltas, EveryKindOfValueArrives)
{
    AlmacenFilas nuevas{7};
    anade(nuevas, {Valor{1}, Valor{qint16{-5}}, Valor{0.1 + 0.2}, Valor{*Fecha::deCalendario(1899, 12, 30, 9, 5)},
                   Valor{u"Ñandú \"x\"\\ 😀"_s}, Valor{u"líneas\r\ny {llaves}, comas"_s}, Valor{true}});
    anade(nuevas, {Valor{}, Valor{}, Valor{}, Valor{}, Valor{}, Valor{}, Valor{false}});
    anade(nuevas, {Valor{-2147483647}, Valor{qint16{0}}, Valor{1e300}, Valor{*Fecha::deCalendario(1845, 1, 2)}, Valor{u""_s},
                   Valor{u""_s}, Valor{false}});
    inserta(nuevas, {u"a"_s, u"i"_s, u"d"_s, u"f"_s, u"x"_s, u"m"_s, u"s"_s});
    EXPECT_EQ(filas(u"select a, i, d, f, x, m, s from t order by orden_"_s,
                    {TipoColumna::Entero32, TipoColumna::Entero16, TipoColumna::Doble, TipoColumna::FechaHora, TipoColumna::Texto,
                     TipoColumna::Memo, TipoColumna::SiNo}),
              "1,-5,0.30000000000000004,1899-12-30 9:5:0,'Ñandú \"x\"\\ 😀','líneas\r\ny {llaves}, comas',si|"
              "NULL,NULL,NULL,NULL,NULL,NULL,no|"
              "-2147483647,0,1.0000000000000001e+300,1845-1-2 0:0:0,'','',no|");
}

TEST_P(OdbcAltas, RowsKeepTheirOrderInOneSendingAndOverSeveral)
{
    for (const qsizetype bytes : {qsizetype{4} * 1024 * 1024, qsizetype{1000}}) {
        SCOPED_TRACE(bytes);
        ejecuta(u"delete from t"_s);
        const auto suyo = otro({.bytesPorEnvio = bytes});
        AlmacenFilas nuevas{2};
        for (int i = 0; i < 1000; ++i)
            anade(nuevas, {Valor{i}, Valor{QString{i % 50, u'ñ'}}});
        inserta(*suyo, nuevas, {u"a"_s, u"x"_s});
        AlmacenFilas leidas{2};
        const auto sentencia =
            motor().prepara("select a, x from t order by orden_", {}, std::array{TipoColumna::Entero32, TipoColumna::Texto});
        sentencia->ejecuta({});
        while (sentencia->siguiente(leidas)) {
        }
        ASSERT_EQ(leidas.filas(), 1000);
        for (int i = 0; leidas.siguiente(); ++i) {
            ASSERT_EQ(leidas.valor(0), Valor{i});
            ASSERT_EQ(leidas.valor(1), (Valor{QString{i % 50, u'ñ'}}));
        }
    }
}

TEST_P(OdbcAltas, LongMemosArriveWhole)
{
    AlmacenFilas nuevas{1};
    for (const int largo : {70000, 0, 5, 65536})
        anade(nuevas, {Valor{QString{largo, u'é'}}});
    inserta(nuevas, {u"m"_s});
    EXPECT_EQ(filas(u"select char_length(m) from t order by orden_"_s, {TipoColumna::Entero32}), "70000|0|5|65536|");
}

TEST_P(OdbcAltas, TheRowsOfOneCallStandOrFallTogether)
{
    ejecuta(u"create unique index ux on t (a)"_s);
    for (const qsizetype bytes : {qsizetype{4} * 1024 * 1024, qsizetype{100}}) {
        SCOPED_TRACE(bytes);
        const auto suyo = otro({.bytesPorEnvio = bytes});
        AlmacenFilas nuevas{1};
        for (int i = 0; i < 100; ++i)
            anade(nuevas, {Valor{i == 99 ? 50 : i}});
        const auto rechazo = error([&] { inserta(*suyo, nuevas, {u"a"_s}); });
        ASSERT_TRUE(rechazo);
        EXPECT_EQ(rechazo->categoria(), ErrorMotor::Categoria::Restriccion) << rechazo->what();
        EXPECT_EQ(cuantas(), "0|");
        AlmacenFilas buenas{1};
        anade(buenas, {Valor{1}});
        inserta(*suyo, buenas, {u"a"_s});
        EXPECT_EQ(cuantas(), "1|") << "the connection goes on, and each statement stands for itself again";
        ejecuta(u"delete from t"_s);
    }
}

TEST_P(OdbcAltas, DifferentColumnsTakeTurns)
{
    for (int i = 0; i < 3; ++i) {
        AlmacenFilas unas{1};
        anade(unas, {Valor{i}});
        inserta(unas, {u"a"_s});
        AlmacenFilas otras{2};
        anade(otras, {Valor{u"x%1"_s.arg(i)}, Valor{qint16{9}}});
        inserta(otras, {u"x"_s, u"i"_s});
    }
    EXPECT_EQ(filas(u"select a, x from t order by orden_"_s, {TipoColumna::Entero32, TipoColumna::Texto}),
              "0,NULL|NULL,'x0'|1,NULL|NULL,'x1'|2,NULL|NULL,'x2'|");
}

TEST_P(OdbcAltas, RowsWithoutAnyColumnAreRowsOfDefaults)
{
    AlmacenFilas vacias{0};
    for (int i = 0; i < 3; ++i)
        anade(vacias, {});
    inserta(vacias, {});
    EXPECT_EQ(filas(u"select a, s from t"_s, {TipoColumna::Entero32, TipoColumna::SiNo}), "NULL,no|NULL,no|NULL,no|");
}

TEST_P(OdbcAltas, NoRowsAreNoWork)
{
    AlmacenFilas ninguna{1};
    inserta(ninguna, {u"a"_s});
    EXPECT_EQ(cuantas(), "0|");
}

TEST_P(OdbcAltas, ALostConnectionIsTold)
{
    AlmacenFilas nuevas{1};
    anade(nuevas, {Valor{1}});
    inserta(nuevas, {u"a"_s});
    corta(numeroDeConexion());
    const auto rechazo = error([&] { inserta(nuevas, {u"a"_s}); });
    ASSERT_TRUE(rechazo);
    EXPECT_EQ(rechazo->categoria(), ErrorMotor::Categoria::ConexionPerdida) << rechazo->what();
    EXPECT_TRUE(motor().perdida());
}

} // namespace
} // namespace kestrane::database::odbc
