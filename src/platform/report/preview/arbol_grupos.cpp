#include "platform/report/preview/arbol_grupos.h"

#include <QScroller>

#include <algorithm>
#include <memory>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr int PapelPagina = Qt::UserRole;
constexpr int PapelAltura = Qt::UserRole + 1;

} // namespace

ArbolGrupos::ArbolGrupos(QWidget* padre) : QTreeView{padre}
{
    setObjectName(u"grupos"_s);
    setAccessibleName(u"Grupos del informe"_s);
    setModel(&m_modelo);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setIndentation(18);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    const auto elige = [this](const QModelIndex& indice) {
        emit elegida(indice.data(PapelPagina).toInt(), indice.data(PapelAltura).toDouble());
    };
    connect(this, &QTreeView::clicked, this, elige);
    connect(this, &QTreeView::activated, this, elige);
}

void ArbolGrupos::crece(const std::vector<EntradaIndice>& indice)
{
    for (; m_entradas < indice.size(); ++m_entradas)
        anade(indice[m_entradas]);
}

void ArbolGrupos::vacia()
{
    m_modelo.clear();
    m_rama.clear();
    m_entradas = 0;
}

void ArbolGrupos::anade(const EntradaIndice& entrada)
{
    auto nuevo = std::make_unique<QStandardItem>(entrada.titulo);
    nuevo->setData(entrada.pagina, PapelPagina);
    nuevo->setData(entrada.y, PapelAltura);
    nuevo->setToolTip(u"%1 (página %2)"_s.arg(entrada.titulo).arg(entrada.pagina + 1));
    // A group whose outer one has no title hangs from the next one out that has.
    m_rama.resize(std::min<std::size_t>(m_rama.size(), entrada.nivel));
    QStandardItem* padre = m_rama.empty() ? m_modelo.invisibleRootItem() : m_rama.back();
    m_rama.push_back(nuevo.get());
    padre->appendRow(nuevo.release());
}

} // namespace kestrane::report
