#include "pipeline/forms/mensajes_en_ventana.h"

#include <QApplication>
#include <QPushButton>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int AltoBoton = 44; ///< the least that a finger meets
constexpr int AnchoBoton = 120;

} // namespace

void MensajesEnVentana::muestra(QMessageBox::Icon icono, const QString& texto, const QString& titulo)
{
    QWidget* const dialogo = QApplication::activeModalWidget(); // the box stands over what is asked
    QMessageBox caja{dialogo ? dialogo : m_principal};
    caja.setIcon(icono);
    caja.setWindowTitle(titulo);
    caja.setTextFormat(Qt::PlainText);
    caja.setText(texto);
    QPushButton* boton = caja.addButton(u"Aceptar"_s, QMessageBox::AcceptRole);
    boton->setMinimumSize(AnchoBoton, AltoBoton);
    caja.setDefaultButton(boton);
    caja.setEscapeButton(boton);
    caja.exec();
}

} // namespace kestrane
