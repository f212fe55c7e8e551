#pragma once

#include "app/InputPause.h"
#include "app/WorkingForm.h"
#include "picks/PickEntries.h"

#include <memory>

namespace Ui {
class Lottery;
}

/// The Selectorium: makes sets of numbers to play, from the full range of the lottery, from sorted positions
/// of the counted numbers, or with all numbers spread over the sets.
class Lottery : public WorkingForm
{
    Q_OBJECT

public:
    Lottery(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent = nullptr);
    ~Lottery() override;

    void Load() override;

    /// Gives the grid room for all numbers spread over sets.
    void MakeGrid2();
    /// Shows the balls in their resting colours.
    void StartColor();
    /// Lets the balls roll under the busy pointer; the sets are shown when they are at rest again. Until then
    /// the main window takes no input but Escape, which ends the run.
    void BallsDisplay();

private:
    /// What one of the entry boxes is checked against when the focus leaves it.
    struct EntryRange {
        int highest = 0; ///< the lowest is 1
        Message message; ///< when it is outside
        double fallback = 0;
    };

    void SetUpGrid();
    void SetUpLabels();
    void SetUpInputs();
    void ConnectCommands();
    void OnCommand(QAbstractButton* button, void (Lottery::*command)());
    [[nodiscard]] std::optional<Message> LeaveEntry(InputBox& box, bool edited, const EntryRange& range);
    [[nodiscard]] EntryRange LeftRange();
    [[nodiscard]] EntryRange RightRange();
    void WriteEntry(InputBox* box, double value);
    void ShowEntries(const PickEntries& entries);
    [[nodiscard]] PickEntries Entries() const;
    [[nodiscard]] bool HoldsOnePick() const;

    void ShowDatabase();
    void ShapeGrid(int rows);
    void ClearDisplay();
    void ChooseFullRange();
    void ChooseSortedPositions();
    void ChooseCount();
    void ChooseFewerPicks();
    /// Lets the option buttons and check boxes show what is chosen, after a press that was refused.
    void ShowChoices();
    void ShowCount();
    void SwitchHelp();
    void ShowHelp(bool opens);

    void Calculate();
    void PickSets(const PickEntries& entries);
    [[nodiscard]] bool ListCandidates(const PickEntries& entries);
    void SelectAll();
    void ShowTexts();
    void ShowSets();
    void EndCalculation();
    void ClearAll();
    void Print();
    void ShowHotColdDue();
    void Exit();

    std::unique_ptr<Ui::Lottery> m_ui;
    InputPause m_pause; ///< while the balls roll
    PickMode m_pickMode = PickMode::None;
    bool m_allowFewerPicks = false;
    int m_picks = 0;           ///< numbers of a set, as last calculated or typed
    int m_calculatedPicks = 0; ///< numbers of a set of the last calculation, which is what is printed
    int m_setCount = 0;        ///< sets of the last calculation
    QString m_pickedFrom;      ///< heading of the last calculation
    QString m_fromNumbers;     ///< what the last calculation picked from
};
