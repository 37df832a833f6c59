#include "platform/database/conformidad/conformidad.h"

#include <QElapsedTimer>

namespace kestrane::database::conformidad {
namespace {

using namespace std::chrono_literals;

/// Rows gathered for a table that another program holds locked. The five seconds are real ones.
class Bloqueo : public Conformidad
{
protected:
    Bloqueo() { tabla(u"informes"_s, {largo(u"orden"_s)}, Base::Listados); }

    static void anade(Recordset& rs, int orden)
    {
        rs.AddNew();
        rs.Fields(u"orden") = orden;
        rs.Update();
    }
};

TEST_F(Bloqueo, FiveSecondsAreWaitedOnceAndNoRowIsLost)
{
    QElapsedTimer reloj;
    std::shared_ptr<void> bloqueo;
    const qint32 numero = error([&] {
        const auto segunda = otra(Base::Listados);
        Recordset una;
        una.Open(u"informes"_s, *segunda, CursorType::Keyset);
        Recordset dos;
        dos.Open(u"informes"_s, listados(), CursorType::Keyset);
        anade(una, 1);
        anade(dos, 2);
        bloqueo = contexto().bloquea(Base::Listados, u"informes"_s);
        reloj.start();
        segunda->Execute(u"delete from informes where orden = 99"_s);
    });
    EXPECT_FALSE(entorno().enviaPendientes());
    const auto esperado = std::chrono::milliseconds{reloj.elapsed()};
    EXPECT_EQ(numero, ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(ultimaDescripcion().contains(u"bloquead")) << qPrintable(ultimaDescripcion());
    EXPECT_GE(esperado, 4500ms);
    EXPECT_LT(esperado, 8s) << "the recordsets and the connection behind it do not wait again";
    bloqueo.reset();
    EXPECT_EQ(filas(u"select orden from informes"_s, listados()), "1|2|");
}

} // namespace
} // namespace kestrane::database::conformidad
