#pragma once

#include "app/ChangeFnt.h"
#include "app/MDIContainer.h"
#include "database/Extract.h"
#include "database/LDbase.h"
#include "database/LGraph.h"
#include "help/HelpDesk.h"
#include "hotcold/LHotCold.h"
#include "invest/LInvTrack.h"
#include "picks/LCheckWin.h"
#include "picks/Lottery.h"
#include "tests/CannedPrompts.h"
#include "tests/ModalWindows.h"
#include "tests/QtPrinters.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

/// A main window with all forms, an own shared state, an own program folder and prompts that answer by
/// themselves.
class FormBench : public testing::Test
{
protected:
    FormBench();
    ~FormBench() override;

    /// Shows the window as at the program's start.
    void Start();
    /// Starts and shows the editor on the database as it is.
    void OpenEditor();
    /// A 6/49 database with draws on Wednesdays and Saturdays; record r holds r, r+1 .. r+5.
    void FillDatabase(int records);

    /// A widget by its object name, of the form that is shown before others; a missing one ends the test.
    template <typename Widget>
    Widget& Find(const QString& name)
    {
        auto* widget =
            m_window.ActiveForm() == nullptr ? nullptr : m_window.ActiveForm()->findChild<Widget*>(name);
        if (widget == nullptr) {
            widget = m_window.findChild<Widget*>(name);
        }
        if (widget == nullptr) {
            throw std::runtime_error("no widget " + name.toStdString());
        }
        return *widget;
    }

    void Click(const QString& button) { QTest::mouseClick(&Find<QAbstractButton>(button), Qt::LeftButton); }
    /// Clicks where a check box has its box.
    void ClickBox(const QString& checkBox)
    {
        auto& box = Find<QAbstractButton>(checkBox);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    }
    InputBox& Box(const QString& name) { return Find<InputBox>(name); }
    InputBox& NumberBox(int i) { return Box(QStringLiteral("DYourNumIn%1").arg(i)); }
    /// Puts the focus on a box without a click and types.
    void TypeInto(const QString& box, const QString& text);
    void TypeDraw(const QStringList& numbers);
    QString TextOf(const QString& label) { return Find<QLabel>(label).text(); }
    /// The text of a cell as the grid shows it.
    QString Cell(const QString& grid, int row, int column);
    /// Runs @p act on the dialog that opens next; it has to close it. A dialog that does not open fails the
    /// test.
    void OnDialog(const std::function<void(QWidget& dialog)>& act);
    /// A widget of a dialog by its object name; a missing one ends the test.
    template <typename Widget>
    static Widget& In(const QWidget& dialog, const QString& name)
    {
        auto* widget = dialog.findChild<Widget*>(name);
        if (widget == nullptr) {
            throw std::runtime_error("no widget " + name.toStdString());
        }
        return *widget;
    }
    static void ClickIn(const QWidget& dialog, const QString& button)
    {
        QTest::mouseClick(&In<QAbstractButton>(dialog, button), Qt::LeftButton);
    }
    [[nodiscard]] QString FocusName() const;
    [[nodiscard]] QString LastMessage() const
    {
        return m_prompts.shownTexts.value(m_prompts.shownTexts.size() - 1);
    }
    [[nodiscard]] QString LastReason() const
    {
        return m_prompts.shownReasons.value(m_prompts.shownReasons.size() - 1);
    }
    /// Lets queued events run.
    static void Settle() { QCoreApplication::processEvents(); }

    QTemporaryDir m_folder;
    QString m_oldFolder = QDir::currentPath();
    LGLOBAL m_shared;
    CannedPrompts m_prompts{m_shared};
    MDIContainer m_window{m_shared, m_prompts, m_folder.path()};
    HelpDesk* m_help = nullptr; ///< the menu owns it
    int m_dialogsToCome = 0;
    QObject m_dialogWatch; ///< owns what waits for a dialog
};
