#include "platform/report/ordenador_filas.h"

#include <QByteArrayView>

#include <algorithm>
#include <queue>

namespace kestrane::report {

namespace {

constexpr qsizetype CabeceraFicha = 2 * sizeof(quint32);

quint32 leeLargo(const char* donde)
{
    quint32 largo = 0;
    std::memcpy(&largo, donde, sizeof largo);
    return largo;
}

QByteArrayView claveDe(const char* ficha)
{
    return {ficha + CabeceraFicha, static_cast<qsizetype>(leeLargo(ficha + sizeof(quint32)))};
}

const char* filaDe(const char* ficha)
{
    return ficha + CabeceraFicha + leeLargo(ficha + sizeof(quint32));
}

int compara(QByteArrayView a, QByteArrayView b)
{
    const int orden = std::memcmp(a.data(), b.data(), static_cast<size_t>(std::min(a.size(), b.size())));
    return orden != 0 ? orden : static_cast<int>(a.size() > b.size()) - static_cast<int>(a.size() < b.size());
}

} // namespace

/// A sorted piece in a file, read from its beginning.
class OrdenadorFilas::Tramo
{
public:
    void escribe(const char* ficha) { m_fichero.escribe(ficha, leeLargo(ficha)); }
    /// The next one; false at the end.
    bool siguiente()
    {
        if (m_posicion >= m_fichero.bytes())
            return false;
        m_posicion = m_fichero.lee(m_posicion, m_ficha);
        return true;
    }
    [[nodiscard]] const char* ficha() const { return m_ficha.datos(); }

private:
    database::FicheroFilas m_fichero;
    database::BloqueBytes m_ficha;
    qsizetype m_posicion = 0;
};

OrdenadorFilas::OrdenadorFilas(int columnas, qsizetype memoria) : m_columnas{columnas}, m_memoria{memoria} {}

OrdenadorFilas::~OrdenadorFilas() = default;

void OrdenadorFilas::anade(const QByteArray& clave, const char* empaquetada)
{
    const auto largoClave = static_cast<quint32>(clave.size());
    const quint32 largoFila = leeLargo(empaquetada);
    const auto largo = static_cast<quint32>(CabeceraFicha) + largoClave + largoFila;
    m_orden.push_back({static_cast<quint32>(m_fichas.tamano())});
    m_fichas.copia(&largo, sizeof largo);
    m_fichas.copia(&largoClave, sizeof largoClave);
    m_fichas.copia(clave.constData(), clave.size());
    m_fichas.copia(empaquetada, largoFila);
    if (m_fichas.tamano() >= m_memoria)
        vuelca();
}

void OrdenadorFilas::ordena()
{
    const char* const base = m_fichas.datos();
    std::stable_sort(m_orden.begin(), m_orden.end(),
                     [base](Ficha a, Ficha b) { return compara(claveDe(base + a.inicio), claveDe(base + b.inicio)) < 0; });
}

template<class Toma>
void OrdenadorFilas::mezcla(Toma toma)
{
    // Of equal keys the earlier piece's goes first.
    auto detras = [this](size_t a, size_t b) {
        const int orden = compara(claveDe(m_tramos[a]->ficha()), claveDe(m_tramos[b]->ficha()));
        return orden != 0 ? orden > 0 : a > b;
    };
    std::priority_queue<size_t, std::vector<size_t>, decltype(detras)> cola{detras};
    for (size_t i = 0; i < m_tramos.size(); ++i) {
        if (m_tramos[i]->siguiente())
            cola.push(i);
    }
    while (!cola.empty()) {
        const size_t primero = cola.top();
        cola.pop();
        toma(m_tramos[primero]->ficha());
        if (m_tramos[primero]->siguiente())
            cola.push(primero);
    }
    m_tramos.clear();
}

void OrdenadorFilas::vuelca()
{
    ordena();
    auto tramo = std::make_unique<Tramo>();
    for (const Ficha ficha : m_orden)
        tramo->escribe(m_fichas.datos() + ficha.inicio);
    m_tramos.push_back(std::move(tramo));
    m_orden.clear();
    m_fichas.recorta(0);
    if (m_tramos.size() >= TramosAbiertos)
        juntaTramos();
}

void OrdenadorFilas::juntaTramos()
{
    auto junto = std::make_unique<Tramo>();
    mezcla([&junto](const char* ficha) { junto->escribe(ficha); });
    m_tramos.push_back(std::move(junto));
}

database::AlmacenFilas OrdenadorFilas::termina()
{
    database::AlmacenFilas destino{m_columnas};
    if (m_tramos.empty()) {
        ordena();
        for (const Ficha ficha : m_orden)
            destino.copiaFila(filaDe(m_fichas.datos() + ficha.inicio));
        return destino;
    }
    if (!m_orden.empty())
        vuelca();
    m_fichas.sueltaMemoria();
    mezcla([&destino](const char* ficha) { destino.copiaFila(filaDe(ficha)); });
    return destino;
}

} // namespace kestrane::report
