#pragma once

#include <QtGlobal>

/// What the editor's 'New' row is for, or what is done to the records at once.
enum class EditMode : qint16 { Normal = 0, Correct = 1, Insert = 2, Delete = 3, Sort = 4 };
