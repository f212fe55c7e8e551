#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QString>

#include <optional>

/// Asks for a statement file and reads it; its name becomes the one remembered.
/// @return nothing after a cancel, and for a file that cannot be read, which gives message 25.
[[nodiscard]] std::optional<InvestmentStatement> OpenInvestmentFile(LGLOBAL& shared, Prompts& prompts);

/// The same without asking for the file.
[[nodiscard]] std::optional<InvestmentStatement> ReadInvestmentFileAt(LGLOBAL& shared, Prompts& prompts,
                                                                      const QString& path);

/// Asks where to save the statement and saves it; the name becomes the one remembered. Without rows message
/// 15, after a failure message 25; an old file is whole then.
/// @return whether it was saved.
[[nodiscard]] bool SaveInvestmentFile(LGLOBAL& shared, Prompts& prompts,
                                      const InvestmentStatement& statement);
