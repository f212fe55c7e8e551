#pragma once

#include "app/PrinterDoor.h"
#include "app/Prompts.h"

#include <QWidget>

#include <memory>

/// The prompts of the running program: modal dialogs over the main window.
class DialogPrompts : public Prompts
{
public:
    explicit DialogPrompts(LGLOBAL& shared, std::unique_ptr<PrinterDoor> printers = SystemPrinters())
        : m_shared(shared), m_printers(std::move(printers))
    {}

    /// The window the dialogs belong to, once there is one.
    void SetMainWindow(QWidget* mainWindow) { m_mainWindow = mainWindow; }

    /// With nobody to answer, as on the picture tour: messages go to the error output, questions are answered
    /// as if closed, the file dialog as if cancelled.
    void SetUnattended() { m_unattended = true; }

    void ShowMessage() override;
    void AskQuestion() override;
    void AskToPrint(const std::function<PrintedDocument()>& pages) override;
    void PrintDocument(const PrintedDocument& document) override;
    void FileDirectory() override;
    void Notice(const QString& text) override;
    [[nodiscard]] bool Offer(const QString& text, const QString& deed) override;
    void SetBusyPointer(bool busy) override;

private:
    LGLOBAL& m_shared;
    std::unique_ptr<PrinterDoor> m_printers;
    QWidget* m_mainWindow = nullptr;
    bool m_busy = false;
    bool m_unattended = false;
};
