#pragma once

#include <QString>

/// The quick help of the Selectorium.
[[nodiscard]] QString SelectoriumHelpText();
