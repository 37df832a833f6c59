#include "platform/jet/lexer.h"

#include "platform/jet/caracteres.h"
#include "platform/jet/lectura_literales.h"
#include "platform/jet/limites.h"
#include "platform/jet/rechazo.h"

#include <QChar>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

namespace {

class Lexer
{
public:
    explicit Lexer(QStringView texto) : m_inicio{texto.utf16()}, m_fin{m_inicio + texto.size()}, m_p{m_inicio}
    {
        m_tokens.reserve(static_cast<size_t>(texto.size() / 4 + 2));
    }

    std::vector<Token> recorre()
    {
        while (saltaBlancos())
            lee();
        anade(ClaseToken::Fin, m_fin);
        return std::move(m_tokens);
    }

private:
    bool saltaBlancos()
    {
        while (m_p < m_fin && tieneRasgo(*m_p, Blanco))
            ++m_p;
        return m_p < m_fin;
    }

    void lee()
    {
        const char16_t c = *m_p;
        if (c == u'\'')
            texto();
        else if (c == u'#')
            fecha();
        else if (c == u'[')
            nombreEntreCorchetes();
        else if (tieneRasgo(c, Digito) || (c == u'.' && puntoIniciaNumero(anterior(), siguiente())))
            numero();
        else if (const char16_t* fin = trasNombre(m_p); fin != m_p)
            palabra(fin);
        else
            signoSuelto();
    }

    [[nodiscard]] char16_t anterior() const { return m_p > m_inicio ? m_p[-1] : u' '; }
    [[nodiscard]] char16_t siguiente() const { return m_p + 1 < m_fin ? m_p[1] : u' '; }

    /// Behind the letters, digits and underscores that begin here, surrogate pairs included.
    [[nodiscard]] const char16_t* trasNombre(const char16_t* p) const
    {
        while (p < m_fin) {
            if (*p < 128) {
                if (!tieneRasgo(*p, DeNombre))
                    break;
                ++p;
                continue;
            }
            const int unidades = unidadesDeLetra(p);
            if (unidades == 0)
                break;
            p += unidades;
        }
        return p;
    }

    /// How many UTF-16 units the letter beyond ASCII that begins here takes; 0 when it is no letter.
    [[nodiscard]] int unidadesDeLetra(const char16_t* p) const
    {
        if (!QChar::isSurrogate(*p))
            return QChar::isLetterOrNumber(*p) || QChar::isMark(*p) ? 1 : 0;
        if (!QChar::isHighSurrogate(*p) || p + 1 >= m_fin || !QChar::isLowSurrogate(p[1]))
            return 0;
        const char32_t c = QChar::surrogateToUcs4(*p, p[1]);
        return QChar::isLetterOrNumber(c) ? 2 : 0;
    }

    void palabra(const char16_t* fin)
    {
        const QStringView nombre(m_p, fin);
        if (const auto clave = palabraClave(nombre)) {
            anade(*clave, fin);
            return;
        }
        compruebaLongitud(nombre, fin);
        anade(ClaseToken::Nombre, fin).texto = nombre;
    }

    void nombreEntreCorchetes()
    {
        const char16_t* p = m_p + 1;
        while (p < m_fin && *p != u']' && !tieneRasgo(*p, Control) && *p != u'[')
            ++p;
        if (p == m_fin || *p != u']')
            falla(ErrorSql::Clase::LiteralSinCerrar, u"Falta el corchete \"]\" que cierra el nombre."_s, p);
        const QStringView nombre(m_p + 1, p);
        if (nombre.trimmed().isEmpty())
            falla(ErrorSql::Clase::SintaxisIncorrecta, u"No hay ningún nombre entre los corchetes."_s, p + 1);
        compruebaLongitud(nombre, p + 1);
        anade(ClaseToken::Nombre, p + 1).texto = nombre;
    }

