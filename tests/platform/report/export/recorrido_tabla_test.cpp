#include "platform/report/export/recorrido_tabla.h"

#include "platform/report/export/informe_de_prueba.h"
#include "platform/runtime/conversiones.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::InformeDePrueba;

/// Writes down what comes: "grupo 0: A", "a|1", "total 0 Total A: |3".
class Anotador final : public DestinoTabla
{
public:
    void empiezaGrupo(int grupo, const QString& titulo) override { pasos += u"grupo %1: %2"_s.arg(grupo).arg(titulo); }
    void fila(const std::vector<Valor>& valores) override { pasos += juntos(valores); }
    void totales(int grupo, const QString& titulo, const std::vector<Valor>& valores) override
    {
        pasos += u"total %1 %2: "_s.arg(grupo).arg(titulo) + juntos(valores);
    }

    QStringList pasos;

private:
    static QString juntos(const std::vector<Valor>& valores)
    {
        QStringList escritos;
        for (const Valor& valor : valores)
            escritos += aTexto(valor, ConfiguracionRegional::espania());
        return escritos.join(u'|');
    }
};

QStringList pasos(const InformeDePrueba& informe)
{
    Anotador anotador;
    EXPECT_TRUE(recorre(informe.tabla(), anotador, {}));
    return anotador.pasos;
}

TEST(RecorridoTabla, ItCanBeBrokenOff)
{
    InformeDePrueba informe{{u"a"_s}};
    informe.fila({u"x"_s});
    Anotador anotador;
    EXPECT_FALSE(recorre(informe.tabla(), anotador, [](double) { return false; }));
    EXPECT_EQ(anotador.pasos, QStringList{});
}

TEST(RecorridoTabla, WithoutRowsThereIsTheReportsTotalAlone)
{
    InformeDePrueba informe{{u"a"_s, u"n"_s}};
    informe.columna(u"A"_s, u"a"_s);
    informe.columna(u"N"_s, u"n"_s, {}, FuncionAgregado::Suma);
    informe.grupo(u"a"_s);
    EXPECT_EQ(pasos(informe), QStringList{u"total -1 Total: |0"_s});
}

TEST(RecorridoTabla, WithoutTotalsThereAreRowsAndTitlesAlone)
{
    InformeDePrueba informe{{u"a"_s, u"n"_s}};
    informe.grupo(u"a"_s);
    informe.fila({u"x"_s, qint32{1}});
    informe.fila({u"y"_s, qint32{2}});
    EXPECT_EQ(pasos(informe), (QStringList{u"grupo 0: x"_s, u"x|1"_s, u"grupo 0: y"_s, u"y|2"_s}));
}

TEST(RecorridoTabla, NestedGroupsOpenFromTheOutsideAndCloseFromTheInside)
{
    InformeDePrueba informe{{u"a"_s, u"b"_s, u"n"_s}};
    informe.columna(u"A"_s, u"a"_s);
    informe.columna(u"N"_s, u"n"_s, {}, FuncionAgregado::Suma);
    informe.grupo(u"a"_s);
    informe.grupo(u"b"_s, u"'b ' & b"_s);
    informe.fila({u"x"_s, qint32{1}, qint32{10}});
    informe.fila({u"x"_s, qint32{2}, qint32{20}});
    informe.fila({u"y"_s, qint32{2}, qint32{30}});
    EXPECT_EQ(pasos(informe),
              (QStringList{u"grupo 0: x"_s, u"grupo 1: b 1"_s, u"x|10"_s, u"total 1 Total b 1: |10"_s, u"grupo 1: b 2"_s, u"x|20"_s,
                           u"total 1 Total b 2: |20"_s, u"total 0 Total x: |30"_s, u"grupo 0: y"_s, u"grupo 1: b 2"_s, u"y|30"_s,
                           u"total 1 Total b 2: |30"_s, u"total 0 Total y: |30"_s, u"total -1 Total: |60"_s}));
}

TEST(RecorridoTabla, EachFunctionOfATotal)
{
    InformeDePrueba informe{{u"n"_s}};
    for (const FuncionAgregado funcion : {FuncionAgregado::Suma, FuncionAgregado::Cuenta, FuncionAgregado::Media,
                                          FuncionAgregado::Minimo, FuncionAgregado::Maximo, FuncionAgregado::Acumulado})
        informe.columna(u"N"_s, u"n"_s, {}, funcion);
    informe.fila({qint32{4}});
    informe.fila({Valor{}});
    informe.fila({1.5});
    EXPECT_EQ(pasos(informe).constLast(), u"total -1 Total: 5,5|2|2,75|1,5|4|5,5"_s);
}

} // namespace
} // namespace kestrane::report
