#pragma once

#include "app/InputPause.h"
#include "app/WorkingForm.h"
#include "hotcold/HcdAnalysis.h"
#include "hotcold/HcdSets.h"

#include <memory>

namespace Ui {
class LHotCold;
}

/// Hot, cold and due numbers: shows the ten of each, makes sets of a chosen count of each, and prints them.
class LHotCold : public WorkingForm
{
    Q_OBJECT

public:
    LHotCold(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent = nullptr);
    ~LHotCold() override;

    void Load() override;

    /// Tallies the numbers: times drawn in the last draws, or draws since last drawn, as the count mode says.
    void HCDCount();
    /// Shows the hot numbers as they were just ranked. Like the other two, the graph keeps what it shows when
    /// there are fewer than ten.
    void MakeHGraph();
    /// Ranks the tally for the list that the shared graph mode names.
    void HCDSortCount();
    /// Shows the cold numbers; with fewer than ten it sets the flag for too little data and brings message
    /// 51.
    void MakeCGraph();
    /// Shows the due numbers.
    void MakeDGraph();
    /// Gives the grid its heading and ten empty rows.
    void MakeHCDGrid();
    /// Makes the sets. @return false after message 31 or 7, with no sets made.
    [[nodiscard]] bool HCDSortRange();
    /// Empties the grid; what it showed can still be printed.
    void ClearHCD();
    /// Counts and ranks all three lists and shows them.
    void HCDCalc();
    /// Says "Shuffling" and "Picking" under the busy pointer; the sets are shown afterwards. Until then the
    /// main window takes no input but Escape, which ends the wait.
    void SuffleHCD();

private:
    void SetUpLabels();
    void SetUpInputs();
    void ConnectCommands();
    void OnCommand(QAbstractButton* button, void (LHotCold::*command)());
    [[nodiscard]] std::optional<Message> LeaveCount(InputBox& box, bool edited);
    [[nodiscard]] std::optional<Message> LeaveLastDraws(InputBox& box, bool edited);

    void ForgetSets();
    void ReadGameSets();
    [[nodiscard]] HcdCounts Counts() const;
    [[nodiscard]] Message TooFewNumbers() const;
    void ShowHelp(bool opens);

    void Calculate();
    void ShowSets();
    void Print();
    void Exit();

    std::unique_ptr<Ui::LHotCold> m_ui;
    InputPause m_pause; ///< while the words change
    HcdAnalysis m_analysis;
    HcdBasis m_madeFrom; ///< the sets in the shared table
    CountMode m_countMode = CountMode::TimesDrawn;
    int m_lastDraws = 0;       ///< hot and cold numbers are counted over so many
    int m_maxHcd = 0;          ///< numbers of a set, as many as the lottery draws
    int m_distinctNumbers = 0; ///< of the period, when they were too few
    bool m_notEnoughData = false;
};
