#include "database/RecordsModel.h"

#include "app/ShortDate.h"
#include "app/TextPictures.h"

using namespace Qt::StringLiterals;

RecordsModel::RecordsModel(const DrawDatabase& database, const QLocale& locale, QObject* parent)
    : QAbstractTableModel(parent), m_database(database), m_locale(locale)
{}

void RecordsModel::Build()
{
    constexpr int kMoreThanRecords = 24;
    beginResetModel();
    m_gridRows = m_database.count + kMoreThanRecords;
    m_columns = m_database.Shape().picks + FirstPickColumn;
    m_filled = 0;
    endResetModel();
}

void RecordsModel::Fill()
{
    beginResetModel();
    m_filled = m_database.count;
    endResetModel();
}

void RecordsModel::Clear()
{
    beginResetModel();
    m_filled = 0;
    endResetModel();
}

int RecordsModel::RecordInRow(int row) const
{
    return row >= 0 && row < m_filled ? m_filled - row : 0;
}

int RecordsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_gridRows - 1;
}

int RecordsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QString RecordsModel::CellText(int record, int column) const
{
    constexpr int kNumberWidth = 4;
    constexpr int kPickWidth = 3;
    const DrawRecord& draw = m_database.records.at(static_cast<std::size_t>(record));
    if (column == NumberColumn) {
        return RightJustify(Format(::CellText(draw.number), u"####"), kNumberWidth);
    }
    if (column == DateColumn) {
        const std::optional<QDate> date = CellDate(draw.date, m_locale);
        return date ? ShortDate(*date, m_locale) : ::CellText(draw.date);
    }
    const Cell& number = draw.drawn.at(static_cast<std::size_t>(column - FirstPickColumn));
    return RightJustify(Format(::CellText(number), u"###"), kPickWidth);
}

QVariant RecordsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    }
    const int record = RecordInRow(index.row());
    if (role != Qt::DisplayRole || record == 0) {
        return {};
    }
    return CellText(record, index.column());
}

QVariant RecordsModel::headerData(int section, Qt::Orientation orientation, int role) const
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
