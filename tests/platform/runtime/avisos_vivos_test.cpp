#include "platform/runtime/avisos_vivos.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include <semaphore>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Tells of each writing.
class Escuchado final : public QIODevice
{
public:
    Escuchado() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

    [[nodiscard]] bool esperaEscritura() { return m_escrituras.try_acquire_for(60s); }
    [[nodiscard]] std::string escrito() const { return m_escrito.toStdString(); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* datos, qint64 cuantos) override
    {
        m_escrito.append(datos, static_cast<qsizetype>(cuantos));
        m_escrituras.release();
        return cuantos;
    }

private:
    QByteArray m_escrito;
    std::counting_semaphore<> m_escrituras{0};
};

TEST(AvisosVivosTest, ATerminalIsToldOfWorkThatDoesNotMove)
{
    Escuchado errores;
    {
        AvisosVivos vivos{u"prueba"_s, errores, DestinoErrores::Terminal};
        vivos.avisos().empieza(u"Esperando"_s);
        EXPECT_TRUE(errores.esperaEscritura());
    }
    EXPECT_TRUE(errores.escrito().starts_with("Esperando...")) << errores.escrito();
    EXPECT_TRUE(errores.escrito().ends_with("\r\x1b[K")) << errores.escrito();
}

TEST(AvisosVivosTest, SentencesBearTheProgramsName)
{
    QBuffer errores;
    errores.open(QIODevice::WriteOnly);
    AvisosVivos vivos{u"prueba"_s, errores, DestinoErrores::Fichero};
    vivos.avisos().di(u"Ya está."_s);
    EXPECT_EQ(errores.data(), "prueba: Ya está.\n");
}

} // namespace
} // namespace kestrane
