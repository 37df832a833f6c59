#include "pipeline/forms/panel_aviso.h"

#include "platform/controls/boton_menu.h"
#include "platform/controls/fechas_de_ventana.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto Nota = "El formato de etiquetas que utiliza el programa es de 70 X 35 mm."_L1;

void juntas(QObject* padre, std::initializer_list<QRadioButton*> opciones)
{
    auto* grupo = new QButtonGroup{padre};
    for (QRadioButton* const opcion : opciones)
        grupo->addButton(opcion);
}

QLineEdit* texto(const QString& objeto, const QString& nombre, QWidget* padre)
{
    auto* nuevo = new QLineEdit{padre};
    nuevo->setObjectName(objeto);
    nuevo->setAccessibleName(nombre);
    nuevo->setMinimumSize(80, LadoTactil);
    return nuevo;
}

QDateEdit* fecha(const QString& objeto, QWidget* padre)
{
    auto* nueva = new QDateEdit{padre};
    nueva->setObjectName(objeto);
    nueva->setCalendarPopup(true);
    nueva->setDisplayFormat(u"dd/MM/yyyy"_s);
    nueva->setDateRange({Fecha::PrimerAnio, 1, 1}, {Fecha::UltimoAnio, 12, 31});
    nueva->setMinimumHeight(LadoTactil);
    return nueva;
}

} // namespace

PanelAviso::PanelAviso(BotonMenu* continuar, QWidget* padre) : QFrame{padre}
{
    setObjectName(u"frAviso"_s);
    setFrameShape(QFrame::StyledPanel);
    setProperty("tarjeta", true); // which paints its ground, round corners and all
    monta(continuar);
    ordenDeTeclado(continuar);
    hide();
}

QRadioButton* PanelAviso::opcion(const QString& objeto, const QString& leyenda, QWidget* padre)
{
    auto* nueva = new QRadioButton{leyenda, padre};
    nueva->setObjectName(objeto);
    nueva->setMinimumHeight(LadoTactil);
    nueva->setBackgroundRole(QPalette::Window);
    nueva->setAutoFillBackground(true);
    return nueva;
}

QFrame* PanelAviso::marco(const QString& objeto, QWidget* padre)
{
    auto* nuevo = new QFrame{padre};
    nuevo->setObjectName(objeto);
    nuevo->setAutoFillBackground(true);
    return nuevo;
}

void PanelAviso::monta(BotonMenu* continuar)
{
    m_frame12 = marco(u"Frame12"_s, this);
    m_frame13 = marco(u"Frame13"_s, m_frame12);
    m_general = opcion(u"OptGeneral"_s, u"General"_s, m_frame12);
    m_general->hide();
    m_todos = opcion(u"optTodos"_s, u"Todos los clientes"_s, m_frame12);
    m_cPostal = opcion(u"OptCPostal"_s, u"Codigo Postal"_s, m_frame12);
    m_consumo = opcion(u"optConsumo"_s, u"Consumo"_s, m_frame12);
    m_cumple = opcion(u"optCumple"_s, u"Cumpleaños"_s, m_frame12);
    m_visitas = opcion(u"optVisitas"_s, u"Numero visita"_s, m_frame12);
    juntas(this, {m_general, m_todos, m_cPostal, m_consumo, m_cumple, m_visitas});
    montaElecciones();
    montaPie(continuar);
}

void PanelAviso::montaElecciones()
{
    auto* elecciones = new QVBoxLayout{m_frame13};
    elecciones->setContentsMargins({});
    elecciones->setSpacing(4);
    m_textoCPostal = texto(u"txtCPostal"_s, u"Codigo Postal"_s, m_frame13);
    elecciones->addWidget(m_todos);
    elecciones->addWidget(fila(u"Frameb"_s, m_cPostal, m_textoCPostal));
    QFrame* const consumo = cifra(u"Frame16"_s, m_textoConsumo, u"txtConsumo"_s, m_mayorConsumo, u"OptMayorConsumo"_s,
                                  u"OptMenoConsumo"_s, m_consumo->text());
    QFrame* const cumple = fechas();
    QFrame* const visitas = cifra(u"Frame14"_s, m_textoVisitas, u"txtValVisitas"_s, m_mayorVisitas, u"OptMayorVisitas"_s,
                                  u"optMenoVisitas"_s, m_visitas->text());
    // A frame is of use with its own option alone: it goes dark when another is chosen, too.
    for (const auto& [nombre, quien, detalle] :
         {std::tuple{u"Framec"_s, m_consumo, consumo}, {u"Framed"_s, m_cumple, cumple}, {u"Framee"_s, m_visitas, visitas}}) {
        elecciones->addWidget(fila(nombre, quien, detalle));
        detalle->setEnabled(false);
        connect(quien, &QRadioButton::toggled, detalle, &QWidget::setEnabled);
    }
}

