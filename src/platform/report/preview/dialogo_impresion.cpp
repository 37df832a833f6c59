#include "platform/report/preview/dialogo_impresion.h"

#include "platform/report/preview/estilo_vista.h"

#include <QFormLayout>
#include <QHBoxLayout>

#include <limits>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr int UltimaPosible = std::numeric_limits<int>::max();
constexpr int MaximoCopias = 999;

QSpinBox* numero(const QString& objeto, const QString& nombre, int maximo, QWidget* padre)
{
    auto* campo = new QSpinBox{padre};
    campo->setObjectName(objeto);
    campo->setAccessibleName(nombre);
    campo->setRange(1, maximo);
    campo->setMinimumSize(110, LadoBoton);
    return campo;
}

QRadioButton* opcion(const QString& objeto, const QString& texto, QWidget* padre)
{
    auto* boton = new QRadioButton{texto, padre};
    boton->setObjectName(objeto);
    boton->setMinimumHeight(LadoBoton);
    return boton;
}

QPushButton* boton(const QString& objeto, const QString& texto, QWidget* padre)
{
    auto* nuevo = new QPushButton{texto, padre};
    nuevo->setObjectName(objeto);
    nuevo->setMinimumSize(120, LadoBoton);
    return nuevo;
}

/// A row whose caption stands at half the height of its field, which is as high as a finger needs.
void anadeFila(QFormLayout& formulario, const QString& leyenda, QWidget* campo)
{
    auto* rotulo = new QLabel{leyenda, campo->parentWidget()};
    rotulo->setMinimumHeight(LadoBoton);
    rotulo->setBuddy(campo);
    formulario.addRow(rotulo, campo);
}

} // namespace

DialogoImpresion::DialogoImpresion(const ImpresionVista& impresion, const QString& preferida, int paginas, int actual,
                                   QWidget* padre)
    : QDialog{padre}
    , m_actual{actual}
    , m_impresora{new QComboBox{this}}
    , m_todas{opcion(u"todas"_s, u"&Todas las páginas"_s, this)}
    , m_soloActual{opcion(u"soloActual"_s, u"La página a&ctual (%1)"_s.arg(actual), this)}
    , m_algunas{opcion(u"algunas"_s, u"&De la página"_s, this)}
    , m_desde{numero(u"desde"_s, u"Desde la página"_s, paginas > 0 ? paginas : UltimaPosible, this)}
    , m_hasta{numero(u"hasta"_s, u"Hasta la página"_s, paginas > 0 ? paginas : UltimaPosible, this)}
    , m_copias{numero(u"copias"_s, u"Copias"_s, MaximoCopias, this)}
    , m_sinImpresora{new QLabel{u"No hay ninguna impresora instalada."_s, this}}
{
    setObjectName(u"dialogoImpresion"_s);
    setWindowTitle(u"Imprimir"_s);
    m_sinImpresora->setObjectName(u"sinImpresora"_s);
    auto* formulario = new QFormLayout{this};
    formulario->setContentsMargins(24, 20, 24, 20);
    formulario->setSpacing(10);
    formulario->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    anadeFila(*formulario, u"&Impresora"_s, m_impresora);
    formulario->addRow(m_sinImpresora);
    formulario->addRow(m_todas);
    formulario->addRow(m_soloActual);
    formulario->addRow(filaDePaginas(paginas));
    anadeFila(*formulario, u"C&opias"_s, m_copias);
    formulario->addRow(filaDeBotones());
    m_todas->setChecked(true);
    connect(m_desde, &QSpinBox::valueChanged, this, &DialogoImpresion::ajusta);
    ponImpresoras(impresion, preferida);
    ajusta();
}

void DialogoImpresion::ponImpresoras(const ImpresionVista& impresion, const QString& preferida)
{
    const QStringList nombres = impresion.impresoras();
    m_impresora->setObjectName(u"impresora"_s);
    m_impresora->setAccessibleName(u"Impresora"_s);
    m_impresora->setMinimumSize(280, LadoBoton);
    m_impresora->addItems(nombres);
    m_impresora->setCurrentText(nombres.contains(preferida) ? preferida : impresion.predeterminada());
    m_impresora->setEnabled(!nombres.isEmpty());
    m_sinImpresora->setVisible(nombres.isEmpty());
    m_imprime->setEnabled(!nombres.isEmpty());
}

QWidget* DialogoImpresion::filaDePaginas(int paginas)
{
    auto* fila = new QWidget{this};
    auto* linea = new QHBoxLayout{fila};
    linea->setContentsMargins(0, 0, 0, 0);
    linea->addWidget(m_algunas);
    linea->addWidget(m_desde);
    linea->addWidget(new QLabel{u"a la"_s, fila});
    linea->addWidget(m_hasta);
    linea->addStretch();
    m_desde->setValue(m_actual);
    m_hasta->setValue(paginas > 0 ? paginas : m_actual);
    // Whoever types a number means it.
    connect(m_desde, &QSpinBox::valueChanged, m_algunas, [this] { m_algunas->setChecked(true); });
    connect(m_hasta, &QSpinBox::valueChanged, m_algunas, [this] { m_algunas->setChecked(true); });
    for (QRadioButton* uno : {m_todas, m_soloActual, m_algunas})
        m_cuales.addButton(uno);
    return fila;
}

QWidget* DialogoImpresion::filaDeBotones()
{
    auto* fila = new QWidget{this};
    auto* linea = new QHBoxLayout{fila};
    linea->setContentsMargins(0, 10, 0, 0);
    m_imprime = boton(u"imprime"_s, u"Imprimir"_s, fila);
    auto* cancela = boton(u"cancela"_s, u"Cancelar"_s, fila);
    linea->addStretch();
    linea->addWidget(cancela);
    linea->addWidget(m_imprime);
    m_imprime->setDefault(true);
    connect(m_imprime, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancela, &QPushButton::clicked, this, &QDialog::reject);
    return fila;
}

void DialogoImpresion::ajusta()
{
    m_hasta->setMinimum(m_desde->value());
}

PeticionImpresion DialogoImpresion::peticion() const
{
    PeticionImpresion peticion{
        .impresora = m_impresora->currentText(), .desde = 1, .hasta = UltimaPosible, .copias = m_copias->value()};
    if (m_soloActual->isChecked())
        peticion.desde = peticion.hasta = m_actual;
    if (m_algunas->isChecked()) {
        peticion.desde = m_desde->value();
        peticion.hasta = m_hasta->value();
    }
    return peticion;
}

} // namespace kestrane::report
