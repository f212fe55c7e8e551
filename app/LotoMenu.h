#pragma once

#include "app/WorkingForm.h"

#include <memory>

namespace Ui {
class LotoMenu;
}

/// The main menu: twelve buttons, each of which hides the menu and shows one working form.
class LotoMenu : public WorkingForm
{
    Q_OBJECT

public:
    LotoMenu(LGLOBAL& shared, Prompts& prompts, FormSwitcher& switcher, QString programFolder,
             QWidget* parent = nullptr);
    ~LotoMenu() override;

    /// Starts the program: the caption, the first values of the shared state, the user's name.
    void Load() override;

    [[nodiscard]] QPoint FrontPlace() const override;

    /// Opens a lottery database without asking for it and shows the editor.
    void OpenNamedFile(const QString& path) override;

    /// On the menu every file may be opened.
    [[nodiscard]] bool OpensDropped(const QString& path) const override;

    /// Shows the user's name, or hides its label when there is none.
    void ShowUserName();

    /// Says which database is in memory, and what it holds; without records, how to begin.
    void ShowFileInMemory();

    /// Puts a panel with something to tell above the buttons; it belongs to the menu from now on.
    void AddPanel(QWidget* panel);

    /// With the desktop's own letters: a large window may become small again.
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has chosen one of the files last opened, and it is there.
    void RecentFileChosen(const QString& path);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ConnectButtons();
    void SetUpRecentFiles();
    void OpenFile();
    void OpenRecentFile(const QString& path);
    void SaveFileToDisk();
    void ShowWithRecords(FormName form);
    void ShowGraphs();
    void Personalize();
    void ExtractRecords();
    void PrintDatabase();
    void Exit();

    QString m_programFolder;
    QSize m_leastSize; ///< needed with the desktop's own letters, while larger ones are shown
    std::unique_ptr<Ui::LotoMenu> m_ui;
};
