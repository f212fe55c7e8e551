#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"
#include "help/HelpBook.h"
#include "help/HelpSearch.h"

#include <QDialog>
#include <QStandardItemModel>
#include <QUrl>

#include <memory>
#include <vector>

namespace Ui {
class HelpWindow;
}

/// The window of the help: the contents, a search and the page that is read. It stands beside the program and
/// keeps nobody from working. Closing it hides it, so that it opens again as it was left.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    HelpWindow(LGLOBAL& shared, Prompts& prompts);
    ~HelpWindow() override;

    /// Shows the first page, with the contents beside it.
    void ShowContents();

    /// Shows a page by its name; one that does not exist is not shown.
    void ShowPage(const QString& name);

    /// Looks for words, as if they were typed, and shows the first page that holds them all.
    void SearchFor(const QString& words);

    [[nodiscard]] const HelpBook& Book() const { return m_book; }
    /// The name of the page that is shown.
    [[nodiscard]] const QString& PageName() const { return m_pageName; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void SetUpContents();
    void SetUpButtons();
    void SetUpKeys();
    void SetUpSearch();
    void TakeOpeningSize();
    void PageShown(const QUrl& url);
    void ShowHits();
    void OpenHit(const QModelIndex& row);
    void ChangeTextSize(int steps);
    void Print();

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    HelpBook m_book;
    QStandardItemModel m_contents;
    QStandardItemModel m_results;
    QString m_pageName;
    QStringList m_words; ///< that are looked for
    int m_textSize = 0;  ///< steps from the desktop's
    bool m_shownBefore = false;
    std::unique_ptr<Ui::HelpWindow> m_ui;
};
