#include "platform/database/conversion_columna.h"

#include "platform/database/error_motor.h"
#include "platform/database/utf8.h"
#include "platform/runtime/conversiones.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrane::database {

using jet::TipoColumna;

namespace {

[[noreturn]] void nuloNoAdmitido(const jet::Columna& columna)
{
    throw ErrorMotor(ErrorMotor::Categoria::Restriccion, ErrorEjecucion::SentenciaRechazada,
                     u"La columna \"%1\" no admite el valor nulo."_s.arg(columna.nombre));
}

QString textoParaColumna(const Valor& valor, const jet::Columna& columna, const ConfiguracionRegional& regional)
{
    QString texto = valor.clase() == Valor::Clase::Texto ? valor.texto() : aTexto(valor, regional);
    exigeEscribible(texto, columna.nombre);
    exigeAncho(texto, columna.ancho, columna.nombre);
    return texto;
}

double dobleFinito(double numero)
{
    if (!std::isfinite(numero))
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return numero;
}

Valor convertido(const Valor& valor, const jet::Columna& columna, const ConfiguracionRegional& regional)
{
    switch (columna.tipo) {
    case TipoColumna::Texto:
    case TipoColumna::Memo:
        return textoParaColumna(valor, columna, regional);
    case TipoColumna::Entero32:
        return aEntero32(valor, regional);
    case TipoColumna::Entero16:
        return aEntero16(valor, regional);
    case TipoColumna::Doble:
        return dobleFinito(valor.clase() == Valor::Clase::Doble ? valor.doble() : aDoble(valor, regional));
    case TipoColumna::FechaHora:
        return aFecha(valor, regional);
    case TipoColumna::SiNo:
        return aLogico(valor, regional);
    }
    return valor;
}

} // namespace

void exigeAncho(QStringView texto, int ancho, const QString& columna)
{
    if (ancho <= 0 || texto.size() <= ancho)
        return;
    const qsizetype caracteres = puntosDeCodigo(texto);
    if (caracteres <= ancho)
        return;
    throw ErrorMotor(ErrorMotor::Categoria::Restriccion, ErrorEjecucion::SentenciaRechazada,
                     u"El texto tiene %1 caracteres y en la columna \"%2\" caben %3: \"%4…\"."_s.arg(caracteres)
                         .arg(columna)
                         .arg(ancho)
                         .arg(texto.first(std::min<qsizetype>(texto.size(), 40))));
}

void exigeEscribible(QStringView texto, const QString& columna)
{
    if (!texto.contains(QChar{u'\0'}))
        return;
    const QString donde = columna.isEmpty() ? QString{} : u" para la columna \"%1\""_s.arg(columna);
    throw ErrorMotor(ErrorMotor::Categoria::Restriccion, ErrorEjecucion::SentenciaRechazada,
                     u"El texto%1 contiene el carácter nulo, que una base de datos no puede guardar: quítelo."_s.arg(donde));
}

Valor valorParaColumna(const Valor& valor, const jet::Columna& columna, const ConfiguracionRegional& regional)
{
    if (valor.esNulo()) {
        if (!columna.admiteNulo)
            nuloNoAdmitido(columna);
        return valor;
    }
    try {
        return convertido(valor, columna, regional);
    } catch (const ErrorMotor&) {
        throw;
    } catch (const ErrorEjecucion& error) {
        const QString texto = valor.clase() == Valor::Clase::Texto ? u", texto \"%1\""_s.arg(valor.texto()) : QString{};
        throw error.conContexto(u"Columna \"%1\"%2."_s.arg(columna.nombre, texto));
    }
}

} // namespace kestrane::database
