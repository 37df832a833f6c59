#pragma once

#include <sqlite3.h>

#include <memory>

namespace kestrane::database::sqlite {

struct CierraBase
{
    void operator()(sqlite3* base) const { sqlite3_close_v2(base); }
};
struct FinalizaSentencia
{
    void operator()(sqlite3_stmt* sentencia) const { sqlite3_finalize(sentencia); }
};

using Base = std::unique_ptr<sqlite3, CierraBase>;
using Preparada = std::unique_ptr<sqlite3_stmt, FinalizaSentencia>;

} // namespace kestrane::database::sqlite
