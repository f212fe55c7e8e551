#pragma once

#include "tests/FormBench.h"

/// A bench that walks through all forms and dialogs, each with something in it.
class EveryForm : public FormBench
{
public:
    EveryForm() { m_prompts.anythingGoes = true; }

    /// Shows the menu as it is at the start, every form at the opening size and at 1280 x 800, then every
    /// dialog, and calls @p look with each.
    void Visit(const std::function<void(QWidget& form, const QString& name)>& look);

private:
    void TestBody() override {}
    void VisitForms(const std::function<void(QWidget& form, const QString& name)>& look);
    void VisitDialogs(const std::function<void(QWidget& form, const QString& name)>& look);
};
