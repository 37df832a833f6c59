#include "dialogs/frm_meses.h"

#include "dialogs/icono_dibujado.h"
#include "platform/controls/boton_menu.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <QGridLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int AnchoDeTexto = 220;
constexpr int LadoFlecha = 24;

/// An arrow head.
QIcon dibujoDeFlecha(Qt::ArrowType hacia, const QColor& color)
{
    return iconoDibujado(LadoFlecha, color, [hacia](QPainter& pintor) {
        constexpr qreal Medio = LadoFlecha / 2.0;
        const qreal hondo = hacia == Qt::LeftArrow ? 4 : -4;
        pintor.drawPolyline(
            QPolygonF{{QPointF{Medio + hondo, Medio - 8}, QPointF{Medio - hondo, Medio}, QPointF{Medio + hondo, Medio + 8}}});
    });
}

} // namespace

FrmMeses::FrmMeses(const ServiciosDialogo& servicios)
    : FormaFiltro{u"frmMeses"_s, u"Listado x Meses"_s, servicios}
    , m_decision{servicios.contexto, servicios.reloj}
{
    monta();
}

void FrmMeses::monta()
{
    m_marco = marco(u"Frame1"_s, this);
    auto* rejilla = new QGridLayout;
    rejilla->addWidget(encabezado(u"Label1"_s, u"SELECCIONE EL MES DEL GRAFICO"_s, m_marco), 0, 0, 1, 3);
    rejilla->addWidget(flecha(u"cmdAntMes"_s, u"Mes anterior"_s, &DecisionMeses::mesAnterior, m_marco), 1, 0);
    m_mes = ensenado(u"txtMes"_s, u"Mes"_s, m_marco);
    rejilla->addWidget(m_mes, 1, 1);
    m_mesSiguiente = flecha(u"cmdSigMes"_s, u"Mes siguiente"_s, &DecisionMeses::mesSiguiente, m_marco);
    rejilla->addWidget(m_mesSiguiente, 1, 2);
    rejilla->addWidget(encabezado(u"Label2"_s, u"SELECCIONE EL AÑO DEL GRAFICO"_s, m_marco), 2, 0, 1, 3);
    rejilla->addWidget(flecha(u"cmdAntAño"_s, u"Año anterior"_s, &DecisionMeses::anioAnterior, m_marco), 3, 0);
    m_anio = ensenado(u"txtAño"_s, u"Año"_s, m_marco);
    rejilla->addWidget(m_anio, 3, 1);
    m_anioSiguiente = flecha(u"cmdSigAño"_s, u"Año siguiente"_s, &DecisionMeses::anioSiguiente, m_marco);
    rejilla->addWidget(m_anioSiguiente, 3, 2);
    rejilla->setColumnStretch(1, 1);
    rejilla->setVerticalSpacing(10);
    m_numeroMes = new QLineEdit{m_marco};
    m_numeroMes->setObjectName(u"txtnumMes"_s);
    m_numeroMes->hide();

    auto* columna = new QVBoxLayout{m_marco};
    columna->setContentsMargins(20, 18, 20, 18);
    columna->addLayout(rejilla);
    QCheckBox* const completo = casilla(u"ch_Completo"_s, u"Completo"_s, m_marco);
    columna->addWidget(completo, 0, Qt::AlignLeft);
    m_tienda = new EleccionDeTienda{contexto(), m_marco};
    columna->addWidget(m_tienda, 1);
    QPushButton* const aceptar = botonAceptar(m_marco);
    columna->addLayout(pie({aceptar, botonSalir(m_marco)}));
    auto* exterior = new QVBoxLayout{this};
    exterior->setContentsMargins({});
    exterior->addWidget(m_marco);
    connect(completo, &QCheckBox::toggled, this, [this](bool marcada) { m_decision.completa(marcada); });
    connect(aceptar, &QPushButton::clicked, this, &FrmMeses::acepta);
}

/// What the arrows change is shown as text; it is not typed into.
QLineEdit* FrmMeses::ensenado(const QString& objeto, const QString& nombre, QWidget* padre)
{
    auto* campo = new QLineEdit{padre};
    campo->setObjectName(objeto);
    campo->setAccessibleName(nombre);
    campo->setReadOnly(true);
    campo->setFocusPolicy(Qt::NoFocus);
    campo->setAlignment(Qt::AlignCenter);
    campo->setMinimumSize(AnchoDeTexto, LadoTactil);
    campo->setProperty(propiedades::LetraRelativa, 1.3);
    return campo;
}

QPushButton* FrmMeses::flecha(const QString& objeto, const QString& nombre, Paso paso, QWidget* padre)
{
    QPushButton* const nueva = boton(objeto, {}, padre);
    nueva->setAccessibleName(nombre);
    nueva->setToolTip(nombre);
    nueva->setIconSize({LadoFlecha, LadoFlecha});
    QSizePolicy sitio = nueva->sizePolicy();
    sitio.setRetainSizeWhenHidden(true); // nothing moves below a finger
    nueva->setSizePolicy(sitio);
    connect(nueva, &QPushButton::clicked, this, [this, paso] {
        (m_decision.*paso)();
        ensena();
    });
    return nueva;
}

void FrmMeses::carga()
{
    m_decision.carga();
    ensena();
    aspecto().TraducirForm(*this);
    aspecto().AplicarLetra(*this);
    aspecto().PintarForm(*this);
    escala();
    dibujaFlechas();
    m_tienda->CargarTiendas(*m_marco, *m_marco);
    adjustSize();
    m_marco->findChild<QPushButton*>(u"cmdAntMes"_s)->setFocus();
}

/// In the theme's colours, once it is painted.
void FrmMeses::dibujaFlechas()
{
    const QColor tinta = palette().color(QPalette::ButtonText);
    for (const auto& [objeto, hacia] : {std::pair{u"cmdAntMes"_s, Qt::LeftArrow},
                                        {u"cmdAntAño"_s, Qt::LeftArrow},
                                        {u"cmdSigMes"_s, Qt::RightArrow},
                                        {u"cmdSigAño"_s, Qt::RightArrow}})
        m_marco->findChild<QPushButton*>(objeto)->setIcon(dibujoDeFlecha(hacia, tinta));
}

void FrmMeses::ensena()
{
    m_numeroMes->setText(QString::number(m_decision.mes()));
    m_mes->setText(m_decision.nombreDelMes());
    m_anio->setText(QString::number(m_decision.anio()));
    // The keyboard goes to the twin of a button that goes away, not to whatever follows.
    if (m_mesSiguiente->hasFocus() && !m_decision.seVeMesSiguiente())
        m_marco->findChild<QPushButton*>(u"cmdAntMes"_s)->setFocus();
    if (m_anioSiguiente->hasFocus() && !m_decision.seVeAnioSiguiente())
        m_marco->findChild<QPushButton*>(u"cmdAntAño"_s)->setFocus();
    m_mesSiguiente->setVisible(m_decision.seVeMesSiguiente());
    m_anioSiguiente->setVisible(m_decision.seVeAnioSiguiente());
}

void FrmMeses::acepta()
{
    m_decision.acepta();
    accept();
}

} // namespace kestrane
