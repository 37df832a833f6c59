#include "platform/suite/windows/fichero_ts.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

namespace kestrane::ts {
namespace {

using namespace Qt::StringLiterals;

class FicheroTsTest : public testing::Test
{
protected:
    void contiene(const QByteArray& bytes) const
    {
        QFile fichero{nombre};
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(bytes);
    }

    QTemporaryDir carpeta;
    QString nombre = carpeta.filePath(u"listados_en.ts"_s);
};

TEST_F(FicheroTsTest, WhereThereIsNoneItHasNoMessages)
{
    EXPECT_EQ(lee(nombre).valor(), Fichero{});
}

TEST_F(FicheroTsTest, AFileOfLinguistsIsRead)
{
    contiene(R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>frmListados</name>
    <message>
        <location filename="x.cpp" line="3"/>
        <source>Cumplea&#xf1;os</source>
        <translation>Birthday</translation>
    </message>
    <message>
        <source>Caja &amp; m&#xe1;s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
)");
    const Fichero leido = lee(nombre).valor();
    EXPECT_EQ(leido.idioma, u"en"_s);
    ASSERT_EQ(leido.contextos.size(), 1);
    EXPECT_EQ(leido.contextos[0].nombre, u"frmListados"_s);
    EXPECT_EQ(leido.contextos[0].mensajes,
              (QList<Mensaje>{{u"Cumpleaños"_s, u"Birthday"_s, {}}, {u"Caja & más"_s, {}, u"unfinished"_s}}));
}

TEST_F(FicheroTsTest, WhatIsWrittenIsReadBack)
{
    Fichero fichero{u"ca"_s, {{u"frmFechas"_s, {{u"Desde <fecha> & \"hora\""_s, u"Des de"_s, {}}, {u"Año"_s, {}, u"vanished"_s}}}}};
    EXPECT_EQ(escribe(fichero, nombre), QString{});
    EXPECT_EQ(lee(nombre).valor(), fichero);
}

TEST_F(FicheroTsTest, SourcesAreAddedOnceAndTranslationsStay)
{
    Fichero fichero{{}, {{u"frmFechas"_s, {{u"Desde"_s, u"From"_s, {}}}}}};
    fichero.anade(u"frmFechas"_s, {u"Desde"_s, u"Hasta"_s, u"Hasta"_s});
    fichero.anade(u"frmMes"_s, {u"Desde"_s});
    EXPECT_EQ(fichero.contextos,
              (QList<Contexto>{{u"frmFechas"_s, {{u"Desde"_s, u"From"_s, {}}, {u"Hasta"_s, {}, u"unfinished"_s}}},
                               {u"frmMes"_s, {{u"Desde"_s, {}, u"unfinished"_s}}}}));
}

TEST_F(FicheroTsTest, AFileThatIsNoneIsRefusedWithItsName)
{
    for (const QByteArray& bytes : {QByteArray{"no es xml"}, QByteArray{"<html/>"}, QByteArray{"<TS><context>"}}) {
        contiene(bytes);
        const auto leido = lee(nombre);
        ASSERT_FALSE(leido) << bytes.toStdString();
        EXPECT_TRUE(leido.error().contains(nombre));
    }
}

TEST_F(FicheroTsTest, WhereItCannotBeWrittenItSaysWhy)
{
    const QString enNada = carpeta.filePath(u"no existe/listados_en.ts"_s);
    EXPECT_TRUE(escribe({}, enNada).contains(enNada));
    EXPECT_TRUE(escribe({}, carpeta.path()).contains(u"es una carpeta"_s));
}

} // namespace
} // namespace kestrane::ts
