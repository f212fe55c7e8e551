#pragma once

#include "app/WorkingForm.h"
#include "picks/MatchesModel.h"
#include "picks/WinnerReport.h"

#include <array>
#include <memory>

namespace Ui {
class LCheckWin;
}

/// The winner check: which draws of the database share at least so many numbers with the player's.
class LCheckWin : public WorkingForm
{
    Q_OBJECT

public:
    LCheckWin(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent = nullptr);
    ~LCheckWin() override;

    void Load() override;

    /// Gives the grid its rows and columns, with empty cells, and shows as many number boxes as there are
    /// picks. A search leaves the boxes as they are: the player is to see the numbers that were checked.
    void MakeCGrid();
    /// Empties the result cells; the results themselves stay and can still be printed.
    void ClearCGrid();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void SetUpGrid();
    void SetUpTitle();
    void SizeColumns();
    void SetUpBoxes();
    void ConnectCommands();
    void EmptyBoxes();
    /// Lets the tool tip and screen readers say what was found; "" while no results are shown.
    void SayOfGrid(const QString& found);
    [[nodiscard]] std::optional<Message> LeaveMinimum(InputBox& box, bool edited);
    [[nodiscard]] QStringList NumberTexts() const;

    void CheckNumbers();
    void Search(const QStringList& numbers, int minimum);
    void ClearAll();
    void PrintMatches();
    void ShowHelp(bool opens);
    void Exit();

    std::unique_ptr<Ui::LCheckWin> m_ui;
    MatchesModel m_matches;
    std::array<InputBox*, kMostPicks> CInYourNum{};
    QString m_aboutGrid;      ///< what screen readers say of the grid in any case
    WinnerSearch m_search;    ///< the last one; its results are the scratch copy of the records
    int m_gridRows = 0;       ///< wanted of the grid, its heading among them
    bool m_searching = false; ///< from the press of "Check Numbers" until the results are shown
};
