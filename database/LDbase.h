#pragma once

#include "app/WorkingForm.h"
#include "database/CountsModel.h"
#include "database/NewRow.h"
#include "database/RecordsModel.h"

#include <QCheckBox>
#include <QDate>

#include <array>
#include <memory>

namespace Ui {
class LDbase;
}

/// The database editor: shape, title and draw days of the lottery, its records newest first, the counts of
/// its numbers, and the 'New' row in which the next draw is typed.
class LDbase : public WorkingForm
{
    Q_OBJECT

public:
    LDbase(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent = nullptr);
    ~LDbase() override;

    void Load() override;

    /// Deletes SelectedRecord and shows the records again in the order of their dates.
    void DeleteRec();
    /// Checks the 'New' row and inserts it by its date, which must not be later than the last record's.
    void InsertRec();
    /// Empties the cells of the records and the statistics; the records themselves stay.
    void ClearAllCels();
    /// Shows the buttons again that MakInvisible hid.
    void MakVisible();
    /// Hides the buttons that cannot be used while a correction or insertion is pending.
    void MakInvisible();

private:
    void SetUpGrids();
    void SetUpLabels();
    void SetUpInputs();
    void SetUpNumberBoxes();
    void ConnectCommands();

    void BuildRecordsGrid();
    void FillRecordsGrid();
    void ShowStatistics();
    void ShowShape();
    void ShowDrawDays();
    void AdvanceDate();
    void EmptyNumberBoxes();
    [[nodiscard]] QStringList NumberTexts() const;

    [[nodiscard]] std::optional<Message> LeaveDate(InputBox& box);
    [[nodiscard]] std::optional<Message> LeaveShapeBox(InputBox& box, bool edited, int highest, int message,
                                                       const std::function<int()>& current);

    void AddRecord();
    void TakeRow(EditMode task);
    void ShowFault(const EntryFault& fault);
    void ShowNewRecord();
    void DeleteAll();
    void SwitchCount();
    void ShowHelp(bool opens);
    void CorrectRecord();
    void BeginCorrection();
    void BeginInsertion();
    void FinishTask();
    void EndTask();
    void SortAndShow();
    void ShowAgain(int unreadable);
    void RebuildWhenFewRowsAreSpare();
    void ShowGraph();
    void Exit();

    std::unique_ptr<Ui::LDbase> m_ui;
    RecordsModel m_records;
    std::array<CountsModel, 3> m_counts;
    std::array<InputBox*, kMostPicks> DYourNumIn{};
    std::array<QCheckBox*, 7> DaysofWeek{};
    QDate NewDate; ///< of the 'New' row
    bool AllowDuplicates = false;
};
