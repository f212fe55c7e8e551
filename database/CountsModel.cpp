#include "database/CountsModel.h"

CountsModel::CountsModel(const NumberTable& counts, int firstNumber, QObject* parent)
    : QAbstractTableModel(parent), m_counts(counts), m_firstNumber(firstNumber)
{}

void CountsModel::SetUp(int highest)
{
    beginResetModel();
    m_highest = highest;
    m_filled = false; // what was counted belongs to the database before
    endResetModel();
}

void CountsModel::Fill()
{
    beginResetModel();
    m_filled = true;
    endResetModel();
}

void CountsModel::Clear()
{
    beginResetModel();
    m_filled = false;
    endResetModel();
}

int CountsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1;
}

int CountsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kNumbersInGrid;
}

QVariant CountsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    }
    const int number = m_firstNumber + index.column();
    if (role != Qt::DisplayRole || !m_filled || number > m_highest) {
        return {};
    }
    return QString::number(m_counts.at(static_cast<std::size_t>(number)).value);
}

QVariant CountsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const int number = m_firstNumber + section;
    return number > m_highest ? QString() : QString::number(number);
}
