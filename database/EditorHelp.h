#pragma once

#include <QString>

/// The quick help of the database editor, one rule a line. The lines stand as users know them.
[[nodiscard]] QString EditorHelpText();
