#pragma once

#include <QString>

/// The quick help of the hot, cold and due form.
[[nodiscard]] QString HcdHelpText();
