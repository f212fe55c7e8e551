#pragma once

#include <QtGlobal>

/// The bytes that the program holds on its heap at this moment.
[[nodiscard]] qint64 AllocatedBytes();

/// The bytes of it that are in the machine's memory; 0 where that is not known.
[[nodiscard]] qint64 ResidentBytes();

/// Has something done when a sanitizer ends the program.
void OnSanitizerDeath(void (*act)());
