#pragma once

#include <QString>

/// Whether something worked, and if not, why: a sentence for the user, in the words of the system where
/// the system refused.
struct Outcome {
    bool ok = true;
    QString reason;

    [[nodiscard]] static Outcome Failure(QString why) { return {false, std::move(why)}; }
};
