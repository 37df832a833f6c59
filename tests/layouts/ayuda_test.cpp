#include "layouts/pagina_de_ayuda.h"
#include "pipeline/catalogue/catalogo.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

// The help page explains the menu as it is: every button, under its caption and in its group, and nothing leads nowhere.

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using catalogue::Clase;
using catalogue::FilaCatalogo;
using catalogue::Grupo;
using prueba::Apartado;

class Ayuda : public testing::Test
{
protected:
    void SetUp() override { ASSERT_EQ(m_pagina.fallo.toStdString(), ""); }

    /// The part of the page with that anchor, or nullptr.
    [[nodiscard]] const Apartado* apartado(const QString& ancla) const
    {
        const auto hallado = std::ranges::find(m_pagina.apartados, ancla, &Apartado::ancla);
        return hallado == m_pagina.apartados.end() ? nullptr : &*hallado;
    }

    /// The buttons that an operator reads on the menu and can press. That of the client labels' panel is told with the panel.
    [[nodiscard]] static std::vector<FilaCatalogo> botones()
    {
        std::vector<FilaCatalogo> suyos;
        std::ranges::copy_if(catalogue::catalogo(), std::back_inserter(suyos), [](const FilaCatalogo& fila) {
            return fila.clase != Clase::SinAccion && !fila.leyenda.isEmpty() && fila.grupo != Grupo::frAviso;
        });
        return suyos;
    }

    /// Where QTextBrowser would jump to.
    [[nodiscard]] QStringList anclasDelVisor() const
    {
        QTextDocument documento;
        documento.setHtml(m_pagina.html);
        QStringList anclas;
        for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
            for (auto trozo = bloque.begin(); trozo != bloque.end(); ++trozo)
                anclas << trozo.fragment().charFormat().anchorNames();
        }
        return anclas;
    }

    prueba::PaginaDeAyuda m_pagina = prueba::leeAyuda(QStringLiteral(KESTRANE_AYUDA));
};

TEST_F(Ayuda, ExplainsEveryButtonUnderItsCaption)
{
    const auto todos = botones();
    ASSERT_GT(todos.size(), 60U);
    for (const FilaCatalogo& fila : todos) {
        SCOPED_TRACE(fila.control.toString().toStdString());
        const Apartado* suyo = apartado(fila.control.toString());
        ASSERT_NE(suyo, nullptr);
        EXPECT_EQ(suyo->titulo.toStdString(), fila.leyenda.toString().toStdString());
        EXPECT_GT(suyo->texto.trimmed().size(), 20);
    }
}

TEST_F(Ayuda, HasTheGroupsOfTheMenuInItsOrder)
{
    QStringList capitulos;
    for (const Apartado& uno : m_pagina.apartados) {
        if (uno.nivel == 2)
            capitulos << uno.ancla;
    }
    qsizetype anterior = -1;
    for (const catalogue::GrupoMenu& grupo : catalogue::grupos()) {
        SCOPED_TRACE(grupo.control.toString().toStdString());
        const qsizetype lugar = capitulos.indexOf(grupo.control.toString());
        ASSERT_GT(lugar, anterior);
        anterior = lugar;
        const QString titulo = apartado(grupo.control.toString())->titulo;
        EXPECT_TRUE(grupo.titulo.isEmpty() || grupo.titulo == titulo) << titulo.toStdString();
    }
}

TEST_F(Ayuda, HasEachButtonInItsGroup)
{
    for (const catalogue::GrupoMenu& grupo : catalogue::grupos()) {
        for (const FilaCatalogo& fila : botones()) {
            if (fila.grupo != grupo.grupo)
                continue;
            const Apartado* suyo = apartado(fila.control.toString());
            ASSERT_NE(suyo, nullptr) << fila.control.toString().toStdString();
            EXPECT_EQ(suyo->capitulo.toStdString(), grupo.control.toString().toStdString()) << suyo->ancla.toStdString();
        }
    }
}

TEST_F(Ayuda, EveryAnchorStandsOnceAndTheViewerKnowsIt)
{
    QStringList sinRepetir = m_pagina.anclas;
    EXPECT_EQ(sinRepetir.removeDuplicates(), 0);
    const QStringList delVisor = anclasDelVisor();
    for (const QString& ancla : m_pagina.anclas)
        EXPECT_TRUE(delVisor.contains(ancla)) << ancla.toStdString();
}

TEST_F(Ayuda, EveryLinkLeadsToAnAnchorOfThePage)
{
    for (const QString& enlace : m_pagina.enlaces) {
        EXPECT_TRUE(enlace.startsWith(u'#')) << enlace.toStdString();
        EXPECT_TRUE(m_pagina.anclas.contains(enlace.mid(1))) << enlace.toStdString();
    }
}

TEST_F(Ayuda, LeadsToEveryButton)
{
    for (const FilaCatalogo& fila : botones())
        EXPECT_TRUE(m_pagina.enlaces.contains(u'#' + fila.control.toString())) << fila.control.toString().toStdString();
}

TEST_F(Ayuda, HoldsNothingThatTheViewerCannotShow)
{
    const QSet<QString> elementos{u"html"_s, u"head"_s, u"meta"_s, u"title"_s, u"style"_s, u"body"_s, u"h1"_s,
                                  u"h2"_s,   u"h3"_s,   u"p"_s,    u"ul"_s,    u"li"_s,    u"a"_s,    u"b"_s};
    EXPECT_EQ((m_pagina.elementos - elementos).values().join(u' ').toStdString(), "");
}

TEST_F(Ayuda, LeavesColoursToTheTheme)
{
    const QSet<QString> atributos{u"lang"_s, u"http-equiv"_s, u"content"_s, u"type"_s, u"name"_s, u"href"_s};
    EXPECT_EQ((m_pagina.atributos - atributos).values().join(u' ').toStdString(), "");
    EXPECT_FALSE(m_pagina.estilos.isEmpty());
    EXPECT_FALSE(m_pagina.estilos.contains(u"color"));
    EXPECT_FALSE(m_pagina.estilos.contains(u"background"));
}

} // namespace
} // namespace kestrane
