#pragma once

#include "app/InvestmentStatement.h"

#include <QString>

#include <vector>

/// The rows, 1..105, whose amount calculating would drop because they have no description yet.
[[nodiscard]] std::vector<int> RowsThatLoseTheirAmount(const InvestmentTable& rows);

/// What to tell the user about these rows. @param rows  not empty
[[nodiscard]] QString LostAmountsText(const std::vector<int>& rows);
