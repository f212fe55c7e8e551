#pragma once

/// Whether the user has asked the desktop for windows in which nothing moves. Where no desktop answers at
/// once, nobody has.
[[nodiscard]] bool DesktopWantsStillness();
