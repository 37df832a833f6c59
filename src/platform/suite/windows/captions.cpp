#include "platform/suite/windows/captions.h"

#include "platform/suite/windows/controles_de.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>

namespace kestrane {

namespace {

/// Where a control keeps its captions: the original, then what was put for it.
QByteArray recuerdo(const Caption& caption)
{
    return QByteArray{"kestraneCaption_"} + caption.propiedad;
}

QList<const char*> propiedadesDe(const QWidget& control)
{
    QList<const char*> propiedades{"toolTip", "accessibleName", "accessibleDescription"};
    if (control.isWindow())
        propiedades << "windowTitle";
    if (qobject_cast<const QAbstractButton*>(&control) || qobject_cast<const QLabel*>(&control))
        propiedades << "text";
    if (qobject_cast<const QGroupBox*>(&control))
        propiedades << "title";
    if (qobject_cast<const QLineEdit*>(&control))
        propiedades << "placeholderText";
    return propiedades;
}

} // namespace

QList<Caption> captionsDe(QWidget& ventana)
{
    QList<Caption> captions;
    for (QWidget* control : controlesDe(ventana)) {
        if (esParteDeQt(*control))
            continue;
        for (const char* propiedad : propiedadesDe(*control)) {
            const Caption caption{control, propiedad};
            if (!caption.texto().isEmpty())
                captions << caption;
        }
    }
    return captions;
}

QString original(const Caption& caption)
{
    const QStringList recordado = caption.control->property(recuerdo(caption).constData()).toStringList();
    const QString texto = caption.texto();
    return recordado.size() == 2 && recordado.last() == texto ? recordado.first() : texto;
}

void ponTraducido(const Caption& caption, const QString& texto)
{
    const QString escrito = original(caption);
    caption.pon(texto);
    caption.control->setProperty(recuerdo(caption).constData(), QStringList{escrito, caption.texto()});
}

} // namespace kestrane
