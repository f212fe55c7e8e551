#include "app/Prompts.h"

#include "app/MessageTable.h"
#include "app/ShortDate.h"

namespace {

constexpr int kGoBackAndSave = 3;

MessageArguments Arguments(const LGLOBAL& shared)
{
    MessageArguments arguments;
    arguments.arg1 = shared.messageArg1;
    arguments.arg2 = shared.messageArg2;
    arguments.recordCount = shared.database.count;
    arguments.picks = shared.database.Shape().picks; // as the forms count them, whatever a file says
    arguments.today = ShortDate(shared.today(), shared.locale);
    arguments.databaseFileName = shared.database.fileName;
    arguments.investmentFileName = shared.investmentFileName;
    return arguments;
}

} // namespace

void Show(LGLOBAL& shared, Prompts& prompts, const Message& message)
{
    shared.messageNumber = static_cast<qint16>(message.number);
    shared.messageArg1 = message.arg1;
    shared.messageArg2 = message.arg2;
    shared.messageReason = message.reason;
    prompts.ShowMessage();
    shared.messageReason.clear(); // a reason belongs to one message
}

bool Ask(LGLOBAL& shared, Prompts& prompts, int question)
{
    shared.questionNumber = static_cast<qint16>(question);
    prompts.AskQuestion();
    return shared.questionNumber == kAnsweredYes;
}

QString CurrentMessageText(const LGLOBAL& shared)
{
    return MessageText(shared.messageNumber, Arguments(shared));
}

QString CurrentQuestionText(const LGLOBAL& shared)
{
    return QuestionText(shared.questionNumber, Arguments(shared));
}

bool HasUnsavedRecords(const LGLOBAL& shared)
{
    return shared.database.modified == 1 && shared.database.count != 0;
}

bool MayEndProgram(LGLOBAL& shared, Prompts& prompts)
{
    if (!HasUnsavedRecords(shared)) {
        return true;
    }
    if (Ask(shared, prompts, kGoBackAndSave)) {
        return false;
    }
    shared.database.modified = 0;
    return true;
}
