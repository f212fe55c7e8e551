#include "app/SetsGrid.h"

#include "app/SetsDelegate.h"
#include "app/Twips.h"

#include <QHeaderView>

#include <algorithm>

SetsGrid::SetsGrid(QWidget* parent) : QTableView(parent), m_sets(new SetsModel(this))
{
    setModel(m_sets);
    setItemDelegate(new SetsDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    constexpr int kSmallestSection = 16;
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setMinimumSectionSize(kSmallestSection);
    }
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->hide();
}

int SetsGrid::WidthFor(int picks) const
{
    constexpr int kColumn = 575;
    constexpr int kFrame = 10;
    return TwipsToPixels((picks + 1) * kColumn + kFrame, logicalDpiX());
}

void SetsGrid::SetUp(int picks, int rows)
{
    m_sets->SetUp(picks, rows);
    setFixedWidth(WidthFor(std::clamp(picks, 1, kMostPicks)));
    scrollToTop();
    FitRows();
}

void SetsGrid::FitRows()
{
    // Ten sets and their heading fill the grid; larger letters than its own would only be further apart.
    constexpr int kRows = 10;
    const int lowest = fontMetrics().height() + 4;
    const int room = (height() - 2 * frameWidth()) / (kRows + 1);
    const int row = std::clamp(room, lowest, 2 * lowest);
    horizontalHeader()->setFixedHeight(row);
    verticalHeader()->setDefaultSectionSize(row);
    setMinimumHeight((kRows + 1) * lowest + 2 * frameWidth());
}

void SetsGrid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    FitRows();
}
