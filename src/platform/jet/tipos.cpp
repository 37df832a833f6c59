#include "platform/jet/tipos.h"

namespace kestrane::jet {

QLatin1StringView nombreDeTipo(TipoColumna tipo)
{
    using namespace Qt::StringLiterals;
    switch (tipo) {
    case TipoColumna::Texto:
        return "TEXT"_L1;
    case TipoColumna::Memo:
        return "MEMO"_L1;
    case TipoColumna::Entero32:
        return "LONG"_L1;
    case TipoColumna::Entero16:
        return "INTEGER"_L1;
    case TipoColumna::Doble:
        return "DOUBLE"_L1;
    case TipoColumna::FechaHora:
        return "DATETIME"_L1;
    case TipoColumna::SiNo:
        return "YESNO"_L1;
    }
    Q_UNREACHABLE();
}

} // namespace kestrane::jet
