#pragma once

#include "app/LGLOBAL.h"
#include "app/Printout.h"

#include <QString>

#include <functional>

/// The one door through which the program asks and tells the user. The program's own opens the dialogs; tests
/// answer by themselves and check what was asked.
class Prompts
{
public:
    virtual ~Prompts() = default;

    /// Shows the message messageNumber of the shared state and waits until it is closed.
    virtual void ShowMessage() = 0;

    /// Asks the question questionNumber of the shared state; afterwards it holds kAnsweredYes, or 0.
    virtual void AskQuestion() = 0;

    /// Asks the question questionNumber, which precedes a printout, as AskQuestion does, and lets the user
    /// look at the pages before answering. @param pages  makes them when they are wanted
    virtual void AskToPrint(const std::function<PrintedDocument()>& pages) = 0;

    /// Prints on the default printer under the busy pointer; where there is none, asks for a PDF file and
    /// prints to it. Tells the user what went wrong.
    virtual void PrintDocument(const PrintedDocument& document) = 0;

    /// Asks for a file under fileDialogMode: chosenPath is the answer; after a cancel fileDialogMode is
    /// kFileDialogCancelled and chosenPath what it was.
    virtual void FileDirectory() = 0;

    /// Tells something that has no number in the message table.
    virtual void Notice(const QString& text) = 0;

    /// Tells something that has no number in the message table and offers to do one thing about it.
    /// @param deed  the caption of the button that takes the offer
    /// @return whether the user takes it.
    [[nodiscard]] virtual bool Offer(const QString& text, const QString& deed) = 0;

    /// Shows the hourglass pointer, or takes it away. Several calls with the same value are one.
    virtual void SetBusyPointer(bool busy) = 0;

protected:
    Prompts() = default;
    Prompts(const Prompts&) = default;
    Prompts(Prompts&&) = default;
    Prompts& operator=(const Prompts&) = default;
    Prompts& operator=(Prompts&&) = default;
};

/// A message to show, with the texts its row of the table takes.
struct Message {
    int number = 0;
    QString arg1{};
    QString arg2{};
    QString reason{}; ///< shown below the message's own text
};

/// Puts the message into the shared state and shows it.
void Show(LGLOBAL& shared, Prompts& prompts, const Message& message);

/// Asks question 1..5. @return true for Yes.
[[nodiscard]] bool Ask(LGLOBAL& shared, Prompts& prompts, int question);

/// The text of the message that the shared state asks for.
[[nodiscard]] QString CurrentMessageText(const LGLOBAL& shared);

/// The text of the question that the shared state asks for.
[[nodiscard]] QString CurrentQuestionText(const LGLOBAL& shared);

/// True when leaving or emptying now would lose records that were added and not saved.
[[nodiscard]] bool HasUnsavedRecords(const LGLOBAL& shared);

/// Asks, when records were added and not saved, whether to go back and save them. After No they count as
/// given up.
/// @return true when the program may end.
[[nodiscard]] bool MayEndProgram(LGLOBAL& shared, Prompts& prompts);
