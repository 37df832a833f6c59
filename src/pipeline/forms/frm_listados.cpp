#include "pipeline/forms/frm_listados.h"

#include "pipeline/entrega.h"
#include "pipeline/forms/visibilidad_menu.h"
#include "platform/runtime/ruta.h"
#include "platform/suite/color_decimal.h"

#include <QCloseEvent>
#include <QPixmap>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// The sections that a sibling program may ask for, and the group that each marks.
struct Seccion
{
    QStringView codigo;
    QStringView grupo;
};
constexpr Seccion Secciones[] = {
    {u"LstGen", u"Frame3"}, {u"lstAge", u"Frame10"}, {u"LstBon", u"Frame11"},
    {u"LstStk", u"Frame9"}, {u"LstCom", u"Frame12"}, {u"LstPed", u"Frame9"},
};

/// What takes its back colour from what it stands in, from the outside to the inside.
struct FondoCopiado
{
    QStringView control;
    QStringView contenedor;
};
constexpr FondoCopiado FondosCopiados[] = {
    {u"frBotVentas", u"Frame5"},     {u"Frame12", u"frAviso"},         {u"Frameb", u"Frame12"},
    {u"Framec", u"Frame12"},         {u"Framed", u"Frame12"},          {u"Framee", u"Frame12"},
    {u"optTodos", u"Frame12"},       {u"OptCPostal", u"Frame12"},      {u"optConsumo", u"Frame12"},
    {u"optCumple", u"Frame12"},      {u"optVisitas", u"Frame12"},      {u"OptMayorConsumo", u"Frame12"},
    {u"OptMenoConsumo", u"Frame12"}, {u"OptMayorVisitas", u"Frame12"}, {u"optMenoVisitas", u"Frame12"},
    {u"Frame13", u"Frame12"},        {u"Frame14", u"Frame13"},         {u"Frame15", u"Frame13"},
    {u"Frame16", u"Frame13"},
};

QWidget* control(const QWidget& forma, QStringView nombre)
{
    return forma.findChild<QWidget*>(nombre.toString());
}

void ponFondo(QWidget& quien, const QColor& color)
{
    QPalette colores = quien.palette();
    colores.setColor(quien.backgroundRole(), color);
    quien.setPalette(colores);
}

void ponFondo(QWidget& quien, const QString& decimal)
{
    if (const std::optional<Rgb> color = rgbDeDecimal(decimal))
        ponFondo(quien, QColor::fromRgb(*color));
}

} // namespace

void FrmListados::carga()
{
    m_servicios.aspecto.TraducirForm(*this);
    ponEmpresa();
    ponBandera();
    colocaAviso();
    ColorearMe();
    EscalarMe();
    m_servicios.aspecto.AplicarLetra(*this);
    ColocarAyuda();
    m_servicios.aspecto.AplicarPermisos(*this);
    OcultarListadosOtrosProgramas();
    ListadoDirecto();
}

/// Whose shop it is, and which of its stores.
void FrmListados::ponEmpresa()
{
    const ContextoEjecucion& contexto = m_servicios.contexto;
    const bool conTienda = contexto.MultiTienda && !contexto.NombreTienda.isEmpty();
    m_empresa->setTextFormat(Qt::PlainText);
    m_empresa->setText(conTienda ? contexto.NombreEmpresa + u" · "_s + contexto.NombreTienda : contexto.NombreEmpresa);
}

