#include "layouts/listado_de_prueba.h"

#include "platform/database/recordset.h"

#include <cmath>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

constexpr double Cuarto = 0.25;

/// Dots between thousands, from the right.
QString conPuntos(qint64 entero)
{
    QString cifras = QString::number(entero);
    for (qsizetype i = cifras.size() - 3; i > 0; i -= 3)
        cifras.insert(i, u'.');
    return cifras;
}

Valor numero(const QString& campo, int fila)
{
    const qint64 i = fila;
    if (campo == u"numerico6")
        return static_cast<double>(i % 4 == 3 ? 0 : i * 35 % 1500 - 100);
    if (campo == u"numerico3")
        return static_cast<double>(i % 5) * 5.25;
    const qint64 paso = campo == u"numerico2" ? 7919 : 104729;
    return static_cast<double>(i * paso % 80001 - 20000) * Cuarto;
}

Valor texto(int lugar, int fila)
{
    constexpr QStringView Letras = u"ÁéÍóÚñÑüçÇàï";
    const QString distinto = QChar{u'a' + lugar} + QString{Letras[lugar % Letras.size()]} + QString::number(fila + 1);
    return lugar == 2 ? u"Peña "_s + distinto : distinto;
}

bool seDeja(int lugar, int fila)
{
    return (fila + 3 * lugar + 1) % 11 == 0;
}

Valor comun(const QString& campo, int fila)
{
    const bool esNumero = campo.startsWith(u"numerico");
    const int lugar = campo.mid(esNumero ? 8 : 5).toInt();
    if (seDeja(lugar, fila))
        return Nulo{};
    return esNumero ? numero(campo, fila) : texto(lugar, fila);
}

Valor dePack(const QString& campo, int fila)
{
    const int pack = fila / ServiciosPorPack;
    if (campo == u"texto8")
        return QStringList{u"Dia 10"_s, u"Dia 3"_s, u"Dia 2"_s, u"Dia 1"_s}[fila % ServiciosPorPack];
    if (campo == u"texto2")
        return u"Pack ñ"_s + QString::number(pack + 1).rightJustified(4, u'0');
    if (campo == u"texto7")
        return u"Baño "_s + QString::number(fila + 1);
    return comun(campo, pack);
}

QStringList camposDe(const Listado& listado)
{
    QStringList campos{u"texto34"_s, u"texto35"_s};
    if (listado.conPacks())
        campos << u"texto22"_s;
    for (const Columna& columna : listado.columnas)
        campos << columna.campo;
    return campos;
}

/// Packs stand in the table in the wrong order, the services of each in the right one.
int lugarEnLaTabla(const Listado& listado, int paso, int filas)
{
    if (!listado.conPacks())
        return paso;
    const int ultimo = (filas - 1) / ServiciosPorPack;
    const int deUltimo = filas - ultimo * ServiciosPorPack;
    if (paso < deUltimo)
        return ultimo * ServiciosPorPack + paso;
    const int resto = paso - deUltimo;
    return (ultimo - 1 - resto / ServiciosPorPack) * ServiciosPorPack + resto % ServiciosPorPack;
}

} // namespace

Valor valorDe(const Listado& listado, int fila, const QString& campo)
{
    if (campo == u"texto34")
        return Direccion;
    if (campo == u"texto35")
        return Empresa;
    return listado.conPacks() ? dePack(campo, fila) : comun(campo, fila);
}

QString escrito(const Valor& valor, Clase clase)
{
    if (valor.esNulo())
        return {};
    if (clase != Clase::Entero && clase != Clase::Importe)
        return valor.texto();
    const double cifra = valor.doble();
    const qint64 centimos = std::llround(std::abs(cifra) * 100);
    const QString entera = (cifra < 0 ? u"-"_s : QString{}) + conPuntos(centimos / 100);
    if (clase == Clase::Entero)
        return centimos == 0 ? QString{} : entera;
    return entera + u',' + QString::number(centimos % 100).rightJustified(2, u'0');
}

void llena(TiendaDePrueba& tienda, const Listado& listado, int filas)
{
    const QStringList campos = camposDe(listado);
    Recordset informes;
    informes.Open(u"select * from informes"_s, tienda.listados());
    for (int paso = 0; paso < filas; ++paso) {
        const int fila = lugarEnLaTabla(listado, paso, filas);
        informes.AddNew();
        for (const QString& campo : campos)
            informes.Fields(campo) = valorDe(listado, fila, campo);
        informes.Update();
    }
}

} // namespace kestrane::prueba
