#include "platform/report/export/xlsx.h"

#include "platform/report/export/fichero_provisional.h"
#include "platform/report/export/libro_xlsx.h"
#include "platform/report/export/recorrido_tabla.h"
#include "platform/runtime/fichero_destino.h"

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

class HojaInforme final : public DestinoTabla
{
public:
    HojaInforme(const TablaInforme& tabla, LibroXlsx& libro) : m_tabla{tabla}, m_libro{libro} {}

    /// For the paper of `pagina`.
    void cabecera(const Pagina& pagina)
    {
        m_libro.preparaHoja(pagina, m_tabla.titulo(), m_tabla.conTotales());
        m_libro.nuevaFila(0);
        for (int columna = 0; columna < columnas(); ++columna) {
            m_libro.ponAncho(columna, datos(columna).ancho);
            celda(columna, datos(columna).titulo, ClaseFila::Cabecera);
        }
    }

    void empiezaGrupo(int grupo, const QString& titulo) override
    {
        m_libro.nuevaFila(grupo);
        for (int columna = 0; columna < columnas(); ++columna)
            rotulo(columna, columna == 0 ? Valor{titulo} : Valor{}, ClaseFila::Grupo);
    }

    void fila(const std::vector<Valor>& valores) override
    {
        m_libro.nuevaFila(m_tabla.grupos());
        for (int columna = 0; columna < columnas(); ++columna)
            celda(columna, valores[static_cast<size_t>(columna)], ClaseFila::Datos);
    }

    void totales(int grupo, const QString& titulo, const std::vector<Valor>& valores) override
    {
        m_libro.nuevaFila(std::max(grupo, 0));
        for (int columna = 0; columna < columnas(); ++columna) {
            if (columna == 0 && !datos(columna).total)
                rotulo(columna, titulo, ClaseFila::Total);
            else
                total(columna, valores[static_cast<size_t>(columna)]);
        }
    }

private:
    [[nodiscard]] int columnas() const { return static_cast<int>(m_tabla.columnas().size()); }
    [[nodiscard]] const ColumnaTabla& datos(int columna) const { return m_tabla.columnas()[static_cast<size_t>(columna)]; }

    void celda(int columna, const Valor& valor, ClaseFila clase)
    {
        m_libro.celda(columna, valor, datos(columna).formato, datos(columna).horizontal, clase, m_tabla.regional());
    }

    void rotulo(int columna, const Valor& valor, ClaseFila clase)
    {
        m_libro.celda(columna, valor, {}, Horizontal::Izquierda, clase, m_tabla.regional());
    }

    void total(int columna, const Valor& valor)
    {
        m_libro.celda(columna, valor, datos(columna).formatoTotal(), datos(columna).horizontal, ClaseFila::Total,
                      m_tabla.regional());
    }

    const TablaInforme& m_tabla;
    LibroXlsx& m_libro;
};

} // namespace

bool escribeXlsx(const TablaInforme& tabla, const QString& fichero, const AvanceExportacion& avance,
                 std::span<const TablaInforme> subinformes)
{
    constexpr int Cabecera = 1;
    for (const TablaInforme& una : subinformes)
        compruebaFilasDeHoja(una.filas() + Cabecera);
    compruebaFilasDeHoja(tabla.filas() + Cabecera); // before millions of them are written in vain
    const CarpetaProvisional carpeta{destinoDeEscritura(fichero)};
    const QString nombre = u"libro.xlsx"_s;
    LibroXlsx libro{carpeta.ruta(nombre), carpeta.ruta(), tabla.titulo()};
    const auto escribe = [&](const TablaInforme& una, const AvanceExportacion& suyo) {
        HojaInforme hoja{una, libro};
        hoja.cabecera(tabla.pagina());
        return recorre(una, hoja, suyo);
    };
    constexpr double Escrito = 0.4; // of the time: the rest is packing
    if (!escribe(tabla, tramo(avance, 0, Escrito)))
        return false;
    for (const TablaInforme& una : subinformes) {
        libro.otraHoja(una.titulo());
        if (!escribe(una, {}))
            return false;
    }
    if (!libro.cierra(tramo(avance, Escrito, 1)) || !sigue(avance, 1, 1))
        return false;
    carpeta.entrega(nombre, fichero);
    return true;
}

} // namespace kestrane::report
