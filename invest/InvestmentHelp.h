#pragma once

#include <QString>

/// The quick help of the investment tracker, a paragraph each. The lines stand as users know them.
[[nodiscard]] QString InvestmentHelpText();
