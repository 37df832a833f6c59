#include "escritorio/aplicacion.h"

#include "platform/runtime/error_de_salida.h"

#include <new>

namespace kestrane::escritorio {

using namespace Qt::StringLiterals;

namespace {

/// What is no error of the platform is told under the number 0.
ErrorEjecucion sinNumero(const QString& descripcion)
{
    return ErrorEjecucion{static_cast<ErrorEjecucion::Numero>(0), descripcion};
}

} // namespace

bool Aplicacion::notify(QObject* quien, QEvent* evento)
{
    bool hecho = true;
    intenta([&] { hecho = QApplication::notify(quien, evento); });
    return hecho;
}

bool Aplicacion::intenta(const std::function<void()>& que)
{
    try {
        que();
        return true;
    } catch (const ErrorEjecucion& error) {
        falla(error);
    } catch (const ErrorDeSalida& error) {
        falla(sinNumero(error.motivo()));
    } catch (const std::bad_alloc&) {
        falla(sinNumero(u"No hay memoria suficiente."_s));
    } catch (const std::exception& error) {
        falla(sinNumero(u"El programa no puede seguir: %1."_s.arg(QString::fromLocal8Bit(error.what()))));
    }
    return false;
}

/// The box serves events, of which another may fail: one box is enough.
void Aplicacion::falla(const ErrorEjecucion& error)
{
    if (m_fallando || !m_falla)
        return;
    m_fallando = true;
    m_falla(error);
    m_fallando = false;
}

} // namespace kestrane::escritorio