void PanelAviso::montaPie(BotonMenu* continuar)
{
    auto* interior = new QVBoxLayout{m_frame12};
    interior->setContentsMargins(8, 8, 8, 8);
    interior->addWidget(m_frame13);
    auto* nota = new QLabel{Nota, this};
    nota->setObjectName(u"lblAviso"_s);
    nota->setWordWrap(true);
    auto* cierra = new BotonMenu{u"cierraAviso"_s, u"Cerrar"_s, this};
    connect(cierra, &QPushButton::clicked, this, &PanelAviso::dejado);
    continuar->setParent(this);
    auto* pie = new QHBoxLayout;
    pie->addWidget(continuar);
    pie->addWidget(cierra);
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins(10, 10, 10, 10);
    columna->addWidget(nota);
    columna->addWidget(m_frame12);
    columna->addLayout(pie);
    columna->addStretch(1);
}

/// From the first choice down to the way out.
void PanelAviso::ordenDeTeclado(QWidget* continuar)
{
    QWidget* anterior = m_todos;
    for (const QString& nombre : {u"OptCPostal"_s, u"txtCPostal"_s, u"optConsumo"_s, u"OptMayorConsumo"_s, u"OptMenoConsumo"_s,
                                  u"txtConsumo"_s, u"optCumple"_s, u"desdeCumple"_s, u"HastaCumple"_s, u"optVisitas"_s,
                                  u"OptMayorVisitas"_s, u"optMenoVisitas"_s, u"txtValVisitas"_s}) {
        auto* const siguiente = findChild<QWidget*>(nombre);
        setTabOrder(anterior, siguiente);
        anterior = siguiente;
    }
    setTabOrder(anterior, continuar);
    setTabOrder(continuar, findChild<QWidget*>(u"cierraAviso"_s));
}

/// A choice with what belongs to it beside.
QFrame* PanelAviso::fila(const QString& objeto, QWidget* eleccion, QWidget* detalle)
{
    QFrame* const nueva = marco(objeto, m_frame13);
    auto* lados = new QHBoxLayout{nueva};
    lados->setContentsMargins({});
    lados->addWidget(eleccion, 1);
    lados->addWidget(detalle, 2);
    return nueva;
}

/// A figure, and whether clients above or below it are meant.
QFrame* PanelAviso::cifra(const QString& objeto, QLineEdit*& figura, const QString& nombreTexto, QRadioButton*& mayor,
                          const QString& nombreMayor, const QString& nombreMenor, const QString& que)
{
    QFrame* const nuevo = marco(objeto, m_frame13);
    mayor = opcion(nombreMayor, u"Mayor que"_s, nuevo);
    QRadioButton* const menor = opcion(nombreMenor, u"Menor que"_s, nuevo);
    mayor->setChecked(true);
    juntas(nuevo, {mayor, menor});
    figura = texto(nombreTexto, que, nuevo);
    auto* lados = new QHBoxLayout{nuevo};
    lados->setContentsMargins({});
    lados->addWidget(mayor);
    lados->addWidget(menor);
    lados->addWidget(figura, 1);
    return nuevo;
}

QFrame* PanelAviso::fechas()
{
    QFrame* const nuevo = marco(u"Frame15"_s, m_frame13);
    m_desde = fecha(u"desdeCumple"_s, nuevo);
    m_hasta = fecha(u"HastaCumple"_s, nuevo);
    auto* lados = new QHBoxLayout{nuevo};
    lados->setContentsMargins({});
    for (const auto& [leyenda, campo] : {std::pair{u"Desde"_s, m_desde}, {u"Hasta"_s, m_hasta}}) {
        auto* rotulo = new QLabel{leyenda, nuevo};
        rotulo->setBuddy(campo);
        campo->setAccessibleName(leyenda);
        lados->addWidget(rotulo);
        lados->addWidget(campo, 1);
    }
    return nuevo;
}

void PanelAviso::abre(const Reloj& reloj)
{
    m_general->setChecked(true);
    m_desde->setDate(diaDe(reloj.hoy()));
    m_hasta->setDate(diaDe(reloj.hoy()));
    show();
    raise();
    m_todos->setFocus(Qt::OtherFocusReason);
}

EtiquetasClientes PanelAviso::lee() const
{
    return {
        .OptGeneral = m_general->isChecked(),
        .optTodos = m_todos->isChecked(),
        .OptCPostal = m_cPostal->isChecked(),
        .txtCPostal = m_textoCPostal->text(),
        .optConsumo = m_consumo->isChecked(),
        .txtConsumo = m_textoConsumo->text(),
        .OptMayorConsumo = m_mayorConsumo->isChecked(),
        .optCumple = m_cumple->isChecked(),
        .desdeCumple = fechaDe(m_desde->date()),
        .HastaCumple = fechaDe(m_hasta->date()),
        .optVisitas = m_visitas->isChecked(),
        .txtValVisitas = m_textoVisitas->text(),
        .OptMayorVisitas = m_mayorVisitas->isChecked(),
    };
}

void PanelAviso::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape)
        emit dejado();
    else
        QFrame::keyPressEvent(evento);
}

} // namespace kestrane
