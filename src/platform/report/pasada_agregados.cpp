#include "platform/report/pasada_agregados.h"

#include "platform/runtime/error_ejecucion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::report {

PasadaAgregados::PasadaAgregados(const Layout& layout, const QStringList& columnas, const ConfiguracionRegional& regional)
    : m_regional{regional}
    , m_niveles{static_cast<int>(layout.grupos.size())}
    , m_claves{ClavesFila::deGrupos(layout, columnas)}
    , m_clavesAnteriores(layout.grupos.size())
    , m_cortes{m_niveles}
    , m_sumas(layout.grupos.size() + 1)
{
    m_cuentas.reserve(layout.agregados.size());
    for (const Agregado& agregado : layout.agregados)
        pon(agregado, columnas);
}

void PasadaAgregados::pon(const Agregado& agregado, const QStringList& columnas)
{
    const bool corriente = agregado.funcion == FuncionAgregado::Acumulado;
    const auto vecinas = std::count_if(m_cuentas.begin(), m_cuentas.end(), [&](const Cuenta& otra) {
        return corriente ? otra.corriente : !otra.corriente && otra.nivel == agregado.nivel;
    });
    m_lugares.push_back({corriente ? LugarAgregado::PorFila : agregado.nivel, static_cast<int>(vecinas)});
    m_cuentas.push_back(
        {Acumulador{agregado.funcion}, ExpresionEnlazada{agregado.de, columnas}, agregado.de.lugar(), agregado.nivel, corriente});
    Almacen& almacen = corriente ? m_corrientes : m_sumas[static_cast<size_t>(agregado.nivel)];
    almacen = std::make_shared<database::AlmacenFilas>(static_cast<int>(vecinas) + 1);
}

void PasadaAgregados::recorre(const database::AlmacenFilas& filas)
{
    if (m_niveles > 0 || !m_cuentas.empty()) {
        database::LectorFilas lector{filas};
        const AmbitoColumnas ambito{lector};
        while (lector.siguiente()) {
            const int nuevos = gruposNuevos(ambito);
            if (nuevos > 0 && lector.fila() > 1)
                cierraDesde(m_niveles - nuevos + 1);
            m_cortes.anade(nuevos);
            for (Cuenta& cuenta : m_cuentas)
                suma(cuenta, ambito);
            anotaCorrientes();
        }
    }
    cierraDesde(0);
}

/// A group ends where its key changes, or that of one around it.
int PasadaAgregados::gruposNuevos(const AmbitoExpresion& fila)
{
    QByteArray clave;
    int primero = m_niveles;
    for (int i = 0; i < m_niveles; ++i) {
        clave.resize(0);
        m_claves.anade(clave, static_cast<size_t>(i), fila, m_regional);
        QByteArray& anterior = m_clavesAnteriores[static_cast<size_t>(i)];
        if (anterior == clave)
            continue;
        primero = std::min(primero, i);
        std::swap(anterior, clave);
    }
    return m_niveles - primero;
}

void PasadaAgregados::cierraDesde(int nivel)
{
    for (int i = nivel; i <= m_niveles; ++i) {
        if (const Almacen& almacen = m_sumas[static_cast<size_t>(i)])
            almacen->empiezaFila();
    }
    for (Cuenta& cuenta : m_cuentas) {
        if (cuenta.nivel < nivel)
            continue;
        if (!cuenta.corriente)
            m_sumas[static_cast<size_t>(cuenta.nivel)]->ponValor(cuenta.acumulador.valor());
        cuenta.acumulador.vacia();
    }
    for (int i = nivel; i <= m_niveles; ++i) {
        if (const Almacen& almacen = m_sumas[static_cast<size_t>(i)])
            almacen->terminaFila();
    }
}

void PasadaAgregados::suma(Cuenta& cuenta, const AmbitoExpresion& fila) const
{
    const Valor valor = cuenta.de.vacia() ? Valor{true} : cuenta.de.valor(fila, m_regional);
    try {
        cuenta.acumulador.anade(valor, m_regional);
    } catch (const ErrorEjecucion& error) {
        throw error.conContexto(u"%1, línea %2"_s.arg(cuenta.lugar.fichero).arg(cuenta.lugar.linea));
    }
}

void PasadaAgregados::anotaCorrientes()
{
    if (!m_corrientes)
        return;
    m_corrientes->empiezaFila();
    for (const Cuenta& cuenta : m_cuentas) {
        if (cuenta.corriente)
            m_corrientes->ponValor(cuenta.acumulador.valor());
    }
    m_corrientes->terminaFila();
}

std::vector<std::optional<FilasPorSitio>> PasadaAgregados::tomaSumas()
{
    std::vector<std::optional<FilasPorSitio>> sumas;
    sumas.reserve(m_sumas.size());
    for (const Almacen& almacen : m_sumas)
        sumas.push_back(almacen ? std::optional{FilasPorSitio{almacen}} : std::nullopt);
    return sumas;
}

std::optional<FilasPorSitio> PasadaAgregados::tomaCorrientes()
{
    return m_corrientes ? std::optional{FilasPorSitio{m_corrientes}} : std::nullopt;
}

} // namespace kestrane::report
