#include "platform/jet/forma.h"

#include "platform/jet/caracteres.h"
#include "platform/jet/lectura_literales.h"
#include "platform/jet/limites.h"

#include <algorithm>
#include <array>
#include <cstring>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

namespace {

/// The marks that stand for literals: control characters, which no statement may hold outside a literal.
constexpr char16_t marca(Literal::Clase clase)
{
    return static_cast<char16_t>(1 + static_cast<int>(clase));
}

/// A hash for tables, 32 bytes a step: four multiplications that do not wait for one another.
size_t resume(const char16_t* texto, size_t unidades)
{
    constexpr quint64 Primo = 0x9E3779B97F4A7C15ull;
    using Trozo = std::array<quint64, 4>;
    const auto* bytes = reinterpret_cast<const unsigned char*>(texto);
    size_t quedan = unidades * sizeof(char16_t);
    Trozo lados = {quedan, 0xD6E8FEB86659FD93ull, 0xA0761D6478BD642Full, 0xE7037ED1A0B428DBull};
    const auto mezcla = [&lados](const Trozo& trozo) {
        for (size_t i = 0; i < trozo.size(); ++i) {
            const quint64 producto = (lados[i] ^ trozo[i]) * Primo;
            lados[i] = producto ^ (producto >> 32);
        }
    };
    Trozo trozo;
    for (; quedan >= sizeof(Trozo); bytes += sizeof(Trozo), quedan -= sizeof(Trozo)) {
        std::memcpy(trozo.data(), bytes, sizeof(Trozo));
        mezcla(trozo);
    }
    trozo = {};
    std::memcpy(trozo.data(), bytes, quedan);
    mezcla(trozo);
    const quint64 todo = ((lados[0] ^ (lados[1] >> 17)) * Primo) ^ ((lados[2] ^ (lados[3] << 23)) * Primo);
    return static_cast<size_t>(todo ^ (todo >> 29));
}

/// One walk over a text. What lies between two literals is copied in one piece.
class Pasada
{
public:
    Pasada(QStringView texto, char16_t* salida, std::vector<Literal>& literales, std::vector<QString>& conComillas)
        : m_inicio{texto.utf16()}
        , m_fin{m_inicio + texto.size()}
        , m_p{m_inicio}
        , m_tramo{m_inicio}
        , m_salida{salida}
        , m_literales{literales}
        , m_conComillas{conComillas}
    {
    }

    /// Behind the last unit written, or nullptr when a literal cannot be read.
    const char16_t* recorre()
    {
        while (avanza())
            if (!lee())
                return nullptr;
        copiaTramo();
        return m_salida;
    }

private:
    /// On to the next character that may begin a literal; false at the end. This loop is what the time goes into.
    bool avanza()
    {
        const char16_t* p = m_p;
        unsigned anterior = rasgos(p > m_inicio ? p[-1] : u' ');
        // Four at a time: nearly always none of them stops.
        for (; m_fin - p >= 4; p += 4) {
            const unsigned r[] = {rasgos(p[0]), rasgos(p[1]), rasgos(p[2]), rasgos(p[3])};
            if (((r[0] & (anterior >> AParadas)) | (r[1] & (r[0] >> AParadas)) | (r[2] & (r[1] >> AParadas)) |
                 (r[3] & (r[2] >> AParadas))) != 0)
                break;
            anterior = r[3];
        }
        for (; p < m_fin; ++p) {
            const unsigned aqui = rasgos(*p);
            if ((aqui & (anterior >> AParadas)) != 0)
                break;
            anterior = aqui;
        }
        m_p = p;
        return p < m_fin;
    }

    bool lee()
    {
        switch (*m_p) {
        case u'\'':
            return texto();
        case u'#':
            return fecha();
        case u'[':
            return nombre();
        case u'.':
            if (!puntoIniciaNumero(m_p > m_inicio ? m_p[-1] : u' ', m_p + 1 < m_fin ? m_p[1] : u' ')) {
                ++m_p;
                return true;
            }
            return numero();
        default:
            return tieneRasgo(*m_p, Digito) ? numero() : false;
        }
    }

    bool texto()
    {
        const TextoLeido leido = leeTexto(m_p, m_fin);
        if (!leido.fin)
            return false;
        Literal& literal = pon(Literal::Clase::Texto, leido.fin);
        literal.texto = leido.contenido;
        if (leido.comillasDobladas) {
            m_conComillas.push_back(sinComillasDobladas(leido.contenido));
            literal.texto = m_conComillas.back();
        }
        return true;
    }

    bool fecha()
    {
        const FechaLeida leida = leeFecha(m_p, m_fin);
        if (!leida.valida)
            return false;
        pon(Literal::Clase::Fecha, leida.fin).fecha = leida.valor;
        return true;
    }

    bool numero()
    {
        const NumeroLeido leido = leeNumero(m_p, m_fin);
        if (!leido.valido)
            return false;
        pon(leido.entero ? Literal::Clase::Entero : Literal::Clase::Doble, leido.fin).numero = leido.valor;
        return true;
    }

    /// A bracketed name stays in the shape as it stands, whatever it holds.
    bool nombre()
    {
        do
            ++m_p;
        while (m_p < m_fin && *m_p != u']' && !tieneRasgo(*m_p, Control));
        if (m_p == m_fin || *m_p != u']')
            return false;
        ++m_p;
        return true;
    }

    Literal& pon(Literal::Clase clase, const char16_t* tras)
    {
        copiaTramo();
        *m_salida++ = marca(clase);
        m_p = m_tramo = tras;
        Literal& literal = m_literales.emplace_back();
        literal.clase = clase;
        return literal;
    }

    void copiaTramo() { m_salida = std::copy(m_tramo, m_p, m_salida); }

    const char16_t* m_inicio;
    const char16_t* m_fin;
    const char16_t* m_p;
    const char16_t* m_tramo; ///< where the piece that is not copied yet begins
    char16_t* m_salida;
    std::vector<Literal>& m_literales;
    std::vector<QString>& m_conComillas;
};

} // namespace

bool ExtractorDeForma::extrae(QStringView sentencia)
{
    m_literales.clear();
    m_textosConComillas.clear();
    if (sentencia.size() > limites::LongitudTexto)
        return false;
    // A literal takes at least one character of the text and exactly one of the shape.
    m_forma.resize(sentencia.size());
    auto* const salida = reinterpret_cast<char16_t*>(m_forma.data());
    const char16_t* const escrito = Pasada{sentencia, salida, m_literales, m_textosConComillas}.recorre();
    if (!escrito)
        return false;
    m_forma.resize(escrito - salida);
    m_hash = resume(salida, static_cast<size_t>(escrito - salida));
    return true;
}

} // namespace kestrane::jet
