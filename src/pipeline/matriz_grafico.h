#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace kestrane {

/// What a chart draws, all of it text: for each point of the axis its label, then the value of each series as a number is written
/// by the regional settings. A list that turned out empty gives no point.
using MatrizGrafico = std::vector<QStringList>;

} // namespace kestrane
