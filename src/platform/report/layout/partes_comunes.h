#pragma once

#include "platform/report/layout/arbol_xml.h"
#include "platform/report/layout/hoja_estilos.h"

#include <list>
#include <map>

namespace kestrane::report {

/// The shared parts that a layout uses: their styles go to the sheet, their bands are kept by name.
class PartesComunes
{
public:
    /// Reads the file of each <usa> in `raiz` below `carpeta`. Errors of the files, and for a file that is not there.
    PartesComunes(const ElementoXml& raiz, const QString& carpeta, HojaEstilos& estilos);

    /// The <bandas> that `pedido` names with its `de`. Error when there are none.
    [[nodiscard]] const ElementoXml& bandas(const ElementoXml& pedido) const;

private:
    void lee(const ElementoXml& usa, const QString& carpeta, HojaEstilos& estilos);

    std::list<ElementoXml> m_ficheros; ///< they stay where they are
    std::map<QString, const ElementoXml*> m_bandas;
};

/// The content of a file of the disk, at most a little more than a layout may have. Error at `pedido` when it cannot be read.
[[nodiscard]] QByteArray bytesDeFichero(const QString& ruta, const LugarLayout& pedido);

} // namespace kestrane::report
