#include "platform/runtime/conversiones.h"
#include "platform/runtime/error_ejecucion.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kestrane {

using namespace Qt::StringLiterals;
using Orden = ConfiguracionRegional::OrdenFecha;

// ---------------------------------------------------------------- writing

namespace {

/// The characters of a date; the longest is "05/03/2024 10:05:00".
class Letras
{
public:
    void pon(QChar letra) { m_letras[m_cuantas++] = letra; }
    void ponCifra(int cifra) { pon(QChar{static_cast<char16_t>(u'0' + cifra)}); }
    void ponDos(int numero)
    {
        ponCifra(numero / 10);
        ponCifra(numero % 10);
    }
    void ponCuatro(int numero)
    {
        ponDos(numero / 100);
        ponDos(numero % 100);
    }
    void ponTres(int primero, int segundo, QChar marca)
    {
        ponDos(primero);
        pon(marca);
        ponDos(segundo);
        pon(marca);
    }
    [[nodiscard]] bool vacias() const { return m_cuantas == 0; }
    [[nodiscard]] QString texto() const { return QString{m_letras.data(), m_cuantas}; }

private:
    std::array<QChar, 24> m_letras;
    qsizetype m_cuantas = 0;
};

void escribeDia(Fecha::Calendario dia, Orden orden, QChar marca, Letras& letras)
{
    if (orden == Orden::AnioMesDia) {
        letras.ponCuatro(dia.anio);
        letras.pon(marca);
        letras.ponDos(dia.mes);
        letras.pon(marca);
        letras.ponDos(dia.dia);
        return;
    }
    const bool mesPrimero = orden == Orden::MesDiaAnio;
    letras.ponTres(mesPrimero ? dia.mes : dia.dia, mesPrimero ? dia.dia : dia.mes, marca);
    letras.ponCuatro(dia.anio);
}

void escribeHora(Fecha fecha, Letras& letras)
{
    if (!letras.vacias())
        letras.pon(u' ');
    if (fecha.hora() >= 10)
        letras.ponCifra(fecha.hora() / 10);
    letras.ponCifra(fecha.hora() % 10);
    letras.pon(u':');
    letras.ponDos(fecha.minuto());
    letras.pon(u':');
    letras.ponDos(fecha.segundo());
}

} // namespace

QString aTexto(Fecha fecha, const ConfiguracionRegional& regional)
{
    Letras letras;
    if (!fecha.esDiaCero())
        escribeDia(fecha.calendario(), regional.ordenFecha, regional.marcaFecha, letras);
    if (fecha.esDiaCero() || !fecha.esMedianoche())
        escribeHora(fecha, letras);
    return letras.texto();
}

QString fechaParaSql(Fecha fecha)
{
    Letras letras;
    escribeDia(fecha.calendario(), Orden::MesDiaAnio, u'/', letras);
    return letras.texto();
}

// ---------------------------------------------------------------- reading

namespace {

constexpr int PrimerAnioDeDosCifras = 30; // 30 to 99 are 1930 to 1999, 0 to 29 are 2000 to 2029

struct Campo
{
    int valor = 0;
    qsizetype cifras = 0;
};

/// Up to four digits and nothing else.
std::optional<Campo> leeCampo(QStringView texto)
{
    if (texto.isEmpty() || texto.size() > 4)
        return std::nullopt;
    Campo campo{0, texto.size()};
    for (const QChar signo : texto) {
        if (signo < u'0' || signo > u'9')
            return std::nullopt;
        campo.valor = campo.valor * 10 + (signo.unicode() - u'0');
    }
    return campo;
}

/// The numbers of a text parted by `marca`: at most three.
struct Campos
{
    std::array<Campo, 3> campo;
    int cuantos = 0;
};

std::optional<Campos> leeCampos(QStringView texto, QChar marca)
{
    Campos campos;
    for (;;) {
        const qsizetype fin = texto.indexOf(marca);
        const auto campo = leeCampo(fin < 0 ? texto : texto.left(fin));
        if (!campo || campos.cuantos == 3)
            return std::nullopt;
        campos.campo[campos.cuantos++] = *campo;
        if (fin < 0)
            return campos;
        texto = texto.mid(fin + 1);
    }
}

std::optional<Fecha> leeHora(QStringView texto)
{
    const auto campos = leeCampos(texto, u':');
    if (!campos || campos->cuantos < 2)
        return std::nullopt;
    const Campo hora = campos->campo[0];
    const Campo minuto = campos->campo[1];
    const Campo segundo = campos->campo[2];
    if (hora.cifras > 2 || minuto.cifras != 2 || (campos->cuantos == 3 && segundo.cifras != 2))
        return std::nullopt;
    return Fecha::deCalendario(1899, 12, 30, hora.valor, minuto.valor, segundo.valor);
}

/// A year that is written out tells its own place.
Orden ordenDe(const Campos& campos, Orden regional)
{
    if (campos.campo[0].cifras > 2)
        return Orden::AnioMesDia;
    if (regional == Orden::AnioMesDia && campos.campo[2].cifras > 2)
        return Orden::DiaMesAnio;
    return regional;
}

int anioEntero(Campo anio)
{
    if (anio.cifras > 2)
        return anio.valor;
    return anio.valor + (anio.valor < PrimerAnioDeDosCifras ? 2000 : 1900);
}

QChar marcaDe(QStringView texto, QChar regional)
{
    const auto* const marca =
        std::find_if(texto.begin(), texto.end(), [&](QChar signo) { return signo == regional || signo == u'/' || signo == u'-'; });
    return marca == texto.end() ? regional : *marca;
}

std::optional<Fecha> leeDia(QStringView texto, const ConfiguracionRegional& regional)
{
    const auto campos = leeCampos(texto, marcaDe(texto, regional.marcaFecha));
    if (!campos || campos->cuantos != 3)
        return std::nullopt;
    const Campo a = campos->campo[0];
    const Campo b = campos->campo[1];
    const Campo c = campos->campo[2];
    switch (ordenDe(*campos, regional.ordenFecha)) {
    case Orden::DiaMesAnio:
        return Fecha::deCalendario(anioEntero(c), b.valor, a.valor);
    case Orden::MesDiaAnio:
        return Fecha::deCalendario(anioEntero(c), a.valor, b.valor);
    case Orden::AnioMesDia:
        return Fecha::deCalendario(anioEntero(a), b.valor, c.valor);
    }
    return std::nullopt;
}

std::optional<Fecha> leeFecha(QStringView texto, const ConfiguracionRegional& regional)
{
    const auto* const blanco = std::find_if(texto.begin(), texto.end(), [](QChar signo) { return signo.isSpace(); });
    if (blanco == texto.end())
        return texto.contains(u':') ? leeHora(texto) : leeDia(texto, regional);
    const qsizetype fin = blanco - texto.begin();
    const auto dia = leeDia(texto.left(fin), regional);
    const auto hora = leeHora(texto.mid(fin).trimmed());
    if (!dia || !hora)
        return std::nullopt;
    return Fecha::deSerie(dia->diaDeSerie(), hora->segundoDelDia());
}

} // namespace

Fecha aFecha(QStringView texto, const ConfiguracionRegional& regional)
{
    if (const auto fecha = leeFecha(texto.trimmed(), regional))
        return *fecha;
    throw ErrorEjecucion{ErrorEjecucion::TiposNoCoinciden}.conContexto(u"\"%1\" no es una fecha."_s.arg(texto.left(60)));
}

} // namespace kestrane
