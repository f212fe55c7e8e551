#include "help/HelpWindow.h"

#include "app/HtmlPages.h"
#include "app/Printing.h"
#include "help/HelpBrowser.h"
#include "help/HelpStyle.h"
#include "help/HitDelegate.h"
#include "ui_HelpWindow.h"

#include <QScreen>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Not in the namespace below: the macro names a function that stands in none.
static void LoadPages()
{
    Q_INIT_RESOURCE(help); // of a library, which the linker would leave out
}

namespace {

constexpr int kPageRole = Qt::UserRole + 1; ///< the name of the page an entry leads to
constexpr int kLeastTextSize = -2;
constexpr int kMostTextSize = 6;

QStandardItem* MakeEntry(const HelpPage& page)
{
    auto* entry = new QStandardItem(page.title);
    entry->setData(page.name, kPageRole);
    entry->setEditable(false);
    return entry;
}

} // namespace

HelpWindow::HelpWindow(LGLOBAL& shared, Prompts& prompts)
    : QDialog(nullptr, Qt::Window), m_shared(shared), m_prompts(prompts),
      m_ui(std::make_unique<Ui::HelpWindow>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its main window
    LoadPages();
    const Outcome read = ReadHelpBook(HelpBrowser::Folder(), m_book);
    if (!read.ok) {
        m_ui->Page->setPlainText(read.reason);
    }
    SetUpContents();
    SetUpButtons();
    SetUpKeys();
    SetUpSearch();
    connect(m_ui->Page, &HelpBrowser::sourceChanged, this, &HelpWindow::PageShown);
    ChangeTextSize(0);
    ShowContents();
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::SetUpContents()
{
    std::vector<QStandardItem*> path; // from the left edge to the entry before
    for (const HelpPage& page : m_book.pages) {
        QStandardItem* entry = MakeEntry(page);
        path.resize(std::size_t(page.level));
        if (path.empty()) {
            m_contents.appendRow(entry);
        } else {
            path.back()->appendRow(entry);
        }
        path.push_back(entry);
    }
    m_ui->Contents->setModel(&m_contents);
    m_ui->Contents->expandAll();
    connect(m_ui->Contents->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& entry) {
                if (const QString name = entry.data(kPageRole).toString(); name != m_pageName) {
                    ShowPage(name);
                }
            });
}

void HelpWindow::SetUpButtons()
{
    connect(m_ui->Backward, &QPushButton::clicked, m_ui->Page, &HelpBrowser::backward);
    connect(m_ui->Forward, &QPushButton::clicked, m_ui->Page, &HelpBrowser::forward);
    connect(m_ui->Page, &HelpBrowser::backwardAvailable, m_ui->Backward, &QPushButton::setEnabled);
    connect(m_ui->Page, &HelpBrowser::forwardAvailable, m_ui->Forward, &QPushButton::setEnabled);
    connect(m_ui->Home, &QPushButton::clicked, this, &HelpWindow::ShowContents);
    connect(m_ui->Smaller, &QPushButton::clicked, this, [this] { ChangeTextSize(m_textSize - 1); });
    connect(m_ui->Normal, &QPushButton::clicked, this, [this] { ChangeTextSize(0); });
    connect(m_ui->Larger, &QPushButton::clicked, this, [this] { ChangeTextSize(m_textSize + 1); });
    connect(m_ui->PrintPage, &QPushButton::clicked, this, &HelpWindow::Print);
    connect(m_ui->CloseHelp, &QPushButton::clicked, this, &QDialog::reject);
}

void HelpWindow::SetUpKeys()
{
    const QList<std::pair<QKeySequence, QPushButton*>> keys{
        {Qt::ALT | Qt::Key_Left, m_ui->Backward}, {Qt::ALT | Qt::Key_Right, m_ui->Forward},
        {Qt::ALT | Qt::Key_Home, m_ui->Home},     {Qt::CTRL | Qt::Key_Plus, m_ui->Larger},
        {Qt::CTRL | Qt::Key_Equal, m_ui->Larger}, {Qt::CTRL | Qt::Key_Minus, m_ui->Smaller},
        {Qt::CTRL | Qt::Key_0, m_ui->Normal},     {Qt::CTRL | Qt::Key_P, m_ui->PrintPage},
    };
    for (const auto& [key, button] : keys) {
        auto* shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, button, [button = button] { button->click(); });
    }
    auto* search = new QShortcut(Qt::CTRL | Qt::Key_F, this);
    connect(search, &QShortcut::activated, this, [this] {
        m_ui->Search->setFocus(Qt::ShortcutFocusReason);
        m_ui->Search->selectAll();
    });
}

