#pragma once

#include "app/RecoveryCopies.h"

#include <functional>

/// A piece of work that recovery copies are kept of, as the keeper sees it.
struct KeptWork {
    WorkKind kind = WorkKind::Database;
    /// A number that stands for what is not saved; nothing when all is. Asked every few seconds.
    std::function<std::optional<quint64>()> unsaved;
    /// Gives the bytes of a file of the ordinary format and says in the note what they are of.
    std::function<Outcome(QByteArray& bytes, RecoveryNote& note)> write;
};
