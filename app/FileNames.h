#pragma once

#include <QString>

/// Whether a file of this name is an investment statement: MYFILE.INV, in any letter case, with something
/// before its ending.
[[nodiscard]] bool IsStatementFileName(const QString& path);
