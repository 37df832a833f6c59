#pragma once

#include <QtGlobal>

#include <cstdio>
#include <functional>

struct lxw_worksheet;

namespace kestrane::report {

/// Stands between the library and the rows of a sheet while it packs them, which takes it long and which it tells nobody of: it
/// says how much has been read, and can end the rows early. It outlives the workbook.
class HojaVigilada
{
public:
    /// Called with the bytes read since the last call; false ends the rows. It must not throw.
    using Aviso = std::function<bool(qint64)>;

    /// From here on the sheet takes no more rows. Where the system has no such streams, or the library does not read its rows from
    /// one, nothing is told.
    HojaVigilada(lxw_worksheet* hoja, Aviso aviso);
    HojaVigilada(const HojaVigilada&) = delete;
    HojaVigilada& operator=(const HojaVigilada&) = delete;
    ~HojaVigilada() = default;

private:
    struct Flujo;

    void vigilaElPaquete();
    qint64 lee(std::FILE* de, char* bytes, size_t largo);

    lxw_worksheet* m_hoja;
    Aviso m_aviso;
    std::FILE* m_filas = nullptr;   ///< as they were written
    std::FILE* m_paquete = nullptr; ///< the sheet made of them, which is packed
    static constexpr qint64 SinEmpezar = -1;
    qint64 m_leidos = SinEmpezar; ///< since the last call
    bool m_acaba = false;
};

} // namespace kestrane::report
