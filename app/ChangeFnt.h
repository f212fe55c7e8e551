#pragma once

#include "app/FormEvents.h"
#include "app/FormSwitcher.h"
#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QDialog>

#include <memory>

namespace Ui {
class ChangeFnt;
}

/// The personal settings. The font comes into force when it is chosen, the name when its box is left, the
/// others when the form is left; then all of them are written to disk. The open database keeps its shape.
class ChangeFnt : public QDialog
{
    Q_OBJECT

public:
    ChangeFnt(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* mainWindow);
    ~ChangeFnt() override;

    /// Leaving by Escape or the window's frame is leaving by the button: nothing typed is lost.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void SetUpBoxes();
    void ShowSettings();
    void SaveAndLeave();

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    FormSwitcher& m_switcher;
    FormEvents* m_events;
    std::unique_ptr<Ui::ChangeFnt> m_ui;
};
