#include "dialogs/forma_filtro.h"

#include "platform/controls/boton_menu.h"

namespace kestrane {

using namespace Qt::StringLiterals;

FormaFiltro::FormaFiltro(const QString& objeto, const QString& titulo, const ServiciosDialogo& servicios)
    : QDialog{servicios.principal}
    , m_servicios{servicios}
{
    setObjectName(objeto);
    setWindowTitle(titulo);
    setModal(true);
    setProperty("tactil", true);
}

void FormaFiltro::reject()
{
    sale();
    QDialog::reject();
}

void FormaFiltro::escala()
{
    aspecto().EscalarForm(*this, {contexto().AnchoVentana, contexto().AltoVentana},
                          {contexto().AnchoDiseno, contexto().AltoDiseno});
}

QPushButton* FormaFiltro::boton(const QString& objeto, const QString& leyenda, QWidget* padre)
{
    auto* nuevo = new QPushButton{leyenda, padre};
    nuevo->setObjectName(objeto);
    nuevo->setMinimumSize(2 * LadoTactil, LadoTactil);
    nuevo->setAutoDefault(false);
    return nuevo;
}

QFrame* FormaFiltro::marco(const QString& objeto, QWidget* padre)
{
    auto* nuevo = new QFrame{padre};
    nuevo->setObjectName(objeto);
    nuevo->setAutoFillBackground(true);
    return nuevo;
}

QLabel* FormaFiltro::rotulo(const QString& objeto, const QString& texto, QWidget* padre)
{
    auto* nuevo = new QLabel{texto, padre};
    nuevo->setObjectName(objeto);
    return nuevo;
}

QPushButton* FormaFiltro::botonSalir(QWidget* padre)
{
    QPushButton* const salir = boton(u"cmd_Salir"_s, u"Salir"_s, padre);
    connect(salir, &QPushButton::clicked, this, &FormaFiltro::reject);
    return salir;
}

QColor fondoDe(const QWidget& quien)
{
    return quien.palette().color(quien.backgroundRole());
}

void copiaFondo(QWidget& quien, const QWidget& contenedor)
{
    QPalette colores = quien.palette();
    colores.setColor(quien.backgroundRole(), fondoDe(contenedor));
    quien.setPalette(colores);
}

} // namespace kestrane
