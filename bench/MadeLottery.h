#pragma once

#include "app/DrawDatabase.h"

#include <QByteArray>

/// A made-up lottery with the same draws at every call: two a week, @p picks out of @p highest numbers. The
/// places beyond the picks hold 0, as in a file.
[[nodiscard]] DrawDatabase MadeLottery(int records, int picks, int highest);

/// The lottery database file of MadeLottery.
[[nodiscard]] QByteArray MadeLotteryFile(int records, int picks, int highest);
