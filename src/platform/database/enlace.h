#pragma once

namespace kestrane::database {

/// A link of a ring through objects that lie elsewhere: joining and leaving cost no memory. `Etiqueta` tells rings apart.
template<class Etiqueta>
class Enlace
{
public:
    Enlace() = default;
    Enlace(const Enlace&) = delete;
    Enlace& operator=(const Enlace&) = delete;
    ~Enlace() { sale(); }

    /// Joins the ring of `otro`, just before it; leaves its own first.
    void entraAntesDe(Enlace& otro)
    {
        sale();
        m_anterior = otro.m_anterior;
        m_siguiente = &otro;
        m_anterior->m_siguiente = this;
        otro.m_anterior = this;
    }
    void sale()
    {
        m_anterior->m_siguiente = m_siguiente;
        m_siguiente->m_anterior = m_anterior;
        m_anterior = m_siguiente = this;
    }
    [[nodiscard]] bool solo() const { return m_siguiente == this; }
    [[nodiscard]] Enlace* siguiente() const { return m_siguiente; }

private:
    Enlace* m_anterior = this;
    Enlace* m_siguiente = this;
};

} // namespace kestrane::database
