#pragma once

#include "dialogs/forma_de_prueba.h"
#include "platform/controls/ficha.h"
#include "platform/controls/tile_panel.h"

#include <QTest>

#include <optional>

namespace kestrane::prueba {

/// A dialog of that kind with panels, opened on a shop with employees, sections and suppliers.
template<class Forma>
class FormaConPanelesTest : public FormaTest
{
protected:
    void empleado(int codigo, const QString& nombre, const QString& apellidos, const QString& color = {})
    {
        inserta(QStringLiteral("insert into empleados (codigo, nombre, apellidos, posicion, baja, mostrar_caja, emp_color, color) "
                               "values (%1, '%2', '%3', %1, 0, -1, '%4', '%4')"),
                {QString::number(codigo), nombre, apellidos, color});
    }
    void seccion(int codigo, const QString& nombre, const QString& color = {})
    {
        inserta(QStringLiteral("insert into seccion (codigo, nombre, posicion, borrar, sec_color, color) "
                               "values (%1, '%2', %1, 0, '%3', '%3')"),
                {QString::number(codigo), nombre, color});
    }
    void proveedor(int codigo, const QString& nombre, const QString& imagen = {})
    {
        inserta(QStringLiteral("insert into proveedores (codigo, nombre, posicion, borrar, imagen) values (%1, '%2', %1, 0, '%3')"),
                {QString::number(codigo), nombre, imagen});
    }

    void abre()
    {
        m_aspecto.pasos.clear();
        m_forma.emplace(m_servicios);
        m_forma->carga();
        m_forma->show();
        QCoreApplication::processEvents();
    }
    void pulsa(const QString& nombre) { QTest::mouseClick(&control(*m_forma, nombre), Qt::LeftButton); }
    bool seVe(const QString& nombre) { return control(*m_forma, nombre).isVisible(); }
    QString rotulo(const QString& nombre) { return control<QLabel>(*m_forma, nombre).text(); }
    TilePanel& panel(const QString& nombre) { return control<TilePanel>(*m_forma, nombre); }
    void pulsaFicha(const QString& nombre, int cual)
    {
        panel(nombre).ensureWidgetVisible(panel(nombre).fichas()[cual]);
        QTest::mouseClick(panel(nombre).fichas()[cual], Qt::LeftButton);
    }
    QStringList textos(const QString& nombre)
    {
        QStringList lista;
        for (const Ficha* const ficha : panel(nombre).fichas())
            lista += ficha->elemento().Texto;
        return lista;
    }
    /// A key to whatever has the keyboard.
    void tecla(Qt::Key cual) { QTest::keyClick(m_forma->focusWidget(), cual); }

    std::optional<Forma> m_forma;

private:
    void inserta(QString sentencia, const QStringList& valores)
    {
        for (const QString& valor : valores)
            sentencia = sentencia.arg(valor);
        m_tienda.ejecuta(sentencia);
    }
};

} // namespace kestrane::prueba
