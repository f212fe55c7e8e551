#pragma once

#include <QString>

/// The quick help of the extract form, a paragraph each. The lines stand as users know them.
[[nodiscard]] QString ExtractHelpText();