void FrmListados::ponBandera()
{
    const ContextoEjecucion& contexto = m_servicios.contexto;
    if (contexto.RutaBandera.isEmpty())
        return;
    m_bandera->setToolTip(contexto.NombreRegional);
    m_bandera->setAccessibleName(contexto.NombreRegional);
    const QPixmap bandera{rutaDeMaquina(contexto.RutaBandera, contexto.CarpetaPrograma)};
    m_bandera->setVisible(!bandera.isNull());
    if (!bandera.isNull())
        m_bandera->setPixmap(bandera.scaled(m_bandera->maximumSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

/// Over the group of the general listings, and never beyond the edges: where there is little room one scrolls.
void FrmListados::colocaAviso()
{
    const QWidget* const generales = control(*this, u"Frame3");
    QWidget& lienzo = m_grupos->lienzo();
    if (m_aviso->isVisible())
        lienzo.resize(lienzo.width(), std::max(lienzo.height(), m_aviso->minimumSizeHint().height()));
    const QSize deseado = m_aviso->sizeHint().expandedTo(generales->size()).boundedTo(lienzo.size());
    m_aviso->resize(deseado);
    const QPoint lugar = generales->mapTo(&lienzo, QPoint{});
    m_aviso->move(std::min(lugar.x(), lienzo.width() - deseado.width()), std::min(lugar.y(), lienzo.height() - deseado.height()));
}

void FrmListados::ColorearMe()
{
    m_servicios.aspecto.PintarForm(*this);
    m_colorResalte = m_servicios.aspecto.DarColorResalte();
    ponFondo(*control(*this, u"cmdListados"), m_servicios.aspecto.DarColorBoton());
    for (const FondoCopiado& copiado : FondosCopiados) {
        const QWidget& contenedor = *control(*this, copiado.contenedor);
        ponFondo(*control(*this, copiado.control), contenedor.palette().color(contenedor.backgroundRole()));
    }
}

void FrmListados::EscalarMe()
{
    const ContextoEjecucion& contexto = m_servicios.contexto;
    m_servicios.aspecto.EscalarForm(*this, {contexto.AnchoVentana, contexto.AltoVentana},
                                    {contexto.AnchoDiseno, contexto.AltoDiseno});
}

void FrmListados::cambiaTamano()
{
    ContextoEjecucion& contexto = m_servicios.contexto;
    contexto.AnchoDiseno = twipsDePuntos(width());
    contexto.AltoDiseno = twipsDePuntos(height());
    if (isMaximized())
        showNormal(); // whoever asks for a size wants to see it
    if (m_servicios.preferencias.SiguienteTamano(contexto.ConexionTienda, contexto.AnchoVentana, contexto.AltoVentana)) {
        EscalarMe();
        cabeEnPantalla();
    }
}

/// A stored size may be that of another screen, on which the way out and the zoom were in reach.
void FrmListados::cabeEnPantalla()
{
    if (isMaximized() || isFullScreen())
        return;
    const QRect libre = screen()->availableGeometry();
    const QSize marco = frameGeometry().size() - geometry().size();
    resize(size().boundedTo(libre.size() - marco));
    const QRect dentro = frameGeometry();
    move(std::clamp(dentro.x(), libre.x(), std::max(libre.x(), libre.right() + 1 - dentro.width())),
         std::clamp(dentro.y(), libre.y(), std::max(libre.y(), libre.bottom() + 1 - dentro.height())));
}

void FrmListados::cambiaLetra()
{
    m_servicios.contexto.TamanoLetra = m_servicios.preferencias.SiguienteLetra(m_servicios.contexto.ConexionTienda);
    m_servicios.aspecto.AplicarLetra(*this);
}

void FrmListados::cambiaTema()
{
    m_servicios.contexto.Tema = m_servicios.preferencias.SiguienteTema(m_servicios.contexto.ConexionTienda);
    m_servicios.aspecto.PintarForm(*this);
}

void FrmListados::OcultarListadosOtrosProgramas()
{
    for (const VisibilidadControl& cual : visibilidades()) {
        if (const auto mostrado = loMuestra(cual, m_servicios.contexto.TipoPrograma))
            control(*this, cual.control)->setVisible(*mostrado);
    }
}

QString FrmListados::clave() const
{
    return m_servicios.contexto.IdentificadorEquipo + m_servicios.ObtenerList1();
}

bool FrmListados::ListadoDirecto()
{
    if (const auto entrega = primeraEntrega(m_servicios.contexto.ConexionTienda, clave()))
        Listar(entrega->indice, entrega->codigo);
    return false;
}

void FrmListados::Listar(const QString&, const QString& codigo)
{
    marca(codigo);
    borraPrimeraEntrega(m_servicios.contexto.ConexionTienda, clave());
}

void FrmListados::marca(const QString& codigo)
{
    for (const Seccion& seccion : Secciones) {
        if (seccion.codigo.compare(codigo, Qt::CaseInsensitive) == 0)
            return ponFondo(*control(*this, seccion.grupo), m_colorResalte);
    }
}

QString FrmListados::Leyenda(QStringView cual) const
{
    const auto* const boton = findChild<QAbstractButton*>(cual.toString());
    return boton ? boton->text() : QString{};
}

void FrmListados::Haz(AccionMenu accion)
{
    switch (accion) {
    case AccionMenu::EtiquetasDeClientes:
        m_aviso->abre(m_servicios.reloj);
        colocaAviso();
        m_grupos->ensureWidgetVisible(m_aviso);
        return;
    case AccionMenu::Ayuda:
        return m_ayuda->abre(m_servicios.contexto.CarpetaPrograma + u"\\ayudas\\prilis1.html"_s);
    case AccionMenu::Salir:
        return m_servicios.termina();
    case AccionMenu::Carteles:
    case AccionMenu::EtiquetasDeProductos:
    case AccionMenu::EtiquetasDeProductosTPV:
        return m_servicios.mensajes.Informa(AvisoNoDisponible.toString(), u"Listados"_s);
    }
}

void FrmListados::MuestraInfo()
{
    colocaInfo();
    m_info->show();
    m_info->raise();
    repaint();
}

void FrmListados::tomaEtiquetas()
{
    m_servicios.contexto.filtros.etiquetas = m_aviso->lee();
    cierraAviso();
}

/// The focus goes back to the button that had opened the panel.
void FrmListados::cierraAviso()
{
    if (!m_aviso->isVisible())
        return;
    m_aviso->hide();
    control(*this, u"cmd_Generales12")->setFocus(Qt::OtherFocusReason);
    m_grupos->reparte();
}

void FrmListados::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    m_servicios.termina();
}

void FrmListados::resizeEvent(QResizeEvent* evento)
{
    QWidget::resizeEvent(evento);
    m_ayuda->acomoda();
    colocaInfo();
    acomodaTitulo();
}

/// In a narrow window the title takes two lines, and the shop's name gives way.
void FrmListados::acomodaTitulo()
{
    constexpr int AnchoDeBotones = 460;
    auto* const titulo = findChild<QLabel*>(u"lblTitulo"_s);
    const bool estrecha = width() < titulo->fontMetrics().horizontalAdvance(titulo->text()) + AnchoDeBotones;
    titulo->setWordWrap(estrecha);
    m_empresa->setVisible(!estrecha);
}

void FrmListados::colocaInfo()
{
    const int alto = m_info->sizeHint().height() + LadoTactil / 2;
    m_info->setGeometry(0, height() - alto, width(), alto);
}

void FrmListados::showEvent(QShowEvent* evento)
{
    QWidget::showEvent(evento);
    if (!evento->spontaneous())
        cabeEnPantalla();
}

bool FrmListados::focusNextPrevChild(bool siguiente)
{
    const QWidget* const desde = focusWidget();
    while (QWidget::focusNextPrevChild(siguiente)) {
        if (focusWidget() == desde || !estaTapado(*focusWidget()))
            return true;
    }
    return false;
}

} // namespace kestrane
