#include "app/SetsModel.h"

#include "app/TextPictures.h"

#include <QColor>
#include <QFont>

#include <algorithm>

using namespace Qt::StringLiterals;

void SetsModel::SetUp(int picks, int rows)
{
    beginResetModel();
    m_picks = std::clamp(picks, 1, kMostPicks);
    m_rows = std::clamp(rows, 1, kMostSets);
    m_sets = 0;
    endResetModel();
}

void SetsModel::Fill(const SetTable& table, int sets)
{
    beginResetModel();
    m_table = table;
    m_sets = std::min(sets, m_rows);
    endResetModel();
}

void SetsModel::Clear()
{
    beginResetModel();
    m_sets = 0;
    endResetModel();
}

void SetsModel::SetRed(bool red)
{
    beginResetModel();
    m_red = red;
    endResetModel();
}

int SetsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int SetsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_picks + FirstPickColumn;
}

QString SetsModel::CellText(const QModelIndex& index) const
{
    const int set = index.row() + 1;
    if (set > m_sets) {
        return {};
    }
    if (index.column() == NumberColumn) {
        return QString::number(set);
    }
    const qint16 number =
        m_table.at(static_cast<std::size_t>(set)).at(static_cast<std::size_t>(index.column()));
    return number == 0 ? QString() : RightJustify(Format(number, u"##"), 2);
}

QVariant SetsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return CellText(index);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (index.column() == NumberColumn ? Qt::AlignHCenter : Qt::AlignRight));
    case Qt::ForegroundRole:
        return IsRed(index) ? QVariant(QColor(Qt::red)) : QVariant();
    case Qt::FontRole: { // for those who do not see red
        QFont bold;
        bold.setBold(true);
        return IsRed(index) ? QVariant(bold) : QVariant();
    }
    default:
        return {};
    }
}

QVariant SetsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return section == NumberColumn ? u"No."_s : Str(section);
    }
    return {};
}
