#include "platform/report/acumulador.h"

#include "platform/database/espanol.h"
#include "platform/report/clave_fila.h"
#include "platform/runtime/conversiones.h"

namespace kestrane::report {

int comparaValores(const Valor& a, const Valor& b)
{
    if (a.clase() == Valor::Clase::Texto && b.clase() == Valor::Clase::Texto)
        return database::espanol::compara(a.texto(), b.texto());
    QByteArray claveA;
    QByteArray claveB;
    anadeClave(claveA, a, Sentido::Ascendente);
    anadeClave(claveB, b, Sentido::Ascendente);
    return claveA.compare(claveB);
}

void Acumulador::anade(const Valor& valor, const ConfiguracionRegional& regional)
{
    if (valor.esNulo())
        return;
    ++m_cuantos;
    switch (m_funcion) {
    case FuncionAgregado::Cuenta:
        return;
    case FuncionAgregado::Minimo:
        if (m_cuantos == 1 || comparaValores(valor, m_extremo) < 0)
            m_extremo = valor;
        return;
    case FuncionAgregado::Maximo:
        if (m_cuantos == 1 || comparaValores(valor, m_extremo) > 0)
            m_extremo = valor;
        return;
    case FuncionAgregado::Suma:
    case FuncionAgregado::Media:
    case FuncionAgregado::Acumulado:
        m_suma += aDoble(valor, regional);
    }
}

Valor Acumulador::valor() const
{
    switch (m_funcion) {
    case FuncionAgregado::Suma:
    case FuncionAgregado::Acumulado:
        return m_suma;
    case FuncionAgregado::Cuenta:
        return m_cuantos;
    case FuncionAgregado::Media:
        return m_cuantos == 0 ? Valor{} : Valor{m_suma / m_cuantos};
    case FuncionAgregado::Minimo:
    case FuncionAgregado::Maximo:
        break;
    }
    return m_extremo;
}

void Acumulador::vacia()
{
    *this = Acumulador{m_funcion};
}

} // namespace kestrane::report
