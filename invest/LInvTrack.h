#pragma once

#include "app/WorkingForm.h"
#include "invest/InvestmentFile.h"
#include "invest/StatementModel.h"
#include "invest/StatementTyping.h"

#include <memory>

namespace Ui {
class LInvTrack;
}

/// The investment tracker: a statement of money spent and won, typed straight into its grid, counted, kept in
/// a file of its own and printed.
class LInvTrack : public WorkingForm
{
    Q_OBJECT

public:
    LInvTrack(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QWidget* parent = nullptr);
    ~LInvTrack() override;

    /// Begins with an empty statement.
    void Load() override;

    /// Asks question 5 when something was changed and not saved, and there is anything to lose: counted rows,
    /// or a cell in use.
    [[nodiscard]] bool MayClose() override;

    /// A statement may be dropped: it comes with the same question as one that is opened.
    [[nodiscard]] bool OpensDropped(const QString& path) const override;
    [[nodiscard]] QString FilePath() const override;

    /// Opens a file without asking for it.
    void OpenNamedFile(const QString& path) override;

    [[nodiscard]] Outcome TakeRecovered(const RecoveredWork& work) override;

private:
    void SetUpGrid();
    void ConnectCommands();

    [[nodiscard]] StatementPlace Place() const;
    void GoTo(const StatementPlace& place);
    void TypedInto(Typed result);
    void EnterPressed();
    void WidenAmounts();

    void Calculate();
    void InsertLine();
    void OpenFile();
    void SaveFile();
    void Print();
    void ShowHelp(bool opens);
    void Exit();

    void Take(const InvestmentStatement& statement);
    void TakeLoaded(const InvestmentReading& loaded);
    void Rebuild();
    [[nodiscard]] bool MayBeReplaced();
    [[nodiscard]] bool KeepsAllAmounts();
    void TellCannotCalculate();
    [[nodiscard]] std::optional<InvestmentStatement> CountTyped() const;
    [[nodiscard]] QString PrintHeading() const;

    std::unique_ptr<Ui::LInvTrack> m_ui;
    StatementModel m_model;
    StatementTyping m_typing;
    InvestmentStatement m_counted; ///< as it was last calculated: what is printed
    bool m_uncounted = false;      ///< the rows are not as that left them: typed since, or a file's own
    bool m_changed = false;        ///< something was changed since the last load or save
};
