#pragma once

#include <QString>

#include <sql.h>
#include <sqlext.h>

#include <utility>
#include <vector>

/// What every file of this folder uses of the driver manager: owned handles, attributes and diagnostics.
namespace kestrane::database::odbc {

/// Error ConexionImposible: the driver manager has no handle to give.
[[noreturn]] void sinManejador();

/// A handle that is released when its owner goes.
template<SQLSMALLINT Clase>
class Manejador
{
public:
    Manejador() = default;
    /// Errors as for `sinManejador`.
    explicit Manejador(SQLHANDLE padre) : Manejador{intenta(padre)}
    {
        if (!m_manejador)
            sinManejador();
    }
    /// One that holds nothing when there is none to be had: `padre` then tells why.
    [[nodiscard]] static Manejador intenta(SQLHANDLE padre)
    {
        Manejador nuevo;
        if (!SQL_SUCCEEDED(SQLAllocHandle(Clase, padre, &nuevo.m_manejador)))
            nuevo.m_manejador = nullptr;
        return nuevo;
    }
    ~Manejador() { suelta(); }
    Manejador(Manejador&& otro) noexcept : m_manejador{std::exchange(otro.m_manejador, nullptr)} {}
    Manejador& operator=(Manejador&& otro) noexcept
    {
        suelta();
        m_manejador = std::exchange(otro.m_manejador, nullptr);
        return *this;
    }

    [[nodiscard]] SQLHANDLE get() const { return m_manejador; }

private:
    void suelta() noexcept
    {
        if (m_manejador)
            SQLFreeHandle(Clase, std::exchange(m_manejador, nullptr));
    }

    SQLHANDLE m_manejador = nullptr;
};

using ManejadorEntorno = Manejador<SQL_HANDLE_ENV>;
using ManejadorConexion = Manejador<SQL_HANDLE_DBC>;
using ManejadorSentencia = Manejador<SQL_HANDLE_STMT>;

/// An environment that speaks ODBC 3.
[[nodiscard]] ManejadorEntorno entornoOdbc3();

/// An attribute whose value is a number, as the interface passes it.
[[nodiscard]] inline SQLPOINTER numeroComoPuntero(quintptr numero)
{
    return reinterpret_cast<SQLPOINTER>(numero); // NOLINT(performance-no-int-to-ptr): so the interface wants it
}

/// UTF-16 text as the interface takes it; it does not write to it.
[[nodiscard]] inline SQLWCHAR* textoAncho(const QString& texto)
{
    static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): its types say less than its promise
    return reinterpret_cast<SQLWCHAR*>(const_cast<char16_t*>(reinterpret_cast<const char16_t*>(texto.utf16())));
}

/// One record of what went wrong.
struct Diagnostico
{
    QString estado; ///< five letters, "08S01"
    qint32 nativo = 0;
    QString texto; ///< the driver's, without the names of manager and driver in brackets

    friend bool operator==(const Diagnostico&, const Diagnostico&) = default;
};

/// The records that the last call left on a handle, the weightiest first. Empty when it left none.
[[nodiscard]] std::vector<Diagnostico> diagnosticos(SQLSMALLINT clase, SQLHANDLE manejador);

} // namespace kestrane::database::odbc
