#include "platform/report/export/pdf.h"

#include "platform/report/export/avance_exportacion.h"
#include "platform/runtime/error_de_salida.h"

#include <QPageLayout>
#include <QPdfWriter>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr int PuntosPorPulgada = 1200;
constexpr double PorMilimetro = PuntosPorPulgada / MilimetrosPorPulgada;

/// Between the writer of PDF, which looks at none of its writes, and the file: after one that failed it takes no more, and it knows
/// why.
class EscrituraVigilada final : public QIODevice
{
public:
    explicit EscrituraVigilada(QIODevice& destino) : m_destino{destino} { open(WriteOnly | Unbuffered); }

    /// ErrorDeSalida when some write failed.
    void comprueba() const
    {
        if (m_error)
            throw ErrorDeSalida{*m_error};
    }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 largo) override
    {
        if (m_error)
            return -1;
        try {
            escribeTodo(m_destino, {bytes, largo});
        } catch (const ErrorDeSalida& error) {
            m_error = error;
            return -1;
        }
        return largo;
    }

private:
    QIODevice& m_destino;
    std::optional<ErrorDeSalida> m_error;
};

QPageLayout hojaDe(const QSizeF& tamano)
{
    const QPageSize papel{tamano, QPageSize::Millimeter, u"informe"_s, QPageSize::ExactMatch};
    return QPageLayout{papel, QPageLayout::Portrait, QMarginsF{}};
}

} // namespace

bool escribePdf(const PaginasInforme& paginas, QIODevice& destino, const AvanceExportacion& avance)
{
    EscrituraVigilada vigilada{destino};
    QPdfWriter escritor{&vigilada};
    escritor.setResolution(PuntosPorPulgada);
    escritor.setTitle(paginas.titulo);
    escritor.setCreator(u"Kestrane Listados"_s);
    QPainter lienzo;
    for (int indice = 0; indice < paginas.paginas; ++indice) {
        if (!sigue(avance, indice, paginas.paginas))
            return false;
        const PaginaCompuesta pagina = paginas.pagina(indice);
        escritor.setPageLayout(hojaDe(pagina.tamano));
        if (indice == 0 ? !lienzo.begin(&escritor) : !escritor.newPage())
            throw ErrorDeSalida{u"el PDF no se puede empezar"_s};
        paginas.pinta(lienzo, pagina, PorMilimetro);
        vigilada.comprueba();
    }
    lienzo.end();
    vigilada.comprueba();
    return sigue(avance, 1, 1);
}

} // namespace kestrane::report
