#include "app/DialogPrompts.h"

#include "app/AMsgbox.h"
#include "app/AllYesNo.h"
#include "app/FileDir.h"
#include "app/PaperPrinting.h"
#include "app/PrintPreview.h"

#include <QApplication>

#include <cstdio>

namespace {

void Print(const QString& text)
{
    std::fputs((text + u'\n').toLocal8Bit().constData(), stderr);
}

/// What a dialog opens over: the dialog that is open, or the main window.
QWidget* Below(QWidget* mainWindow)
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal == nullptr ? mainWindow : modal;
}

} // namespace

void DialogPrompts::ShowMessage()
{
    if (m_unattended) {
        Print(CurrentMessageText(m_shared));
        return;
    }
    AMsgbox box(m_shared, Below(m_mainWindow));
    box.exec();
}

void DialogPrompts::AskQuestion()
{
    AllYesNo question(m_shared, Below(m_mainWindow));
    if (m_unattended) {
        question.reject();
        return;
    }
    question.exec();
}

void DialogPrompts::AskToPrint(const std::function<PrintedDocument()>& pages)
{
    AllYesNo question(m_shared, Below(m_mainWindow));
    if (m_unattended) {
        question.reject();
        return;
    }
    question.OfferPreview([&] {
        PaperPrinting printing(m_shared, *this, *m_printers, &question);
        PrintPreview preview(pages(), printing.Paper(), &question);
        preview.OnSaveAsPdf([&] { printing.SaveAsPdf(preview.Document(), preview.Paper()); });
        preview.exec();
    });
    question.exec();
}

void DialogPrompts::PrintDocument(const PrintedDocument& document)
{
    if (m_unattended) {
        return;
    }
    PaperPrinting(m_shared, *this, *m_printers, Below(m_mainWindow)).Print(document);
}

void DialogPrompts::FileDirectory()
{
    if (m_unattended) {
        m_shared.fileDialogMode = kFileDialogCancelled;
        return;
    }
    FileDir(m_shared, Below(m_mainWindow)).FileDirectory();
}

void DialogPrompts::Notice(const QString& text)
{
    if (m_unattended) {
        Print(text);
        return;
    }
    AMsgbox box(m_shared, text, Below(m_mainWindow));
    box.exec();
}

bool DialogPrompts::Offer(const QString& text, const QString& deed)
{
    if (m_unattended) {
        Print(text);
        return false;
    }
    AMsgbox box(m_shared, text, Below(m_mainWindow));
    bool taken = false;
    box.Offer(deed, [&] { taken = true; });
    box.exec();
    return taken;
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
