#pragma once

/// Draws a line around texts that are only read and around scrolled pages while they have the focus: styles
/// draw none there, and who works by keyboard would not see where he is. Called once, before there is a
/// window.
void InstallShownFocus();
