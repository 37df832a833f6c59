#include "platform/report/preview/arbol_grupos.h"

#include <QScroller>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t CortoDelTodo = 1000; ///< an index that is shown as it comes

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
    const auto elige = [this](const QModelIndex& lugar) {
        if (const EntradaIndice* grupo = m_modelo.entrada(lugar))
            emit elegida(grupo->pagina, grupo->y);
    };
    connect(this, &QTreeView::clicked, this, elige);
    connect(this, &QTreeView::activated, this, elige);
}

void ArbolGrupos::crece(const std::vector<EntradaIndice>& indice, bool entero)
{
    // A tree is laid out anew whenever it grows: each time by a tenth, all of it costs no more than a few times the last.
    if (entero || indice.size() <= CortoDelTodo || indice.size() >= m_modelo.entradas() + m_modelo.entradas() / 10)
        m_modelo.crece(indice);
}

} // namespace kestrane::report
