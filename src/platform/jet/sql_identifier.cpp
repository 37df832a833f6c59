#include "platform/jet/sql_identifier.h"

namespace kestrane::jet {

void SqlIdentifier::escribe(QByteArray& sql, char comilla) const
{
    sql += comilla;
    for (qsizetype i = 0; i < m_nombre.size(); ++i) {
        const char16_t c = m_nombre[i].unicode();
        if (c > 127) {
            sql += m_nombre.sliced(i).toUtf8().replace(comilla, QByteArray(2, comilla));
            break;
        }
        if (c == static_cast<char16_t>(comilla))
            sql += comilla;
        sql += static_cast<char>(c);
    }
    sql += comilla;
}

QByteArray SqlIdentifier::entre(char comilla) const
{
    QByteArray texto;
    escribe(texto, comilla);
    return texto;
}

} // namespace kestrane::jet
