#pragma once

#include "pipeline/catalogue/condiciones.h"
#include "pipeline/catalogue/fila_catalogo.h"
#include "pipeline/catalogue/nombres.h"

#include <QStringList>

#include <string>

/// A row of the catalogue in words, for the tables that say what it must hold.
namespace kestrane::prueba {

inline std::string enTexto(const QStringList& palabras)
{
    return palabras.join(u' ').toStdString();
}

/// "?" and the name of a condition, "" without one.
inline QString siCuenta(catalogue::Condicion cuando)
{
    static const std::pair<catalogue::Condicion, QString> nombres[] = {
        {nullptr, QString{}},
        {catalogue::esComercio, QStringLiteral("?comercio")},
        {catalogue::esDeTallaYColor, QStringLiteral("?tallacolor")},
        {catalogue::esDeAlimentacionYPerfume, QStringLiteral("?alimentacion")},
        {catalogue::enTicket, QStringLiteral("?ticket")},
        {catalogue::enTicketDeComercio, QStringLiteral("?ticket+comercio")},
        {catalogue::totalizado, QStringLiteral("?totalizado")},
        {catalogue::totalizadoDeTodos, QStringLiteral("?totalizado+todos")},
        {catalogue::reimprimeFactura, QStringLiteral("?factura")},
    };
    for (const auto& [condicion, texto] : nombres) {
        if (condicion == cuando)
            return texto;
    }
    return QStringLiteral("?otra");
}

inline std::string dialogosDe(const catalogue::FilaCatalogo& fila)
{
    QStringList nombres;
    for (const Dialogo dialogo : fila.dialogos.lista())
        nombres += nombre(dialogo);
    return enTexto(nombres);
}

inline std::string constructoresDe(const catalogue::FilaCatalogo& fila)
{
    QStringList nombres;
    for (const catalogue::OpcionConstructor& opcion : fila.constructores) {
        if (opcion.presente())
            nombres += opcion.nombre.toString() + (opcion.numero == 0 ? QString{} : QStringLiteral("(%1)").arg(opcion.numero)) +
                       siCuenta(opcion.cuando);
    }
    return enTexto(nombres);
}

/// Layouts, or the name of the chart.
inline std::string disenosDe(const catalogue::FilaCatalogo& fila)
{
    QStringList ficheros;
    if (fila.grafico.presente())
        ficheros += fila.grafico.nombre.toString();
    for (const catalogue::Diseno& diseno : fila.disenos) {
        if (diseno.presente())
            ficheros += diseno.fichero.toString() +
                        (diseno.impresora == catalogue::ImpresoraDe::Ticket ? QStringLiteral("!") : QString{}) +
                        siCuenta(diseno.cuando);
    }
    return enTexto(ficheros);
}

inline std::string accionesDe(const catalogue::FilaCatalogo& fila)
{
    QStringList nombres;
    for (const catalogue::OpcionAccion& opcion : fila.acciones) {
        if (opcion.presente())
            nombres += nombre(opcion.accion) + siCuenta(opcion.cuando);
    }
    return enTexto(nombres);
}

inline std::string marcasDe(const catalogue::FilaCatalogo& fila)
{
    static const std::pair<catalogue::Marca, QString> nombres[] = {
        {catalogue::Marca::Hoy, QStringLiteral("Hoy")},
        {catalogue::Marca::Select, QStringLiteral("Select")},
        {catalogue::Marca::Bucle, QStringLiteral("Bucle")},
        {catalogue::Marca::SinFiltroAceptado, QStringLiteral("SinFiltroAceptado")},
        {catalogue::Marca::ConAviso, QStringLiteral("ConAviso")}};
    QStringList marcas;
    for (const auto& [marca, texto] : nombres) {
        if (fila.marcas.testFlag(marca))
            marcas += texto;
    }
    return enTexto(marcas);
}

} // namespace kestrane::prueba
