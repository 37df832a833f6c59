#include "escritorio/programa.h"

#include <QEvent>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>

/// The desktop program up to the moment at which its menu has been painted and waits for a press; it says what each part took, on
/// one line, and ends there. Takes the program's folder, in which the databases lie.
namespace {

using Cronometro = std::chrono::steady_clock;

class VigiaDelMenu final : public QObject
{
public:
    VigiaDelMenu(Cronometro::time_point inicio, Cronometro::time_point aplicacion) : m_inicio{inicio}, m_aplicacion{aplicacion} {}

    bool eventFilter(QObject* quien, QEvent* evento) override
    {
        if (quien->objectName() != QStringLiteral("frmListados"))
            return false;
        if (evento->type() == QEvent::Polish)
            m_cargado = Cronometro::now();
        if (evento->type() == QEvent::Paint)
            QMetaObject::invokeMethod(this, &VigiaDelMenu::acaba, Qt::QueuedConnection); // behind what else waits
        return false;
    }

private:
    [[noreturn]] void acaba() const
    {
        const auto ms = [](Cronometro::duration tiempo) { return std::chrono::duration<double, std::milli>{tiempo}.count(); };
        const auto fin = Cronometro::now();
        std::printf("application %.0f ms, shop and form %.0f ms, layout and painting %.0f ms\n", ms(m_aplicacion - m_inicio),
                    ms(m_cargado - m_aplicacion), ms(fin - m_cargado));
        std::fflush(stdout);
        std::_Exit(EXIT_SUCCESS);
    }

    Cronometro::time_point m_inicio;
    Cronometro::time_point m_aplicacion;
    Cronometro::time_point m_cargado;
};

} // namespace

int main(int argc, char** argv)
{
    const auto inicio = Cronometro::now();
    kestrane::escritorio::Aplicacion aplicacion{argc, argv};
    if (argc != 2) {
        std::fputs("kestrane_arranque_menu FOLDER\n", stderr);
        return 2;
    }
    VigiaDelMenu vigia{inicio, Cronometro::now()};
    QCoreApplication::instance()->installEventFilter(&vigia);
    return kestrane::escritorio::ejecutaPrograma(aplicacion, QString::fromLocal8Bit(argv[1]),
                                                 QStringLiteral("kestrane-bench-%1").arg(QCoreApplication::applicationPid()));
}
