#pragma once

#include "app/BarChart.h"
#include "app/WorkingForm.h"

#include <memory>

namespace Ui {
class LGraph;
}

/// The statistics of the numbers as a bar chart. Each of the three toggling buttons names the view that it
/// switches to, so the captions say what is shown now; no other record is kept.
class LGraph : public WorkingForm
{
    Q_OBJECT

public:
    LGraph(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent = nullptr);
    ~LGraph() override;

    /// Shows the times drawn in number order with flat bars.
    void Load() override;

private:
    void SwitchOrder();
    void SwitchCount();
    void SwitchStyle();
    void Redraw();
    void Print();
    void Exit();

    [[nodiscard]] bool ShowsNumberOrder() const;
    [[nodiscard]] bool ShowsFlatBars() const;
    [[nodiscard]] BarChart Chart() const;

    std::unique_ptr<Ui::LGraph> m_ui;
};
