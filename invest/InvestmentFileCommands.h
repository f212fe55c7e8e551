#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"
#include "invest/InvestmentFile.h"

#include <QString>

#include <functional>

/// Asks for a statement file and reads it; its name becomes the one remembered.
///
/// @param mayReplace  asked once the file is read: false leaves everything as it is
/// @return no statement after a cancel, after such a refusal, and for a name that does not end in ".inv" or a
///         file that cannot be read, which give message 25. The next dialog opens in the folder it would have
///         opened in before.
[[nodiscard]] InvestmentReading OpenInvestmentFile(LGLOBAL& shared, Prompts& prompts,
                                                   const std::function<bool()>& mayReplace);

/// The same without asking for the file. The next dialog opens in its folder.
[[nodiscard]] InvestmentReading ReadInvestmentFileAt(LGLOBAL& shared, Prompts& prompts, const QString& path,
                                                     const std::function<bool()>& mayReplace);

/// Asks where to save the statement and saves it; the name becomes the one remembered. Without rows message
/// 15; message 25 for a name that does not end in ".inv", and after a failure: an old file is whole then.
/// @return whether it was saved.
[[nodiscard]] bool SaveInvestmentFile(LGLOBAL& shared, Prompts& prompts,
                                      const InvestmentStatement& statement);
