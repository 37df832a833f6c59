#include "platform/report/preview/miniaturas.h"

#include <QPainter>
#include <QScroller>

#include <algorithm>
#include <memory>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr int AltoNumero = 24;
constexpr int Aire = 8;
constexpr std::size_t MaximoPedidas = 40; ///< what was scrolled past is not made any more

QRect huecoDeHoja(const QRect& hueco)
{
    return hueco.adjusted(Aire, Aire, -Aire, -AltoNumero);
}

} // namespace

QVariant ModeloMiniaturas::data(const QModelIndex& indice, int papel) const
{
    if (papel == Qt::DisplayRole)
        return indice.row() + 1;
    if (papel == Qt::AccessibleTextRole)
        return u"Página %1"_s.arg(indice.row() + 1);
    return {};
}

void ModeloMiniaturas::ponPaginas(int paginas)
{
    if (paginas > m_paginas) {
        beginInsertRows({}, m_paginas, paginas - 1);
        m_paginas = paginas;
        endInsertRows();
    } else if (paginas < m_paginas) {
        beginRemoveRows({}, paginas, m_paginas - 1);
        m_paginas = paginas;
        endRemoveRows();
    }
}

PintorMiniaturas::PintorMiniaturas(PaginasVista& paginas, QObject* padre) : QStyledItemDelegate{padre}, m_paginas{paginas}
{
    connect(&m_turno, &QTimer::timeout, this, &PintorMiniaturas::haceSiguiente);
}

void PintorMiniaturas::paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const
{
    const int pagina = indice.row();
    const bool elegida = opcion.state.testFlag(QStyle::State_Selected);
    const QRect hoja = huecoDeHoja(opcion.rect);
    if (elegida)
        pintor->fillRect(opcion.rect.adjusted(2, 2, -2, -2), opcion.palette.color(QPalette::Highlight));
    if (const QPixmap* dibujo = m_dibujos.object(pagina)) {
        const QSize tamano = dibujo->size() / dibujo->devicePixelRatio();
        const QPoint esquina = hoja.center() - QPoint{tamano.width() / 2, tamano.height() / 2};
        pintor->drawPixmap(esquina, *dibujo);
        pintor->setPen(opcion.palette.color(QPalette::Mid));
        pintor->drawRect(QRect{esquina, tamano}.adjusted(-1, -1, 0, 0));
    } else {
        m_pedidas.push_back(pagina);
        if (!m_turno.isActive())
            m_turno.start(0);
    }
    pintor->setPen(opcion.palette.color(elegida ? QPalette::HighlightedText : QPalette::WindowText));
    pintor->drawText(QRect{opcion.rect.left(), opcion.rect.bottom() - AltoNumero, opcion.rect.width(), AltoNumero}, Qt::AlignCenter,
                     QString::number(pagina + 1));
}

void PintorMiniaturas::haceSiguiente()
{
    if (m_pedidas.size() > MaximoPedidas)
        m_pedidas.erase(m_pedidas.begin(), m_pedidas.end() - MaximoPedidas);
    if (m_pedidas.empty())
        return m_turno.stop();
    const int pagina = m_pedidas.back();
    m_pedidas.pop_back();
    if (m_dibujos.contains(pagina) || pagina >= m_paginas.fuente().paginas())
        return;
    auto dibujo = std::make_unique<QPixmap>(dibuja(pagina));
    const int bytes = dibujo->width() * dibujo->height() * dibujo->depth() / 8;
    m_dibujos.insert(pagina, dibujo.release(), bytes);
    emit lista(pagina);
}

QPixmap PintorMiniaturas::dibuja(int pagina)
{
    const double densidad = 2;
    const PaginaCompuesta compuesta = m_paginas.compuesta(pagina);
    const QSizeF hueco = huecoDeHoja({{}, Hueco}).size();
    const QSizeF milimetros = compuesta.tamano.isEmpty() ? QSizeF{210, 297} : compuesta.tamano;
    const double escala = std::min(hueco.width() / milimetros.width(), hueco.height() / milimetros.height());
    QPixmap dibujo{(milimetros * escala * densidad).toSize().expandedTo({8, 8})};
    dibujo.setDevicePixelRatio(densidad);
    dibujo.fill(Qt::white);
    QPainter pintor{&dibujo};
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    m_paginas.fuente().pinta(pintor, compuesta, escala);
    return dibujo;
}

void PintorMiniaturas::olvida()
{
    m_dibujos.clear();
    m_pedidas.clear();
}

Miniaturas::Miniaturas(PaginasVista& paginas, QWidget* padre) : QListView{padre}, m_pintor{new PintorMiniaturas{paginas, this}}
{
    setObjectName(u"miniaturas"_s);
    setAccessibleName(u"Páginas en pequeño"_s);
    setModel(&m_modelo);
    setItemDelegate(m_pintor);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(NoEditTriggers);
    setMinimumWidth(PintorMiniaturas::Hueco.width() + 30);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    const auto elige = [this](const QModelIndex& indice) { emit elegida(indice.row()); };
    connect(this, &QListView::clicked, this, elige);
    connect(this, &QListView::activated, this, elige);
    connect(m_pintor, &PintorMiniaturas::lista, this, [this](int pagina) { update(m_modelo.index(pagina)); });
}

void Miniaturas::olvida()
{
    m_pintor->olvida();
    viewport()->update();
}

void Miniaturas::senala(int pagina)
{
    const QModelIndex indice = m_modelo.index(pagina);
    if (indice.isValid() && indice != currentIndex())
        setCurrentIndex(indice);
}

} // namespace kestrane::report
