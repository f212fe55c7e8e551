#pragma once

#include "app/FormSwitcher.h"
#include "app/LotoMenu.h"
#include "app/WorkingForm.h"

#include <QMainWindow>

#include <functional>
#include <map>
#include <utility>

/// The main window: the menu and the working forms stand in it, one at a time.
class MDIContainer : public QMainWindow, public FormSwitcher
{
    Q_OBJECT

public:
    /// Makes a working form inside the given parent.
    using FormMaker = std::function<WorkingForm*(FormSwitcher& switcher, QWidget* parent)>;

    /// Makes a modal dialog over the main window and runs it until it is closed.
    using DialogRunner = std::function<void(FormSwitcher& switcher, QWidget* mainWindow)>;

    MDIContainer(LGLOBAL& shared, Prompts& prompts, const QString& programFolder);

    /// Says how a form is made when it is first shown.
    void AddForm(FormName name, FormMaker maker);

    /// Says how a dialog is run.
    void AddDialog(FormName name, DialogRunner runner);

    /// Says how the help is opened at its contents.
    void SetHelp(std::function<void()> openContents) { m_openHelp = std::move(openContents); }

    /// The menu's start and the window's place: left 0, top 0, 9,615 by 6,870 twips, or more where the
    /// desktop's font needs more.
    void Start();

    /// Opens a file that was named outside, in the form that its name belongs to: the tracker or the editor.
    void OpenNamedFile(const QString& path);

    /// Opens a file that the desktop hands over while the program runs: where a dropped one would be opened,
    /// so that nothing typed is lost; elsewhere a notice says where to go first.
    void OpenHandedFile(const QString& path);

    [[nodiscard]] LotoMenu& Menu() { return *m_menu; }
    [[nodiscard]] WorkingForm* ActiveForm() { return m_active; }
    [[nodiscard]] const WorkingForm* ActiveForm() const { return m_active; }

    void ShowForm(FormName name) override;
    bool RunDialog(FormName name) override;
    void HideForm() override;
    void ShowHelp() override;
    void TellComesLater(const QString& what) override;
    void SetCaption(const QString& caption) override;
    void FileChanged() override;
    void EndProgram() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OpenDroppedFile(const QString& path);
    WorkingForm* FindForm(FormName name);
    void BringToFront(WorkingForm* form);
    void StageResized();
    void MoveForm(WorkingForm* form, QPoint twips);
    void GrowFor(const WorkingForm& form);
    [[nodiscard]] QPoint InPixels(QPoint twips) const;

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    QWidget* m_stage; ///< what lies behind the forms
    LotoMenu* m_menu;
    WorkingForm* m_active = nullptr; ///< the form that is shown; none while a file dialog of the menu is open
    std::map<FormName, FormMaker> m_makers;
    std::map<FormName, WorkingForm*> m_forms;
    std::map<FormName, DialogRunner> m_dialogs;
    std::function<void()> m_openHelp;
};