void HelpWindow::SetUpSearch()
{
    m_ui->Results->setModel(&m_results);
    m_ui->Results->setItemDelegate(new HitDelegate(m_ui->Results));
    connect(m_ui->Search, &QLineEdit::textChanged, this, &HelpWindow::ShowHits);
    connect(m_ui->Search, &QLineEdit::returnPressed, this, [this] { OpenHit(m_results.index(0, 0)); });
    connect(m_ui->Results, &QListView::clicked, this, &HelpWindow::OpenHit);
    connect(m_ui->Results->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &HelpWindow::OpenHit);
    ShowHits();
}

void HelpWindow::ShowHits()
{
    m_words = SearchWords(m_ui->Search->text());
    m_results.clear();
    const std::vector<HelpHit> hits = SearchHelp(m_book, m_words);
    for (const HelpHit& hit : hits) {
        QStandardItem* entry = MakeEntry(m_book.pages.at(std::size_t(hit.page)));
        entry->setData(hit.snippet, HitDelegate::kSnippetRole);
        entry->setAccessibleText(entry->text() + u". "_s + hit.snippet);
        m_results.appendRow(entry);
    }
    const QString pages = hits.size() == 1 ? u"1 page"_s : u"%1 pages"_s.arg(hits.size());
    m_ui->Found->setText(hits.empty() ? u"No page has all of these words."_s : pages + u" found:"_s);
    m_ui->Found->setVisible(!m_words.isEmpty());
    m_ui->Left->setCurrentWidget(m_words.isEmpty() ? m_ui->ContentsSide : m_ui->ResultsSide);
    m_ui->Page->MarkWords(m_words.isEmpty() ? QStringList() : m_words);
}

void HelpWindow::OpenHit(const QModelIndex& row)
{
    if (row.isValid()) {
        ShowPage(row.data(kPageRole).toString());
        m_ui->Page->MarkWords(m_words);
    }
}

void HelpWindow::SearchFor(const QString& words)
{
    m_ui->Search->setText(words);
    m_ui->Results->setCurrentIndex(m_results.index(0, 0));
}

void HelpWindow::ShowContents()
{
    m_ui->Search->clear();
    if (!m_book.pages.empty()) {
        ShowPage(m_book.pages.front().name);
    }
}

void HelpWindow::ShowPage(const QString& name)
{
    if (m_book.IndexOf(name) >= 0 && name != m_pageName) {
        m_ui->Page->ShowPage(name);
    }
}

/// The contents show where the reader is, however the page was reached.
void HelpWindow::PageShown(const QUrl& url)
{
    m_pageName = HelpBrowser::PageAt(url); // the page's own source still is the one before
    const QModelIndexList entries = m_contents.match(m_contents.index(0, 0), kPageRole, m_pageName, 1,
                                                     Qt::MatchExactly | Qt::MatchRecursive);
    if (!entries.isEmpty()) {
        m_ui->Contents->setCurrentIndex(entries.constFirst());
        setWindowTitle(u"How to Use the Program - "_s + entries.constFirst().data().toString());
    }
    m_ui->Page->MarkWords(m_words);
}

void HelpWindow::ChangeTextSize(int steps)
{
    m_textSize = std::clamp(steps, kLeastTextSize, kMostTextSize);
    m_ui->Page->SetTextSize(m_textSize);
    m_ui->Smaller->setEnabled(m_textSize > kLeastTextSize);
    m_ui->Normal->setEnabled(m_textSize != 0);
    m_ui->Larger->setEnabled(m_textSize < kMostTextSize);
}

void HelpWindow::Print()
{
    const QString html = HtmlOnPaper(m_ui->Page->PageHtml());
    PrintDocumentOnRequest(m_shared, m_prompts,
                           {.name = m_ui->Page->documentTitle(),
                            .pages = {},
                            .charts = {},
                            .html = html,
                            .htmlPages = CountHtmlPages(html)});
}

void HelpWindow::showEvent(QShowEvent* event)
{
    if (!m_shownBefore) {
        m_shownBefore = true;
        TakeOpeningSize();
    }
    QDialog::showEvent(event);
}

/// Room for a line that reads well beside the contents, and never more than the screen has.
void HelpWindow::TakeOpeningSize()
{
    constexpr int kColumns = 125;
    constexpr int kLines = 38;
    const QRect room = screen()->availableGeometry();
    const QSize wanted(kColumns * fontMetrics().averageCharWidth(), kLines * fontMetrics().lineSpacing());
    resize(wanted.expandedTo(minimumSizeHint()).boundedTo(room.size() * 9 / 10));
    // In the corner where it covers least of the main window, which opens in the opposite one. The frame of
    // the window is not known yet.
    const QSize distance(room.width() / 40, room.height() / 15);
    const QPoint corner =
        room.bottomRight() - QPoint(width() + distance.width(), height() + distance.height());
    move(std::max(room.left(), corner.x()), std::max(room.top(), corner.y()));
}
