#include "lote/opciones.h"

#include "lote/ayuda.h"
#include "platform/runtime/lector_dia.h"
#include "platform/runtime/linea_de_ordenes.h"

#include <QCommandLineParser>
#include <QDir>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

const QString Lista = u"lista"_s;
const QString Hoy = u"hoy"_s;
const QString Sql = u"sql"_s;
const QString SqlFichero = u"sql-fichero"_s;
const QString Base = u"conexion"_s;
const QString Datos = u"datos"_s;
const QString Dsn = u"dsn"_s;
const QString Escribir = u"escribir"_s;
const QString Regional = u"regional"_s;
const QString Ayuda = u"ayuda"_s;

void declara(QCommandLineParser& lector)
{
    const auto conValor = [](const QString& nombre) { return QCommandLineOption{nombre, {}, u"valor"_s}; };
    lector.addOptions({conValor(Sql), conValor(SqlFichero), conValor(Base), conValor(Datos), conValor(Dsn), conValor(Regional),
                       conValor(Hoy), QCommandLineOption{Lista}, QCommandLineOption{Escribir},
                       QCommandLineOption{{u"h"_s, Ayuda, u"help"_s}}});
    lector.addOptions(opcionesDeInforme());
}

std::optional<Opciones::Trabajo> trabajoDe(const QCommandLineParser& lector)
{
    const std::pair<bool, Opciones::Trabajo> pedidos[] = {
        {lector.isSet(Lista), Opciones::Trabajo::Lista},
        {lector.isSet(Sql), Opciones::Trabajo::Sql},
        {lector.isSet(SqlFichero), Opciones::Trabajo::SqlFichero},
    };
    std::optional<Opciones::Trabajo> unico;
    for (const auto& [pedido, trabajo] : pedidos) {
        if (pedido && unico)
            return {};
        if (pedido)
            unico = trabajo;
    }
    if (!unico && !lector.positionalArguments().isEmpty())
        unico = Opciones::Trabajo::Informe;
    return unico;
}

bool esDeSql(Opciones::Trabajo trabajo)
{
    return trabajo == Opciones::Trabajo::Sql || trabajo == Opciones::Trabajo::SqlFichero;
}

/// The first option that `trabajo` does not take.
std::optional<QString> opcionDeOtroTrabajo(Opciones::Trabajo trabajo, const QCommandLineParser& lector)
{
    if (!esDeSql(trabajo)) {
        for (const QString& nombre : {Base, Dsn, Escribir}) {
            if (lector.isSet(nombre))
                return u"--"_s + nombre;
        }
    }
    if (trabajo == Opciones::Trabajo::Informe)
        return {};
    return lector.isSet(Hoy) ? u"--"_s + Hoy : primeraOpcionDeInforme(lector);
}

std::optional<ErrorDeUso> errorDeTrabajo(Opciones::Trabajo trabajo, const QCommandLineParser& lector)
{
    const QStringList sueltos = lector.positionalArguments().sliced(trabajo == Opciones::Trabajo::Informe ? 1 : 0);
    if (!sueltos.isEmpty())
        return ErrorDeUso{u"Sobra \"%1\"."_s.arg(sueltos.constFirst())};
    if (const auto opcion = opcionDeOtroTrabajo(trabajo, lector))
        return ErrorDeUso{u"Aquí no se admite %1."_s.arg(*opcion)};
    if (lector.isSet(Base) && lector.value(Base) != "tienda"_L1 && lector.value(Base) != "listados"_L1)
        return ErrorDeUso{u"--conexion admite tienda o listados, no \"%1\"."_s.arg(lector.value(Base))};
    return {};
}

void leeSql(const QCommandLineParser& lector, Opciones& opciones)
{
    opciones.texto = lector.value(lector.isSet(Sql) ? Sql : SqlFichero);
    opciones.base = lector.value(Base) == "listados"_L1 ? Opciones::Base::Listados : Opciones::Base::Tienda;
    const QString porDefecto = opciones.base == Opciones::Base::Listados ? u"ListKestrane"_s : u"TiendaKestrane"_s;
    opciones.dsn = lector.isSet(Dsn) ? lector.value(Dsn) : porDefecto;
    opciones.escribir = lector.isSet(Escribir);
}

std::optional<ErrorDeUso> leeInforme(const QCommandLineParser& lector, Opciones& opciones)
{
    auto pedido = leePedido(lector.positionalArguments().constFirst(), lector);
    if (!pedido)
        return pedido.error();
    opciones.informe = std::move(pedido).valor();
    if (!lector.isSet(Hoy))
        return {};
    opciones.hoy = leeDia(lector.value(Hoy));
    if (!opciones.hoy)
        return ErrorDeUso{u"--hoy lleva una fecha AAAA-MM-DD, no \"%1\"."_s.arg(lector.value(Hoy))};
    return {};
}

std::optional<ErrorDeUso> leeComunes(const QCommandLineParser& lector, const QString& carpetaPrograma, Opciones& opciones)
{
    opciones.carpeta = lector.isSet(Datos) ? lector.value(Datos) : QDir{carpetaPrograma}.filePath(u"datos"_s);
    opciones.regional = ConfiguracionRegional::delSistema();
    if (!lector.isSet(Regional))
        return {};
    const auto regional = ConfiguracionRegional::deNombre(lector.value(Regional));
    if (!regional)
        return ErrorDeUso{u"No existe la configuración regional \"%1\"; escríbala como es_ES."_s.arg(lector.value(Regional))};
    opciones.regional = *regional;
    return {};
}

} // namespace

Resultado<Opciones, ErrorDeUso> leeOpciones(const QStringList& argumentos, const QString& carpetaPrograma)
{
    QCommandLineParser lector;
    declara(lector);
    const QString error = leeLinea(lector, argumentos, opcionesQueAdmitenVacio());
    Opciones opciones;
    if (error.isEmpty() && lector.isSet(Ayuda)) {
        opciones.texto = QStringView{TextoDeAyuda}.toString();
        return opciones;
    }
    if (!error.isEmpty())
        return ErrorDeUso{error};
    const auto trabajo = trabajoDe(lector);
    if (!trabajo)
        return ErrorDeUso{u"Indique un CONTROL, o bien --lista, --sql TEXTO o --sql-fichero FICHERO."_s};
    opciones.trabajo = *trabajo;
    if (auto motivo = errorDeTrabajo(*trabajo, lector))
        return *std::move(motivo);
    if (auto motivo = leeComunes(lector, carpetaPrograma, opciones))
        return *std::move(motivo);
    if (esDeSql(*trabajo))
        leeSql(lector, opciones);
    if (*trabajo != Opciones::Trabajo::Informe)
        return opciones;
    if (auto motivo = leeInforme(lector, opciones))
        return *std::move(motivo);
    return opciones;
}

} // namespace kestrane::lote
