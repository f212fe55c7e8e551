#pragma once

class QWidget;

/// Whether the desktop wants to see things move in the widget: where its style says that animations take no
/// time, what is shown comes at once.
[[nodiscard]] bool AnimationsAreWanted(const QWidget& widget);
