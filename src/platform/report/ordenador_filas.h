#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/fichero_filas.h"

#include <QByteArray>

#include <memory>
#include <vector>

namespace kestrane::report {

/// Sorts rows by keys of bytes; rows with equal keys stay in the order in which they came. What does not fit in memory is sorted
/// piece by piece in temporary files, which are merged at the end.
class OrdenadorFilas
{
public:
    static constexpr qsizetype MemoriaPorDefecto = qsizetype{16} * 1024 * 1024;
    /// So many pieces become one: each keeps a file open.
    static constexpr size_t TramosAbiertos = 64;

    /// `memoria` in bytes, of the rows that are sorted at once.
    explicit OrdenadorFilas(int columnas, qsizetype memoria = MemoriaPorDefecto);
    ~OrdenadorFilas();
    OrdenadorFilas(const OrdenadorFilas&) = delete;
    OrdenadorFilas& operator=(const OrdenadorFilas&) = delete;

    /// `empaquetada` as LectorFilas gives it.
    void anade(const QByteArray& clave, const char* empaquetada);
    /// All rows in order. ErrorEjecucion when the disk is full.
    [[nodiscard]] database::AlmacenFilas termina();

private:
    /// A key and its row, one behind the other: the length of both and itself, that of the key, the key, the row.
    class Tramo;
    struct Ficha
    {
        quint32 inicio = 0; ///< in m_fichas
    };

    void ordena();
    void vuelca();
    void juntaTramos();
    /// Gives all rows of the pieces to `toma`, in order, as they stand there; the pieces are gone then.
    template<class Toma>
    void mezcla(Toma toma);

    int m_columnas;
    qsizetype m_memoria;
    database::BloqueBytes m_fichas;
    std::vector<Ficha> m_orden;
    std::vector<std::unique_ptr<Tramo>> m_tramos;
};

} // namespace kestrane::report
