#pragma once

class QWidget;

/// Whether the desktop wants to see things move in the widget: where its style says that animations take no
/// time, or the user has switched them off for all programs, what is shown comes at once.
[[nodiscard]] bool AnimationsAreWanted(const QWidget& widget);
