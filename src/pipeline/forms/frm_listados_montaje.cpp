#include "pipeline/catalogue/catalogo.h"
#include "pipeline/forms/frm_listados.h"
#include "pipeline/forms/visibilidad_menu.h"
#include "pipeline/forms/zona_menu.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

#include <chrono>

/// The form as it is designed: which control stands where, under which name.
namespace kestrane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using catalogue::FilaCatalogo;
using catalogue::Grupo;

namespace {

constexpr auto TextoInfo = "Este listado puede tardar varios minutos espere ..."_L1;

QLabel* rotulo(const QString& objeto, const QString& texto, QWidget* padre)
{
    auto* nuevo = new QLabel{texto, padre};
    nuevo->setObjectName(objeto);
    return nuevo;
}

} // namespace

FrmListados::FrmListados(ServiciosMenu servicios) : m_servicios{std::move(servicios)}
{
    setObjectName(u"frmListados"_s);
    setWindowTitle(u"Listados"_s);
    resize(static_cast<int>(puntosDeTwips(TamanoDeDiseno.ancho)), static_cast<int>(puntosDeTwips(TamanoDeDiseno.alto)));
    monta();
    atajos();
}

void FrmListados::monta()
{
    m_cuerpo = new QWidget{this};
    m_cuerpo->setObjectName(u"Frame4"_s);
    m_grupos = new PanelTarjetas{u"frGrupos"_s, m_cuerpo};
    montaGrupos();
    montaSinGrupo();
    auto* separacion = new QFrame{m_cuerpo};
    separacion->setObjectName(u"fr_SeparacionH1"_s);
    separacion->setFrameShape(QFrame::HLine);
    separacion->setFixedHeight(2);
    auto* interior = new QVBoxLayout{m_cuerpo};
    interior->setContentsMargins({});
    interior->setSpacing(0);
    interior->addWidget(separacion);
    interior->addWidget(m_grupos, 1);
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins({});
    columna->setSpacing(0);
    columna->addWidget(cabecera());
    columna->addWidget(m_cuerpo, 1);
    montaInfo();
    m_ayuda = new AyudaDeslizante{this, separacion};
    auto* util = new QTimer{this}; // nothing waits for it
    util->setObjectName(u"tmrUtil"_s);
    util->setInterval(1000ms);
    ordenDeTeclado();
}

/// Over the lower edge, so that nothing moves when it comes and goes.
void FrmListados::montaInfo()
{
    m_info = rotulo(u"lblInfo"_s, TextoInfo, this);
    m_info->setAlignment(Qt::AlignCenter);
    m_info->setAutoFillBackground(true);
    m_info->setProperty("textoAviso", true);
    m_info->hide();
}

QFrame* FrmListados::cabecera()
{
    auto* marco = new QFrame{this};
    marco->setObjectName(u"Frame8"_s);
    auto* titulo = rotulo(u"lblTitulo"_s, u"SELECCIONE SU OPCION"_s, marco);
    titulo->setProperty("letraRelativa", 1.4);
    titulo->setMinimumWidth(1); // it breaks where the window is narrow, and never widens it
    m_bandera = rotulo(u"Bandera"_s, {}, marco);
    m_bandera->setMaximumSize(60, 40);
    m_empresa = rotulo(u"lblEmpresa"_s, {}, marco);
    m_empresa->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* fila = new QHBoxLayout{marco};
    fila->setContentsMargins(16, 6, 12, 6);
    fila->setSpacing(6);
    fila->addWidget(titulo);
    fila->addSpacing(18);
    fila->addWidget(m_empresa, 1);
    fila->addWidget(zona(u"fr_Zoom1"_s, u"Tamaño de la ventana"_s, &FrmListados::cambiaTamano));
    fila->addWidget(zona(u"fr_Zoom2"_s, u"Tamaño de la letra"_s, &FrmListados::cambiaLetra));
    fila->addWidget(zona(u"fr_Zoom3"_s, u"Colores"_s, &FrmListados::cambiaTema));
    fila->addSpacing(10);
    fila->addWidget(ayuda());
    BotonMenu* const salir = boton(*catalogue::busca(u"cmd_Salir"), marco);
    salir->setMaximumWidth(3 * LadoTactil);
    fila->addWidget(salir);
    fila->addWidget(m_bandera);
    return marco;
}

QToolButton* FrmListados::zona(const QString& objeto, const QString& nombre, void (FrmListados::*accion)())
{
    auto* nueva = new ZonaMenu{objeto, nombre, this};
    connect(nueva, &QToolButton::clicked, this, accion);
    return nueva;
}

