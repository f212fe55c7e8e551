#pragma once

#include <QString>

/// The quick help of the winner check, a paragraph each. The lines stand as users know them.
[[nodiscard]] QString WinnersHelpText();
