#pragma once

/// Lets a screen reader work check boxes and option buttons by a click, as the mouse and the keyboard do. The
/// toolkit's own way only turns the mark over, and no command hears of that. Called once, before there is a
/// window.
void InstallAccessibleButtons();