QToolButton* FrmListados::ayuda()
{
    const FilaCatalogo& fila = *catalogue::busca(u"cmd_Ayuda");
    auto* nueva = new ZonaMenu{fila.control.toString(), u"Ayuda (F1)"_s, this};
    connect(nueva, &QToolButton::clicked, this, [this, &fila] { m_servicios.pulsa(fila); });
    return nueva;
}

BotonMenu* FrmListados::boton(const FilaCatalogo& fila, QWidget* padre)
{
    auto* nuevo = new BotonMenu{fila.control.toString(), fila.leyenda.toString(), padre};
    connect(nuevo, &QPushButton::clicked, this, [this, &fila] { m_servicios.pulsa(fila); });
    return nuevo;
}

void FrmListados::montaGrupos()
{
    for (const catalogue::GrupoMenu& grupo : catalogue::grupos()) {
        auto* tarjeta = new GrupoBotones{grupo.control.toString(), grupo.titulo.toString(), &m_grupos->lienzo()};
        for (const FilaCatalogo& fila : catalogue::catalogo()) {
            if (fila.grupo == grupo.grupo)
                tarjeta->anade(boton(fila, tarjeta));
        }
        m_grupos->anade(tarjeta);
    }
    findChild<GrupoBotones*>(u"Frame5"_s)->zona().setObjectName(u"frBotVentas"_s);
    findChild<GrupoBotones*>(u"fr_TallaColor"_s)->setAccessibleName(u"Tallas y colores"_s); // it has no title
}

void FrmListados::montaSinGrupo()
{
    m_aviso = new PanelAviso{boton(*catalogue::busca(u"Command10"), this), &m_grupos->lienzo()};
    connect(m_aviso, &PanelAviso::dejado, this, &FrmListados::cierraAviso);
    connect(m_grupos, &PanelTarjetas::repartido, this, &FrmListados::colocaAviso);
    for (const FilaCatalogo& fila : catalogue::catalogo()) {
        if (fila.grupo == Grupo::Ninguno && fila.clase == catalogue::Clase::SinAccion)
            boton(fila, m_cuerpo)->hide();
    }
    for (BotonMenu* const suyo : findChildren<BotonMenu*>())
        suyo->setVisible(!siempreOculto(suyo->objectName()));
    for (const VisibilidadControl& cual : visibilidades())
        findChild<QWidget*>(cual.control.toString())->setVisible(cual.diseno);
}

/// Alt with a digit goes to the first button of that group, counted among those that are shown; F1 is the help.
void FrmListados::atajos()
{
    for (int cual = 1; cual <= 9; ++cual) {
        auto* atajo = new QShortcut{QKeySequence{Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + cual)}, this};
        connect(atajo, &QShortcut::activated, this, [this, cual] { enfocaGrupo(cual); });
    }
    auto* ayuda = new QShortcut{QKeySequence{Qt::Key_F1}, this};
    connect(ayuda, &QShortcut::activated, this, [this] { Haz(AccionMenu::Ayuda); });
    auto* deja = new QShortcut{QKeySequence{Qt::Key_Escape}, this};
    connect(deja, &QShortcut::activated, this, [this] { m_ayuda->dentro() ? m_ayuda->cierra() : cierraAviso(); });
}

void FrmListados::enfocaGrupo(int cual)
{
    for (const GrupoBotones* const tarjeta : m_grupos->tarjetas()) {
        const QList<BotonMenu*> suyos = tarjeta->visibles();
        if (tarjeta->isHidden() || suyos.isEmpty() || --cual > 0)
            continue;
        suyos.constFirst()->setFocus(Qt::ShortcutFocusReason);
        return m_grupos->ensureWidgetVisible(suyos.constFirst());
    }
}

/// Group by group as they stand, then the help, the way out and what changes the looks.
void FrmListados::ordenDeTeclado()
{
    QWidget* anterior = nullptr;
    const auto sigue = [&anterior](QWidget* siguiente) {
        if (anterior)
            setTabOrder(anterior, siguiente);
        anterior = siguiente;
    };
    for (const GrupoBotones* const tarjeta : m_grupos->tarjetas()) {
        for (BotonMenu* const suyo : tarjeta->botones())
            sigue(suyo);
    }
    for (const QStringView nombre : {u"cmd_Ayuda", u"cmd_Salir"})
        sigue(findChild<QWidget*>(nombre.toString()));
    for (const QStringView nombre : {u"fr_Zoom1", u"fr_Zoom2", u"fr_Zoom3"})
        sigue(findChild<QWidget*>(nombre.toString()));
}

} // namespace kestrane
