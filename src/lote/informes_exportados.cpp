#include "lote/informes_exportados.h"

#include "lote/peticion_imposible.h"
#include "platform/report/export/png.h"

#include <QDir>

namespace kestrane::lote {

using namespace Qt::StringLiterals;
using report::FormatoExportacion;

InformesExportados::InformesExportados(FormatoExportacion formato, QString carpetaPrograma)
    : m_formato{formato}
    , m_carpetaPrograma{std::move(carpetaPrograma)}
{
}

QStringList InformesExportados::escribe(const InformeMostrado& informe, Conexion& listados, const QString& base)
{
    if (!informe.datos)
        return {};
    if (informe.layout.isEmpty())
        throw PeticionImposible{u"%1 no se imprime aquí; sus filas salen con --formato json."_s.arg(informe.control)};
    report::Documento documento{QDir{m_carpetaPrograma}.filePath(informe.layout), listados.entorno()};
    report::exporta(documento, m_formato, base);
    if (m_formato != FormatoExportacion::Png)
        return {base};
    QStringList paginas;
    for (int indice = 0; indice < documento.paginas(); ++indice)
        paginas += report::ficheroDePagina(base, indice, documento.paginas());
    return paginas;
}

} // namespace kestrane::lote
