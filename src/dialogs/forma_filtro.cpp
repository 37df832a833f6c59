#include "dialogs/forma_filtro.h"

#include "platform/controls/boton_menu.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <QCoreApplication>
#include <QScreen>
#include <QVBoxLayout>

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

void FormaFiltro::ocupa(double parte)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // what the scaling changed
    layout()->activate();
    const QSizeF ventana{puntosDeTwips(contexto().AnchoVentana), puntosDeTwips(contexto().AltoVentana)};
    resize((ventana * parte).toSize().expandedTo(minimumSizeHint()).boundedTo(screen()->availableSize()));
}

ColoresPredefinidos FormaFiltro::cargarColoresPredefinidos() const
{
    AspectoVentanas& suite = aspecto();
    return {suite.DarColorPredefinido1(), suite.DarColorPredefinido2(), suite.DarColorPredefinido3(), suite.DarColorPredefinido4()};
}

void FormaFiltro::terminaSi(const Aceptacion& aceptacion)
{
    if (aceptacion.paso == Aceptacion::Paso::Aceptada)
        accept();
    else
        di(aceptacion.motivo);
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

QLabel* FormaFiltro::encabezado(const QString& objeto, const QString& texto, QWidget* padre)
{
    QLabel* const nuevo = rotulo(objeto, texto, padre);
    nuevo->setProperty(propiedades::LetraRelativa, 1.2);
    return nuevo;
}

QCheckBox* FormaFiltro::casilla(const QString& objeto, const QString& leyenda, QWidget* padre)
{
    auto* nueva = new QCheckBox{leyenda, padre};
    nueva->setObjectName(objeto);
    nueva->setMinimumHeight(LadoTactil);
    nueva->setBackgroundRole(QPalette::Window);
    nueva->setAutoFillBackground(true);
    return nueva;
}

QPushButton* FormaFiltro::botonSalir(QWidget* padre)
{
    QPushButton* const salir = boton(u"cmd_Salir"_s, u"Salir"_s, padre);
    connect(salir, &QPushButton::clicked, this, &FormaFiltro::reject);
    return salir;
}

QPushButton* FormaFiltro::botonAceptar(QWidget* padre)
{
    QPushButton* const aceptar = boton(u"Command1"_s, u"Aceptar"_s, padre);
    aceptar->setDefault(true);
    return aceptar;
}

QVBoxLayout* FormaFiltro::columnaDeOrdenes(std::span<const Orden> ordenes, QWidget* padre)
{
    constexpr int AnchoDeBoton = 340;
    auto* columna = new QVBoxLayout;
    columna->setSpacing(8);
    columna->addWidget(encabezado(u"Label1"_s, u"Ordenado x"_s, padre));
    for (const Orden& orden : ordenes) {
        QPushButton* const suyo = boton(orden.control.toString(), orden.leyenda.toString(), padre);
        suyo->setMinimumWidth(AnchoDeBoton);
        suyo->setAutoDefault(true); // Enter presses the one that has the focus
        connect(suyo, &QPushButton::clicked, this, [this, &orden] {
            eligeOrden(contexto(), orden);
            accept();
        });
        columna->addWidget(suyo);
    }
    return columna;
}

QHBoxLayout* FormaFiltro::pie(std::initializer_list<QWidget*> botones)
{
    auto* fila = new QHBoxLayout;
    fila->addStretch(1);
    for (QWidget* const suyo : botones)
        fila->addWidget(suyo);
    return fila;
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
