#include "pipeline/forms/mensajes_en_ventana.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

/// What stood on the screen while a box was shown.
struct Vista
{
    int cajas = 0;
    QString titulo;
    QString texto;
    QMessageBox::Icon icono = QMessageBox::NoIcon;
    bool modal = false;
    QStringList botones;
    int altoBoton = 0;
};

class MensajesEnVentanaTest : public testing::Test
{
protected:
    /// Looks at the box that comes up and presses the key.
    void alAbrir(Qt::Key tecla)
    {
        QTimer::singleShot(0, qApp, [this, tecla] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(caja, nullptr);
            ++vista.cajas;
            vista.titulo = caja->windowTitle();
            vista.texto = caja->text();
            vista.icono = caja->icon();
            vista.modal = caja->isModal();
            for (const QAbstractButton* boton : caja->buttons()) {
                vista.botones += boton->text();
                vista.altoBoton = boton->height();
            }
            QTest::keyClick(caja, tecla);
        });
    }

    Vista vista;
    MensajesEnVentana mensajes;
};

TEST_F(MensajesEnVentanaTest, TextsStandAsTheyAreGiven)
{
    alAbrir(Qt::Key_Escape);
    mensajes.Critico(u"<b>no</b> & sí\nla tabla \"x\""_s, u"-2147217900"_s);
    EXPECT_EQ(vista.texto, u"<b>no</b> & sí\nla tabla \"x\""_s);
    EXPECT_EQ(vista.titulo, u"-2147217900"_s);
    EXPECT_EQ(vista.icono, QMessageBox::Critical);
}

TEST_F(MensajesEnVentanaTest, InformsModallyWithOneLargeButtonThatEnterPresses)
{
    alAbrir(Qt::Key_Return);
    mensajes.Informa(u"No hay datos para ser mostrados."_s, u"Listados"_s);
    EXPECT_EQ(vista.cajas, 1);
    EXPECT_EQ(vista.titulo, u"Listados"_s);
    EXPECT_EQ(vista.texto, u"No hay datos para ser mostrados."_s);
    EXPECT_EQ(vista.icono, QMessageBox::Information);
    EXPECT_TRUE(vista.modal);
    EXPECT_EQ(vista.botones, QStringList{u"Aceptar"_s});
    EXPECT_GE(vista.altoBoton, 44);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace kestrane
