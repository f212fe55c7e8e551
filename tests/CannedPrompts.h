#pragma once

#include "app/Prompts.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <vector>

/// Prompts that answer from a list and keep what was asked. What was not expected fails the test.
class CannedPrompts : public Prompts
{
public:
    explicit CannedPrompts(LGLOBAL& shared) : m_shared(shared) {}

    void ShowMessage() override;
    void AskQuestion() override;
    void AskToPrint(const std::function<PrintedDocument()>& pages) override;
    void PrintDocument(const PrintedDocument& document) override;
    void FileDirectory() override;
    void Notice(const QString& text) override;
    [[nodiscard]] bool Offer(const QString& text, const QString& deed) override;
    void SetBusyPointer(bool busy) override;

    /// Answers to come: true for Yes.
    std::deque<bool> answers;
    /// Files to be chosen; an empty one is a cancel.
    std::deque<QString> files;
    /// Messages that may come; one that is not the next of these fails the test.
    std::deque<int> expectedMessages;
    /// For a walk that is about looks alone: every message is as good as expected.
    bool anythingGoes = false;

    QStringList shownTexts;   ///< the texts of all messages, in order
    QStringList shownReasons; ///< their reasons
    QStringList notices;
    QStringList askedTexts;
    QStringList offers; ///< the texts of what was offered, and what could be done; answers has the answers
    std::vector<PrintedDocument> offered; ///< what could be looked at before each answer to a print question
    std::vector<PrintedDocument> printed;
    std::deque<qint16> fileDialogModes; ///< the modes the file dialog was opened under
    bool busy = false;
    std::function<void()> onNotice = [] {};     ///< runs at each notice
    std::function<void()> onMessage = [] {};    ///< runs at each message
    std::function<void()> onFileDialog = [] {}; ///< runs while each file dialog is open
    std::deque<bool> busyChanges;               ///< the busy pointer shown and taken away, in order

private:
    LGLOBAL& m_shared;
};
