#include "platform/suite/windows/traductor_captions.h"

#include "platform/suite/windows/captions.h"
#include "platform/suite/windows/fichero_ts.h"

#include <QDir>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// "en-GB" also goes by "en".
QStringList nombresDe(const QString& idioma)
{
    const QString llano = QString{idioma}.replace(u'-', u'_');
    return {llano, llano.section(u'_', 0, 0)};
}

bool esEspanol(const QString& idioma)
{
    return nombresDe(idioma).last() == "es"_L1;
}

} // namespace

TraductorCaptions::TraductorCaptions(const QString& carpeta, const QStringList& idiomas)
{
    for (const QString& idioma : idiomas) {
        if (esEspanol(idioma))
            return;
        for (const QString& nombre : nombresDe(idioma)) {
            if (m_traductor.load(QDir{carpeta}.filePath(u"listados_%1.qm"_s.arg(nombre))))
                return;
        }
    }
}

void TraductorCaptions::TraducirForm(QWidget& ventana) const
{
    for (const Caption& caption : captionsDe(ventana))
        ponTraducido(caption, traducido(ventana.objectName(), original(caption)));
}

QString TraductorCaptions::GenerarCaptions(QWidget& ventana, const QString& fichero) const
{
    Resultado<ts::Fichero, QString> leido = ts::lee(fichero);
    if (!leido)
        return leido.error();
    QStringList originales;
    for (const Caption& caption : captionsDe(ventana))
        originales << original(caption);
    leido.valor().anade(ventana.objectName(), originales);
    return ts::escribe(leido.valor(), fichero);
}

QString TraductorCaptions::traducido(const QString& ventana, const QString& original) const
{
    const QString texto = m_traductor.translate(ventana.toUtf8().constData(), original.toUtf8().constData());
    return texto.isEmpty() ? original : texto;
}

} // namespace kestrane
