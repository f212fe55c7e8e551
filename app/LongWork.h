#pragma once

#include "app/Outcome.h"

#include <QString>
#include <QWidget>

#include <functional>

/// Told how many steps are done; may be called on any thread.
using StepsDone = std::function<void(int steps)>;

/// Runs work that may take long, such as waiting for a printer, on a thread of its own and returns when it is
/// done. Meanwhile windows stay painted and what the user does is dropped; after half a second a small window
/// says what is being done and how far it is.
///
/// @param window  the window it is done for
/// @param text    what is being done
/// @param steps   how many steps there are; 0 when that is not known
/// @param work    touches nothing that this thread uses
Outcome RunLongWork(QWidget* window, const QString& text, int steps,
                    const std::function<Outcome(const StepsDone&)>& work);

/// The same for work that has to be done on the thread of the windows; they are painted at each step.
Outcome RunWorkHere(QWidget* window, const QString& text, int steps,
                    const std::function<Outcome(const StepsDone&)>& work);
