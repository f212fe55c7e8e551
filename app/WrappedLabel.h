#pragma once

#include <QLabel>

/// Keeps a label over several lines high enough for its whole text, whatever its width and letters: a layout
/// inside another one does not ask for that by itself. The height the label asks for now stays its least.
void KeepWholeTextInSight(QLabel& label);
