#include "platform/suite/windows/medida_recordada.h"

#include <QPointF>
#include <QVariant>

namespace kestrane {

namespace {

/// Kept as a point: across what it was before any scaling, down what it was given last.
double sinEscala(const QPointF& recuerdo)
{
    return recuerdo.x();
}

int ultima(const QPointF& recuerdo)
{
    return qRound(recuerdo.y());
}

} // namespace

int MedidaRecordada::escalada(int actual, double antes, double ahora) const
{
    const QPointF recuerdo = m_dueno.property(m_clave).toPointF();
    const bool vale = seRecuerda() && ultima(recuerdo) == actual;
    const double base = vale ? sinEscala(recuerdo) : actual / antes;
    const int nueva = qRound(base * ahora);
    m_dueno.setProperty(m_clave, QPointF(base, nueva));
    return nueva;
}

void MedidaRecordada::queda(int puesta) const
{
    const QPointF recuerdo = m_dueno.property(m_clave).toPointF();
    m_dueno.setProperty(m_clave, QPointF(sinEscala(recuerdo), puesta));
}

bool MedidaRecordada::seRecuerda() const
{
    return m_dueno.property(m_clave).isValid();
}

} // namespace kestrane
