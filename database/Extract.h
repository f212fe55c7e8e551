#pragma once

#include "app/FormEvents.h"
#include "app/FormSwitcher.h"
#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Extract;
}

/// Turns a range of records of the open database into a new database that replaces it in memory.
class Extract : public QDialog
{
    Q_OBJECT

public:
    Extract(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* mainWindow);
    ~Extract() override;

    /// Leaves everything as it is.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void SetUpBoxes();
    [[nodiscard]] std::optional<Message> LeaveLow(InputBox& box);
    [[nodiscard]] std::optional<Message> LeaveHigh(InputBox& box);
    void ExtractRange();
    void ShowHelp(bool opens);

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    FormSwitcher& m_switcher;
    FormEvents* m_events;
    std::unique_ptr<Ui::Extract> m_ui;
};
