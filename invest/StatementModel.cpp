#include "invest/StatementModel.h"

#include "app/TextPictures.h"
#include "app/ToolTips.h"
#include "invest/InvestmentCalculation.h"

#include <QFont>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRowsBelowTheLast = 3; // two empty ones and the Total

} // namespace

StatementModel::StatementModel(const InvestmentTable& rows, const Currency& total, QObject* parent)
    : QAbstractTableModel(parent), m_rows(rows), m_total(total)
{}

void StatementModel::BuildEmpty()
{
    beginResetModel();
    m_totalRow = 0;
    endResetModel();
}

void StatementModel::Build(int rowCount)
{
    beginResetModel();
    m_totalRow = rowCount + kRowsBelowTheLast;
    endResetModel();
    RowTyped(m_totalRow); // a damaged file may hold rows that its count leaves out
}

void StatementModel::RowTyped(int row)
{
    const bool totalStandsThere = row == m_totalRow && row <= kMostStatementRows &&
                                  m_rows.at(static_cast<std::size_t>(row)) != InvestmentRow();
    if (totalStandsThere) {
        m_totalRow = LastRowInUse(m_rows) + kRowsBelowTheLast;
        Q_EMIT dataChanged(index(m_totalRow - 1, 0), index(m_totalRow - 1, Columns - 1));
    }
    Q_EMIT dataChanged(index(row - 1, 0), index(row - 1, Columns - 1));
}

int StatementModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kMostStatementRows + kRowsBelowTheLast;
}

int StatementModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QString StatementModel::CellText(int row, int column) const
{
    if (row == m_totalRow) {
        return column == DescriptionColumn ? u"Total"_s : Format(m_total, u"####,,##0.00");
    }
    const InvestmentRow& item = m_rows.at(static_cast<std::size_t>(row));
    if (row > kMostStatementRows) {
        return {}; // a file may carry rows beyond the last that can be used
    }
    if (column == DescriptionColumn) {
        constexpr qsizetype kLongest = 1000; // more than any cell shows; a file may hold a line of any length
        return item.description.left(kLongest);
    }
    return item.amount ? Format(*item.amount, u"####,,###.00") : QString();
}

bool StatementModel::StandsOut(int row) const
{
    return row == m_totalRow || IsSubTotal(CellText(row, DescriptionColumn));
}

QVariant StatementModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const int row = index.row() + 1;
    switch (role) {
    case Qt::DisplayRole:
        return CellText(row, index.column());
    case Qt::ToolTipRole: // a long description is cut at the edge of its cell
        return index.column() == DescriptionColumn ? LiteralToolTip(CellText(row, DescriptionColumn))
                                                   : QString();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (index.column() == AmountColumn ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return StandsOut(row) ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QVariant StatementModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        const bool usable = section >= 0 && section < kMostStatementRows;
        return role == Qt::DisplayRole && usable ? QVariant(section + 1) : QVariant();
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (section == AmountColumn ? Qt::AlignRight : Qt::AlignLeft));
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    return section == DescriptionColumn ? u"Description"_s : u"              Amount"_s;
}
