#include "platform/suite/preferencias_en_tabla.h"

#include "platform/database/recordset.h"
#include "platform/runtime/conversiones.h"

#include <QSysInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane {

namespace {

constexpr QStringView Tabla = u"preferencias_terminal";

/// `texto` as a literal of a statement.
QString literal(QString texto)
{
    return u'\'' + texto.replace(u"'"_s, u"''"_s) + u'\'';
}

/// The name under which a terminal's row stands: what the column holds of it, no letter cut in two.
QString nombreDeFila(const QString& identificador)
{
    constexpr qsizetype AnchoColumna = 50;
    const bool parte = identificador.size() > AnchoColumna && identificador.at(AnchoColumna).isLowSurrogate();
    return identificador.left(parte ? AnchoColumna - 1 : AnchoColumna);
}

/// The first of `valores` past `actual`, or the first of all.
template<class Valores>
auto siguiente(const Valores& valores, qint32 actual)
{
    const auto hallado = std::upper_bound(valores.begin(), valores.end(), actual);
    return hallado == valores.end() ? valores.front() : *hallado;
}

TamanoVentana siguienteTamano(double ancho)
{
    static_assert(Tamanos.size() > 1, "a step must change the size");
    for (const TamanoVentana& uno : Tamanos) {
        if (uno.ancho > ancho)
            return uno;
    }
    return Tamanos.front();
}

/// The stored number when it is one of `valores`, else `porDefecto`.
template<class Valores>
qint32 elegido(const Valor& guardado, const Valores& valores, qint32 porDefecto)
{
    const bool vale = !guardado.esNulo() && std::find(valores.begin(), valores.end(), guardado.entero32()) != valores.end();
    return vale ? guardado.entero32() : porDefecto;
}

double medida(const Valor& guardada, double porDefecto)
{
    return !guardada.esNulo() && guardada.doble() > 0 ? guardada.doble() : porDefecto;
}

Apariencia leeFila(Recordset& fila)
{
    constexpr Apariencia PorDefecto;
    return {.tema = elegido(fila.Fields(u"tema"), Temas, PorDefecto.tema),
            .letra = elegido(fila.Fields(u"letra"), Letras, PorDefecto.letra),
            .ancho = medida(fila.Fields(u"ancho"), PorDefecto.ancho),
            .alto = medida(fila.Fields(u"alto"), PorDefecto.alto)};
}

} // namespace

PreferenciasEnTabla::PreferenciasEnTabla() : PreferenciasEnTabla{QSysInfo::machineHostName()} {}

QString PreferenciasEnTabla::condicion() const
{
    return u" where terminal = "_s + literal(nombreDeFila(m_identificador));
}

Apariencia PreferenciasEnTabla::lee(Conexion& conexion) const
{
    if (!conexion.tieneTabla(Tabla))
        return m_sinTabla;
    Recordset fila;
    fila.Open(u"Select tema,letra,ancho,alto from preferencias_terminal"_s + condicion(), conexion);
    return fila.RecordCount() > 0 ? leeFila(fila) : Apariencia{};
}

bool PreferenciasEnTabla::tieneFila(Conexion& conexion) const
{
    Recordset fila;
    fila.Open(u"Select terminal from preferencias_terminal"_s + condicion(), conexion);
    return fila.RecordCount() > 0;
}

void PreferenciasEnTabla::guarda(Conexion& conexion, const Apariencia& apariencia)
{
    if (!conexion.tieneTabla(Tabla)) {
        m_sinTabla = apariencia;
        return;
    }
    if (!tieneFila(conexion))
        conexion.Execute(u"Insert into preferencias_terminal (terminal) values ("_s + literal(nombreDeFila(m_identificador)) +
                         u')');
    const ConfiguracionRegional& regional = conexion.entorno().regional();
    conexion.Execute(u"Update preferencias_terminal set tema = %1, letra = %2, ancho = %3, alto = %4"_s.arg(
                         QString::number(apariencia.tema), QString::number(apariencia.letra),
                         numeroParaSql(apariencia.ancho, regional), numeroParaSql(apariencia.alto, regional)) +
                     condicion());
}

qint32 PreferenciasEnTabla::DarTema(Conexion& conexion)
{
    return lee(conexion).tema;
}

qint32 PreferenciasEnTabla::SiguienteTema(Conexion& conexion)
{
    Apariencia apariencia = lee(conexion);
    apariencia.tema = siguiente(Temas, apariencia.tema);
    guarda(conexion, apariencia);
    return apariencia.tema;
}

qint32 PreferenciasEnTabla::DarLetra(Conexion& conexion)
{
    return lee(conexion).letra;
}

qint32 PreferenciasEnTabla::SiguienteLetra(Conexion& conexion)
{
    Apariencia apariencia = lee(conexion);
    apariencia.letra = siguiente(Letras, apariencia.letra);
    guarda(conexion, apariencia);
    return apariencia.letra;
}

double PreferenciasEnTabla::DarAncho(Conexion& conexion)
{
    return lee(conexion).ancho;
}

bool PreferenciasEnTabla::SiguienteTamano(Conexion& conexion, double& ancho, double& alto)
{
    const TamanoVentana nuevo = siguienteTamano(ancho);
    Apariencia apariencia = lee(conexion);
    apariencia.ancho = nuevo.ancho;
    apariencia.alto = nuevo.alto;
    guarda(conexion, apariencia);
    ancho = nuevo.ancho;
    alto = nuevo.alto;
    return true;
}

double PreferenciasEnTabla::DarAlto(Conexion& conexion)
{
    return lee(conexion).alto;
}

} // namespace kestrane
