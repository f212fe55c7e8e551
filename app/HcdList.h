#pragma once

#include <QtGlobal>

/// The three lists of ten numbers that sets are made from.
enum class HcdList : qint16 {
    None = 0,
    Hot = 1,  ///< drawn most often in the last draws, most often first
    Cold = 2, ///< drawn least often in the last draws, but at least once; of these, most often first
    Due = 3,  ///< longest undrawn over the whole database, longest first
};
