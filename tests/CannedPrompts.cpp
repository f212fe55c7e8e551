#include "tests/CannedPrompts.h"

#include <QFileInfo>
#include <gtest/gtest.h>

void CannedPrompts::ShowMessage()
{
    const int number = m_shared.messageNumber;
    const QString text = CurrentMessageText(m_shared);
    shownTexts << text;
    shownReasons << m_shared.messageReason;
    onMessage();
    EXPECT_FALSE(busy) << "a message under the busy pointer: " << number;
    if (anythingGoes) {
        return;
    }
    if (expectedMessages.empty()) {
        ADD_FAILURE() << "unexpected message " << number << ": " << text.toStdString();
        return;
    }
    EXPECT_EQ(number, expectedMessages.front()) << text.toStdString();
    expectedMessages.pop_front();
}

void CannedPrompts::AskQuestion()
{
    const QString text = CurrentQuestionText(m_shared);
    askedTexts << text;
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected question " << m_shared.questionNumber << ": " << text.toStdString();
        m_shared.questionNumber = 0;
        return;
    }
    m_shared.questionNumber = answers.front() ? kAnsweredYes : qint16{0};
    answers.pop_front();
}

void CannedPrompts::AskToPrint(const std::function<PrintedDocument()>& pages)
{
    offered.push_back(pages());
    AskQuestion();
}

void CannedPrompts::PrintDocument(const PrintedDocument& document)
{
    EXPECT_FALSE(busy) << "printing under the busy pointer";
    printed.push_back(document);
}

void CannedPrompts::FileDirectory()
{
    fileDialogModes.push_back(m_shared.fileDialogMode);
    onFileDialog();
    if (files.empty()) {
        ADD_FAILURE() << "unexpected file dialog, mode " << m_shared.fileDialogMode;
    }
    const QString file = files.empty() ? QString() : files.front();
    if (!files.empty()) {
        files.pop_front();
    }
    if (file.isEmpty()) {
        m_shared.fileDialogMode = kFileDialogCancelled;
    } else {
        m_shared.chosenPath = file;
        m_shared.dialogFolder = QFileInfo(file).absolutePath(); // where the program's own dialog stands then
    }
}

void CannedPrompts::Notice(const QString& text)
{
    notices << text;
    onNotice();
}

bool CannedPrompts::Offer(const QString& text, const QString& deed)
{
    EXPECT_FALSE(busy) << "an offer under the busy pointer";
    offers << text << deed;
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected offer: " << text.toStdString();
        return false;
    }
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
}

void CannedPrompts::SetBusyPointer(bool isBusy)
{
    if (busy != isBusy) {
        busyChanges.push_back(isBusy);
    }
    busy = isBusy;
}
