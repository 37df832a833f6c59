#include "platform/report/export/hoja_vigilada.h"

#include <xlsxwriter.h>

namespace kestrane::report {

namespace {

constexpr qint64 CadaAviso = qint64{256} * 1024;

std::FILE* abre(void* galleta, const cookie_io_functions_t& funciones)
{
    return fopencookie(galleta, "w+", funciones);
}

/// What both streams do alike: they stand for the file that `de` names.
template<std::FILE*& (*De)(void*)>
struct Paso
{
    static ssize_t escribe(void* vigia, const char* bytes, size_t largo)
    {
        return static_cast<ssize_t>(std::fwrite(bytes, 1, largo, De(vigia)));
    }
    static int situa(void* vigia, off64_t* sitio, int desde)
    {
        if (fseeko(De(vigia), *sitio, desde) != 0)
            return -1;
        *sitio = ftello(De(vigia));
        return 0;
    }
    static int cierra(void* vigia) { return std::fclose(De(vigia)); }
};

} // namespace

struct HojaVigilada::Flujo
{
    static std::FILE*& filas(void* vigia) { return static_cast<HojaVigilada*>(vigia)->m_filas; }
    static std::FILE*& paquete(void* vigia) { return static_cast<HojaVigilada*>(vigia)->m_paquete; }

    static ssize_t leeFilas(void* vigia, char* bytes, size_t largo)
    {
        static_cast<HojaVigilada*>(vigia)->vigilaElPaquete();
        return static_cast<ssize_t>(std::fread(bytes, 1, largo, filas(vigia)));
    }
    static ssize_t leePaquete(void* vigia, char* bytes, size_t largo)
    {
        return static_cast<HojaVigilada*>(vigia)->lee(paquete(vigia), bytes, largo);
    }
};

HojaVigilada::HojaVigilada(lxw_worksheet* hoja, Aviso aviso)
    : m_hoja{hoja}
    , m_aviso{std::move(aviso)}
    , m_filas{hoja->optimize_tmpfile}
{
    using Filas = Paso<&Flujo::filas>;
    if (std::FILE* const flujo = abre(this, {Flujo::leeFilas, Filas::escribe, Filas::situa, Filas::cierra}))
        hoja->optimize_tmpfile = flujo;
}

/// The library has begun to copy the rows: what it copies them to is there by now, and nobody has read it yet.
void HojaVigilada::vigilaElPaquete()
{
    if (m_paquete != nullptr || m_hoja->file == nullptr || std::fflush(m_hoja->file) != 0)
        return;
    using Paquete = Paso<&Flujo::paquete>;
    m_paquete = m_hoja->file;
    if (std::FILE* const flujo = abre(this, {Flujo::leePaquete, Paquete::escribe, Paquete::situa, Paquete::cierra}))
        m_hoja->file = flujo;
}

qint64 HojaVigilada::lee(std::FILE* de, char* bytes, size_t largo)
{
    if (m_leidos == SinEmpezar) {
        m_leidos = 0;
        m_acaba = !m_aviso(0); // one before it may have been ended
    }
    if (m_acaba)
        return 0;
    const auto leidos = static_cast<qint64>(std::fread(bytes, 1, largo, de));
    m_leidos += leidos;
    if (m_leidos >= CadaAviso) {
        m_acaba = !m_aviso(m_leidos);
        m_leidos = 0;
    }
    return leidos;
}

} // namespace kestrane::report
