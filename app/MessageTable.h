#pragma once

#include <QString>

/// What the variable places of a message or question are filled with.
struct MessageArguments {
    QString arg1;               ///< messageArg1
    QString arg2;               ///< messageArg2
    int recordCount = 0;        ///< for message 49
    int picks = 0;              ///< for message 50
    QString today;              ///< today's date as Short Date, for message 30
    QString databaseFileName;   ///< for question 3
    QString investmentFileName; ///< for question 5
};

/// The text of a message, 1..52; "" for a number without a row. The texts stand as they are on purpose,
/// "maximium", "No enough data" and doubled blanks included: users and documents know them so.
[[nodiscard]] QString MessageText(int number, const MessageArguments& arguments);

/// The text of a yes/no question, 1..5; "" for any other number.
[[nodiscard]] QString QuestionText(int number, const MessageArguments& arguments);

/// True for a question whose Yes means "go back and save": closing it unanswered counts as that.
[[nodiscard]] bool QuestionIsAnsweredYesWhenClosed(int number);
