#include "app/DialogPrompts.h"

#include "app/AMsgbox.h"
#include "app/AllYesNo.h"
#include "app/FileDir.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

void Print(const QString& text)
{
    std::fputs((text + u'\n').toLocal8Bit().constData(), stderr);
}

} // namespace

void DialogPrompts::ShowMessage()
{
    if (m_unattended) {
        Print(CurrentMessageText(m_shared));
        return;
    }
    AMsgbox box(m_shared, m_mainWindow);
    box.exec();
}

void DialogPrompts::AskQuestion()
{
    AllYesNo question(m_shared, m_mainWindow);
    if (m_unattended) {
        question.reject();
        return;
    }
    question.exec();
}

void DialogPrompts::AskToPrint(const std::function<PrintedDocument()>& /*pages*/)
{
    AskQuestion();
}

void DialogPrompts::PrintDocument(const PrintedDocument& /*document*/)
{
    Notice(QStringLiteral("Printing comes with a later version."));
}

void DialogPrompts::FileDirectory()
{
    if (m_unattended) {
        m_shared.fileDialogMode = kFileDialogCancelled;
        return;
    }
    FileDir(m_shared, m_mainWindow).FileDirectory();
}

void DialogPrompts::Notice(const QString& text)
{
    if (m_unattended) {
        Print(text);
        return;
    }
    AMsgbox box(m_shared, text, m_mainWindow);
    box.exec();
}

void DialogPrompts::SetBusyPointer(bool busy)
{
    if (busy == m_busy) {
        return;
    }
    m_busy = busy;
    if (busy) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}
