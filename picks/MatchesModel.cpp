#include "picks/MatchesModel.h"

#include "app/TextPictures.h"
#include "picks/WinnerReport.h"

#include <algorithm>

using namespace Qt::StringLiterals;

MatchesModel::MatchesModel(const std::vector<DrawRecord>& results, const QLocale& locale, QObject* parent)
    : QAbstractTableModel(parent), m_results(results), m_locale(locale)
{}

void MatchesModel::Build(int gridRows, int picks)
{
    beginResetModel();
    m_gridRows = std::max(gridRows, 1);
    m_columns = picks + FirstPickColumn;
    m_filled = 0;
    m_noMatches = false;
    endResetModel();
}

void MatchesModel::Fill(int count)
{
    Show(count, false);
}

void MatchesModel::FillNoMatches()
{
    Show(0, true);
}

void MatchesModel::Clear()
{
    Show(0, false);
}

void MatchesModel::Show(int count, bool noMatches)
{
    beginResetModel();
    m_filled = std::clamp(count, 0, std::max(static_cast<int>(m_results.size()) - 1, 0));
    m_noMatches = noMatches;
    endResetModel();
}

int MatchesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_gridRows - 1;
}

int MatchesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QString MatchesModel::CellText(int row, int column) const
{
    constexpr int kNumberWidth = 4;
    constexpr int kPickWidth = 3;
    const DrawRecord& result = m_results.at(static_cast<std::size_t>(m_filled - row));
    if (column == NumberColumn) {
        return RightJustify(Format(::CellText(result.number), u"####"), kNumberWidth);
    }
    if (column == DateColumn) {
        return DrawDateText(result.date, m_locale);
    }
    const QString number =
        Format(::CellText(result.drawn.at(static_cast<std::size_t>(column - FirstPickColumn))), u"###");
    return number.isEmpty() ? QString() : RightJustify(number, kPickWidth);
}

QVariant MatchesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (index.row() < m_filled) {
        return CellText(index.row(), index.column());
    }
    const bool saysNoMatches = m_noMatches && index.row() == 0 && index.column() == DateColumn;
    return saysNoMatches ? QVariant(u"No Matches"_s) : QVariant();
}

QVariant MatchesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NumberColumn:
        return u"Record"_s;
    case DateColumn:
        return u"Date"_s;
    default:
        return Str(section - FirstPickColumn + 1);
    }
}