    void compruebaLongitud(QStringView nombre, const char16_t* fin)
    {
        if (nombre.size() > limites::LongitudNombre)
            falla(ErrorSql::Clase::DemasiadoLargo,
                  u"El nombre es demasiado largo: caben %1 caracteres."_s.arg(limites::LongitudNombre), fin);
    }

    void texto()
    {
        const TextoLeido leido = leeTexto(m_p, m_fin);
        if (!leido.fin)
            falla(ErrorSql::Clase::LiteralSinCerrar, u"Falta el apóstrofo que cierra el texto."_s, m_fin);
        literal(ClaseToken::Texto, leido.fin).texto = leido.contenido;
    }

    void numero()
    {
        const NumeroLeido leido = leeNumero(m_p, m_fin);
        if (!leido.valido)
            falla(ErrorSql::Clase::NumeroInvalido, u"El número es demasiado grande."_s, leido.fin);
        literal(leido.entero ? ClaseToken::Entero : ClaseToken::Doble, leido.fin).numero = leido.valor;
    }

    void fecha()
    {
        const FechaLeida leida = leeFecha(m_p, m_fin);
        if (!leida.fin)
            falla(ErrorSql::Clase::LiteralSinCerrar, u"Falta el signo \"#\" que cierra la fecha."_s, m_fin);
        if (!leida.valida)
            falla(ErrorSql::Clase::FechaInvalida,
                  u"La fecha %1 no existe o no se entiende: se espera #mes/día/año#, con el año de cuatro cifras."_s.arg(
                      QStringView(m_p, leida.fin)),
                  leida.fin);
        literal(ClaseToken::Fecha, leida.fin).fecha = leida.valor;
    }

    void signoSuelto()
    {
        int longitud = 1;
        const auto clase = signo(*m_p, siguiente(), longitud);
        if (!clase)
            caracterInesperado();
        anade(*clase, m_p + longitud);
    }

    [[noreturn]] void caracterInesperado()
    {
        const bool par = QChar::isHighSurrogate(*m_p) && QChar::isLowSurrogate(siguiente());
        const char16_t* fin = m_p + (par ? 2 : 1);
        const QString muestra =
            tieneRasgo(*m_p, Control) ? u"de control U+%1"_s.arg(*m_p, 4, 16, QChar(u'0')) : u"\"%1\""_s.arg(QStringView(m_p, fin));
        falla(ErrorSql::Clase::CaracterInesperado, u"El carácter %1 no puede estar aquí."_s.arg(muestra), fin);
    }

    Token& anade(ClaseToken clase, const char16_t* fin)
    {
        Token& token = m_tokens.emplace_back();
        token.clase = clase;
        token.posicion = static_cast<int>(m_p - m_inicio);
        token.longitud = static_cast<int>(fin - m_p);
        m_p = fin;
        return token;
    }

    Token& literal(ClaseToken clase, const char16_t* fin)
    {
        Token& token = anade(clase, fin);
        token.literal = m_literales++;
        return token;
    }

    /// Refuses the stretch from here to `fin`.
    [[noreturn]] void falla(ErrorSql::Clase clase, const QString& mensaje, const char16_t* fin) const
    {
        throw Rechazo{{clase, mensaje, static_cast<int>(m_p - m_inicio), static_cast<int>(fin - m_p)}};
    }

    const char16_t* m_inicio;
    const char16_t* m_fin;
    const char16_t* m_p;
    std::vector<Token> m_tokens;
    int m_literales = 0;
};

} // namespace

Resultado<std::vector<Token>, ErrorSql> tokeniza(QStringView sentencia)
{
    if (sentencia.size() > limites::LongitudTexto)
        return ErrorSql{ErrorSql::Clase::DemasiadoLargo,
                        u"La sentencia es demasiado larga: caben %1 caracteres."_s.arg(limites::LongitudTexto),
                        limites::LongitudTexto, 0};
    return conRechazo([&] { return Lexer{sentencia}.recorre(); });
}

} // namespace kestrane::jet
